#include "host/PrinterList.h"

#include "printerdesc/PpdFile.h"
#include "submission/IppOwners.h"

#include <QFile>

#include <cups/cups.h>

#include <memory>

namespace orvan {

namespace {

// The server's destinations, released with their owner.
std::pair<int, submission::DestsPtr> Destinations()
{
    cups_dest_t* dests = nullptr;
    const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests);
    return {count, submission::DestsPtr(dests, {count})};
}

} // namespace

std::vector<PrinterEntry> ListPrinters()
{
    std::vector<PrinterEntry> printers;
    const auto [count, dests] = Destinations();
    bool haveDefault = false;
    for (int i = 0; i < count; ++i) {
        const cups_dest_t& dest = dests.get()[i];
        if (dest.instance)
            continue;
        PrinterEntry entry;
        entry.queueName = QString::fromUtf8(dest.name);
        const char* info = cupsGetOption("printer-info", dest.num_options, dest.options);
        entry.displayName = info && *info ? QString::fromUtf8(info) : entry.queueName;
        entry.isDefault = dest.is_default != 0;
        haveDefault = haveDefault || entry.isDefault;
        printers.push_back(entry);
    }
    PrinterEntry sample;
    sample.displayName = kSamplePrinterName;
    sample.isSample = true;
    sample.isDefault = printers.empty();
    printers.push_back(sample);
    if (!haveDefault && printers.size() > 1)
        printers.front().isDefault = true;
    return printers;
}

PrinterEntry PrinterAtUri(const QString& uri)
{
    PrinterEntry entry;
    entry.displayName = uri;
    entry.printerUri = uri;
    return entry;
}

bool QueueExists(const QString& queueName)
{
    const auto [count, dests] = Destinations();
    return cupsGetDest(queueName.toUtf8().constData(), nullptr, count, dests.get()) != nullptr;
}

std::optional<QString> FetchQueuePPD(const QString& queueName, QString* error)
{
    return FetchQueuePPDFile(queueName, error);
}

} // namespace orvan
