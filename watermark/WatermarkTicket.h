// The print-settings ticket keys through which a job names its watermark,
// written by the Booklet/Watermark panel and read by the printing side.
#pragma once

#include <QString>

#include <cstdint>

namespace orvan {

// String: the selected watermark's name; absent when none is selected.
inline const QString kWatermarkTicketKey = QStringLiteral("com.orvan.print.watermark.Watermark");
// String: the subset font program's name ("QV-<PostScript name>-QV") under
// which the watermark file holds the text's font.
inline const QString kWatermarkSubsetFontNameTicketKey =
    QStringLiteral("com.orvan.print.watermark.SubsetFontName");
// SInt32: how the watermark meets the page's content.
inline const QString kWatermarkOptionTicketKey = QStringLiteral("com.orvan.print.watermark.Option");
// SInt32: 1 first page only, 0 every page.
inline const QString kWatermarkFirstPageOnlyTicketKey =
    QStringLiteral("com.orvan.print.watermark.FirstPageOnly");

enum class WatermarkOption : std::int32_t
{
    Background = 1,
    Blend = 2, // also when the ticket has no option
    Foreground = 3,
};

} // namespace orvan
