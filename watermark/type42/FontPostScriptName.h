// The PostScript name a TrueType font gives itself.
#pragma once

#include "watermark/type42/SfntData.h"

#include <optional>
#include <string>

namespace orvan {

// The font's PostScript name (name table, name id 6) in UTF-8. Records are
// taken in this order of preference: Windows Unicode (platform 3, encoding 0,
// 1 or 10) in US English, any other Windows Unicode record, Unicode platform
// (0), Macintosh Roman (platform 1, encoding 0). UTF-16BE and Mac Roman text
// is decoded; records that lie outside the table, do not decode or are empty
// are passed over. None when no usable record exists.
std::optional<std::string> fontPostScriptName(FontBytes font);

} // namespace orvan
