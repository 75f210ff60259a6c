// Small text and number helpers shared by the panels.
#pragma once

#include "settings/PropertyValue.h"

#include <QString>

namespace orvan {

// Decimal digits of |n| (the sign is not counted); 1 for 0.
int CountDigits(long n);

// Replaces XML references in text: "&#65;" and "&#x41;" become the character
// (above U+FFFF as a surrogate pair); a named reference is looked up in the
// five predefined entities merged with extraEntities (a dictionary of name ->
// string; its entries win where names clash) and stays as written when the
// name is unknown. After a numeric reference's digits, characters up to the
// next semicolon (or the end) are consumed. Other text is copied unchanged.
QString XMLCreateStringByUnescapingEntities(const QString& text,
                                            const PropertyValue* extraEntities = nullptr);

} // namespace orvan
