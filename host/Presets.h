// Presets: named sets of print settings the user keeps, each a ticket file
// (print settings and page format, no printer) in $XDG_CONFIG_HOME/orvan/presets/.
// The folder is the user's alone (0700) and so is every file (0600); files
// are replaced atomically. A preset never holds a passcode: the secure-print
// passcode and the fax credit card are taken out before it is written.
#pragma once

#include "settings/PrintSession.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace orvan {

QString PresetsFolder();
// The presets there are, by name, sorted.
QStringList PresetNames();
// A name is a file name of its own: not empty, no "/", not starting with ".",
// at most 100 characters. nullopt when valid, else the reason.
std::optional<QString> InvalidPresetName(const QString& name);
// Writes the session's print settings and page format as the preset.
bool SavePreset(const QString& name, const PrintSession& session, QString* error);
// Replaces the session's print settings and page format with the preset's;
// the session is left alone when the preset is missing or unreadable.
bool ApplyPreset(const QString& name, PrintSession& session, QString* error);
// The print settings without the passcodes they may hold.
Ticket WithoutPasscodes(const Ticket& printSettings);

} // namespace orvan
