#include "watermark/WatermarkEditorDialog.h"

#include "shell/PanelText.h"
#include "ui/Help.h"
#include "watermark/FontLookup.h"
#include "watermark/WatermarkEditorModel.h"
#include "watermark/WatermarkPreview.h"

#include <QButtonGroup>
#include <QColorDialog>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace orvan {

namespace {

constexpr QSize kEditorPreviewArea(204, 264);

QString Text(const Bundle* bundle, const char* key)
{
    return PanelText(bundle, QString::fromLatin1(key));
}

// A slider with its numeric field, kept in step.
struct SliderPair
{
    QSlider* slider;
    QSpinBox* field;
};

SliderPair MakeSliderPair(QWidget* parent, const char* name, int minimum, int maximum)
{
    SliderPair pair{new QSlider(Qt::Horizontal, parent), new QSpinBox(parent)};
    pair.slider->setObjectName(QLatin1String(name) + QLatin1String("Slider"));
    pair.field->setObjectName(QLatin1String(name) + QLatin1String("Field"));
    pair.slider->setRange(minimum, maximum);
    pair.field->setRange(minimum, maximum);
    pair.slider->setMinimumWidth(160);
    QObject::connect(pair.slider, &QSlider::valueChanged, pair.field, &QSpinBox::setValue);
    QObject::connect(pair.field, &QSpinBox::valueChanged, pair.slider, &QSlider::setValue);
    return pair;
}

class WatermarkEditorDialog : public QDialog
{
public:
    WatermarkEditorDialog(const Bundle* bundle, _WatermarkData& record, QWidget* parent)
        : QDialog(parent), m_bundle(bundle), m_model(record)
    {
        setObjectName(QStringLiteral("WatermarkEditor"));
        setWindowModality(Qt::ApplicationModal);

        m_textRadio = new QRadioButton(Text(bundle, "Text"), this);
        m_textRadio->setObjectName(QStringLiteral("TextRadio"));
        m_pictureRadio = new QRadioButton(Text(bundle, "Picture"), this);
        m_pictureRadio->setObjectName(QStringLiteral("PictureRadio"));
        auto* kind = new QButtonGroup(this);
        kind->addButton(m_textRadio);
        kind->addButton(m_pictureRadio);
        connect(m_textRadio, &QRadioButton::clicked, this,
                [this] { command([this] { m_model.setTextMode(true); }); });
        connect(m_pictureRadio, &QRadioButton::clicked, this,
                [this] { command([this] { m_model.setTextMode(false); }); });

        m_text = new QLineEdit(this);
        m_text->setObjectName(QStringLiteral("WatermarkTextField"));
        m_text->setMaxLength(kWatermarkTextFieldLimit);
        connect(m_text, &QLineEdit::textEdited, this,
                [this](const QString& text) { change([&] { m_model.setText(text); }); });
        m_fontButton = new QPushButton(this);
        m_fontButton->setObjectName(QStringLiteral("FontButton"));
        connect(m_fontButton, &QPushButton::clicked, this, [this] { chooseFont(); });
        m_colorSwatch = new QPushButton(this);
        m_colorSwatch->setObjectName(QStringLiteral("ColorSwatch"));
        m_colorSwatch->setFixedSize(44, 24);
        connect(m_colorSwatch, &QPushButton::clicked, this, [this] { chooseColor(); });

        m_fileField = new QLineEdit(this);
        m_fileField->setObjectName(QStringLiteral("PictureFileField"));
        m_fileField->setReadOnly(true);
        m_chooseFile = new QPushButton(Text(bundle, "Choose File..."), this);
        m_chooseFile->setObjectName(QStringLiteral("ChooseFileButton"));
        connect(m_chooseFile, &QPushButton::clicked, this, [this] { chooseFile(); });

        m_angle = MakeSliderPair(this, "Angle", 0, 360);
        m_scale = MakeSliderPair(this, "Scale", 1, 400);
        m_density = MakeSliderPair(this, "Density", 1, 100);
        connect(m_angle.slider, &QSlider::valueChanged, this,
                [this](int value) { change([&] { m_model.setAngle(value); }); });
        connect(m_scale.slider, &QSlider::valueChanged, this,
                [this](int value) { change([&] { m_model.setScale(value); }); });
        connect(m_density.slider, &QSlider::valueChanged, this,
                [this](int value) { change([&] { m_model.setDensity(value); }); });

        m_tenthsRadio = new QRadioButton(Text(bundle, "Tenths of an Inch"), this);
        m_tenthsRadio->setObjectName(QStringLiteral("TenthsOfAnInchRadio"));
        m_millimetresRadio = new QRadioButton(Text(bundle, "Millimeters"), this);
        m_millimetresRadio->setObjectName(QStringLiteral("MillimetresRadio"));
        auto* units = new QButtonGroup(this);
        units->addButton(m_tenthsRadio);
        units->addButton(m_millimetresRadio);
        connect(m_tenthsRadio, &QRadioButton::clicked, this,
                [this] { command([this] { m_model.setUnits(kTenthsOfAnInch); }); });
        connect(m_millimetresRadio, &QRadioButton::clicked, this,
                [this] { command([this] { m_model.setUnits(kMillimetres); }); });
        m_horizontal = new QSpinBox(this);
        m_horizontal->setObjectName(QStringLiteral("HorizontalOffsetField"));
        m_vertical = new QSpinBox(this);
        m_vertical->setObjectName(QStringLiteral("VerticalOffsetField"));
        for (QSpinBox* field : {m_horizontal, m_vertical})
            connect(field, &QSpinBox::valueChanged, this, [this] {
                change([this] { m_model.setOffsets(m_horizontal->value(), m_vertical->value()); });
            });
        auto* centre = new QPushButton(Text(bundle, "Center"), this);
        centre->setObjectName(QStringLiteral("CenterButton"));
        connect(centre, &QPushButton::clicked, this,
                [this] { command([this] { m_model.centre(); }); });

        m_preview = new QLabel(this);
        m_preview->setObjectName(QStringLiteral("EditorPreview"));
        m_preview->setFixedSize(kEditorPreviewArea);

        auto* textGroup = new QGroupBox(this);
        auto* textForm = new QGridLayout(textGroup);
        textForm->addWidget(m_textRadio, 0, 0);
        textForm->addWidget(m_text, 0, 1, 1, 2);
        textForm->addWidget(m_fontButton, 1, 1);
        textForm->addWidget(m_colorSwatch, 1, 2, Qt::AlignRight);
        textForm->addWidget(m_pictureRadio, 2, 0);
        textForm->addWidget(m_fileField, 2, 1);
        textForm->addWidget(m_chooseFile, 2, 2);
        textForm->setColumnStretch(1, 1);

        auto* look = new QFormLayout;
        look->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        const auto addPair = [&](const char* label, const SliderPair& pair) {
            auto* row = new QHBoxLayout;
            row->addWidget(pair.slider, 1);
            row->addWidget(pair.field);
            look->addRow(Text(bundle, label), row);
        };
        addPair("Angle:", m_angle);
        addPair("Scale:", m_scale);
        addPair("Density:", m_density);

        auto* positionGroup = new QGroupBox(Text(bundle, "Position"), this);
        auto* position = new QGridLayout(positionGroup);
        position->addWidget(m_tenthsRadio, 0, 0);
        position->addWidget(m_millimetresRadio, 0, 1);
        position->addWidget(new QLabel(Text(bundle, "Horizontal:"), positionGroup), 1, 0,
                            Qt::AlignRight);
        position->addWidget(m_horizontal, 1, 1);
        position->addWidget(new QLabel(Text(bundle, "Vertical:"), positionGroup), 2, 0,
                            Qt::AlignRight);
        position->addWidget(m_vertical, 2, 1);
        position->addWidget(centre, 1, 2, 2, 1, Qt::AlignVCenter);

        auto* left = new QVBoxLayout;
        left->addWidget(textGroup);
        left->addLayout(look);
        left->addWidget(positionGroup);
        left->addStretch(1);
        auto* body = new QHBoxLayout;
        body->addLayout(left, 1);
        body->addWidget(m_preview, 0, Qt::AlignTop);

        auto* buttons = new QDialogButtonBox(this);
        QPushButton* help = buttons->addButton(QDialogButtonBox::Help);
        help->setObjectName(QStringLiteral("HelpButton"));
        QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
        cancel->setObjectName(QStringLiteral("CancelButton"));
        QPushButton* ok = buttons->addButton(QDialogButtonBox::Ok);
        ok->setObjectName(QStringLiteral("OKButton"));
        ok->setDefault(true);
        connect(help, &QPushButton::clicked, this, [this] {
            command([this] { DisplayHelp(m_bundle, {}, kWatermarkEditorHelpAnchor); });
        });
        connect(buttons, &QDialogButtonBox::accepted, this, [this] {
            m_model.finish();
            accept();
        });
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

        auto* layout = new QVBoxLayout(this);
        layout->addLayout(body);
        layout->addWidget(buttons);
        showModel();
    }

private:
    // A command: the model acts (and redraws with force), the controls follow.
    template <class Act> void command(Act act)
    {
        act();
        showModel();
    }
    // A value change coming from a control: ignored while the controls are
    // being set from the model.
    template <class Act> void change(Act act)
    {
        if (m_showing)
            return;
        act();
        showPreview();
    }

