// The covers dialog: a view of CoversDialogModel.
#include "specialpages/CoversDialogModel.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesDialogParts.h"
#include "specialpages/SpecialPagesDialogs.h"
#include "stock/StockButton.h"
#include "ui/PopupMenus.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>

namespace orvan {

namespace {

class CoversDialog : public QDialog
{
public:
    CoversDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                 const Cover* frontCover, const Cover* backCover, QWidget* parent)
        : QDialog(parent), m_bundle(bundle), m_model(bundle, mode, frontCover, backCover),
          m_picture(new QLabel(this)), m_options(new QComboBox(this)), m_sides(new QComboBox(this)),
          m_stock(new StockButton(bundle, JobContext::Covers, this))
    {
        setObjectName(QStringLiteral("CoversDialog"));
        setWindowTitle(SpecialPagesText(bundle, QStringLiteral("Covers Dialog Title")));
        m_picture->setObjectName(QStringLiteral("CoversPicture"));
        m_picture->setFixedSize(96, 64);
        m_options->setObjectName(QStringLiteral("CoversOptionsPopup"));
        for (const CoverOptionEntry& entry : kCoverOptions) {
            m_options->addItem(QIcon(SpecialPagesPicture(bundle, QLatin1String(entry.imageName))),
                               SpecialPagesText(bundle, QLatin1String(entry.labelKey)));
        }
        m_options->setIconSize(QSize(36, 24));
        m_sides->setObjectName(QStringLiteral("CoverSidesPopup"));
        FillPopupButton(m_sides, m_model.sidesMenu(), m_model.sidesMenu().count());

        auto* form = new QFormLayout;
        form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
        form->addRow(SpecialPagesText(bundle, QStringLiteral("Covers Label")), m_options);
        form->addRow(SpecialPagesText(bundle, QStringLiteral("Cover Sides Label")), m_sides);
        auto* top = new QHBoxLayout;
        top->addWidget(m_picture, 0, Qt::AlignTop);
        top->addSpacing(12);
        top->addLayout(form, 1);

        LayOutSpecialPageDialog(this, bundle, top, m_stock, jobStock, [this] { accept(); });

        connect(m_options, &QComboBox::activated, this, [this](int index) {
            m_model.setOption(static_cast<CoverOption>(index + 1));
            showModel();
        });
        connect(m_sides, &QComboBox::activated, this, [this](int index) {
            m_model.setSidesItem(index + 1);
            showModel();
        });
        showModel();
    }

    const CoversDialogModel& model() const { return m_model; }

private:
    void showModel()
    {
        const int option = static_cast<int>(m_model.option());
        m_options->setCurrentIndex(option - 1);
        m_picture->setPixmap(SpecialPagesPicture(
            m_bundle,
            QLatin1String(kCoverOptions[static_cast<std::size_t>(option - 1)].imageName)));
        Cover* cover = m_model.cover();
        m_sides->setEnabled(cover != nullptr);
        m_sides->setCurrentIndex(m_model.sidesItem() - 1);
        m_stock->setStock(cover ? &cover->stock() : nullptr);
        m_stock->setEnabled(cover != nullptr);
    }

    const Bundle* m_bundle;
    CoversDialogModel m_model;
    QLabel* m_picture;
    QComboBox* m_options;
    QComboBox* m_sides;
    StockButton* m_stock;
};

} // namespace

bool RunModalCoversDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                          std::unique_ptr<Cover>& frontCover, std::unique_ptr<Cover>& backCover,
                          QWidget* parent)
{
    CoversDialog dialog(bundle, mode, jobStock, frontCover.get(), backCover.get(), parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    dialog.model().accept(frontCover, backCover);
    return true;
}

} // namespace orvan
