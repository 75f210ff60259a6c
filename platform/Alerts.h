// User alerts behind a small interface, so that models raise them without a
// display and tests can see exactly what the user would have been shown. The
// widgets side installs a presenter that shows a message box.
#pragma once

#include <QString>

#include <functional>

namespace orvan {

enum class AlertLevel
{
    Note,
    Caution,
    Stop
};

struct Alert
{
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

// A caution question with two buttons: the default one (also the answer
// without a presenter, so nothing is destroyed when no one can be asked) and
// the other one.
struct Question
{
    Alert alert;
    QString defaultButton;
    QString otherButton;
};
enum class QuestionAnswer
{
    Default,
    Other
};

// Shows the question and returns the button the user chose.
using QuestionPresenter = std::function<QuestionAnswer(const Question&)>;

// Installs the process-wide presenter and returns the previous one. With no
// presenter installed, the question goes to the standard error stream and
// the answer is Default.
QuestionPresenter SetQuestionPresenter(QuestionPresenter presenter);
QuestionAnswer AskQuestion(const Question& question);

} // namespace orvan
