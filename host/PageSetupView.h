// The page setup controls: paper size, orientation, pages per sheet and
// their order, collate and reverse order. Shows a PageSetupModel and forwards
// every change to it, then announces it with changed().
#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;

namespace orvan {

class PageSetupModel;

class PageSetupView : public QWidget
{
    Q_OBJECT
public:
    PageSetupView(PageSetupModel& model, QWidget* parent = nullptr);

    // Refills the controls from the model (after new papers or a ticket read).
    void showModel();

signals:
    void changed();

private:
    void forward();

    PageSetupModel& m_model;
    QComboBox* m_paper;
    QComboBox* m_orientation;
    QComboBox* m_pagesPerSheet;
    QComboBox* m_order;
    QCheckBox* m_collate;
    QCheckBox* m_reverse;
    bool m_showing = false;
};

} // namespace orvan
