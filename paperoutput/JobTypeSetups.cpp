#include "paperoutput/JobTypeSetups.h"

#include "paperoutput/JobTypeSetupRules.h"
#include "platform/Alerts.h"
#include "settings/Bundle.h"
#include "shell/PanelText.h"
#include "stock/StockMenus.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace orvan {

namespace {

QString Text(const Bundle* bundle, const char* key)
{
    return PanelText(bundle, QString::fromLatin1(key));
}

QString DigitsHint(const Bundle* bundle)
{
    return Text(bundle, "Min-Max Digits").arg(kPasscodeMinDigits).arg(kPasscodeMaxDigits);
}

QLineEdit* PasscodeField(QWidget* parent, const char* objectName)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(objectName));
    field->setEchoMode(QLineEdit::Password);
    field->setMaxLength(kPasscodeMaxDigits);
    field->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9]{0,%1}").arg(kPasscodeMaxDigits)), field));
    return field;
}

// The OK/Cancel buttons of a setup dialog; OK runs accept.
QDialogButtonBox* Buttons(QDialog* dialog, const Bundle* bundle,
                          const std::function<void()>& accept)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    SetLocalizedControlTitle(bundle, QStringLiteral("OK Command"),
                             buttons->button(QDialogButtonBox::Ok));
    SetLocalizedControlTitle(bundle, QStringLiteral("Cancel Command"),
                             buttons->button(QDialogButtonBox::Cancel));
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

void Tell(const Bundle* bundle, const char* header, const char* message,
          const QStringList& arguments)
{
    Alert alert;
    alert.title = Text(bundle, header);
    alert.message = Text(bundle, message);
    for (const QString& argument : arguments)
        alert.message = alert.message.arg(argument);
    ShowAlert(alert);
}

// The passcode pair's OK: true when the dialog may close, with *passcode set.
bool ConfirmPasscodes(const Bundle* bundle, const QString& first, const QString& second,
                      QString* passcode)
{
    const auto random = [] { return QRandomGenerator::global()->generate(); };
    switch (CheckPasscodePair(first, second, random, passcode)) {
    case PasscodeVerdict::Mismatch:
        Tell(bundle, "Invalid Secure Print Passcode Header",
             "Invalid Secure Print Passcode Message",
             {QString::number(kPasscodeMinDigits), QString::number(kPasscodeMaxDigits)});
        return false;
    case PasscodeVerdict::Generated:
        Tell(bundle, "Passcode Required Header", "Passcode Required Message",
             {QString::number(kPasscodeMinDigits), QString::number(kPasscodeMaxDigits), *passcode});
        return true;
    case PasscodeVerdict::Accepted:
        return true;
    }
    return false;
}

// The confirmation field follows the passcode: enabled from four characters.
void LinkConfirmation(QLineEdit* passcode, QLineEdit* confirmation)
{
    QObject::connect(passcode, &QLineEdit::textChanged, confirmation,
                     [confirmation](const QString& text) {
                         confirmation->setEnabled(text.size() >= kPasscodeMinDigits);
                     });
}

} // namespace

bool RunModalSecurePrintSetup(const Bundle* bundle, QString& passcode, QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("SecurePrintSetup"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("SecurePrintSetupTitle"), &dialog);
    auto* hint = new QLabel(Text(bundle, "SecurePrintHintText"), &dialog);
    hint->setWordWrap(true);
    QLineEdit* first = PasscodeField(&dialog, "PasscodeField");
    QLineEdit* second = PasscodeField(&dialog, "ConfirmPasscodeField");
    LinkConfirmation(first, second);
    second->setEnabled(false);
    if (!passcode.isEmpty()) {
        first->setText(passcode);
        second->setText(passcode);
        second->setEnabled(true);
    }
    auto* form = new QFormLayout;
    form->addRow(Text(bundle, "Passcode:"), first);
    form->addRow(Text(bundle, "ConfirmPasscode:"), second);
    form->addRow(QString(), new QLabel(DigitsHint(bundle), &dialog));
    QString result;
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(hint);
    layout->addLayout(form);
    layout->addWidget(Buttons(&dialog, bundle, [&] {
        if (ConfirmPasscodes(bundle, first->text(), second->text(), &result))
            dialog.accept();
    }));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    passcode = result;
    return true;
}

