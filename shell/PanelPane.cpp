#include "shell/PanelPane.h"

#include <QVBoxLayout>
#include <QWidget>

namespace orvan {

QBoxLayout* PanelPaneLayout(QWidget* pane)
{
    if (auto* layout = qobject_cast<QBoxLayout*>(pane->layout()))
        return layout;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(12, 12, 12, 12);
    return layout;
}

} // namespace orvan
