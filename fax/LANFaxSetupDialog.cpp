#include "fax/LANFaxSetupDialog.h"

#include "settings/SettingMaps.h"
#include "ui/AlertBox.h"
#include "ui/LocalizedFormat.h"
#include "ui/PopupMenus.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace orvan {

namespace {

QPushButton* button(const QString& text, const QString& name, QWidget* parent)
{
    auto* pushButton = new QPushButton(text, parent);
    pushButton->setObjectName(name);
    pushButton->setAutoDefault(false);
    return pushButton;
}

QDialogButtonBox* okCancel(QDialog* dialog, const QString& okText = {})
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    if (!okText.isEmpty())
        buttons->button(QDialogButtonBox::Ok)->setText(okText);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

QLineEdit* lineEdit(const QString& name, int maximum, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    edit->setMaxLength(maximum);
    return edit;
}

// A time a little ahead, on a five-minute mark: what "send later" offers
// before the user picks one.
QDateTime suggestedSendTime()
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    return QDateTime::fromSecsSinceEpoch((now / 300 + 13) * 300);
}

// A contact's picture in the picker: one head and shoulders for a person,
// three for a group, in the palette's text colour.
QIcon contactIcon(bool group, const QColor& colour)
{
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    auto figure = [&painter](qreal x, qreal scale, const QColor& fill) {
        painter.setBrush(fill);
        painter.drawEllipse(QPointF(x, 11 * scale + (1 - scale) * 14), 5.5 * scale, 5.5 * scale);
        painter.drawChord(QRectF(x - 10 * scale, 19 + (1 - scale) * 6, 20 * scale, 22 * scale), 0,
                          180 * 16);
    };
    QColor faint = colour;
    faint.setAlphaF(0.45);
    if (group) {
        figure(9, 0.75, faint);
        figure(23, 0.75, faint);
    }
    figure(16, 1.0, colour);
    return QIcon(picture);
}

// The address-book picker: a search field over the book's people (one row
// per fax number) and groups; several rows can be chosen at once.
class AddressBookPicker : public QDialog
{
public:
    AddressBookPicker(LANFaxSetupModel& model, QWidget* parent)
        : QDialog(parent), m_model(model), m_search(new QLineEdit(this)),
          m_list(new QListWidget(this)), m_folder(new QLabel(this))
    {
        setObjectName(QStringLiteral("FaxAddressBook"));
        setWindowTitle(model.text(QStringLiteral("FaxAddressBookTitle")));
        m_search->setObjectName(QStringLiteral("FaxAddressBookSearch"));
        m_search->setPlaceholderText(model.text(QStringLiteral("FaxAddressBookSearch")));
        m_search->setClearButtonEnabled(true);
        m_list->setObjectName(QStringLiteral("FaxAddressBookList"));
        m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_list->setAlternatingRowColors(true);
        m_folder->setObjectName(QStringLiteral("FaxAddressBookFolder"));
        m_folder->setWordWrap(true);
        m_folder->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* choose = button(model.text(QStringLiteral("FaxAddressBookChooseFolder")),
                              QStringLiteral("FaxAddressBookChooseFolder"), this);

        auto* folderRow = new QHBoxLayout;
        folderRow->addWidget(m_folder, 1);
        folderRow->addWidget(choose);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(m_search);
        layout->addWidget(m_list, 1);
        layout->addLayout(folderRow);
        layout->addWidget(okCancel(this, model.text(QStringLiteral("FaxAddButton"))));
        resize(460, 400);

        connect(m_search, &QLineEdit::textChanged, this, &AddressBookPicker::fill);
        connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
        connect(choose, &QPushButton::clicked, this, &AddressBookPicker::chooseFolder);
        fill();
    }

    std::vector<AddressBookChoice> chosen() const
    {
        std::vector<AddressBookChoice> chosen;
        for (int row = 0; row < m_list->count(); ++row)
            if (m_list->item(row)->isSelected())
                chosen.push_back(m_choices[static_cast<std::size_t>(row)]);
        return chosen;
    }

private:
    void fill()
    {
        m_choices = m_model.addressBookChoices(m_search->text());
        m_list->clear();
        for (const AddressBookChoice& choice : m_choices) {
            auto* item = new QListWidgetItem(choice.title + u'\n' + choice.detail, m_list);
            item->setIcon(contactIcon(choice.group, palette().color(QPalette::Text)));
        }
        if (m_list->count() > 0)
            m_list->setCurrentRow(0);
        m_folder->setText(FormatText(m_model.text(m_choices.empty() && m_search->text().isEmpty()
                                                      ? QStringLiteral("FaxAddressBookEmpty")
                                                      : QStringLiteral("FaxAddressBookIn")),
                                     {QDir::toNativeSeparators(m_model.addressBook().folder())}));
    }

