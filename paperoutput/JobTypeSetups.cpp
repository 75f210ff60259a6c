#include "paperoutput/JobTypeSetups.h"

#include "paperoutput/BookletCreation.h"
#include "paperoutput/JobTypeSetupRules.h"
#include "paperoutput/LongDateClock.h"
#include "paperoutput/PaperOutputIcons.h"
#include "settings/Bundle.h"
#include "settings/SettingMaps.h"
#include "shell/PanelText.h"
#include "stock/StockMenus.h"
#include "ui/Help.h"
#include "ui/InputLimitValidator.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"
#include "ui/XComboBox.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <functional>

namespace orvan {

namespace {

constexpr int kDialogIconSize = 48;

QString Text(const Bundle* bundle, const char* key)
{
    return PanelText(bundle, QString::fromLatin1(key));
}

// A label showing one of the panel's pictures at the given size.
QLabel* Picture(QWidget* parent, const Bundle* bundle, const QString& imageName, int size,
                const char* objectName = nullptr)
{
    auto* label = new QLabel(parent);
    if (objectName)
        label->setObjectName(QLatin1String(objectName));
    label->setFixedSize(size, size);
    label->setAlignment(Qt::AlignCenter);
    if (bundle && !imageName.isEmpty()) {
        const QPixmap picture(bundle->resourcePath(PaperOutputImagePath(imageName)));
        if (!picture.isNull())
            label->setPixmap(
                picture.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    label->setToolTip(imageName);
    return label;
}

// A setup dialog's frame: the job type's picture on the left, the controls
// on the right, OK, Cancel and (with a page) Help below. OK runs accept,
// which closes the dialog when the values may be taken.
void Frame(QDialog* dialog, const Bundle* bundle, const QString& iconName, QLayout* controls,
           const QString& helpPage, const std::function<void()>& accept)
{
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    if (!iconName.isEmpty())
        top->addWidget(Picture(dialog, bundle, iconName, kDialogIconSize), 0, Qt::AlignTop);
    top->addLayout(controls, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    SetLocalizedControlTitle(bundle, QStringLiteral("OK Command"),
                             buttons->button(QDialogButtonBox::Ok));
    SetLocalizedControlTitle(bundle, QStringLiteral("Cancel Command"),
                             buttons->button(QDialogButtonBox::Cancel));
    if (!helpPage.isEmpty()) {
        buttons->addButton(QDialogButtonBox::Help)->setObjectName(QStringLiteral("HelpButton"));
        QObject::connect(buttons, &QDialogButtonBox::helpRequested, dialog,
                         [bundle, helpPage] { DisplayHelp(bundle, helpPage, QString()); });
    }
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(dialog);
    layout->addLayout(top);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
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
    field->setMinimumWidth(160);
    LimitInputLengthAndCharacters(field, kPasscodeMinDigits, kPasscodeMaxDigits,
                                  CharacterSetFromString(kPasscodeCharacters));
    return field;
}

// The passcode pair: each field followed by its digit range.
struct PasscodePair
{
    QLineEdit* passcode;
    QLineEdit* confirmation;

    PasscodePair(QWidget* parent, const Bundle* bundle, QFormLayout* form)
        : passcode(PasscodeField(parent, "PasscodeField")),
          confirmation(PasscodeField(parent, "ConfirmPasscodeField"))
    {
        for (auto [key, field] :
             {std::pair{"Passcode:", passcode}, std::pair{"ConfirmPasscode:", confirmation}}) {
            auto* row = new QHBoxLayout;
            row->addWidget(field, 1);
            row->addWidget(new QLabel(DigitsHint(bundle), parent));
            form->addRow(Text(bundle, key), row);
        }
    }

    void show(const QString& text) const
    {
        passcode->setText(text);
        confirmation->setText(text);
    }

    // The confirmation can be typed once the passcode is long enough.
    void enableConfirmation(bool allowed) const
    {
        confirmation->setEnabled(allowed && passcode->text().size() >= kPasscodeMinDigits);
    }

    // OK: true when the dialog may close; a generated passcode is shown in
    // both fields and returned in *result.
    bool confirm(const Bundle* bundle, QString* result) const
    {
        if (!ConfirmPasscodePair(bundle, passcode->text(), confirmation->text(), result))
            return false;
        show(*result);
        return true;
    }
};

} // namespace

bool RunModalSecurePrintSetup(const Bundle* bundle, QString& passcode, QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("SecurePrintSetup"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("SecurePrintSetupTitle"), &dialog);
    auto* hint = new QLabel(Text(bundle, "SecurePrintHintText"), &dialog);
    hint->setWordWrap(true);
    hint->setMinimumWidth(340);
    auto* form = new QFormLayout;
    const PasscodePair pair(&dialog, bundle, form);
    // A held passcode opens both fields; otherwise the confirmation waits
    // for a passcode long enough.
    pair.show(passcode);
    pair.confirmation->setEnabled(!passcode.isEmpty());
    QObject::connect(pair.passcode, &QLineEdit::textChanged, &dialog,
                     [&pair] { pair.enableConfirmation(true); });
    auto* controls = new QVBoxLayout;
    controls->addWidget(hint);
    controls->addSpacing(6);
    controls->addLayout(form);
    QString result;
    Frame(&dialog, bundle, JobTypeIconName(kJobTypeSecure), controls,
          QStringLiteral("How_to/m_ht_use_Secure_Print.htm"), [&] {
              if (pair.confirm(bundle, &result))
                  dialog.accept();
          });
    pair.passcode->setFocus();
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
    when->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    when->setMinimumWidth(140);
    when->setTime(time != 0 ? SecondsToLongDate(time).time() : CurrentLocalDateTime().time());
    auto* form = new QFormLayout;
    form->addRow(Text(bundle, "TimeToPrint:"), when);
    Frame(&dialog, bundle, JobTypeIconName(kJobTypeDelayed), form,
          QStringLiteral("How_to/m_ht_use_Delayed_Print.htm"), [&dialog] { dialog.accept(); });
    when->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return false;
    time = DelayedPrintSeconds(when->time(), CurrentLocalDateTime());
    return true;
}

bool RunModalSavedJobDialog(const Bundle* bundle, PaperOutputRecord& record, QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("SavedJobDialog"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("Saved Job"), &dialog);

    const auto historyBox = [&](const char* objectName, const _SettingMap* map,
                                const char* historyKey) {
        auto* box = new QComboBox(&dialog);
        box->setObjectName(QLatin1String(objectName));
        box->setMinimumWidth(220);
        _XComboBoxOptions options;
        options.bundle = bundle;
        options.map = map;
        options.historyKey = QLatin1String(historyKey);
        options.historyLimit = 10;
        options.secondLimit = 255;
        XComboBoxInitializeWithMapAndHistory(box, options);
        return box;
    };
    QComboBox* name = historyBox("SavedJobName", _JobNameMap, "savedJobNames");
    QComboBox* folder = historyBox("SavedJobFolder", _FolderNameMap, "folderNames");
    auto* save = new QRadioButton(Text(bundle, "Save"), &dialog);
    auto* savePrint = new QRadioButton(Text(bundle, "SavePrint"), &dialog);
    save->setObjectName(QStringLiteral("SaveRadio"));
    savePrint->setObjectName(QStringLiteral("SavePrintRadio"));
    auto* secure = new QCheckBox(Text(bundle, "withPasscode"), &dialog);
    secure->setObjectName(QStringLiteral("WithPasscode"));
    auto* options = new QHBoxLayout;
    options->addWidget(save);
    options->addWidget(savePrint);
    options->addStretch(1);
    auto* form = new QFormLayout;
    form->addRow(Text(bundle, "Job Name:"), name);
    form->addRow(Text(bundle, "Folder:"), folder);
    form->addRow(QString(), options);
    form->addRow(Text(bundle, "SecureSavedJob:"), secure);
    const PasscodePair pair(&dialog, bundle, form);
    // The job is stored in the format it is sent in (PDF), in the printer's
    // default colour.
    auto* format = new QHBoxLayout;
    format->addWidget(Picture(&dialog, bundle, QStringLiteral("JobType_JobFormat_PDF.gif"), 32,
                              "JobFormatPicture"));
    format->addWidget(Picture(&dialog, bundle, QStringLiteral("OutputColor_PrnDef.gif"), 32));
    format->addStretch(1);
    form->addRow(Text(bundle, "Job Format:"), format);
    auto* status = new QLabel(&dialog);
    status->setObjectName(QStringLiteral("StatusText"));
    status->setEnabled(false);

    const auto enablePasscodes = [&pair, secure] {
        pair.passcode->setEnabled(secure->isChecked());
        pair.enableConfirmation(secure->isChecked());
    };
    QObject::connect(secure, &QCheckBox::toggled, &dialog, enablePasscodes);
    QObject::connect(pair.passcode, &QLineEdit::textChanged, &dialog, enablePasscodes);

    // Restore.
    const SavedJobUIValues restored = RestoreUIValuesFromData(record);
    (restored.saveDisposition == kSaveAndPrint ? savePrint : save)->setChecked(true);
    XComboBoxSetValue(name, restored.jobName);
    XComboBoxSetValue(folder, restored.folder);
    secure->setChecked(restored.withPasscode);
    if (!restored.passcode.isEmpty())
        pair.show(restored.passcode);
    enablePasscodes();
    status->setText(Text(bundle, "Values restored."));

    auto* controls = new QVBoxLayout;
    controls->addLayout(form);
    controls->addWidget(status);
    Frame(&dialog, bundle, JobTypeIconName(kJobTypeSavedJob), controls,
          QStringLiteral("Paper_Output/Job_Type/saved_job_e.htm"), [&] {
              QString passcode;
              if (!secure->isChecked() || pair.confirm(bundle, &passcode))
                  dialog.accept();
          });
    const bool confirmed = dialog.exec() == QDialog::Accepted;
    if (confirmed) {
        SavedJobUIValues values;
        values.saveDisposition = savePrint->isChecked() ? kSaveAndPrint : kSaveOnly;
        XComboBoxCopyValue(name, values.jobName);
        XComboBoxCopyValue(folder, values.folder);
        values.withPasscode = secure->isChecked();
        values.passcode = pair.passcode->text();
        SaveUIValuesToData(values, record);
    }
    XComboBoxFinalize(name, confirmed);
    XComboBoxFinalize(folder, confirmed);
    return confirmed;
}

namespace {

bool RunBookletDialog(const Bundle* bundle, BookletCreationParams& params, QWidget* parent,
                      const QString& objectName, const QString& titleKey, bool foldEnabled)
{
    QDialog dialog(parent);
    dialog.setObjectName(objectName);
    SetLocalizedWindowTitle(bundle, titleKey, &dialog);

    const auto radios = [&](const char* titleKey,
                            std::initializer_list<std::pair<const char*, const char*>> rows) {
        auto* box = new QGroupBox(Text(bundle, titleKey), &dialog);
        auto* group = new QButtonGroup(box);
        auto* column = new QVBoxLayout(box);
        int id = 0;
        for (const auto& [key, objectName] : rows) {
            auto* radio = new QRadioButton(Text(bundle, key), box);
            radio->setObjectName(QLatin1String(objectName));
            group->addButton(radio, id++);
            column->addWidget(radio);
        }
        column->addStretch(1);
        return std::pair{box, group};
    };
    const auto [foldBox, folds] =
        radios("Booklet Finishing:", {{"None", "FoldNone"},
                                      {"Booklet Fold", "BookletFold"},
                                      {"Booklet Fold and Staple", "BookletFoldStaple"}});
    const auto [layoutBox, layouts] = radios(
        "Booklet Layout:", {{"None", "BookletLayoutOff"}, {"Booklet Layout", "BookletLayoutOn"}});

    auto* outlines = new QCheckBox(Text(bundle, "Draw Outlines"), &dialog);
    outlines->setObjectName(QStringLiteral("DrawOutlines"));
    auto* size = new QComboBox(&dialog);
    size->setObjectName(QStringLiteral("NewSize"));
    MenuModel sizes;
    PopulateStockSizeMenu(sizes, bundle, JobContext::Job);
    sizes.insertAfter(0, {Text(bundle, "Off"), 0, kUnset, false});
    FillPopupButton(size, sizes, sizes.count());
    auto* gutter = new QSpinBox(&dialog);
    gutter->setObjectName(QStringLiteral("Gutter"));
    gutter->setRange(kGutterMinimum, kGutterMaximum);
    auto* creep = new QDoubleSpinBox(&dialog);
    creep->setObjectName(QStringLiteral("Creep"));
    creep->setDecimals(1);
    creep->setSingleStep(1.0 / kCreepStepsPerPoint);
    creep->setRange(kCreepMinimum / kCreepStepsPerPoint, kCreepMaximum / kCreepStepsPerPoint);
    const QLocale locale;
    auto* gutterRange =
        new QLabel(Text(bundle, "Gutter Range Label")
                       .arg(QString::number(kGutterMinimum), QString::number(kGutterMaximum)),
                   &dialog);
    auto* creepRange =
        new QLabel(Text(bundle, "Creep Range Label")
                       .arg(locale.toString(kCreepMinimum / kCreepStepsPerPoint, 'f', 1),
                            locale.toString(kCreepMaximum / kCreepStepsPerPoint, 'f', 1)),
                   &dialog);
    auto* sizeLabel = new QLabel(Text(bundle, "Fit to New Size Label"), &dialog);
    auto* gutterLabel = new QLabel(Text(bundle, "Gutter Label"), &dialog);
    auto* creepLabel = new QLabel(Text(bundle, "Creep Label"), &dialog);
    auto* details = new QGridLayout;
    details->addWidget(outlines, 0, 1, 1, 2);
    details->addWidget(sizeLabel, 1, 0, Qt::AlignRight);
    details->addWidget(size, 1, 1, 1, 2);
    details->addWidget(gutterLabel, 2, 0, Qt::AlignRight);
    details->addWidget(gutter, 2, 1);
    details->addWidget(gutterRange, 2, 2);
    details->addWidget(creepLabel, 3, 0, Qt::AlignRight);
    details->addWidget(creep, 3, 1);
    details->addWidget(creepRange, 3, 2);
    details->setColumnStretch(2, 1);

    auto* preview = new QLabel(&dialog);
    preview->setObjectName(QStringLiteral("BookletPreview"));
    preview->setFixedSize(96, 96);
    preview->setAlignment(Qt::AlignCenter);
    preview->setFrameShape(QFrame::StyledPanel);

    const auto current = [&, folds = folds, layouts = layouts] {
        BookletCreationParams shown = params;
        shown.fold = FoldForRadio(folds->checkedId());
        shown.layout = LayoutForRadio(layouts->checkedId());
        shown.drawOutlines = outlines->isChecked() ? kDrawOutlinesOn : kDrawOutlinesOff;
        shown.newSize = GetPopupButtonTicketValue(size);
        shown.gutter = gutter->value();
        shown.creep = static_cast<std::int32_t>(qRound(creep->value() * kCreepStepsPerPoint));
        return shown;
    };
    const auto refresh = [&] {
        const BookletCreationParams shown = current();
        const bool on = BookletDetailsEnabled(shown.layout);
        for (QWidget* control :
             std::initializer_list<QWidget*>{outlines, size, sizeLabel, gutter, gutterLabel,
                                             gutterRange, creep, creepLabel, creepRange})
            control->setEnabled(on);
        const QString imageName = BookletPreviewImageName(shown);
        if (preview->toolTip() != imageName) {
            const QPixmap picture(bundle ? bundle->resourcePath(PaperOutputImagePath(imageName))
                                         : QString());
            preview->setPixmap(picture.isNull() ? QPixmap()
                                                : picture.scaled(88, 88, Qt::KeepAspectRatio,
                                                                 Qt::SmoothTransformation));
            preview->setToolTip(imageName);
        }
    };

    // Write the values to the controls.
    folds->button(FoldRadioIndex(params.fold))->setChecked(true);
    for (QAbstractButton* fold : folds->buttons())
        fold->setEnabled(FoldRadioEnabled(folds->id(fold), foldEnabled));
    layouts->button(LayoutRadioIndex(params.layout))->setChecked(true);
    outlines->setChecked(params.drawOutlines == kDrawOutlinesOn);
    if (!SetPopupButtonToTicketValue(size, params.newSize))
        size->setCurrentIndex(0);
    gutter->setValue(params.gutter);
    creep->setValue(params.creep / kCreepStepsPerPoint);
    refresh();
    QObject::connect(folds, &QButtonGroup::idClicked, &dialog, refresh);
    QObject::connect(layouts, &QButtonGroup::idClicked, &dialog, refresh);
    QObject::connect(outlines, &QCheckBox::toggled, &dialog, refresh);

    auto* choices = new QHBoxLayout;
    choices->addWidget(foldBox, 1);
    choices->addWidget(layoutBox, 1);
    choices->addWidget(preview, 0, Qt::AlignTop);
    auto* controls = new QVBoxLayout;
    controls->addLayout(choices);
    controls->addLayout(details);
    Frame(&dialog, bundle, QString(), controls,
          QStringLiteral("Paper_Output/Finishing/M_Booklet_Creation_Overview.htm"),
          [&dialog] { dialog.accept(); });
    if (dialog.exec() != QDialog::Accepted)
        return false;
    params = BookletValuesRead(params, current());
    return true;
}

} // namespace

bool RunModalBookletCreationDialog(const Bundle* bundle, BookletCreationParams& params,
                                   QWidget* parent, bool foldEnabled)
{
    return RunBookletDialog(bundle, params, parent, QStringLiteral("BookletCreation"),
                            QStringLiteral("Booklet Creation"), foldEnabled);
}

bool RunModalBookletOptionsDialog(const Bundle* bundle, BookletCreationParams& params,
                                  QWidget* parent)
{
    return RunBookletDialog(bundle, params, parent, QStringLiteral("BookletOptions"),
                            QStringLiteral("Booklet Options Title"), true);
}

} // namespace orvan
