#include "host/PageSetupView.h"

#include "host/PageSetupModel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace orvan {

PageSetupView::PageSetupView(PageSetupModel& model, QWidget* parent)
    : QWidget(parent), m_model(model), m_paper(new QComboBox(this)),
      m_orientation(new QComboBox(this)), m_pagesPerSheet(new QComboBox(this)),
      m_order(new QComboBox(this)), m_collate(new QCheckBox(tr("Collate pages"), this)),
      m_reverse(new QCheckBox(tr("Reverse order"), this))
{
    setObjectName(QStringLiteral("PageSetupView"));
    m_paper->setObjectName(QStringLiteral("PaperSizePopup"));
    m_orientation->setObjectName(QStringLiteral("OrientationPopup"));
    m_pagesPerSheet->setObjectName(QStringLiteral("PagesPerSheetPopup"));
    m_order->setObjectName(QStringLiteral("PageOrderPopup"));
    m_collate->setObjectName(QStringLiteral("CollateCheckBox"));
    m_reverse->setObjectName(QStringLiteral("ReverseOrderCheckBox"));

    m_orientation->addItem(tr("Portrait"), static_cast<int>(Orientation::Portrait));
    m_orientation->addItem(tr("Landscape"), static_cast<int>(Orientation::Landscape));
    for (int count : kPagesPerSheetChoices)
        m_pagesPerSheet->addItem(QString::number(count), count);
    m_order->addItem(tr("Left to right, then down"),
                     static_cast<int>(PageOrder::LeftToRightTopToBottom));
    m_order->addItem(tr("Right to left, then down"),
                     static_cast<int>(PageOrder::RightToLeftTopToBottom));
    m_order->addItem(tr("Top to bottom, then right"),
                     static_cast<int>(PageOrder::TopToBottomLeftToRight));
    m_order->addItem(tr("Top to bottom, then left"),
                     static_cast<int>(PageOrder::TopToBottomRightToLeft));

    for (QComboBox* box : {m_paper, m_orientation, m_pagesPerSheet, m_order})
        connect(box, &QComboBox::activated, this, &PageSetupView::forward);
    for (QCheckBox* box : {m_collate, m_reverse})
        connect(box, &QCheckBox::toggled, this, &PageSetupView::forward);

    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setLabelAlignment(Qt::AlignRight);
    auto* paper = new QHBoxLayout;
    paper->addWidget(m_paper, 1);
    paper->addWidget(m_orientation);
    form->addRow(tr("Paper size:"), paper);
    auto* layout = new QHBoxLayout;
    layout->addWidget(m_pagesPerSheet);
    layout->addWidget(m_order, 1);
    form->addRow(tr("Pages per sheet:"), layout);
    auto* order = new QHBoxLayout;
    order->addWidget(m_collate);
    order->addWidget(m_reverse);
    order->addStretch(1);
    form->addRow(QString(), order);
}

void PageSetupView::showModel()
{
    m_showing = true;
    const QSignalBlocker blockPaper(m_paper);
    m_paper->clear();
    for (const PaperSize& paper : m_model.papers())
        m_paper->addItem(paper.displayName);
    m_paper->setCurrentIndex(m_model.paperIndex());
    m_paper->setEnabled(!m_model.papers().empty());
    const PageSetup& setup = m_model.setup();
    m_orientation->setCurrentIndex(m_orientation->findData(static_cast<int>(setup.orientation)));
    m_pagesPerSheet->setCurrentIndex(m_pagesPerSheet->findData(setup.pagesPerSheet));
    m_order->setCurrentIndex(m_order->findData(static_cast<int>(setup.order)));
    m_order->setEnabled(m_model.orderEnabled());
    m_collate->setChecked(setup.collate);
    m_reverse->setChecked(setup.reverse);
    m_showing = false;
}

void PageSetupView::forward()
{
    if (m_showing)
        return;
    m_model.choosePaper(m_paper->currentIndex());
    m_model.setOrientation(static_cast<Orientation>(m_orientation->currentData().toInt()));
    m_model.setPagesPerSheet(m_pagesPerSheet->currentData().toInt());
    m_model.setOrder(static_cast<PageOrder>(m_order->currentData().toInt()));
    m_model.setCollate(m_collate->isChecked());
    m_model.setReverse(m_reverse->isChecked());
    m_order->setEnabled(m_model.orderEnabled());
    emit changed();
}

} // namespace orvan
