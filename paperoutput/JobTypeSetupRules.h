// The rules of the job-type setup dialogs without widgets: passcode checks
// (shared by secure print and the secure saved job) and the delayed-print
// time.
#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <functional>

namespace orvan {

inline constexpr int kPasscodeMinDigits = 4;
inline constexpr int kPasscodeMaxDigits = 10;

enum class PasscodeVerdict
{
    Mismatch,  // the two entries differ: the dialog stays open
    Accepted,  // equal and at least four characters
    Generated, // equal but too short: a four-digit passcode was made instead
};

// Compares the passcode and its confirmation without regard to case. On
// Accepted, *passcode is the typed passcode; on Generated, a new one from
// the random source (1000 to 9999). A short passcode is replaced, not
// refused, on purpose: the job must never be held without one.
PasscodeVerdict CheckPasscodePair(const QString& passcode, const QString& confirmation,
                                  const std::function<std::uint32_t()>& random, QString* result);
// r mod 9000 + 1000, in decimal.
QString GeneratedPasscode(std::uint32_t random);

// Delayed print times are seconds since 1904-01-01 00:00 local time.
std::int64_t SecondsSince1904(const QDateTime& when);
QDateTime DateTimeFromSeconds1904(std::int64_t seconds);
// Today's date with the chosen time of day; a time already past means the
// same time tomorrow (one day later). The current second itself is not past.
std::int64_t DelayedPrintSeconds(const QTime& timeOfDay, const QDateTime& now);

} // namespace orvan