bool RunModalDelayedPrintSetup(const Bundle* bundle, std::int64_t& time, QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("DelayedPrintSetup"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("DelayedPrint"), &dialog);
    auto* when = new QTimeEdit(&dialog);
    when->setObjectName(QStringLiteral("TimeToPrint"));
    when->setDisplayFormat(QStringLiteral("HH:mm"));
    when->setTime(time > 0 ? DateTimeFromSeconds1904(time).time() : QTime::currentTime());
    auto* form = new QFormLayout;
    form->addRow(Text(bundle, "TimeToPrint:"), when);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addLayout(form);
    layout->addWidget(Buttons(&dialog, bundle, [&dialog] { dialog.accept(); }));
    when->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return false;
    time = DelayedPrintSeconds(when->time(), QDateTime::currentDateTime());
    return true;
}

bool RunModalSavedJobDialog(const Bundle* bundle, PaperOutputRecord& record, QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("SavedJobDialog"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("Saved Job"), &dialog);
    const QString useJobName = Text(bundle, "UseJobName");
    const QString publicFolder = Text(bundle, "PublicFolder");
    auto* name = new QComboBox(&dialog);
    name->setObjectName(QStringLiteral("SavedJobName"));
    name->setEditable(true);
    name->addItem(useJobName);
    name->setCurrentText(record.useJobName ? useJobName : record.savedJobName);
    auto* folder = new QComboBox(&dialog);
    folder->setObjectName(QStringLiteral("SavedJobFolder"));
    folder->setEditable(true);
    folder->addItem(publicFolder);
    folder->setCurrentText(record.defaultLocation ? publicFolder : record.savedJobLocation);
    auto* save = new QRadioButton(Text(bundle, "Save"), &dialog);
    auto* savePrint = new QRadioButton(Text(bundle, "SavePrint"), &dialog);
    save->setObjectName(QStringLiteral("SaveRadio"));
    savePrint->setObjectName(QStringLiteral("SavePrintRadio"));
    (record.saveDisposition == kSaveAndPrint ? savePrint : save)->setChecked(true);
    auto* secure = new QCheckBox(Text(bundle, "withPasscode"), &dialog);
    secure->setObjectName(QStringLiteral("WithPasscode"));
    QLineEdit* first = PasscodeField(&dialog, "PasscodeField");
    QLineEdit* second = PasscodeField(&dialog, "ConfirmPasscodeField");
    if (!record.securePrintPasscode.isEmpty()) {
        first->setText(record.securePrintPasscode);
        second->setText(record.securePrintPasscode);
    }
    const auto enablePasscodes = [=](bool on) {
        first->setEnabled(on);
        second->setEnabled(on);
    };
    QObject::connect(secure, &QCheckBox::toggled, &dialog, enablePasscodes);
    secure->setChecked(record.withPasscode);
    enablePasscodes(record.withPasscode);

    auto* options = new QHBoxLayout;
    options->addWidget(save);
    options->addWidget(savePrint);
    options->addStretch(1);
    auto* form = new QFormLayout;
    form->addRow(Text(bundle, "Job Name:"), name);
    form->addRow(Text(bundle, "Folder:"), folder);
    form->addRow(QString(), options);
    form->addRow(Text(bundle, "SecureSavedJob:"), secure);
    form->addRow(Text(bundle, "Passcode:"), first);
    form->addRow(Text(bundle, "ConfirmPasscode:"), second);
    form->addRow(QString(), new QLabel(DigitsHint(bundle), &dialog));
    QString passcode;
    auto* layout = new QVBoxLayout(&dialog);
    layout->addLayout(form);
    layout->addWidget(Buttons(&dialog, bundle, [&] {
        if (!secure->isChecked() ||
            ConfirmPasscodes(bundle, first->text(), second->text(), &passcode))
            dialog.accept();
    }));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    record.saveDisposition = savePrint->isChecked() ? kSaveAndPrint : kSaveOnly;
    const QString typedName = name->currentText().trimmed();
    record.useJobName = typedName.isEmpty() || typedName == useJobName;
    if (!record.useJobName)
        record.savedJobName = typedName;
    const QString typedFolder = folder->currentText().trimmed();
    record.defaultLocation = typedFolder.isEmpty() || typedFolder == publicFolder;
    if (!record.defaultLocation)
        record.savedJobLocation = typedFolder;
    record.withPasscode = secure->isChecked();
    if (record.withPasscode)
        record.securePrintPasscode = passcode;
    return true;
}

