// The watermark file's loader on arbitrary bytes: the file either reads as
// no dictionary or every entry loads into a record whose texts are
// terminated inside their buffers; a record written as a dictionary and read
// back writes the same dictionary again, and that dictionary survives the
// property-list writer and reader.
#include "watermark/WatermarkStore.h"

#include "settings/PropertyList.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

template <std::size_t N> void checkTerminated(const orvan::FixedText<N>& text)
{
    if (text.view().size() >= N)
        std::abort();
}

bool hasNaN(const orvan::_WatermarkData& r)
{
    for (float value :
         {r.xOffset, r.yOffset, r.fontColorRed, r.fontColorGreen, r.fontColorBlue, r.fontColorAlpha,
          r.wellColorRed, r.wellColorGreen, r.wellColorBlue, r.wellColorAlpha})
        if (std::isnan(value))
            return true;
    return std::isnan(r.xPos) || std::isnan(r.yPos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<orvan::PropertyValue> file = orvan::ParseWatermarkFile(bytes);
    if (!file)
        return 0;
    for (const auto& [name, entry] : file->asDictionary()) {
        if (!entry.isDictionary())
            continue;
        orvan::_WatermarkData record;
        orvan::ReadWatermarkDictionary(entry, record);
        checkTerminated(record.textString);
        checkTerminated(record.filename);
        checkTerminated(record.filePath);
        checkTerminated(record.fontName);
        if (record.validGlyphs().size() > std::size_t(std::max(record.glyphCount, 0)))
            std::abort();
        if (hasNaN(record))
            continue;
        const orvan::PropertyValue written = orvan::WatermarkDictionary(record);
        orvan::_WatermarkData again;
        orvan::ReadWatermarkDictionary(written, again);
        if (!(orvan::WatermarkDictionary(again) == written))
            std::abort();
        if (const auto xml = orvan::writePropertyList(written)) {
            const auto back = orvan::readPropertyList(*xml);
            if (!back || !(*back == written))
                std::abort();
        }
    }
    return 0;
}
