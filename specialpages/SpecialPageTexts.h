// The texts of the Special Pages list (its three columns) and of the panel's
// summary, each looked up in the bundle's default table ("STRING NOT FOUND"
// where a text is missing).
#pragma once

#include "specialpages/Cover.h"
#include "specialpages/ExceptionPage.h"
#include "specialpages/Insert.h"

#include <QString>

namespace orvan {

class Bundle;

// What a row of the list shows; a cover is a front or a back cover only by
// the place it is held in.
enum class SpecialPageKind
{
    FrontCover,
    BackCover,
    Insert,
    ExceptionPage,
};

// The text of a key in the bundle's default table.
QString SpecialPagesText(const Bundle* bundle, const QString& key);

// The pages column: "SpecialPageSummaryFront" / "SpecialPageSummaryBack" for
// covers; "SpecialPageSummaryBefore1" for an insert before the first page,
// else its page; "first-last" for exception pages, one number when both are
// the same page.
QString SpecialPagePagesText(const Bundle* bundle, SpecialPageKind kind, const SpecialPage& page);

// The type column: "SpecialPageSummaryCover", "SpecialPageSummaryInsert" or
// "SpecialPageSummaryException".
QString SpecialPageTypeText(const Bundle* bundle, SpecialPageKind kind);

// The attributes column, items joined with "; ": the paper's name ("Paper
// Name Label" and the name) when it has one; the cover's printed sides, the
// insert's quantity ("InsertSummaryQuantity [n]") or the exception's plex
// when set; then, for paper from a tray, the printer's texts of the size,
// colour and type that are set, or for paper from the post-print inserter
// that feature's name.
QString CopySpecialPageSummary(const SpecialPage& page, const Bundle* bundle);

// The panel summary's values: the quantity ("InsertSummaryQuantity n") or the
// plex when set, then the stock summary when it is not empty, joined with
// ";  ".
QString CreateInsertAttributesDescription(const Bundle* bundle, const Insert& insert);
QString CreateExceptionAttributesDescription(const Bundle* bundle, const ExceptionPage& page);

// The localisation key of a cover's printed sides or of an exception's plex;
// empty for a value no table holds.
QString CoverSidesKey(std::int32_t sidesImaged);
QString PlexKey(std::int32_t plex);

} // namespace orvan
