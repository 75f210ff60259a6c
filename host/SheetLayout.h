// Where the document's pages go on the sheets: the pages a range selects,
// the grid of a pages-per-sheet choice and the placement of each page in its
// cell (scaled to fit, centred, turned a quarter when that makes it larger).
// The preview and the prepared document both place pages with it, so what
// the preview shows is what the file holds.
#pragma once

#include "host/PageSetup.h"

#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <utility>
#include <vector>

namespace orvan {

// Columns and rows for a pages-per-sheet count: wider than high on a
// landscape sheet, higher than wide on a portrait one.
std::pair<int, int> SheetGrid(int pagesPerSheet, QSizeF sheet);

// One page on a sheet. `target` is the box the page covers, in sheet points
// with the origin at the top left; a quarter-turned page is turned
// counter-clockwise (its top to the left).
struct PagePlacement
{
    int page = 0; // 0-based index into the document
    QRectF target;
    bool quarterTurn = false;
    double scale = 1;
};

// The placement of a page of `pageSize` in `cell`.
PagePlacement PlacePage(int page, QSizeF pageSize, const QRectF& cell);

// The pages of the document that print: first..last (1-based, inclusive,
// clipped to the document); empty when none of them exists.
std::vector<int> SelectedPages(int pageCount, int firstPage, int lastPage);

// The sheets of a page setup: each sheet lists the placements of its pages
// in the order the setup fills the cells. `pageSize(i)` gives page i's size.
template <typename PageSizeOf>
std::vector<std::vector<PagePlacement>> LayOutSheets(const std::vector<int>& pages,
                                                     const PageSetup& setup, PageSizeOf pageSize);

// The cell of slot `slot` (0-based, in filling order) on a sheet.
QRectF SheetCell(int slot, const PageSetup& setup);

template <typename PageSizeOf>
std::vector<std::vector<PagePlacement>> LayOutSheets(const std::vector<int>& pages,
                                                     const PageSetup& setup, PageSizeOf pageSize)
{
    const int perSheet = std::max(1, setup.pagesPerSheet);
    std::vector<std::vector<PagePlacement>> sheets;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const int slot = static_cast<int>(i) % perSheet;
        if (slot == 0)
            sheets.emplace_back();
        sheets.back().push_back(PlacePage(pages[i], pageSize(pages[i]), SheetCell(slot, setup)));
    }
    return sheets;
}

} // namespace orvan
