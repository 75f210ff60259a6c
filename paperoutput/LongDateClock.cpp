#include "paperoutput/LongDateClock.h"

namespace orvan {

namespace {

const QDate kEpoch(1904, 1, 1);

NowSource& InstalledNowSource()
{
    static NowSource source;
    return source;
}

} // namespace

std::int64_t LongDateToSeconds(const QDate& date, const QTime& time)
{
    return kEpoch.daysTo(date) * kSecondsPerDay + QTime(0, 0).secsTo(time);
}

std::int64_t LongDateToSeconds(const QDateTime& localDateTime)
{
    return LongDateToSeconds(localDateTime.date(), localDateTime.time());
}

QDateTime SecondsToLongDate(std::int64_t seconds)
{
    // Floor division, so that times before the epoch keep a time of day in
    // 0..86399.
    std::int64_t days = seconds / kSecondsPerDay;
    std::int64_t rest = seconds % kSecondsPerDay;
    if (rest < 0) {
        rest += kSecondsPerDay;
        --days;
    }
    return QDateTime(kEpoch.addDays(days), QTime(0, 0).addSecs(static_cast<int>(rest)));
}

NowSource SetNowSource(NowSource source)
{
    NowSource previous = std::move(InstalledNowSource());
    InstalledNowSource() = std::move(source);
    return previous;
}

QDateTime CurrentLocalDateTime()
{
    const NowSource& source = InstalledNowSource();
    return source ? source() : QDateTime::currentDateTime();
}

} // namespace orvan
