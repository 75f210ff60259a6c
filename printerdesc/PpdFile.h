// The one place that talks to libcups' PPD interface. Everything else in the
// printer description works through these functions, which hand out plain
// C++ values (the PPD's bytes as they are; decoding is the caller's business).
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

// libcups' handle of an open PPD (cups/ppd.h).
struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace orvan {

struct PpdFileCloser
{
    void operator()(ppd_file_t* ppd) const;
};
using PpdFilePtr = std::unique_ptr<ppd_file_t, PpdFileCloser>;

// Opens and parses a PPD file; null when it cannot be read or is not a PPD.
// On failure the reason (line and message) goes to *error when given.
PpdFilePtr OpenPPDFile(const QString& path, QString* error = nullptr);

struct PpdChoice
{
    QByteArray keyword;
    QByteArray text;
};

// The choices of an option in PPD order; nullopt when the option is absent.
std::optional<std::vector<PpdChoice>> PpdOptionChoices(ppd_file_t* ppd, const QByteArray& keyword);
// The option's default choice keyword; nullopt when the option is absent.
std::optional<QByteArray> PpdDefaultChoice(ppd_file_t* ppd, const QByteArray& keyword);
// The human-readable text of a choice; nullopt when option or choice is absent.
std::optional<QByteArray> PpdChoiceText(ppd_file_t* ppd, const QByteArray& keyword,
                                        const QByteArray& choice);

// Marks: every option starts at its default after PpdMarkDefaults; marking a
// choice answers the number of constraint conflicts the PPD then has.
void PpdMarkDefaults(ppd_file_t* ppd);
int PpdMarkOption(ppd_file_t* ppd, const QByteArray& keyword, const QByteArray& choice);
// The marked choice of an option; nullopt when the option is absent or
// nothing is marked.
std::optional<QByteArray> PpdMarkedChoice(ppd_file_t* ppd, const QByteArray& keyword);

// The options of the group with exactly that name, each with its first
// marked choice (options without one are left out); nullopt without the group.
std::optional<std::vector<std::pair<QByteArray, QByteArray>>>
PpdMarkedChoicesInGroup(ppd_file_t* ppd, const QByteArray& group);

// The "*LanguageEncoding" entry as written in the file; empty when absent.
// (libcups replaces the parsed encoding field by "UTF-8" once it has
// converted the texts, so the entry is read from the file's attributes.)
QByteArray PpdLanguageEncodingEntry(ppd_file_t* ppd);
QByteArray PpdManufacturer(ppd_file_t* ppd);

// Custom page size limits in points; nullopt when the PPD has no custom sizes.
struct PpdCustomSizeLimits
{
    double minimumWidth;
    double minimumHeight;
    double maximumWidth;
    double maximumHeight;
};
std::optional<PpdCustomSizeLimits> PpdCustomLimits(ppd_file_t* ppd);

// A named page size of the PPD ("PageSize" choice with its "PaperDimension"),
// width and height in points as the printer feeds the sheet.
struct PpdPageSize
{
    QByteArray keyword;
    QByteArray text;
    double width;
    double height;
};
// The named page sizes in PPD order (custom sizes left out), the default
// choice first; empty when the PPD has none.
std::vector<PpdPageSize> PpdPageSizes(ppd_file_t* ppd);

// The PPD of a CUPS queue, fetched from the server into a temporary file the
// caller owns (and removes); nullopt with the server's reason when the queue
// has none or the server cannot be reached.
std::optional<QString> FetchQueuePPDFile(const QString& queueName, QString* error);

} // namespace orvan
