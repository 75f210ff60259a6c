#include "paperoutput/JobTypeSetupRules.h"

namespace orvan {

namespace {

QDateTime Epoch1904()
{
    return QDateTime(QDate(1904, 1, 1), QTime(0, 0));
}

} // namespace

QString GeneratedPasscode(std::uint32_t random)
{
    return QString::number(random % 9000 + 1000);
}

PasscodeVerdict CheckPasscodePair(const QString& passcode, const QString& confirmation,
                                  const std::function<std::uint32_t()>& random, QString* result)
{
    if (passcode.compare(confirmation, Qt::CaseInsensitive) != 0)
        return PasscodeVerdict::Mismatch;
    if (passcode.size() >= kPasscodeMinDigits) {
        if (result)
            *result = passcode;
        return PasscodeVerdict::Accepted;
    }
    if (result)
        *result = GeneratedPasscode(random ? random() : 0);
    return PasscodeVerdict::Generated;
}

std::int64_t SecondsSince1904(const QDateTime& when)
{
    return Epoch1904().secsTo(when);
}

QDateTime DateTimeFromSeconds1904(std::int64_t seconds)
{
    return Epoch1904().addSecs(seconds);
}

std::int64_t DelayedPrintSeconds(const QTime& timeOfDay, const QDateTime& now)
{
    const QTime time(timeOfDay.hour(), timeOfDay.minute(), timeOfDay.second());
    std::int64_t seconds = SecondsSince1904(QDateTime(now.date(), time));
    if (seconds < SecondsSince1904(now.addMSecs(-now.time().msec())))
        seconds += 86400;
    return seconds;
}

} // namespace orvan
