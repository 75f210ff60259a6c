// Localised texts used as formats: the text of a key with %1, %2, ...
// replaced by arguments. Plain Qt Core; the widget setters that show such
// texts are in ui/LocalizedTitles.h.
#pragma once

#include <QString>
#include <QStringList>

namespace orvan {

class Bundle;

// Replaces %1 ... %99 in format by the matching argument, in one pass (an
// argument that itself holds "%2" is not replaced again). A marker without an
// argument, and "%" followed by anything else, stay as written.
QString FormatText(const QString& format, const QStringList& arguments);

// The text of key in the bundle's "Localizable" table (the key itself when
// the table has no text for it, or when there is no bundle), formatted with
// the arguments.
QString LocalizedFormat(const Bundle* bundle, const QString& key,
                        const QStringList& arguments = {});

} // namespace orvan
