// The papers a destination offers, the default first: from a PPD's page
// sizes, from an IPP printer's media names, or the common sizes for a PDF file.
#pragma once

#include "host/PageSetup.h"
#include "host/PrinterList.h"

#include <QStringList>

#include <vector>

struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace orvan {

// The PPD's named page sizes; names are the "PageSize" keywords.
std::vector<PaperSize> PapersFromPpd(ppd_file_t* ppd);
// Papers of IPP self-describing media names ("iso_a4_210x297mm"), the default
// moved first; names the printer sends that describe no size are left out.
std::vector<PaperSize> PapersFromMediaNames(const QStringList& supported,
                                            const QString& defaultMedia);
// The "media-supported" and "media-default" of a CUPS queue, asked of the
// server; an empty list when it cannot be asked.
std::vector<PaperSize> PapersOfQueue(const QString& queueName);
// The papers offered when saving a PDF file: A4 and US Letter first, the
// one of the system's locale leading.
std::vector<PaperSize> StandardPapers();
// The papers the printer offers: from its PPD at `ppdPath` (else, for a queue,
// from the server); the standard papers for "Save as PDF" and whenever the
// printer names none.
std::vector<PaperSize> PapersOfPrinter(const PrinterEntry& printer, const QString& ppdPath);

} // namespace orvan