    void chooseFont()
    {
        QString name = m_model.record().fontName.toString();
        int size = m_model.record().fontSize;
        if (RunModalFontPanelDialog(m_bundle, name, size, this))
            command([&] { m_model.setFont(name, size); });
    }

    void chooseColor()
    {
        const _WatermarkData& record = m_model.record();
        const QColor chosen = QColorDialog::getColor(
            QColor::fromRgbF(record.wellColorRed, record.wellColorGreen, record.wellColorBlue),
            this);
        if (!chosen.isValid())
            return;
        const QRgba64 rgba = chosen.rgba64();
        command([&] { m_model.setColor(rgba.red(), rgba.green(), rgba.blue()); });
    }

    void chooseFile()
    {
        const QString path = QFileDialog::getOpenFileName(
            this, Text(m_bundle, "Choose File..."), {},
            Text(m_bundle, "Images") +
                QStringLiteral(" (*.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp)"));
        if (!path.isEmpty())
            command([&] { m_model.setPicture(path); });
    }

    void showModel()
    {
        m_showing = true;
        const _WatermarkData& record = m_model.record();
        const WatermarkEditorValues& values = m_model.values();
        const bool text = m_model.isText();
        m_textRadio->setChecked(text);
        m_pictureRadio->setChecked(!text);
        for (QWidget* control : {static_cast<QWidget*>(m_text), static_cast<QWidget*>(m_fontButton),
                                 static_cast<QWidget*>(m_colorSwatch)})
            control->setEnabled(m_model.textControlsEnabled());
        m_fileField->setEnabled(!m_model.textControlsEnabled());
        m_chooseFile->setEnabled(!m_model.textControlsEnabled());
        m_angle.slider->setEnabled(m_model.angleEnabled());
        m_angle.field->setEnabled(m_model.angleEnabled());
        m_scale.slider->setEnabled(m_model.scaleEnabled());
        m_scale.field->setEnabled(m_model.scaleEnabled());
        if (m_text->text() != values.text)
            m_text->setText(values.text);
        m_fileField->setText(values.pictureName);
        m_fontButton->setText(
            QStringLiteral("%1 %2 pt").arg(record.fontName.toString()).arg(record.fontSize));
        m_colorSwatch->setStyleSheet(
            QStringLiteral("background-color: %1; border: 1px solid #666;")
                .arg(QColor::fromRgbF(record.wellColorRed, record.wellColorGreen,
                                      record.wellColorBlue)
                         .name()));
        m_angle.slider->setValue(values.angle);
        m_scale.slider->setValue(values.scale);
        m_density.slider->setValue(values.density);
        m_tenthsRadio->setChecked(record.units != kMillimetres);
        m_millimetresRadio->setChecked(record.units == kMillimetres);
        const OffsetBounds bounds = m_model.offsetBounds();
        m_horizontal->setRange(-bounds.horizontal, bounds.horizontal);
        m_vertical->setRange(-bounds.vertical, bounds.vertical);
        m_horizontal->setValue(values.xOffsetField);
        m_vertical->setValue(values.yOffsetField);
        m_showing = false;
        showPreview();
    }

