#include "platform/Alerts.h"

#include <cstdio>

namespace orvan {

namespace {
AlertPresenter& presenter()
{
    static AlertPresenter instance;
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
    std::fprintf(stderr, "%s: %s\n", alert.title.toUtf8().constData(), alert.message.toUtf8().constData());
}

} // namespace orvan
