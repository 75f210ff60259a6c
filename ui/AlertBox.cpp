#include "ui/AlertBox.h"

#include <QPointer>

namespace orvan {

QMessageBox::Icon AlertIcon(AlertLevel level)
{
    switch (level) {
    case AlertLevel::Note:
        return QMessageBox::Information;
    case AlertLevel::Caution:
        return QMessageBox::Warning;
    case AlertLevel::Stop:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

AlertPresenter InstallMessageBoxAlertPresenter(QWidget* parent)
{
    QPointer<QWidget> owner(parent);
    return SetAlertPresenter([owner](const Alert& alert) {
        QMessageBox box(AlertIcon(alert.level), alert.title, alert.message, QMessageBox::Ok,
                        owner.data());
        box.setObjectName(QStringLiteral("Alert"));
        // The title also goes in the box's text: several desktops show no
        // title bar on modal message boxes.
        box.setText(alert.title);
        box.setInformativeText(alert.message);
        box.setWindowModality(Qt::ApplicationModal);
        box.exec();
    });
}

} // namespace orvan
