#include "watermark/type42/SfntData.h"

#include <algorithm>
#include <cstring>

namespace orvan {

std::size_t readableTableCount(FontBytes font)
{
    if (font.size() < kSfntHeaderSize)
        return 0;
    const std::size_t declared = readU16(font, 4);
    const std::size_t fitting = (font.size() - kSfntHeaderSize) / kTableRecordSize;
    return std::min(declared, fitting);
}

SfntTable tableRecord(FontBytes font, std::size_t index)
{
    const std::size_t record = kSfntHeaderSize + index * kTableRecordSize;
    return {readU32(font, record + 8), readU32(font, record + 12)};
}

std::optional<SfntTable> find_table(std::string_view tag, FontBytes font)
{
    if (tag.size() != 4)
        return std::nullopt;
    const std::size_t count = readableTableCount(font);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t record = kSfntHeaderSize + i * kTableRecordSize;
        if (std::memcmp(font.data() + record, tag.data(), 4) == 0)
            return tableRecord(font, i);
    }
    return std::nullopt;
}

} // namespace orvan
