#include "imagequality/ImageOptionsPanel.h"

#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "shell/PanelPane.h"
#include "shell/PanelText.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace orvan {

namespace {

constexpr int kPictureSize = 64;

QLabel* MakePicture(const QString& objectName, QWidget* parent)
{
    auto* picture = new QLabel(parent);
    picture->setObjectName(objectName);
    picture->setFixedSize(kPictureSize, kPictureSize);
    picture->setAlignment(Qt::AlignCenter);
    return picture;
}

QLabel* MakeLabel(const Bundle* bundle, const QString& key, QWidget* parent)
{
    auto* label = new QLabel(parent);
    SetLocalizedStaticText(bundle, key, label);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

ImageOptionsView::ImageOptionsView(ImageOptionsModel& model, const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle), m_resolution(new QComboBox(this)),
      m_tonerSaver(new QCheckBox(this)), m_negativeImage(new QCheckBox(this)),
      m_mirrorImage(new QCheckBox(this)),
      m_resolutionPicture(MakePicture(QStringLiteral("ResolutionPicture"), this)),
      m_tonerSaverPicture(MakePicture(QStringLiteral("TonerSaverPicture"), this)),
      m_invertImagePicture(MakePicture(QStringLiteral("InvertImagePicture"), this))
{
    setObjectName(QStringLiteral("ImageOptionsPanel"));
    m_resolution->setObjectName(QStringLiteral("ResolutionPopup"));
    m_tonerSaver->setObjectName(QStringLiteral("TonerSaverCheckBox"));
    m_negativeImage->setObjectName(QStringLiteral("NegativeImageCheckBox"));
    m_mirrorImage->setObjectName(QStringLiteral("MirrorImageCheckBox"));
    SetLocalizedControlTitle(bundle, kTonerSaverTitleKey, m_tonerSaver);
    SetLocalizedControlTitle(bundle, kNegativeImageTitleKey, m_negativeImage);
    SetLocalizedControlTitle(bundle, kMirrorImageTitleKey, m_mirrorImage);
    m_resolution->setMinimumWidth(200);
    m_resolution->setSizeAdjustPolicy(QComboBox::AdjustToContents);

    // One section per setting: its picture, then its label above its
    // controls.
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(20);
    grid->setColumnStretch(2, 1);
    const auto addSection = [this, grid, bundle](int row, QLabel* picture, const QString& labelKey,
                                                 std::initializer_list<QWidget*> controls) {
        auto* section = new QVBoxLayout;
        section->setSpacing(6);
        QLabel* label = MakeLabel(bundle, labelKey, this);
        label->setBuddy(*controls.begin());
        section->addWidget(label);
        for (QWidget* control : controls)
            section->addWidget(control, 0, Qt::AlignLeft);
        section->addStretch(1);
        grid->addWidget(picture, row, 0, Qt::AlignTop);
        grid->addLayout(section, row, 1);
    };
    addSection(0, m_resolutionPicture, kResolutionLabelKey, {m_resolution});
    addSection(1, m_tonerSaverPicture, kTonerSaverLabelKey, {m_tonerSaver});
    addSection(2, m_invertImagePicture, kInvertImageLabelKey, {m_negativeImage, m_mirrorImage});
    grid->setRowStretch(3, 1);

    PanelPaneLayout(parent)->addWidget(this);

    // activated and toggled-by-click are the user's choices; filling and
    // showing the model go through setters that emit neither.
    connect(m_resolution, &QComboBox::activated, this, [this](int index) {
        m_model.chooseResolution(PopupButtonItemTicketValue(m_resolution, index));
        showPictures();
    });
    connect(m_tonerSaver, &QCheckBox::clicked, this, [this](bool on) {
        m_model.setTonerSaverOn(on);
        showPictures();
    });
    connect(m_negativeImage, &QCheckBox::clicked, this, [this](bool on) {
        m_model.setNegativeImage(on);
        showPictures();
    });
    connect(m_mirrorImage, &QCheckBox::clicked, this, [this](bool on) {
        m_model.setMirrorImage(on);
        showPictures();
    });

    reloadMenus();
}

void ImageOptionsView::reloadMenus()
{
    const MenuModel& menu = m_model.resolutionMenu();
    FillPopupButton(m_resolution, menu, menu.count());
    m_resolution->setEnabled(!menu.isEmpty());
    showModel();
}

void ImageOptionsView::showModel()
{
    const QSignalBlocker quiet(m_resolution);
    // A resolution no item carries (a choice unknown to this panel) shows as
    // no selection rather than as some other resolution.
    if (!SetPopupButtonToTicketValue(m_resolution, m_model.resolution()))
        m_resolution->setCurrentIndex(-1);
    m_tonerSaver->setChecked(m_model.tonerSaverOn());
    m_negativeImage->setChecked(m_model.invertImage().negativeImage);
    m_mirrorImage->setChecked(m_model.invertImage().mirrorImage);
    showPictures();
}

InvertImageControls ImageOptionsView::controls() const
{
    return InvertImageControls{m_negativeImage != nullptr, m_mirrorImage != nullptr};
}

void ImageOptionsView::showPictures()
{
    showPicture(m_resolutionPicture, m_model.resolutionPicture());
    showPicture(m_tonerSaverPicture, m_model.tonerSaverPicture());
    showPicture(m_invertImagePicture, m_model.invertImagePicture());
}

void ImageOptionsView::showPicture(QLabel* label, const QString& name)
{
    const QString path =
        m_bundle ? m_bundle->resourcePath(QStringLiteral("images/") + name) : QString();
    label->setPixmap(path.isEmpty() ? QPixmap() : QPixmap(path));
}

PanelBase::Description ImageOptionsPanel::describe() const
{
    return describeAs(kImageOptionsTitleKey, kImageOptionsCreator);
}

Status ImageOptionsPanel::loadModel(PrintSession*)
{
    model().load(PPDGetCurrent());
    return kNoError;
}

Status ImageOptionsPanel::syncModel(PrintSession* session, bool direction)
{
    // Without its view the panel has no invert-image controls, so writing
    // keeps the flags as they were read from the ticket.
    const InvertImageControls controls = view() ? view()->controls() : InvertImageControls{};
    return model().sync(session, direction, controls);
}

} // namespace orvan
