#include "host/PaperSizes.h"

#include "printerdesc/PpdFile.h"

#include <QLocale>

#include <cups/cups.h>
#include <cups/pwg.h>

#include <memory>

namespace orvan {

namespace {

constexpr double kPointsPerHundredthMillimetre = 72.0 / 2540.0;

std::optional<PaperSize> paperOfMediaName(const QString& name)
{
    const pwg_media_t* media = pwgMediaForPWG(name.toUtf8().constData());
    if (!media || media->width <= 0 || media->length <= 0)
        return std::nullopt;
    const QString shown = media->ppd ? QString::fromUtf8(media->ppd) : name;
    return PaperSize{name, shown,
                     QSizeF(media->width * kPointsPerHundredthMillimetre,
                            media->length * kPointsPerHundredthMillimetre)};
}

struct DestinationsDeleter
{
    int count;
    void operator()(cups_dest_t* dests) const { cupsFreeDests(count, dests); }
};
struct DestInfoDeleter
{
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};

} // namespace

std::vector<PaperSize> PapersFromPpd(ppd_file_t* ppd)
{
    std::vector<PaperSize> papers;
    for (const PpdPageSize& size : PpdPageSizes(ppd))
        papers.push_back({QString::fromLatin1(size.keyword), QString::fromUtf8(size.text),
                          QSizeF(size.width, size.height)});
    return papers;
}

std::vector<PaperSize> PapersFromMediaNames(const QStringList& supported,
                                            const QString& defaultMedia)
{
    std::vector<PaperSize> papers;
    for (const QString& name : supported) {
        auto paper = paperOfMediaName(name);
        if (!paper)
            continue;
        if (name == defaultMedia)
            papers.insert(papers.begin(), std::move(*paper));
        else
            papers.push_back(std::move(*paper));
    }
    return papers;
}

std::vector<PaperSize> PapersOfQueue(const QString& queueName)
{
    cups_dest_t* found =
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, queueName.toUtf8().constData(), nullptr);
    if (!found)
        return {};
    std::unique_ptr<cups_dest_t, DestinationsDeleter> dest(found, DestinationsDeleter{1});
    std::unique_ptr<cups_dinfo_t, DestInfoDeleter> info(
        cupsCopyDestInfo(CUPS_HTTP_DEFAULT, dest.get()));
    if (!info)
        return {};
    QStringList supported;
    if (ipp_attribute_t* media =
            cupsFindDestSupported(CUPS_HTTP_DEFAULT, dest.get(), info.get(), "media"))
        for (int i = 0; i < ippGetCount(media); ++i)
            supported << QString::fromUtf8(ippGetString(media, i, nullptr));
    QString defaultMedia;
    if (ipp_attribute_t* media =
            cupsFindDestDefault(CUPS_HTTP_DEFAULT, dest.get(), info.get(), "media"))
        defaultMedia = QString::fromUtf8(ippGetString(media, 0, nullptr));
    return PapersFromMediaNames(supported, defaultMedia);
}

std::vector<PaperSize> StandardPapers()
{
    const bool letterFirst = QLocale::system().measurementSystem() != QLocale::MetricSystem;
    QStringList names{QStringLiteral("iso_a4_210x297mm"),  QStringLiteral("na_letter_8.5x11in"),
                      QStringLiteral("na_legal_8.5x14in"), QStringLiteral("iso_a3_297x420mm"),
                      QStringLiteral("iso_a5_148x210mm"),  QStringLiteral("na_ledger_11x17in")};
    return PapersFromMediaNames(names, letterFirst ? names[1] : names[0]);
}

std::vector<PaperSize> PapersOfPrinter(const PrinterEntry& printer, const QString& ppdPath)
{
    std::vector<PaperSize> papers;
    if (!printer.savesPdf) {
        if (const PpdFilePtr ppd = OpenPPDFile(ppdPath))
            papers = PapersFromPpd(ppd.get());
        else if (!printer.queueName.isEmpty())
            papers = PapersOfQueue(printer.queueName);
    }
    return papers.empty() ? StandardPapers() : papers;
}

} // namespace orvan
