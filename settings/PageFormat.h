// The printing manager's page setup as the tickets carry it: orientation and
// paper in the page-format ticket, pages per sheet and the job name in the
// print-settings ticket. The host writes these items; panels only read them.
#pragma once

#include <QSizeF>
#include <QString>

#include <cstdint>
#include <optional>

namespace orvan {

class Ticket;

inline const QString kOrientationKey = QStringLiteral("com.apple.print.PageFormat.PMOrientation");
inline const QString kPaperInfoTicketKey = QStringLiteral("com.apple.print.PaperInfoTicket");
inline const QString kUnadjustedPaperRectKey =
    QStringLiteral("com.apple.print.PaperInfo.PMUnadjustedPaperRect");
inline const QString kPaperNameKey = QStringLiteral("com.apple.print.PaperInfo.PMPaperName");
inline const QString kLayoutNUpKey = QStringLiteral("com.apple.print.PrintSettings.PMLayoutNUp");
inline const QString kLayoutRowsKey = QStringLiteral("com.apple.print.PrintSettings.PMLayoutRows");
inline const QString kLayoutColumnsKey =
    QStringLiteral("com.apple.print.PrintSettings.PMLayoutColumns");
inline const QString kLayoutDirectionKey =
    QStringLiteral("com.apple.print.PrintSettings.PMLayoutDirection");
inline const QString kCopyCollateKey =
    QStringLiteral("com.apple.print.PrintSettings.PMCopyCollate");
inline const QString kReverseOrderKey =
    QStringLiteral("com.apple.print.PrintSettings.PMReverseOrder");
inline const QString kJobNameKey = QStringLiteral("com.apple.print.JobInfo.PMJobName");

// Orientation values of kOrientationKey (SInt32).
inline constexpr std::int32_t kPortraitOrientation = 1;
inline constexpr std::int32_t kLandscapeOrientation = 2;

// The paper of the page-format ticket in points, as the printer feeds it (not
// turned by the orientation): width and height of the unadjusted paper
// rectangle (top, left, bottom, right). nullopt when absent or malformed.
std::optional<QSizeF> PaperSizeFromPageFormat(const Ticket& pageFormat);
// Writes the paper rectangle (0, 0, height, width) and the paper's name into
// the page-format ticket's paper-info ticket.
void WritePaperToPageFormat(Ticket& pageFormat, const QString& client, const QString& paperName,
                            QSizeF size);

} // namespace orvan
