// Acting on a modal dialog from a widget test: the dialog's own event loop
// runs the step, so the code that opens it runs unchanged.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

namespace orvan::testing {

// Runs `step` on the visible top-level widget with that object name once the
// modal loop that is about to start runs. Any dialog still open five seconds
// later is rejected, so that a failing test cannot hang.
inline void WhenShown(const QString& objectName, std::function<void(QWidget*)> step)
{
    QTimer::singleShot(0, [objectName, step = std::move(step)] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == objectName && widget->isVisible())
                return step(widget);
        ADD_FAILURE() << "no visible " << objectName.toStdString();
    });
    QTimer::singleShot(5000, [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible())
                dialog->reject();
    });
}

} // namespace orvan::testing