    void chooseFolder()
    {
        const QString folder = QFileDialog::getExistingDirectory(
            this, m_model.text(QStringLiteral("FaxAddressBookChooseFolder")),
            m_model.addressBook().folder());
        if (folder.isEmpty())
            return;
        SetChosenAddressBookFolder(folder);
        m_model.addressBook() = AddressBook(folder);
        m_model.addressBook().load();
        fill();
    }

    LANFaxSetupModel& m_model;
    QLineEdit* m_search;
    QListWidget* m_list;
    QLabel* m_folder;
    std::vector<AddressBookChoice> m_choices;
};

// The fields of one recipient; edits a copy.
class RecipientEditor : public QDialog
{
public:
    RecipientEditor(const LANFaxSetupModel& model, const FaxRecipient& recipient, QWidget* parent)
        : QDialog(parent), m_recipient(std::make_shared<FaxRecipient>(recipient))
    {
        setObjectName(QStringLiteral("FaxRecipientEditor"));
        setWindowTitle(model.text(QStringLiteral("FaxRecipientTitle")));
        auto* form = new QFormLayout;
        const struct
        {
            const char* name;
            const char* label;
            void (FaxRecipient::*set)(FaxField);
        } rows[] = {
            {"FaxFirstName", "FaxFirstNameLabel", &FaxRecipient::setFirstName},
            {"FaxLastName", "FaxLastNameLabel", &FaxRecipient::setLastName},
            {"FaxNumber", "FaxNumberLabel", &FaxRecipient::setFaxNumber},
            {"FaxOrganization", "FaxOrganizationLabel", &FaxRecipient::setOrganization},
            {"FaxPhoneNumber", "FaxPhoneLabel", &FaxRecipient::setPhoneNumber},
            {"FaxEmailAddress", "FaxEmailLabel", &FaxRecipient::setEmailAddress},
            {"FaxMailbox", "FaxMailboxLabel", &FaxRecipient::setMailbox},
        };
        const FaxField values[] = {recipient.firstName(),   recipient.lastName(),
                                   recipient.faxNumber(),   recipient.organization(),
                                   recipient.phoneNumber(), recipient.emailAddress(),
                                   recipient.mailbox()};
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            auto* edit = lineEdit(QString::fromLatin1(rows[i].name), kMaxFaxFieldLength, this);
            edit->setText(values[i].value_or(QString()));
            form->addRow(model.text(QString::fromLatin1(rows[i].label)), edit);
            m_fields.push_back({edit, rows[i].set});
        }
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(form);
        layout->addWidget(okCancel(this));
        setMinimumWidth(380);
    }

    // The copy with the fields as typed (an emptied field is unset).
    FaxRecipientRef edited() const
    {
        for (const auto& [edit, set] : m_fields) {
            const QString text = edit->text().trimmed();
            ((*m_recipient).*set)(text.isEmpty() ? FaxField() : FaxField(text));
        }
        return m_recipient;
    }

private:
    FaxRecipientRef m_recipient;
    std::vector<std::pair<QLineEdit*, void (FaxRecipient::*)(FaxField)>> m_fields;
};

} // namespace

LANFaxSetupDialog::LANFaxSetupDialog(LANFaxSetupModel& model, const Bundle* bundle, QWidget* parent)
    : QDialog(parent), m_model(model), m_bundle(bundle)
{
    setObjectName(QStringLiteral("LANFaxSetup"));
    setWindowTitle(model.text(QStringLiteral("LANFaxSetupTitle")));
    setWindowModality(Qt::ApplicationModal);

    auto* layout = new QVBoxLayout(this);
    buildRecipients(layout);
    buildOptions(layout);
    auto* buttons = okCancel(this);
    layout->addWidget(buttons);

    showRecipients();
    showOptions();
    updateEnabling();
    resize(680, 640);
    m_typedName->setFocus();
}

