#include "imagequality/AdvancedPanel.h"

#include "imagequality/AboutDialog.h"
#include "printerdesc/PPDAccess.h"
#include "shell/PanelPane.h"
#include "shell/PanelText.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvan {

namespace {

struct PopupRow
{
    std::int32_t controlID;
    const char* objectName;
    const QString* labelKey;
};

const PopupRow kPopupRows[] = {
    {kBookletImageOrderControlID, "BookletImageOrderPopup", &kBookletImageOrderLabelKey},
    {kOutputOptionsControlID, "OutputOptionsPopup", &kOutputOptionsLabelKey},
    {kBannerSheetControlID, "BannerSheetPopup", &kBannerSheetLabelKey},
    {kRequestOffsetControlID, "RequestOffsetPopup", &kRequestOffsetLabelKey},
};

} // namespace

AdvancedView::AdvancedView(AdvancedModel& model, const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle), m_about(new QPushButton(this))
{
    setObjectName(QStringLiteral("Advanced"));
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(12);
    for (const PopupRow& row : kPopupRows) {
        auto* popup = new QComboBox(this);
        popup->setObjectName(QLatin1String(row.objectName));
        popup->setMinimumWidth(200);
        popup->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        auto* label = new QLabel(this);
        SetLocalizedStaticText(bundle, *row.labelKey, label);
        label->setBuddy(popup);
        form->addRow(label, popup);
        m_popups[row.controlID] = popup;
        const std::int32_t controlID = row.controlID;
        connect(popup, &QComboBox::activated, this,
                [this, controlID](int index) { controlHit(controlID, index + 1); });
    }

    m_about->setObjectName(QStringLiteral("AboutButton"));
    SetLocalizedControlTitle(bundle, kAboutButtonKey, m_about);
    m_about->setAutoDefault(false);
    connect(m_about, &QPushButton::clicked, this, [this] { controlHit(kAboutControlID, 0); });
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(m_about);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addLayout(bottom);

    PanelPaneLayout(parent)->addWidget(this);
    reloadMenus();
}

QComboBox* AdvancedView::popup(std::int32_t controlID) const
{
    const auto found = m_popups.find(controlID);
    return found == m_popups.end() ? nullptr : found->second;
}

void AdvancedView::reloadMenus()
{
    for (const auto& [controlID, popup] : m_popups) {
        const MenuModel& menu = m_model.popup(controlID).menu;
        FillPopupButton(popup, menu, menu.count());
        popup->setEnabled(!menu.isEmpty());
    }
    showModel();
}

void AdvancedView::showModel()
{
    for (const auto& [controlID, popup] : m_popups) {
        const QSignalBlocker quiet(popup);
        popup->setCurrentIndex(m_model.popup(controlID).selectedItem - 1);
    }
}

void AdvancedView::controlHit(std::int32_t controlID, int item)
{
    AdvancedAction action = AdvancedAction::None;
    m_model.handleControlHit(controlID, item, &action);
    switch (action) {
    case AdvancedAction::None:
        break;
    case AdvancedAction::RunAboutDialog:
        RunAboutDialog(m_bundle, this);
        break;
    }
    showModel();
}

PanelBase::Description AdvancedPanel::describe() const
{
    return describeAs(kAdvancedTitleKey);
}

Status AdvancedPanel::loadModel(PrintSession*)
{
    model().load(bundle(), PPDGetCurrent());
    return kNoError;
}

} // namespace orvan