    void showPreview()
    {
        if (m_shownPreview == m_model.previewVersion())
            return;
        m_shownPreview = m_model.previewVersion();
        m_preview->setPixmap(
            QPixmap::fromImage(DrawWatermarkPreview(m_model.preview(), kEditorPreviewArea)));
    }

    const Bundle* m_bundle;
    WatermarkEditorModel m_model;
    bool m_showing = false;
    std::uint64_t m_shownPreview = ~std::uint64_t(0);
    QRadioButton* m_textRadio;
    QRadioButton* m_pictureRadio;
    QLineEdit* m_text;
    QPushButton* m_fontButton;
    QPushButton* m_colorSwatch;
    QLineEdit* m_fileField;
    QPushButton* m_chooseFile;
    SliderPair m_angle{};
    SliderPair m_scale{};
    SliderPair m_density{};
    QRadioButton* m_tenthsRadio;
    QRadioButton* m_millimetresRadio;
    QSpinBox* m_horizontal;
    QSpinBox* m_vertical;
    QLabel* m_preview;
};

} // namespace

void RunModalWatermarkEditorDialog(const Bundle* bundle, _WatermarkData& record, QWidget* parent,
                                   const QString& title, int* result)
{
    WatermarkEditorDialog dialog(bundle, record, parent);
    dialog.setWindowTitle(title);
    const int answer =
        dialog.exec() == QDialog::Accepted ? kWatermarkEditorOK : kWatermarkEditorCancel;
    if (result)
        *result = answer;
}

bool RunModalFontPanelDialog(const Bundle* bundle, QString& postScriptName, int& size,
                             QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("WatermarkFontDialog"));
    dialog.setWindowTitle(Text(bundle, "Font"));
    auto* list = new QListWidget(&dialog);
    list->setObjectName(QStringLiteral("FontList"));
    for (const InstalledFont& font : InstalledFonts()) {
        auto* item = new QListWidgetItem(
            QStringLiteral("%1 (%2 %3)").arg(font.postScriptName, font.family, font.style), list);
        item->setData(Qt::UserRole, font.postScriptName);
        if (font.postScriptName == postScriptName)
            list->setCurrentItem(item);
    }
    auto* sizeField = new QSpinBox(&dialog);
    sizeField->setObjectName(QStringLiteral("FontSizeField"));
    sizeField->setRange(6, 400);
    sizeField->setValue(size > 0 ? size : 72);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* form = new QFormLayout;
    form->addRow(Text(bundle, "Size:"), sizeField);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(list, 1);
    layout->addLayout(form);
    layout->addWidget(buttons);
    dialog.resize(420, 360);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    // getFontSelection: the highlighted font (the old one when none is) and the size.
    if (const QListWidgetItem* chosen = list->currentItem())
        postScriptName = chosen->data(Qt::UserRole).toString();
    size = sizeField->value();
    return true;
}

} // namespace orvan