void LANFaxSetupDialog::buildRecipients(QVBoxLayout* layout)
{
    auto* box = new QGroupBox(m_model.text(QStringLiteral("FaxRecipientsLabel")), this);
    m_list = new QTreeWidget(box);
    m_list->setObjectName(QStringLiteral("FaxRecipients"));
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setHeaderLabels({m_model.text(QStringLiteral("FaxNameColumn")),
                             m_model.text(QStringLiteral("FaxNumberColumn")),
                             m_model.text(QStringLiteral("FaxOrganizationColumn"))});
    m_list->header()->setStretchLastSection(true);
    m_list->setColumnWidth(0, 190);
    m_list->setColumnWidth(1, 170);
    m_count = new QLabel(box);
    m_count->setObjectName(QStringLiteral("FaxRecipientCount"));

    auto* addressBook = button(m_model.text(QStringLiteral("FaxAddressBookButton")),
                               QStringLiteral("FaxAddressBookButton"), box);
    m_edit =
        button(m_model.text(QStringLiteral("FaxEditButton")), QStringLiteral("FaxEditButton"), box);
    m_remove = button(m_model.text(QStringLiteral("FaxRemoveButton")),
                      QStringLiteral("FaxRemoveButton"), box);
    m_saveGroup = button(m_model.text(QStringLiteral("FaxSaveGroupButton")),
                         QStringLiteral("FaxSaveGroupButton"), box);
    auto* side = new QVBoxLayout;
    for (QPushButton* each : {addressBook, m_edit, m_remove, m_saveGroup})
        side->addWidget(each);
    side->addStretch(1);

    m_typedName = lineEdit(QStringLiteral("FaxTypedName"), kMaxFaxFieldLength * 2, box);
    m_typedName->setPlaceholderText(m_model.text(QStringLiteral("FaxTypedNamePlaceholder")));
    m_typedNumber = lineEdit(QStringLiteral("FaxTypedNumber"), kMaxFaxFieldLength, box);
    m_typedNumber->setPlaceholderText(m_model.text(QStringLiteral("FaxTypedNumberPlaceholder")));
    m_addTyped =
        button(m_model.text(QStringLiteral("FaxAddButton")), QStringLiteral("FaxAddTyped"), box);
    auto* typed = new QHBoxLayout;
    typed->addWidget(new QLabel(m_model.text(QStringLiteral("FaxTypedNameLabel")), box));
    typed->addWidget(m_typedName, 3);
    typed->addWidget(new QLabel(m_model.text(QStringLiteral("FaxTypedNumberLabel")), box));
    typed->addWidget(m_typedNumber, 2);
    typed->addWidget(m_addTyped);

    auto* grid = new QGridLayout(box);
    grid->addWidget(m_list, 0, 0);
    grid->addLayout(side, 0, 1);
    grid->addWidget(m_count, 1, 0, 1, 2);
    grid->addLayout(typed, 2, 0, 1, 2);
    layout->addWidget(box, 1);

    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &LANFaxSetupDialog::updateEnabling);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &LANFaxSetupDialog::editSelected);
    connect(m_typedNumber, &QLineEdit::textChanged, this, &LANFaxSetupDialog::updateEnabling);
    connect(m_typedNumber, &QLineEdit::returnPressed, this, &LANFaxSetupDialog::addTyped);
    connect(m_addTyped, &QPushButton::clicked, this, &LANFaxSetupDialog::addTyped);
    connect(addressBook, &QPushButton::clicked, this, &LANFaxSetupDialog::addFromAddressBook);
    connect(m_edit, &QPushButton::clicked, this, &LANFaxSetupDialog::editSelected);
    connect(m_remove, &QPushButton::clicked, this, &LANFaxSetupDialog::removeSelected);
    connect(m_saveGroup, &QPushButton::clicked, this, &LANFaxSetupDialog::saveAsGroup);
}

