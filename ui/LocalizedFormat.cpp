#include "ui/LocalizedFormat.h"

#include "settings/Bundle.h"

namespace orvan {

QString FormatText(const QString& format, const QStringList& arguments)
{
    QString result;
    result.reserve(format.size());
    qsizetype i = 0;
    while (i < format.size()) {
        const QChar c = format.at(i);
        if (c != QLatin1Char('%') || i + 1 >= format.size() || !format.at(i + 1).isDigit()) {
            result.append(c);
            ++i;
            continue;
        }
        // Up to two digits: "%12" is argument 12, "%123" argument 12 and a "3".
        qsizetype end = i + 1;
        int number = 0;
        while (end < format.size() && end < i + 3 && format.at(end).isDigit()) {
            number = number * 10 + format.at(end).digitValue();
            ++end;
        }
        if (number >= 1 && number <= arguments.size())
            result.append(arguments.at(number - 1));
        else
            result.append(QStringView(format).mid(i, end - i));
        i = end;
    }
    return result;
}

QString LocalizedFormat(const Bundle* bundle, const QString& key, const QStringList& arguments)
{
    const QString format = bundle ? bundle->localizedString(key).value_or(key) : key;
    return FormatText(format, arguments);
}

} // namespace orvan
