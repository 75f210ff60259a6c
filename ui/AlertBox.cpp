#include "ui/AlertBox.h"

#include <QPointer>
#include <QPushButton>

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

QuestionPresenter InstallMessageBoxQuestionPresenter(QWidget* parent)
{
    QPointer<QWidget> owner(parent);
    return SetQuestionPresenter([owner](const Question& question) {
        QMessageBox box(AlertIcon(question.alert.level), question.alert.title,
                        question.alert.message, QMessageBox::NoButton, owner.data());
        box.setObjectName(QStringLiteral("Question"));
        box.setText(question.alert.title);
        box.setInformativeText(question.alert.message);
        QPushButton* other = box.addButton(question.otherButton, QMessageBox::AcceptRole);
        other->setObjectName(QStringLiteral("OtherButton"));
        QPushButton* byDefault = box.addButton(question.defaultButton, QMessageBox::RejectRole);
        byDefault->setObjectName(QStringLiteral("DefaultButton"));
        box.setDefaultButton(byDefault);
        box.setEscapeButton(byDefault);
        box.setWindowModality(Qt::ApplicationModal);
        box.exec();
        return box.clickedButton() == other ? QuestionAnswer::Other : QuestionAnswer::Default;
    });
}

} // namespace orvan