bool RunModalBookletCreationDialog(const Bundle* bundle, BookletCreationParams& params,
                                   QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("BookletCreation"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("Booklet Creation"), &dialog);

    auto* finishing = new QGroupBox(Text(bundle, "Booklet Finishing:"), &dialog);
    auto* folds = new QButtonGroup(&dialog);
    auto* finishingLayout = new QVBoxLayout(finishing);
    for (const auto& [key, value] :
         {std::pair{"None", kFinishingNone}, std::pair{"Booklet Fold", kBookletFold},
          std::pair{"Booklet Fold and Staple", kBookletFoldStaple}}) {
        auto* radio = new QRadioButton(Text(bundle, key), finishing);
        folds->addButton(radio, value);
        finishingLayout->addWidget(radio);
    }
    const int fold = params.fold == kBookletFold || params.fold == kBookletFoldStaple
                         ? params.fold
                         : kFinishingNone;
    folds->button(fold)->setChecked(true);

    auto* layoutBox = new QGroupBox(Text(bundle, "Booklet Layout:"), &dialog);
    auto* layouts = new QButtonGroup(&dialog);
    auto* layoutLayout = new QVBoxLayout(layoutBox);
    for (const auto& [key, value] :
         {std::pair{"None", kBookletLayoutOff}, std::pair{"Booklet Layout", kBookletLayoutOn}}) {
        auto* radio = new QRadioButton(Text(bundle, key), layoutBox);
        radio->setObjectName(value == kBookletLayoutOn ? QStringLiteral("BookletLayoutOn")
                                                       : QStringLiteral("BookletLayoutOff"));
        layouts->addButton(radio, value);
        layoutLayout->addWidget(radio);
    }
    layouts->button(params.layout == kBookletLayoutOn ? kBookletLayoutOn : kBookletLayoutOff)
        ->setChecked(true);

    auto* outlines = new QCheckBox(Text(bundle, "Draw Outlines"), &dialog);
    outlines->setChecked(params.drawOutlines == kDrawOutlinesOn);
    auto* size = new QComboBox(&dialog);
    MenuModel sizes;
    PopulateStockSizeMenu(sizes, bundle, JobContext::Job);
    sizes.insertAfter(0, {Text(bundle, "Off"), 0, kUnset, false});
    FillPopupButton(size, sizes, sizes.count());
    if (!SetPopupButtonToTicketValue(size, params.newSize))
        size->setCurrentIndex(0);
    auto* gutter = new QSpinBox(&dialog);
    gutter->setRange(0, 216);
    gutter->setValue(params.gutter);
    auto* creep = new QDoubleSpinBox(&dialog);
    creep->setRange(0.0, 10.0);
    creep->setDecimals(1);
    creep->setSingleStep(0.1);
    creep->setValue(params.creep / 10.0);
    auto* details = new QFormLayout;
    details->addRow(QString(), outlines);
    details->addRow(Text(bundle, "Fit to New Size Label"), size);
    details->addRow(Text(bundle, "Gutter Label"), gutter);
    details->addRow(Text(bundle, "Creep Label"), creep);
    // Outlines, size, gutter and creep belong to the layout: disabled, but
    // kept, while it is off.
    const auto enableDetails = [=] {
        const bool on = layouts->checkedId() == kBookletLayoutOn;
        for (QWidget* control : {static_cast<QWidget*>(outlines), static_cast<QWidget*>(size),
                                 static_cast<QWidget*>(gutter), static_cast<QWidget*>(creep)})
            control->setEnabled(on);
    };
    QObject::connect(layouts, &QButtonGroup::idClicked, &dialog, enableDetails);
    enableDetails();

    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(finishing);
    layout->addWidget(layoutBox);
    layout->addLayout(details);
    layout->addWidget(Buttons(&dialog, bundle, [&dialog] { dialog.accept(); }));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    params.fold = folds->checkedId();
    params.layout = layouts->checkedId();
    params.drawOutlines = outlines->isChecked() ? kDrawOutlinesOn : kDrawOutlinesOff;
    params.newSize = GetPopupButtonTicketValue(size);
    params.gutter = gutter->value();
    params.creep = static_cast<std::int32_t>(qRound(creep->value() * 10.0));
    return true;
}

} // namespace orvan
