// The inserts dialog: a view of InsertsDialogModel.
#include "specialpages/InsertsDialogModel.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesDialogParts.h"
#include "specialpages/SpecialPagesDialogs.h"
#include "stock/StockButton.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>

namespace orvan {

namespace {

class InsertsDialog : public QDialog
{
public:
    InsertsDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock, InsertList& inserts,
                  const Insert* edited, const std::function<void()>& saveUndoState, QWidget* parent)
        : QDialog(parent), m_model(bundle, mode, edited), m_inserts(inserts), m_edited(edited),
          m_saveUndoState(saveUndoState), m_quantity(new QSpinBox(this)),
          m_position(new QComboBox(this)), m_pages(NewPageRangeField(this)),
          m_stock(new StockButton(bundle, JobContext::Inserts, this))
    {
        setObjectName(QStringLiteral("InsertsDialog"));
        setWindowTitle(SpecialPagesText(bundle, QStringLiteral("Inserts Dialog Title")));
        m_quantity->setObjectName(QStringLiteral("QuantityField"));
        m_quantity->setRange(kMinimumInsertQuantity, kMaximumInsertQuantity);
        m_quantity->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        m_quantity->setValue(m_model.insert().quantity());
        m_position->setObjectName(QStringLiteral("PositionPopup"));
        for (const QString& key : kInsertPositionKeys)
            m_position->addItem(SpecialPagesText(bundle, key));
        m_pages->setText(m_model.pagesText());
        m_pages->setMinimumWidth(160);
        m_stock->setStock(&m_model.insert().stock());

        auto* where = new QHBoxLayout;
        where->addWidget(m_position);
        where->addWidget(m_pages, 1);
        auto* form = new QFormLayout;
        form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        form->addRow(SpecialPagesText(bundle, QStringLiteral("Insert Quantity Label")), m_quantity);
        form->addRow(SpecialPagesText(bundle, QStringLiteral("Insert Position Label")), where);

        LayOutSpecialPageDialog(this, bundle, form, m_stock, jobStock, [this] { tryAccept(); });

        connect(m_quantity, &QSpinBox::valueChanged, this,
                [this](int quantity) { m_model.insert().setQuantity(quantity); });
        connect(m_position, &QComboBox::activated, this, [this](int index) {
            m_model.setPositionItem(index + 1);
            showModel();
        });
        connect(m_pages, &QLineEdit::textEdited, this,
                [this](const QString& text) { m_model.setPagesText(text); });
        showModel();
    }

private:
    void showModel()
    {
        m_position->setCurrentIndex(m_model.positionItem() - 1);
        m_pages->setEnabled(m_model.pagesEnabled());
    }

    void tryAccept()
    {
        m_model.setPagesText(m_pages->text());
        if (m_model.accept(m_inserts, m_edited, m_saveUndoState) == kNoError)
            accept();
    }

    InsertsDialogModel m_model;
    InsertList& m_inserts;
    const Insert* m_edited;
    std::function<void()> m_saveUndoState;
    QSpinBox* m_quantity;
    QComboBox* m_position;
    QLineEdit* m_pages;
    StockButton* m_stock;
};

} // namespace

bool RunModalInsertsDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                           InsertList& inserts, const Insert* edited,
                           const std::function<void()>& saveUndoState, QWidget* parent)
{
    InsertsDialog dialog(bundle, mode, jobStock, inserts, edited, saveUndoState, parent);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace orvan
