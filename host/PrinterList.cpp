#include "host/PrinterList.h"

#include "printerdesc/PpdFile.h"

#include <QFile>

#include <cups/cups.h>

#include <memory>

namespace orvan {

namespace {

struct Destinations {
    int count = 0;
    cups_dest_t* dests = nullptr;
    Destinations() { count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests); }
    ~Destinations() { cupsFreeDests(count, dests); }
    Destinations(const Destinations&) = delete;
    Destinations& operator=(const Destinations&) = delete;
};

} // namespace

std::vector<PrinterEntry> ListPrinters()
{
    std::vector<PrinterEntry> printers;
    const Destinations destinations;
    bool haveDefault = false;
    for (int i = 0; i < destinations.count; ++i) {
        const cups_dest_t& dest = destinations.dests[i];
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

bool QueueExists(const QString& queueName)
{
    const Destinations destinations;
    return cupsGetDest(queueName.toUtf8().constData(), nullptr, destinations.count, destinations.dests) != nullptr;
}

std::optional<QString> FetchQueuePPD(const QString& queueName, QString* error)
{
    return FetchQueuePPDFile(queueName, error);
}

} // namespace orvan
