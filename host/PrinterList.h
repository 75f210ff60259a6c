// The printers the Print dialog offers: the CUPS queues of this machine, then
// the bundled sample Orvan printer, which is the default when CUPS has no
// queue or is not running.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace orvan {

struct PrinterEntry
{
    QString displayName;
    QString queueName; // empty for the sample printer
    QString ppdFile;   // a PPD file given without a queue; empty otherwise
    bool isDefault = false;
    bool isSample = false;
    bool savesPdf = false; // "Save as PDF": writes a file instead of printing
    QString printerUri;    // an IPP printer given by its address (ipp://...); empty otherwise
};

// An entry for the IPP printer at the address, printed to directly.
PrinterEntry PrinterAtUri(const QString& uri);

inline const QString kSamplePrinterName = QStringLiteral("Orvan Meridian 5000 (sample)");
inline const QString kSamplePpdResource = QStringLiteral("ppd/Orvan-Meridian-5000.ppd");

// CUPS queues (the CUPS default marked) and the sample printer last; the
// sample printer is marked default when no queue is.
std::vector<PrinterEntry> ListPrinters();
// The PPD of a CUPS queue, fetched from the server into a temporary file
// that the caller owns; nullopt (with the reason) when the queue has none.
std::optional<QString> FetchQueuePPD(const QString& queueName, QString* error);
// True when CUPS knows a queue of that name.
bool QueueExists(const QString& queueName);

} // namespace orvan
