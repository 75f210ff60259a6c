#include "watermark/WatermarkData.h"

namespace orvan {

std::vector<std::uint16_t> _WatermarkData::validGlyphs() const
{
    if (!glyphs || glyphCount <= 0)
        return {};
    const std::size_t count = std::min(glyphs->size(), static_cast<std::size_t>(glyphCount));
    return std::vector<std::uint16_t>(glyphs->begin(), glyphs->begin() + std::ptrdiff_t(count));
}

QString WatermarkKey(const _WatermarkData& record)
{
    return record.isText != 0 ? record.textString.toString() : record.filename.toString();
}

} // namespace orvan
