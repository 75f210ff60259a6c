// User alerts behind a small interface, so that models raise them without a
// display and tests can see exactly what the user would have been shown. The
// widgets side installs a presenter that shows a message box.
#pragma once

#include <QString>

#include <functional>

namespace orvan {

enum class AlertLevel { Note, Caution, Stop };

struct Alert {
    AlertLevel level = AlertLevel::Caution;
    QString title;
    QString message;
    // The message holds a secret (a passcode the system made): shown to the
    // user, never written to a stream or log.
    bool holdsSecret = false;

    friend bool operator==(const Alert&, const Alert&) = default;
};

// Shows an alert and returns when the user has dismissed it.
using AlertPresenter = std::function<void(const Alert&)>;

// Installs the process-wide presenter and returns the previous one. With no
// presenter installed, alerts are written to the standard error stream.
AlertPresenter SetAlertPresenter(AlertPresenter presenter);
void ShowAlert(const Alert& alert);

} // namespace orvan
