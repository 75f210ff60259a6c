#include "platform/Alerts.h"

#include <cstdio>

namespace orvan {

namespace {
AlertPresenter& presenter()
{
    static AlertPresenter instance;
    return instance;
}
QuestionPresenter& questionPresenter()
{
    static QuestionPresenter instance;
    return instance;
}
} // namespace

AlertPresenter SetAlertPresenter(AlertPresenter next)
{
    AlertPresenter previous = std::move(presenter());
    presenter() = std::move(next);
    return previous;
}

void ShowAlert(const Alert& alert)
{
    if (presenter()) {
        presenter()(alert);
        return;
    }
    if (alert.holdsSecret) {
        std::fprintf(stderr, "%s\n", alert.title.toUtf8().constData());
        return;
    }
    std::fprintf(stderr, "%s: %s\n", alert.title.toUtf8().constData(),
                 alert.message.toUtf8().constData());
}

QuestionPresenter SetQuestionPresenter(QuestionPresenter next)
{
    QuestionPresenter previous = std::move(questionPresenter());
    questionPresenter() = std::move(next);
    return previous;
}

QuestionAnswer AskQuestion(const Question& question)
{
    if (questionPresenter())
        return questionPresenter()(question);
    ShowAlert(question.alert);
    return QuestionAnswer::Default;
}

} // namespace orvan
