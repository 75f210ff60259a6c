// The paper size, type and colour tables: a localisation key (also the name
// of the printer description's choice) and the stock field value, in the
// order the menus list them. Each ends with a row whose key is null.
// Duplicate rows ("3x5", the two "CardStock" types) are deliberate: menus are
// built row by row from these tables.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace orvan {

struct StockTableRow
{
    const char* key;
    std::int32_t value;
};

extern const std::span<const StockTableRow> _PageSizeMap;
extern const std::span<const StockTableRow> _MediaTypeMap;
extern const std::span<const StockTableRow> _MediaColorMap;

// Rows before the terminator.
std::size_t StockTableRowCount(std::span<const StockTableRow> table);
// The value of the first row with that key; nullopt when absent.
std::optional<std::int32_t> StockTableValue(std::span<const StockTableRow> table,
                                            std::string_view key);
// The key of the first row with that value; null when absent.
const char* StockTableKey(std::span<const StockTableRow> table, std::int32_t value);

} // namespace orvan
