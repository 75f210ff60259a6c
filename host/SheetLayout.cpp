#include "host/SheetLayout.h"

#include <algorithm>

namespace orvan {

std::pair<int, int> SheetGrid(int pagesPerSheet, QSizeF sheet)
{
    int small = 1;
    int large = 1;
    switch (pagesPerSheet) {
    case 2:
        large = 2;
        break;
    case 4:
        small = large = 2;
        break;
    case 6:
        small = 2, large = 3;
        break;
    case 9:
        small = large = 3;
        break;
    case 16:
        small = large = 4;
        break;
    default:
        break;
    }
    return sheet.width() > sheet.height() ? std::pair{large, small} : std::pair{small, large};
}

QRectF SheetCell(int slot, const PageSetup& setup)
{
    const QSizeF sheet = setup.sheetSize();
    const auto [columns, rows] = SheetGrid(setup.pagesPerSheet, sheet);
    const bool columnsFirst = setup.order == PageOrder::TopToBottomLeftToRight ||
                              setup.order == PageOrder::TopToBottomRightToLeft;
    const bool rightToLeft = setup.order == PageOrder::RightToLeftTopToBottom ||
                             setup.order == PageOrder::TopToBottomRightToLeft;
    int column = columnsFirst ? slot / rows : slot % columns;
    const int row = columnsFirst ? slot % rows : slot / columns;
    if (rightToLeft)
        column = columns - 1 - column;
    const double width = sheet.width() / columns;
    const double height = sheet.height() / rows;
    return {column * width, row * height, width, height};
}

PagePlacement PlacePage(int page, QSizeF pageSize, const QRectF& cell)
{
    PagePlacement placement;
    placement.page = page;
    if (pageSize.isEmpty())
        return placement;
    const double upright =
        std::min(cell.width() / pageSize.width(), cell.height() / pageSize.height());
    const double turned =
        std::min(cell.width() / pageSize.height(), cell.height() / pageSize.width());
    placement.quarterTurn = turned > upright * 1.0001;
    placement.scale = std::max(upright, turned);
    const QSizeF placed =
        (placement.quarterTurn ? pageSize.transposed() : pageSize) * placement.scale;
    placement.target =
        QRectF(cell.x() + (cell.width() - placed.width()) / 2,
               cell.y() + (cell.height() - placed.height()) / 2, placed.width(), placed.height());
    return placement;
}

std::vector<int> SelectedPages(int pageCount, int firstPage, int lastPage)
{
    std::vector<int> pages;
    const int first = std::max(1, firstPage);
    const int last = std::min(pageCount, lastPage);
    for (int page = first; page <= last; ++page)
        pages.push_back(page - 1);
    return pages;
}

} // namespace orvan
