// The exceptions dialog: a view of ExceptionsDialogModel.
#include "specialpages/ExceptionsDialogModel.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesDialogParts.h"
#include "specialpages/SpecialPagesDialogs.h"
#include "stock/StockButton.h"
#include "ui/PopupMenus.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>

namespace orvan {

namespace {

class ExceptionsDialog : public QDialog
{
public:
    ExceptionsDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                     ExceptionPageList& exceptions, const ExceptionPage* edited,
                     const std::function<void()>& saveUndoState, QWidget* parent)
        : QDialog(parent), m_model(bundle, mode, edited), m_exceptions(exceptions),
          m_edited(edited), m_saveUndoState(saveUndoState), m_pages(NewPageRangeField(this)),
          m_plex(new QComboBox(this)),
          m_stock(new StockButton(bundle, JobContext::ExceptionPages, this))
    {
        setObjectName(QStringLiteral("ExceptionsDialog"));
        setWindowTitle(SpecialPagesText(bundle, QStringLiteral("Exceptions Dialog Title")));
        m_pages->setText(m_model.pagesText());
        m_pages->setMinimumWidth(200);
        m_plex->setObjectName(QStringLiteral("PlexPopup"));
        FillPopupButton(m_plex, m_model.plexMenu(), m_model.plexMenu().count());
        m_stock->setStock(&m_model.page().stock());

        auto* form = new QFormLayout;
        form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
        form->addRow(SpecialPagesText(bundle, QStringLiteral("Exception Pages Label")), m_pages);
        form->addRow(SpecialPagesText(bundle, QStringLiteral("Exception Plex Label")), m_plex);

        LayOutSpecialPageDialog(this, bundle, form, m_stock, jobStock, [this] { tryAccept(); });

        connect(m_plex, &QComboBox::activated, this, [this](int index) {
            m_model.setPlexItem(index + 1);
            m_plex->setCurrentIndex(m_model.plexItem() - 1);
        });
        m_plex->setCurrentIndex(m_model.plexItem() - 1);
    }

private:
    void tryAccept()
    {
        m_model.setPagesText(m_pages->text());
        if (m_model.accept(m_exceptions, m_edited, m_saveUndoState) == kNoError)
            accept();
    }

    ExceptionsDialogModel m_model;
    ExceptionPageList& m_exceptions;
    const ExceptionPage* m_edited;
    std::function<void()> m_saveUndoState;
    QLineEdit* m_pages;
    QComboBox* m_plex;
    StockButton* m_stock;
};

} // namespace

bool RunModalExceptionsDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                              ExceptionPageList& exceptions, const ExceptionPage* edited,
                              const std::function<void()>& saveUndoState, QWidget* parent)
{
    ExceptionsDialog dialog(bundle, mode, jobStock, exceptions, edited, saveUndoState, parent);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace orvan
