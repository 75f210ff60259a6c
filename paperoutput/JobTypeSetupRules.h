// The rules of the job-type setup dialogs without widgets: the passcode pair
// (shared by secure print and the secure saved job) with its alerts, the
// delayed-print time, and moving the saved-job values between the panel
// record and the dialog's controls.
#pragma once

#include "paperoutput/PaperOutputRecord.h"
#include "settings/PropertyValue.h"

#include <QString>
#include <QTime>

#include <cstdint>
#include <functional>

namespace orvan {

class Bundle;

inline constexpr int kPasscodeMinDigits = 4;
inline constexpr int kPasscodeMaxDigits = 10;
inline const QString kPasscodeCharacters = QStringLiteral("0123456789");

enum class PasscodeVerdict
{
    Mismatch,  // the two entries differ: the dialog stays open
    Accepted,  // equal and at least four characters
    Generated, // equal but too short: a four-digit passcode was made instead
};

// Draws the random number a generated passcode is made from. The default
// seeds a generator with the current time for every draw; tests install a
// fixed one.
using PasscodeRandomSource = std::function<std::uint32_t()>;
// Installs a source (an empty one restores the default) and returns the
// previous one.
PasscodeRandomSource SetPasscodeRandomSource(PasscodeRandomSource source);
std::uint32_t DrawPasscodeRandom();

// r mod 9000 + 1000, in decimal: always four digits, 1000 to 9999.
QString GeneratedPasscode(std::uint32_t random);

// Compares the passcode and its confirmation without regard to case. On
// Accepted, *passcode is the typed passcode (a string: leading zeros stay);
// on Generated, a new one from the installed random source. A short passcode
// is replaced, not refused, on purpose: the job is never held without one.
PasscodeVerdict CheckPasscodePair(const QString& passcode, const QString& confirmation,
                                  QString* result);

// The OK step of a passcode pair: checks it and tells the user (the
// invalid-passcode alert on a mismatch, the "Passcode Required" alert with
// the generated passcode). True when the dialog may close, with *result set.
// The generated passcode is shown only in the alert, which is marked as
// holding a secret so that it never reaches a log.
bool ConfirmPasscodePair(const Bundle* bundle, const QString& passcode, const QString& confirmation,
                         QString* result);

// Today's date with the chosen time of day on the long date-time scale; a
// time already past (to the second) means the same time tomorrow. The
// current second itself is not past.
std::int64_t DelayedPrintSeconds(const QTime& timeOfDay, const QDateTime& now);

// What the saved-job dialog's controls show. The combo boxes' values are as
// the history combo boxes read and show them: a string for typed text, the
// fixed item's ticket value ('Qujn', 'Qfln') as a number when it is chosen.
struct SavedJobUIValues
{
    long saveDisposition = kSaveOnly;
    PropertyValue jobName;
    PropertyValue folder;
    bool withPasscode = false;
    QString passcode; // both fields; null when none is held
    friend bool operator==(const SavedJobUIValues&, const SavedJobUIValues&) = default;
};

// The controls' values from the record (on open).
SavedJobUIValues RestoreUIValuesFromData(const PaperOutputRecord& record);
// The record's values from the controls (on OK, after the passcode pair was
// confirmed): typed text becomes the name (or location) and clears its flag,
// anything else sets the flag and keeps the held text; the passcode is taken
// only while the check box is on.
void SaveUIValuesToData(const SavedJobUIValues& values, PaperOutputRecord& record);

} // namespace orvan
