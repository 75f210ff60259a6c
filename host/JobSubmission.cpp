#include "host/JobSubmission.h"

#include <QFile>

#include <cups/cups.h>

#include <vector>

namespace orvan {

void WriteCopiesAndPages(Ticket& ticket, int copies, int firstPage, int lastPage)
{
    ticket.setItem(kPrintingManagerClient, kCopiesKey, PropertyValue::integer(copies));
    ticket.setItem(kPrintingManagerClient, kFirstPageKey, PropertyValue::integer(firstPage));
    ticket.setItem(kPrintingManagerClient, kLastPageKey, PropertyValue::integer(lastPage));
}

int CopiesFromTicket(const Ticket& ticket)
{
    const auto copies = ticket.integer(kCopiesKey);
    return copies && *copies >= 1 ? static_cast<int>(*copies) : 1;
}

std::pair<int, int> PageRangeFromTicket(const Ticket& ticket)
{
    const int first = static_cast<int>(ticket.integer(kFirstPageKey).value_or(1));
    const int last = static_cast<int>(ticket.integer(kLastPageKey).value_or(kAllPagesLast));
    if (first < 1 || last < first)
        return {1, kAllPagesLast};
    return {first, last};
}

JobOptions JobOptionsFromSession(const PrintSession& session)
{
    const Ticket& settings = session.printSettings();
    JobOptions options;
    for (const auto& [keyword, choice] : settings.ppdDictionary().asDictionary())
        if (choice.isString() && !choice.toString().isEmpty())
            options.emplace_back(keyword, choice.toString());
    options.emplace_back(QStringLiteral("copies"), QString::number(CopiesFromTicket(settings)));
    const auto [first, last] = PageRangeFromTicket(settings);
    if (first != 1 || last != kAllPagesLast)
        options.emplace_back(QStringLiteral("page-ranges"), last == kAllPagesLast
                                                                ? QStringLiteral("%1-").arg(first)
                                                                : QStringLiteral("%1-%2").arg(first).arg(last));
    return options;
}

int SubmitJob(const QString& queueName, const QStringList& files, const QString& title, const JobOptions& options,
              QString* error)
{
    int count = 0;
    cups_option_t* cupsOptions = nullptr;
    for (const auto& [name, value] : options)
        count = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), count, &cupsOptions);
    std::vector<QByteArray> paths;
    std::vector<const char*> pathPointers;
    for (const QString& file : files) {
        paths.push_back(QFile::encodeName(file));
        pathPointers.push_back(paths.back().constData());
    }
    const int job = cupsPrintFiles2(CUPS_HTTP_DEFAULT, queueName.toUtf8().constData(),
                                    static_cast<int>(pathPointers.size()), pathPointers.data(),
                                    title.toUtf8().constData(), count, cupsOptions);
    cupsFreeOptions(count, cupsOptions);
    if (job == 0 && error)
        *error = QString::fromUtf8(cupsLastErrorString());
    return job;
}

} // namespace orvan