void LANFaxSetupDialog::buildOptions(QVBoxLayout* layout)
{
    auto* box = new QGroupBox(m_model.text(QStringLiteral("FaxOptionsLabel")), this);
    auto popup = [&](const QString& name, const _SettingMap* map) {
        auto* combo = new QComboBox(box);
        combo->setObjectName(name);
        PopulatePopupButtonFromMap(m_bundle, combo, map, 0, 0);
        return combo;
    };
    m_confirmation = popup(QStringLiteral("FaxConfirmationSheet"), _ConfirmationSheetMap);
    m_speed = popup(QStringLiteral("FaxSendSpeed"), _FaxSendSpeedMap);
    m_resolution = popup(QStringLiteral("FaxResolution"), _FaxResolutionMap);
    m_coverSheet = popup(QStringLiteral("FaxCoverSheet"), _CoverSheetMap);

    m_sendNow = new QRadioButton(m_model.text(QStringLiteral("FaxSendNow")), box);
    m_sendNow->setObjectName(QStringLiteral("FaxSendNow"));
    m_sendLater = new QRadioButton(m_model.text(QStringLiteral("FaxSendLater")), box);
    m_sendLater->setObjectName(QStringLiteral("FaxSendLater"));
    m_sendTime = new QDateTimeEdit(box);
    m_sendTime->setObjectName(QStringLiteral("FaxSendTime"));
    m_sendTime->setCalendarPopup(true);
    // Minutes are as fine as a send time needs to be.
    m_sendTime->setDisplayFormat(
        QLocale().dateFormat(QLocale::ShortFormat) + u' ' +
        QLocale().timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss")));
    auto* sendRow = new QHBoxLayout;
    sendRow->addWidget(m_sendNow);
    sendRow->addWidget(m_sendLater);
    sendRow->addWidget(m_sendTime, 1);

    m_prefixOn = new QCheckBox(m_model.text(QStringLiteral("FaxDialingPrefixLabel")), box);
    m_prefixOn->setObjectName(QStringLiteral("FaxDialingPrefixOn"));
    m_prefix = lineEdit(QStringLiteral("FaxDialingPrefix"), kMaxDialingStringLength, box);
    m_creditCardOn = new QCheckBox(m_model.text(QStringLiteral("FaxCreditCardLabel")), box);
    m_creditCardOn->setObjectName(QStringLiteral("FaxCreditCardOn"));
    m_creditCard = lineEdit(QStringLiteral("FaxCreditCard"), kMaxFaxFieldLength, box);
    m_creditCard->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    m_coverNotes = new QPlainTextEdit(box);
    m_coverNotes->setObjectName(QStringLiteral("FaxCoverNotes"));
    m_coverNotes->setPlaceholderText(m_model.text(QStringLiteral("FaxCoverNotesPlaceholder")));
    m_coverNotes->setFixedHeight(56);
    m_promptDuplicate = new QCheckBox(m_model.text(QStringLiteral("FaxPromptDuplicateLabel")), box);
    m_promptDuplicate->setObjectName(QStringLiteral("FaxPromptDuplicate"));
    m_promptRemove = new QCheckBox(m_model.text(QStringLiteral("FaxPromptRemoveLabel")), box);
    m_promptRemove->setObjectName(QStringLiteral("FaxPromptRemove"));

    auto* left = new QFormLayout;
    left->addRow(m_model.text(QStringLiteral("FaxConfirmationLabel")), m_confirmation);
    left->addRow(m_model.text(QStringLiteral("FaxSendSpeedLabel")), m_speed);
    left->addRow(m_model.text(QStringLiteral("FaxResolutionLabel")), m_resolution);
    left->addRow(m_model.text(QStringLiteral("FaxSendTimeLabel")), sendRow);
    left->addRow(m_prefixOn, m_prefix);
    left->addRow(m_creditCardOn, m_creditCard);
    left->addRow(m_model.text(QStringLiteral("FaxCoverSheetLabel")), m_coverSheet);
    left->addRow(m_model.text(QStringLiteral("FaxCoverNotesLabel")), m_coverNotes);
    auto* prompts = new QHBoxLayout;
    prompts->addWidget(m_promptDuplicate);
    prompts->addWidget(m_promptRemove);
    prompts->addStretch(1);
    left->addRow(prompts);
    box->setLayout(left);
    layout->addWidget(box);

    // Every control writes straight into the model's controls.
    FaxOptionControls& c = m_model.controls();
    auto changed = [this] { updateEnabling(); };
    connect(m_confirmation, &QComboBox::activated, this,
            [this, &c] { c.confirmationSheet = GetPopupButtonTicketValue(m_confirmation); });
    connect(m_speed, &QComboBox::activated, this,
            [this, &c] { c.sendSpeed = GetPopupButtonTicketValue(m_speed); });
    connect(m_resolution, &QComboBox::activated, this,
            [this, &c] { c.resolution = GetPopupButtonTicketValue(m_resolution); });
    connect(m_coverSheet, &QComboBox::activated, this, [this, &c, changed] {
        c.coverSheet = GetPopupButtonTicketValue(m_coverSheet);
        changed();
    });
    connect(m_sendLater, &QRadioButton::toggled, this, [&c, changed](bool on) {
        c.sendLater = on;
        changed();
    });
    connect(m_sendTime, &QDateTimeEdit::dateTimeChanged, this,
            [&c](const QDateTime& when) { c.sendTime = when; });
    connect(m_prefixOn, &QCheckBox::toggled, this, [&c, changed](bool on) {
        c.dialingPrefixOn = on;
        changed();
    });
    connect(m_prefix, &QLineEdit::textEdited, this,
            [&c](const QString& text) { c.dialingPrefix = text; });
    connect(m_creditCardOn, &QCheckBox::toggled, this, [&c, changed](bool on) {
        c.creditCardOn = on;
        changed();
    });
    connect(m_creditCard, &QLineEdit::textEdited, this,
            [&c](const QString& text) { c.creditCard = text; });
    connect(m_coverNotes, &QPlainTextEdit::textChanged, this,
            [this, &c] { c.coverSheetNotes = m_coverNotes->toPlainText(); });
    connect(m_promptDuplicate, &QCheckBox::toggled, this,
            [&c](bool on) { c.promptDuplicate = on; });
    connect(m_promptRemove, &QCheckBox::toggled, this, [&c](bool on) { c.promptRemove = on; });
}

void LANFaxSetupDialog::showRecipients()
{
    m_list->clear();
    for (const FaxRecipientRef& recipient : m_model.recipients().recipients()) {
        QString name = DisplayNameFromRecipient(*recipient);
        auto* item = new QTreeWidgetItem(m_list, {name, recipient->faxNumber().value_or(QString()),
                                                  recipient->organization().value_or(QString())});
        if (recipient->uid())
            item->setToolTip(0, m_model.text(QStringLiteral("FaxFromAddressBook")));
    }
    m_count->setText(LocalizedFormat(m_bundle,
                                     m_model.recipients().count() == 1
                                         ? QStringLiteral("FaxOneRecipient")
                                         : QStringLiteral("FaxRecipientCount"),
                                     {QString::number(m_model.recipients().count())}));
    updateEnabling();
}

void LANFaxSetupDialog::showOptions()
{
    FaxOptionControls& c = m_model.controls();
    if (!c.sendTime.isValid())
        c.sendTime = suggestedSendTime();
    // Filling the controls is not an edit: keep the model as read.
    const FaxOptionControls read = c;
    SetPopupButtonToTicketValue(m_confirmation, read.confirmationSheet);
    SetPopupButtonToTicketValue(m_speed, read.sendSpeed);
    SetPopupButtonToTicketValue(m_resolution, read.resolution);
    SetPopupButtonToTicketValue(m_coverSheet, read.coverSheet);
    (read.sendLater ? m_sendLater : m_sendNow)->setChecked(true);
    m_sendTime->setDateTime(read.sendTime);
    m_prefixOn->setChecked(read.dialingPrefixOn);
    m_prefix->setText(read.dialingPrefix);
    m_creditCardOn->setChecked(read.creditCardOn);
    m_creditCard->setText(read.creditCard);
    m_coverNotes->setPlainText(read.coverSheetNotes);
    m_promptDuplicate->setChecked(read.promptDuplicate);
    m_promptRemove->setChecked(read.promptRemove);
    c = read;
}

void LANFaxSetupDialog::updateEnabling()
{
    const LANFaxSetupEnabling on =
        m_model.enabling(static_cast<int>(selectedRows().size()), m_typedNumber->text());
    m_addTyped->setEnabled(on.addTyped);
    m_addTyped->setDefault(on.addTyped);
    m_edit->setEnabled(on.edit);
    m_remove->setEnabled(on.remove);
    m_saveGroup->setEnabled(on.saveGroup);
    if (m_sendTime) {
        m_sendTime->setEnabled(on.sendTime);
        m_prefix->setEnabled(on.dialingPrefix);
        m_creditCard->setEnabled(on.creditCard);
        m_coverNotes->setEnabled(on.coverNotes);
    }
}

std::vector<int> LANFaxSetupDialog::selectedRows() const
{
    std::vector<int> rows;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        if (m_list->topLevelItem(row)->isSelected())
            rows.push_back(row);
    return rows;
}

int LANFaxSetupDialog::selectedRow() const
{
    const std::vector<int> rows = selectedRows();
    return rows.size() == 1 ? rows.front() : -1;
}

bool LANFaxSetupDialog::ask(const Alert& question)
{
    QMessageBox box(AlertIcon(question.level), question.title, question.message,
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setObjectName(QStringLiteral("FaxQuestion"));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool LANFaxSetupDialog::addChecked(const FaxRecipientRef& recipient)
{
    if (auto refused = m_model.checkRecipient(*recipient)) {
        ShowAlert(*refused);
        return false;
    }
    if (auto question = m_model.duplicateQuestion(*recipient); question && !ask(*question))
        return false;
    m_model.addRecipient(recipient);
    return true;
}

void LANFaxSetupDialog::addTyped()
{
    if (m_typedNumber->text().trimmed().isEmpty())
        return;
    if (!addChecked(
            LANFaxSetupModel::recipientFromTypedName(m_typedName->text(), m_typedNumber->text())))
        return;
    m_typedName->clear();
    m_typedNumber->clear();
    showRecipients();
    m_typedName->setFocus();
}

void LANFaxSetupDialog::addFromAddressBook()
{
    m_model.addressBook().load();
    AddressBookPicker picker(m_model, this);
    if (picker.exec() != QDialog::Accepted)
        return;
    for (const AddressBookChoice& choice : picker.chosen())
        for (const FaxRecipientRef& recipient : m_model.recipientsForChoice(choice))
            addChecked(recipient);
    showRecipients();
}

void LANFaxSetupDialog::editSelected()
{
    const int row = selectedRow();
    const FaxRecipientRef current = m_model.recipients().recipientAtIndex(row);
    if (!current)
        return;
    RecipientEditor editor(m_model, *current, this);
    while (editor.exec() == QDialog::Accepted) {
        const FaxRecipientRef edited = editor.edited();
        if (auto refused = m_model.checkRecipient(*edited)) {
            ShowAlert(*refused);
            continue; // back to the editor with what was typed
        }
        m_model.replaceRecipient(row, edited);
        showRecipients();
        m_list->topLevelItem(row)->setSelected(true);
        return;
    }
}

void LANFaxSetupDialog::removeSelected()
{
    const std::vector<int> rows = selectedRows();
    if (auto question = m_model.removeQuestion(static_cast<int>(rows.size()));
        question && !ask(*question))
        return;
    m_model.removeRecipients(rows);
    showRecipients();
}

void LANFaxSetupDialog::saveAsGroup()
{
    QInputDialog input(this);
    input.setObjectName(QStringLiteral("FaxGroupName"));
    input.setWindowTitle(m_model.text(QStringLiteral("FaxGroupNameTitle")));
    input.setLabelText(m_model.text(QStringLiteral("FaxGroupNameLabel")));
    input.setTextValue(m_model.text(QStringLiteral("FaxGroupNameDefault")));
    if (input.exec() != QDialog::Accepted || input.textValue().trimmed().isEmpty())
        return;
    m_model.addressBook().load();
    ShowAlert(m_model.saveAsGroup(input.textValue()));
    showRecipients(); // committed members now have their address-book ids
}

void LANFaxSetupDialog::done(int result)
{
    if (result == QDialog::Accepted) {
        if (auto refused = m_model.checkBeforeOK(QDateTime::currentDateTime())) {
            ShowAlert(*refused);
            return; // stays open for the user to correct
        }
    }
    QDialog::done(result);
}

bool RunModalLANFaxSetup(const Bundle* bundle, PropertyValue* faxOptions,
                         FaxRecipientList* recipients, QWidget* parent)
{
    if (!faxOptions || !recipients)
        return false;
    AddressBook book(AddressBook::defaultFolder());
    book.load();
    LANFaxSetupModel model(bundle, *faxOptions, *recipients, std::move(book));
    LANFaxSetupDialog dialog(model, bundle, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    model.commit(faxOptions, recipients);
    return true;
}

bool RunModalLANFaxSetupOnTicketForm(const Bundle* bundle, PropertyValue& faxOptions,
                                     PropertyValue& faxRecipientList, QWidget* parent)
{
    FaxRecipientList recipients;
    recipients.fromTicket(faxRecipientList);
    if (!RunModalLANFaxSetup(bundle, &faxOptions, &recipients, parent))
        return false;
    faxRecipientList = recipients.toTicket();
    return true;
}

} // namespace orvan
