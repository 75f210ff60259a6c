// Setting localised texts on widgets: the text of a key, used as a format
// with %1, %2, ... replaced by the arguments (ui/LocalizedFormat.h). A key
// with no text shows the key itself. Null targets are ignored.
#pragma once

#include <QString>
#include <QStringList>

class QLabel;
class QMenu;
class QWidget;

namespace orvan {

class Bundle;

// A label's text.
void SetLocalizedStaticText(const Bundle* bundle, const QString& key, QLabel* label,
                            const QStringList& arguments = {});

// A control's title: the text of a button (push, check, radio, tool), a
// label, or the title of a group box. Other widgets are left as they are.
void SetLocalizedControlTitle(const Bundle* bundle, const QString& key, QWidget* control,
                              const QStringList& arguments = {});

// The window title of a window (or of the window a widget is in).
void SetLocalizedWindowTitle(const Bundle* bundle, const QString& key, QWidget* window,
                             const QStringList& arguments = {});

// A menu's title (as its action shows it in a menu bar or parent menu).
void SetLocalizedMenuTitle(const Bundle* bundle, const QString& key, QMenu* menu,
                           const QStringList& arguments = {});

} // namespace orvan
