// The button row of the plug-in's small modal dialogs.
#pragma once

#include <QString>

class QDialog;
class QDialogButtonBox;

namespace orvan {

class Bundle;

// OK ("OKButton"), Cancel ("CancelButton") and Help ("HelpButton") for the
// dialog: OK accepts it, Cancel rejects it, Help opens `helpPage` of the
// bundle's help book and leaves the dialog open (a failure to open it goes to
// the standard error stream).
QDialogButtonBox* NewOkCancelHelpButtons(QDialog* dialog, const Bundle* bundle,
                                         const QString& helpPage);

} // namespace orvan
