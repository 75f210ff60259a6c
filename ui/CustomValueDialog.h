// The "CustomValue" dialog: one text field for a value the menus do not
// offer, with OK, Cancel and Help.
#pragma once

#include "settings/Status.h"

#include <QDialog>
#include <QString>

class QLineEdit;

namespace orvan {

class Bundle;

// Result codes of the dialog.
inline constexpr int kCustomValueOK = 1;
inline constexpr int kCustomValueCancel = 2;

// The help page the dialog's Help button opens.
inline const QString kCustomValueHelpPage = QStringLiteral("image_options/db_custom_color_d.htm");

// Object names, for tests and style sheets: the dialog is "CustomValue", its
// field "CustomValueField", its buttons "OKButton", "CancelButton" and
// "HelpButton".
class CustomValueDialog : public QDialog
{
    Q_OBJECT

public:
    // The field takes at most secondLimit characters (below 1: no limit);
    // firstLimit is the shortest complete entry. Any character is allowed.
    CustomValueDialog(const Bundle* bundle, int firstLimit, int secondLimit, const QString& value,
                      QWidget* parent = nullptr);

    QString value() const;

private:
    QLineEdit* m_field;
};

// Runs the dialog application-modal, the field pre-filled with value when it
// is not null. OK: result kCustomValueOK and value set to the field's text.
// Cancel: result kCustomValueCancel and value set to a null string. Help
// opens the dialog's help page and leaves the dialog open. Returns kNoError.
Status RunModalCustomValueDialog(const Bundle* bundle, int firstLimit, int secondLimit,
                                 QString& value, int& result, QWidget* parent = nullptr);

} // namespace orvan
