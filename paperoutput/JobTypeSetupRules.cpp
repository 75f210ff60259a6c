#include "paperoutput/JobTypeSetupRules.h"

#include "paperoutput/LongDateClock.h"
#include "platform/Alerts.h"
#include "settings/SettingMap.h"
#include "shell/PanelText.h"

#include <QRandomGenerator>

namespace orvan {

namespace {

PasscodeRandomSource& InstalledRandomSource()
{
    static PasscodeRandomSource source;
    return source;
}

std::uint32_t TimeSeededRandom()
{
    QRandomGenerator generator(static_cast<quint32>(QDateTime::currentMSecsSinceEpoch()));
    return generator.generate();
}

void Tell(const Bundle* bundle, const char* header, const char* message,
          const QStringList& arguments, bool holdsSecret)
{
    Alert alert;
    alert.title = PanelText(bundle, QString::fromLatin1(header));
    alert.message = PanelText(bundle, QString::fromLatin1(message));
    for (const QString& argument : arguments)
        alert.message = alert.message.arg(argument);
    alert.holdsSecret = holdsSecret;
    ShowAlert(alert);
}

bool IsTypedText(const PropertyValue& value)
{
    return value.isString() && !value.toString().isEmpty();
}

} // namespace

PasscodeRandomSource SetPasscodeRandomSource(PasscodeRandomSource source)
{
    PasscodeRandomSource previous = std::move(InstalledRandomSource());
    InstalledRandomSource() = std::move(source);
    return previous;
}

std::uint32_t DrawPasscodeRandom()
{
    const PasscodeRandomSource& source = InstalledRandomSource();
    return source ? source() : TimeSeededRandom();
}

QString GeneratedPasscode(std::uint32_t random)
{
    return QString::number(random % 9000 + 1000);
}

PasscodeVerdict CheckPasscodePair(const QString& passcode, const QString& confirmation,
                                  QString* result)
{
    if (passcode.compare(confirmation, Qt::CaseInsensitive) != 0)
        return PasscodeVerdict::Mismatch;
    if (passcode.size() >= kPasscodeMinDigits) {
        *result = passcode;
        return PasscodeVerdict::Accepted;
    }
    *result = GeneratedPasscode(DrawPasscodeRandom());
    return PasscodeVerdict::Generated;
}

bool ConfirmPasscodePair(const Bundle* bundle, const QString& passcode, const QString& confirmation,
                         QString* result)
{
    const QString minimum = QString::number(kPasscodeMinDigits);
    const QString maximum = QString::number(kPasscodeMaxDigits);
    switch (CheckPasscodePair(passcode, confirmation, result)) {
    case PasscodeVerdict::Mismatch:
        Tell(bundle, "Invalid Secure Print Passcode Header",
             "Invalid Secure Print Passcode Message", {minimum, maximum}, false);
        return false;
    case PasscodeVerdict::Generated:
        Tell(bundle, "Passcode Required Header", "Passcode Required Message",
             {minimum, maximum, *result}, true);
        return true;
    case PasscodeVerdict::Accepted:
        return true;
    }
    return false;
}

std::int64_t DelayedPrintSeconds(const QTime& timeOfDay, const QDateTime& now)
{
    const std::int64_t seconds = LongDateToSeconds(now.date(), timeOfDay);
    return seconds < LongDateToSeconds(now) ? seconds + kSecondsPerDay : seconds;
}

SavedJobUIValues RestoreUIValuesFromData(const PaperOutputRecord& record)
{
    SavedJobUIValues values;
    values.saveDisposition = record.saveDisposition;
    values.jobName = record.useJobName ? PropertyValue::integer(FourCharCode("Qujn"))
                                       : PropertyValue(record.savedJobName);
    values.folder = record.defaultLocation ? PropertyValue::integer(FourCharCode("Qfln"))
                                           : PropertyValue(record.savedJobLocation);
    values.withPasscode = record.withPasscode;
    values.passcode = record.securePrintPasscode;
    return values;
}

void SaveUIValuesToData(const SavedJobUIValues& values, PaperOutputRecord& record)
{
    record.saveDisposition = values.saveDisposition;
    record.useJobName = !IsTypedText(values.jobName);
    if (!record.useJobName)
        record.savedJobName = values.jobName.toString();
    record.defaultLocation = !IsTypedText(values.folder);
    if (!record.defaultLocation)
        record.savedJobLocation = values.folder.toString();
    record.withPasscode = values.withPasscode;
    if (values.withPasscode)
        record.securePrintPasscode = values.passcode;
}

} // namespace orvan
