#include "stock/StockTables.h"

namespace orvan {

namespace {

constexpr StockTableRow kPageSizeRows[] = {
    {"Letter", 1},
    {"Legal", 2},
    {"Tabloid", 3},
    {"A4", 4},
    {"A3", 5},
    {"FanFoldGermanLegal", 16},
    {"8.5x13", 12},
    {"3x5", 80},
    {"Officio", 78},
    {"Statement", 17},
    {"A5", 18},
    {"A6", 40},
    {"Executive", 21},
    {"B5", 6},
    {"A4Cover", 7},
    {"9x11", 8},
    {"9x11L", 82},
    {"B4", 14},
    {"5x7", 41},
    {"B6", 42},
    {"8x10", 10},
    {"GovernmentLetter", 83},
    {"4x6Pcard", 43},
    {"114x152Pcard", 81},
    {"EnvMonarch", 44},
    {"Env9", 77},
    {"Env10", 45},
    {"EnvDL", 46},
    {"EnvC5", 20},
    {"JISB5", 55},
    {"JISB4", 56},
    {"JISB6", 57},
    {"SpanishFolio", 22},
    {"EnvC4", 58},
    {"4x6", 59},
    {"100x148Postcard", 60},
    {"148x200Postcard", 61},
    {"TabloidExtra", 11},
    {"12x19", 71},
    {"13x19", 66},
    {"SRA3", 15},
    {"220x330", 24},
    {"815", 23},
    {"16K", 29},
    {"8K1", 67},
    {"16K1", 68},
    {"EnvB5", 73},
    {"Env6x9", 25},
    {"Env9x12", 26},
    {"EnvC6", 74},
    {"QV11x15", 63},
    {"EnvChou3", 69},
    {"5p5x7", 76},
    {"QV6x9", 62},
    {"3x5", 80},
    {"Custom", 75},
    {nullptr, 0},
};

constexpr StockTableRow kMediaTypeRows[] = {
    {"SystemDefault", 23},
    {"Transparency", 2},
    {"Labels", 9},
    {"Punched", 11},
    {"Recycled", 10},
    {"PrePrinted", 3},
    {"Bond", 13},
    {"Letterhead", 14},
    {"TabStock", 24},
    {"Envelopes", 8},
    {"Other", 22},
    {"Custom1", 15},
    {"Custom2", 16},
    {"Custom3", 17},
    {"Custom4", 18},
    {"Custom5", 19},
    {"Custom6", 20},
    {"Custom7", 21},
    {"Standard", 1},
    {"CardStock", 12},
    {"Archive", 45},
    {"CardStock2", 26},
    {"CardStock", 43},
    {"CardStockF", 43},
    {"HeavyweightLabels", 25},
    {"ExtraHeavyweight", 27},
    {"ExtraHeavyweight2", 28},
    {"LightGlossy", 29},
    {"LightGlossy2", 30},
    {"LightGlossyF", 44},
    {"HeavyGlossy", 31},
    {"HeavyGlossy2", 32},
    {"HeavyTabStock", 33},
    {"Unspecified", 34},
    {"ExtraHeavyPlus", 35},
    {"ExtraHeavyPlus2", 36},
    {"ExtraHeavyGlossy", 37},
    {"ExtraHeavyGlossy2", 38},
    {"ExtraHeavyLabels", 39},
    {"Rough", 40},
    {"Standard2", 41},
    {"Light", 42},
    {"Postcard", 46},
    {nullptr, 0},
};

constexpr StockTableRow kMediaColorRows[] = {
    {"PrinterDefaultColor", 23},
    {"Buff", 7},
    {"Blue", 2},
    {"Clear", 6},
    {"Gray", 12},
    {"Green", 4},
    {"Ivory", 11},
    {"Orange", 13},
    {"Other", 14},
    {"Pink", 5},
    {"Red", 9},
    {"White", 1},
    {"Yellow", 3},
    {"Goldenrod", 8},
    {"Unspecified", 22},
    {"Custom1", 15},
    {"Custom2", 16},
    {"Custom3", 17},
    {"Custom4", 18},
    {"Custom5", 19},
    {"Custom6", 20},
    {"Custom7", 21},
    {nullptr, 0},
};

} // namespace

const std::span<const StockTableRow> _PageSizeMap{kPageSizeRows};
const std::span<const StockTableRow> _MediaTypeMap{kMediaTypeRows};
const std::span<const StockTableRow> _MediaColorMap{kMediaColorRows};

std::size_t StockTableRowCount(std::span<const StockTableRow> table)
{
    std::size_t rows = 0;
    while (rows < table.size() && table[rows].key)
        ++rows;
    return rows;
}

std::optional<std::int32_t> StockTableValue(std::span<const StockTableRow> table,
                                            std::string_view key)
{
    for (const StockTableRow& row : table) {
        if (!row.key)
            break;
        if (key == row.key)
            return row.value;
    }
    return std::nullopt;
}

const char* StockTableKey(std::span<const StockTableRow> table, std::int32_t value)
{
    for (const StockTableRow& row : table) {
        if (!row.key)
            break;
        if (row.value == value)
            return row.key;
    }
    return nullptr;
}

} // namespace orvan
