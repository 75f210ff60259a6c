// The LAN fax setup dialog: the job's recipients (typed, picked from the
// address book, edited, removed, saved as a group) and its fax options. A
// thin view of LANFaxSetupModel; nothing reaches the job before OK.
//
// Object names: the dialog "LANFaxSetup"; the list "FaxRecipients"; the
// typed entry "FaxTypedName", "FaxTypedNumber", "FaxAddTyped"; the buttons
// "FaxAddressBookButton", "FaxEditButton", "FaxRemoveButton",
// "FaxSaveGroupButton"; the options "FaxConfirmationSheet", "FaxSendSpeed",
// "FaxResolution", "FaxSendNow", "FaxSendLater", "FaxSendTime",
// "FaxDialingPrefixOn", "FaxDialingPrefix", "FaxCreditCardOn",
// "FaxCreditCard", "FaxCoverSheet", "FaxCoverNotes", "FaxPromptDuplicate",
// "FaxPromptRemove"; "OKButton" and "CancelButton". Its own dialogs:
// "FaxAddressBook" (with "FaxAddressBookSearch", "FaxAddressBookList",
// "FaxAddressBookChooseFolder"), "FaxRecipientEditor", "FaxGroupName", and
// questions "FaxQuestion".
#pragma once

#include "fax/LANFaxSetupModel.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTreeWidget;
class QVBoxLayout;

namespace orvan {

class Bundle;

class LANFaxSetupDialog : public QDialog
{
    Q_OBJECT

public:
    LANFaxSetupDialog(LANFaxSetupModel& model, const Bundle* bundle, QWidget* parent = nullptr);

    void done(int result) override;

private:
    void buildRecipients(QVBoxLayout* layout);
    void buildOptions(QVBoxLayout* layout);
    void showRecipients();
    void showOptions();
    void updateEnabling();
    int selectedRow() const;
    std::vector<int> selectedRows() const;

    // Adds after the checks; false when refused or declined.
    bool addChecked(const FaxRecipientRef& recipient);
    void addTyped();
    void addFromAddressBook();
    void editSelected();
    void removeSelected();
    void saveAsGroup();
    bool ask(const Alert& question);

    LANFaxSetupModel& m_model;
    const Bundle* m_bundle;
    QTreeWidget* m_list = nullptr;
    QLabel* m_count = nullptr;
    QLineEdit* m_typedName = nullptr;
    QLineEdit* m_typedNumber = nullptr;
    QPushButton* m_addTyped = nullptr;
    QPushButton* m_edit = nullptr;
    QPushButton* m_remove = nullptr;
    QPushButton* m_saveGroup = nullptr;
    QComboBox* m_confirmation = nullptr;
    QComboBox* m_speed = nullptr;
    QComboBox* m_resolution = nullptr;
    QRadioButton* m_sendNow = nullptr;
    QRadioButton* m_sendLater = nullptr;
    QDateTimeEdit* m_sendTime = nullptr;
    QCheckBox* m_prefixOn = nullptr;
    QLineEdit* m_prefix = nullptr;
    QCheckBox* m_creditCardOn = nullptr;
    QLineEdit* m_creditCard = nullptr;
    QComboBox* m_coverSheet = nullptr;
    QPlainTextEdit* m_coverNotes = nullptr;
    QCheckBox* m_promptDuplicate = nullptr;
    QCheckBox* m_promptRemove = nullptr;
};

// Runs the setup application-modal on the job's fax options dictionary and
// recipient list, with the user's address book. On OK the list and the
// dictionary are changed in place and true is returned; on Cancel (or with
// a null dictionary or list) nothing changes and false is returned.
bool RunModalLANFaxSetup(const Bundle* bundle, PropertyValue* faxOptions,
                         FaxRecipientList* recipients, QWidget* parent = nullptr);

// The same on the list's ticket form (an array of recipient dictionaries), as
// the Paper/Output panel keeps it: the array is rebuilt from the edited list
// on OK and left alone on Cancel.
bool RunModalLANFaxSetupOnTicketForm(const Bundle* bundle, PropertyValue& faxOptions,
                                     PropertyValue& faxRecipientList, QWidget* parent);

} // namespace orvan
