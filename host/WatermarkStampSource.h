// The watermark a job's tickets select, drawn for stamping onto its pages:
// the watermark's name, layer and page choice from the print-settings
// ticket, its drawing from the user's watermark file.
#pragma once

#include "host/DocumentPreparer.h"

#include <QSizeF>

#include <optional>

namespace orvan {

class PrintSession;

inline const QString kJobWatermarkKey = QStringLiteral("com.orvan.print.watermark.Watermark");
inline const QString kJobWatermarkOptionKey = QStringLiteral("com.orvan.print.watermark.Option");
inline const QString kJobWatermarkFirstPageOnlyKey =
    QStringLiteral("com.orvan.print.watermark.FirstPageOnly");

// The layer and page choice of the ticket (a missing option is blend, a
// missing page choice all pages); nullopt when no watermark is selected.
std::optional<WatermarkStamp> WatermarkChoiceFromSession(const PrintSession& session);
// The choice with the watermark, read from the user's watermark file, drawn
// on a transparent page of `pageSize` points; nullopt when none is selected,
// it is not in the file or it cannot be drawn (a missing font or picture).
std::optional<WatermarkStamp> WatermarkStampForSession(const PrintSession& session,
                                                       QSizeF pageSize);

} // namespace orvan
