// The about dialog of the Advanced panel: the product's name, version and
// build from the plug-in's Info.plist.
#pragma once

#include <QDialog>

namespace orvan {

class Bundle;

class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    // Object names: "AboutDialog", "ProductName", "ProductVersion".
    AboutDialog(const Bundle* bundle, QWidget* parent);
};

// Shows the dialog modally over parent.
void RunAboutDialog(const Bundle* bundle, QWidget* parent);

} // namespace orvan
