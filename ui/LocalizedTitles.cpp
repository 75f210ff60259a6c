#include "ui/LocalizedTitles.h"

#include "ui/LocalizedFormat.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

namespace orvan {

void SetLocalizedStaticText(const Bundle* bundle, const QString& key, QLabel* label,
                            const QStringList& arguments)
{
    if (label)
        label->setText(LocalizedFormat(bundle, key, arguments));
}

void SetLocalizedControlTitle(const Bundle* bundle, const QString& key, QWidget* control,
                              const QStringList& arguments)
{
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->setText(LocalizedFormat(bundle, key, arguments));
    else if (auto* group = qobject_cast<QGroupBox*>(control))
        group->setTitle(LocalizedFormat(bundle, key, arguments));
    else if (auto* label = qobject_cast<QLabel*>(control))
        label->setText(LocalizedFormat(bundle, key, arguments));
}

void SetLocalizedWindowTitle(const Bundle* bundle, const QString& key, QWidget* window,
                             const QStringList& arguments)
{
    if (window)
        window->window()->setWindowTitle(LocalizedFormat(bundle, key, arguments));
}

void SetLocalizedMenuTitle(const Bundle* bundle, const QString& key, QMenu* menu,
                           const QStringList& arguments)
{
    if (menu)
        menu->setTitle(LocalizedFormat(bundle, key, arguments));
}

} // namespace orvan
