// What a user does in the Special Pages pane and its dialogs, by the
// controls' object names: shared by the pane's widget tests and the host's
// end-to-end test. Every step fails the test (rather than hanging it) when a
// control or dialog is missing.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <functional>

namespace orvan::testing {

template <typename Widget> Widget* Control(const QObject* parent, const char* name)
{
    auto* child = parent ? parent->findChild<Widget*>(QLatin1String(name)) : nullptr;
    EXPECT_TRUE(child) << "no control " << name;
    return child;
}

// Runs `step` on the visible top-level widget with that object name once the
// modal loop that is about to start runs; whatever modal widget is still
// open five seconds later is closed, so a failing test cannot hang.
inline void WhenShown(const QString& objectName, std::function<void(QWidget*)> step)
{
    QTimer::singleShot(0, [objectName, step] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == objectName && widget->isVisible())
                return step(widget);
        ADD_FAILURE() << "no visible " << objectName.toStdString();
    });
    QTimer::singleShot(5000, [] {
        while (QWidget* modal = QApplication::activeModalWidget())
            modal->close();
    });
}

// Writes the widget to <ORVAN_SCREENSHOT_DIR>/<name>.png when that variable
// is set, for looking at the pane and its dialogs.
inline void MaybeGrab(QWidget* widget, const QString& name)
{
    const QString folder = qEnvironmentVariable("ORVAN_SCREENSHOT_DIR");
    if (!folder.isEmpty() && widget)
        widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

// Chooses an item of a pop-up as a click would.
inline void Choose(QComboBox* popup, int index)
{
    ASSERT_TRUE(popup);
    popup->setCurrentIndex(index);
    emit popup->activated(index);
}

// Types into the dialog's pages field, as keystrokes.
inline void TypePages(QWidget* dialog, const QString& text)
{
    auto* field = Control<QLineEdit>(dialog, "PagesField");
    ASSERT_TRUE(field);
    field->clear();
    QTest::keyClicks(field, text);
}

inline void ClickOK(QWidget* dialog)
{
    if (auto* ok = Control<QAbstractButton>(dialog, "OKButton"))
        ok->click();
}

// Clicks the pane's command button and, when it opens a dialog or question,
// runs `inDialog` on it.
inline void RunCommand(QWidget* pane, const char* button, const char* dialog,
                       std::function<void(QWidget*)> inDialog)
{
    auto* command = Control<QAbstractButton>(pane, button);
    ASSERT_TRUE(command);
    ASSERT_TRUE(command->isEnabled()) << button;
    WhenShown(QLatin1String(dialog), std::move(inDialog));
    command->click();
}

// Selects exactly the rows of the pane's list.
inline void SelectRows(QWidget* pane, std::initializer_list<int> rows)
{
    auto* list = Control<QTreeWidget>(pane, "SpecialPagesList");
    ASSERT_TRUE(list);
    list->clearSelection();
    for (const int row : rows)
        list->topLevelItem(row)->setSelected(true);
}

// One column of every row, joined with " | ".
inline QString ListedColumn(QWidget* pane, int column)
{
    auto* list = Control<QTreeWidget>(pane, "SpecialPagesList");
    QStringList texts;
    for (int i = 0; list && i < list->topLevelItemCount(); ++i)
        texts << list->topLevelItem(i)->text(column);
    return texts.join(QStringLiteral(" | "));
}

inline QString ListedPages(QWidget* pane)
{
    return ListedColumn(pane, 0);
}

// The user's session: a front cover, one and then two sheets after page 7,
// exception pages "1, 4-6" and "10-12"; then deleting the cover but answering
// No, Undo, and moving the two sheets before the one sheet (inserts on the
// same page keep the order they are moved to).
inline void AddSpecialPagesAsAUserWould(QWidget* pane)
{
    RunCommand(pane, "AddCoversButton", "CoversDialog", [](QWidget* dialog) {
        Choose(Control<QComboBox>(dialog, "CoversOptionsPopup"), 1); // front cover only
        Choose(Control<QComboBox>(dialog, "CoverSidesPopup"), 0);    // printed
        MaybeGrab(dialog, QStringLiteral("covers-dialog"));
        ClickOK(dialog);
    });
    for (const int sheets : {1, 2}) {
        RunCommand(pane, "AddInsertsButton", "InsertsDialog", [sheets](QWidget* dialog) {
            Choose(Control<QComboBox>(dialog, "PositionPopup"), 0); // after pages
            if (sheets == 2)
                Control<QAbstractSpinBox>(dialog, "QuantityField")->stepUp();
            TypePages(dialog, QStringLiteral("7"));
            MaybeGrab(dialog, QStringLiteral("inserts-dialog"));
            ClickOK(dialog);
        });
    }
    for (const char* pages : {"1, 4-6", "10-12"}) {
        RunCommand(pane, "AddExceptionsButton", "ExceptionsDialog", [pages](QWidget* dialog) {
            TypePages(dialog, QLatin1String(pages));
            Choose(Control<QComboBox>(dialog, "PlexPopup"), 2); // two-sided
            MaybeGrab(dialog, QStringLiteral("exceptions-dialog"));
            ClickOK(dialog);
        });
    }
    EXPECT_EQ(ListedPages(pane), "Front | 7 | 7 | 1 | 4-6 | 10-12");

    SelectRows(pane, {0});
    RunCommand(pane, "DeleteButton", "Question", [](QWidget* box) {
        if (auto* no = Control<QAbstractButton>(box, "DefaultButton"))
            no->click();
    });
    auto* undo = Control<QAbstractButton>(pane, "UndoButton");
    ASSERT_TRUE(undo && undo->isEnabled());
    undo->click();
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_EQ(ListedPages(pane), "Front | 7 | 7 | 1 | 4-6 | 10-12");

    SelectRows(pane, {2});
    Control<QAbstractButton>(pane, "MoveUpButton")->click();
    EXPECT_TRUE(ListedColumn(pane, 2).startsWith("Printed | Sheets [2] | Sheets [1]"));
    MaybeGrab(pane, QStringLiteral("special-pages-pane"));
}

} // namespace orvan::testing
