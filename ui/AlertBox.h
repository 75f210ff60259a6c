// Shows the system's alerts (platform/Alerts.h) as message boxes.
#pragma once

#include "platform/Alerts.h"

#include <QMessageBox>

class QWidget;

namespace orvan {

// The message-box icon of an alert level.
QMessageBox::Icon AlertIcon(AlertLevel level);

// Installs a presenter that shows every alert as an application-modal
// message box (over parent when given, which must outlive the presenter) and
// returns when the user dismissed it. Returns the previous presenter.
AlertPresenter InstallMessageBoxAlertPresenter(QWidget* parent = nullptr);

// The same for questions: a message box with the two buttons, the default
// one focused (Escape answers it too). Returns the previous presenter.
QuestionPresenter InstallMessageBoxQuestionPresenter(QWidget* parent = nullptr);

} // namespace orvan
