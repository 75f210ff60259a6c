// The long date-time scale of delayed-print times, and the clock that reads
// "now" on it.
//
// A long date-time is a signed 64-bit count of seconds since the epoch
// 1904-01-01 00:00:00 on the local wall clock. The count is wall-clock
// arithmetic (days * 86400 + seconds of the day): it carries no time zone and
// no daylight-saving shift, so a time of day always maps to the same
// remainder modulo 86400 and "the same time tomorrow" is exactly +86400.
#pragma once

#include <QDateTime>

#include <cstdint>
#include <functional>

namespace orvan {

inline constexpr std::int64_t kSecondsPerDay = 86400;

// The seconds of a local date and time (milliseconds dropped), and back.
std::int64_t LongDateToSeconds(const QDate& date, const QTime& time);
std::int64_t LongDateToSeconds(const QDateTime& localDateTime);
QDateTime SecondsToLongDate(std::int64_t seconds);

// Gives the current local date and time. The default reads the system clock;
// tests install a fixed one.
using NowSource = std::function<QDateTime()>;
// Installs a source (an empty one restores the system clock) and returns the
// previous one.
NowSource SetNowSource(NowSource source);
// The current local date and time from the installed source.
QDateTime CurrentLocalDateTime();

} // namespace orvan
