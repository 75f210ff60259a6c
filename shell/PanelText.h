// Texts every panel needs: the plug-in's bundle, localised keys (the key
// itself when the bundle has no text) and the title/value pairs of
// GetSummaryText.
#pragma once

#include "settings/PropertyValue.h"

#include <QString>

namespace orvan {

class Bundle;

// The shell's bundle (the plug-in's own); null outside a shell.
const Bundle* ShellBundle();

// The text of the key in the default table; the key itself without a bundle
// or text.
QString PanelText(const Bundle* bundle, const QString& key);

// A control label's text as a summary title: the label without its trailing
// colon ("Toner Saver:" -> "Toner Saver").
QString SummaryTitleFromLabel(const Bundle* bundle, const QString& labelKey);

// Appends one pair, first making either array when it is still not an array
// (GetSummaryText hands every panel the same two arrays, Null at the start).
void AppendSummaryPair(PropertyValue* titles, PropertyValue* values, const QString& title,
                       const QString& value);

} // namespace orvan
