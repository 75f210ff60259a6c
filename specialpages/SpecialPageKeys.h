// Dictionary keys of the special-page records and the print-settings ticket
// keys under which they are stored.
#pragma once

#include <QString>

namespace orvan {

// Inside a special page's dictionary.
inline const QString kStartPageKey = QStringLiteral("StartPage");
inline const QString kSpecialPageStockKey = QStringLiteral("Stock");
// A cover's printed sides, and also an exception page's plex: the filter
// reads both under this one key.
inline const QString kSidesImagedKey = QStringLiteral("SidesImaged");
inline const QString kQuantityKey = QStringLiteral("Quantity");
inline const QString kEndPageKey = QStringLiteral("EndPage");
inline const QString kImageShiftOptionsPageKey =
    QStringLiteral("com.orvan.print.ImageShiftOptionsPage");
inline const QString kHalftoneScreenKey = QStringLiteral("HalftoneScreen");
inline const QString kLightenDarkenKey = QStringLiteral("LightenDarken");

// Print-settings ticket items.
inline const QString kFrontCoverKey = QStringLiteral("com.orvan.print.SpecialPages.FrontCover");
inline const QString kBackCoverKey = QStringLiteral("com.orvan.print.SpecialPages.BackCover");
inline const QString kInsertListKey = QStringLiteral("com.orvan.print.SpecialPages.InsertList");
inline const QString kExceptionListKey =
    QStringLiteral("com.orvan.print.SpecialPages.ExceptionList");
inline const QString kJobLevelStockKey = QStringLiteral("com.orvan.print.JobLevelStock");
inline const QString kBookletLayoutKey = QStringLiteral("com.orvan.print.BookletLayout");

} // namespace orvan
