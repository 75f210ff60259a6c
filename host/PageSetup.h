// The host's page setup: paper, orientation, pages per sheet and their order,
// collation and output order. Read from and written to the session's tickets
// (where the panels read them, and the job's attributes are made from them).
#pragma once

#include <QSizeF>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace orvan {

class PrintSession;

// One paper the printer offers. `name` is what the job asks for: the PPD
// "PageSize" keyword, or the IPP media name for printers described by IPP.
struct PaperSize
{
    QString name;
    QString displayName;
    QSizeF points; // width and height as the printer feeds the sheet

    friend bool operator==(const PaperSize&, const PaperSize&) = default;
};

enum class Orientation : std::int32_t
{
    Portrait = 1,
    Landscape = 2
};

// The order in which the pages fill a sheet (the ticket's layout direction).
enum class PageOrder : std::int32_t
{
    LeftToRightTopToBottom = 1,
    RightToLeftTopToBottom = 2,
    TopToBottomLeftToRight = 3,
    TopToBottomRightToLeft = 4,
};

inline constexpr std::array<int, 6> kPagesPerSheetChoices{1, 2, 4, 6, 9, 16};

struct PageSetup
{
    PaperSize paper;
    Orientation orientation = Orientation::Portrait;
    int pagesPerSheet = 1;
    PageOrder order = PageOrder::LeftToRightTopToBottom;
    bool collate = true;
    bool reverse = false;

    // The sheet as it comes out: the paper turned by the orientation.
    QSizeF sheetSize() const;
    friend bool operator==(const PageSetup&, const PageSetup&) = default;
};

// Writes the page setup into the session (page-format: orientation, paper;
// print settings: N-up layout, collation, output order) and, when given, the
// job name. Client: the printing manager.
void WritePageSetup(PrintSession& session, const PageSetup& setup, const QString& jobName = {});
// The page setup of the session's tickets; the paper is looked up by name
// among `papers` (first one when absent or unknown; without papers, the
// tickets' paper as it is), every other field falls back to its default
// when absent or out of range.
PageSetup ReadPageSetup(const PrintSession& session, const std::vector<PaperSize>& papers);

} // namespace orvan
