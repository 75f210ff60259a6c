// Combo boxes with input history on top of an editable QComboBox. The box's
// logic lives in an XComboBoxModel attached to the box (deleted with it or
// by XComboBoxFinalize); these functions are what the panels call.
#pragma once

#include "settings/PropertyValue.h"
#include "settings/Status.h"
#include "ui/XComboBoxModel.h"

class QComboBox;

namespace orvan {

// Makes the box editable, lists the fixed items and the valid history
// entries, applies the input limits and validates the text whenever the box
// loses the keyboard focus. A box set up before is set up anew. Returns
// kNoError (also at once for a null box).
Status XComboBoxInitializeWithMapAndHistory(QComboBox* box, const _XComboBoxOptions& options);

// Validates the box's text (a number outside minimum..maximum is replaced by
// the nearest bound, in the box too), then gives its value as
// XComboBoxModel::copyValue does: kXComboBoxEmpty for an empty text,
// kBadParameter for a null or uninitialised box.
Status XComboBoxCopyValue(QComboBox* box, PropertyValue& value);

// Shows a value in the box's field (a string as it is, a number as its fixed
// item's text or written with the locale). kBadParameter for a null box or
// a value that is neither string nor number.
Status XComboBoxSetValue(QComboBox* box, const PropertyValue& value);

// With save true, records the box's text in the history file; then detaches
// the box's model in every case.
void XComboBoxFinalize(QComboBox* box, bool save);

// The model attached to a box, or null.
const XComboBoxModel* XComboBoxModelOf(const QComboBox* box);

} // namespace orvan
