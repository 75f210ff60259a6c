// Preference files: per-user files read and written whole by name, and shared
// data files in the "Orvan/" folder of the machine-wide data folder. Every
// user reads the whole file, changes its part and writes it back; writes
// replace the file atomically, so a crash or a full disk never leaves a
// half-written file behind.
#pragma once

#include "platform/FileAccess.h"
#include "settings/PropertyValue.h"

#include <QString>

#include <optional>

namespace orvan {

// $XDG_CONFIG_HOME/orvan (empty when no configuration folder can be found).
// Writes create it 0700: it holds job settings and passcodes.
QString UserPreferencesFolder();

// The machine-wide data folder that holds "Orvan/": $ORVAN_SHARED_DATA_DIR
// when set, else /var/lib/orvan when it exists and is writable, else the
// user's own data folder ($XDG_DATA_HOME/orvan), so that a machine where the
// administrator made no shared folder still keeps its data. Empty when none.
QString ApplicationSupportFolder();

// The per-user file's content as a dictionary: an empty dictionary when the
// file is missing, unreadable, not a property list or not a dictionary.
// nullopt only when the preferences folder itself cannot be found.
// Reading changes nothing: an unreadable file is set aside only by the next
// write (see WriteUserPreferences).
std::optional<PropertyValue> CopyUserPreferences(const QString& fileName);

// Writes the value to the per-user file, replacing it atomically and
// privately (0600; the folder is created 0700 when missing). A file there
// that does not read as a dictionary is first set aside
// (SetAsideUnreadableFile), so what it held is never lost. On failure writes
// "WriteUserPreferences() failed (<code>)" to the standard error stream and
// returns false.
bool WriteUserPreferences(const QString& fileName, const PropertyValue& value);

// Location of a shared data file: <application support>/Orvan/<fileName>,
// creating the "Orvan" folder on first use; empty when there is no
// application-support folder or the folder cannot be created. The name is
// appended as it is.
QString CopyPreferenceFileURL(const QString& fileName);

// The shared data file's content; nullopt when it cannot be located, read or
// parsed. A parse error is written to the standard error stream as
// "CopyXMLData()::CFPropertyListCreateFromXMLData() error: <what and where>",
// and the unreadable file is set aside (SetAsideUnreadableFile).
std::optional<PropertyValue> CopyXMLData(const QString& fileName);

// Writes a shared data file atomically; false (with a diagnostic) on failure.
bool WriteXMLData(const QString& fileName, const PropertyValue& value);

// Writes a property list to any path (see ReplaceFile: atomic for regular
// files, links followed, devices and pipes written through, "-" standard
// output); the error code of the failure (QFileDevice::WriteError, or -50
// when the value cannot be written as a property list) goes to errorCode.
bool WritePropertyListFile(const QString& path, const PropertyValue& value,
                           int* errorCode = nullptr, QString* errorText = nullptr,
                           FilePrivacy privacy = FilePrivacy::Default);

// Reads a property-list file of at most kMaxPropertyListFileSize bytes;
// nullopt with the reason ("larger than 32 MiB", "line 3, column 1: ...").
std::optional<PropertyValue> ReadPropertyListFile(const QString& path, QString* error = nullptr);
// The plug-in's reader of its own XML files: the value, or nullopt when the
// file cannot be read or parsed.
inline std::optional<PropertyValue> CreatePropertiesFromXMLFile(const QString& path)
{
    return ReadPropertyListFile(path);
}

// Renames a regular file that could not be used to
// "<name>.unreadable-<yyyyMMdd-HHmmss>" (UTC) beside it and says so, with the reason,
// on the standard error stream. Nothing for a path that is no regular file.
void SetAsideUnreadableFile(const QString& path, const QString& why);

} // namespace orvan
