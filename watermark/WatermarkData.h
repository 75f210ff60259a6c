// One watermark: a line of text drawn across the page, or a picture file
// scaled onto it. Texts live in fixed-capacity UTF-8 buffers whose limits the
// watermark file and the printing side rely on.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace orvan {

// A NUL-terminated UTF-8 text of at most Capacity - 1 bytes.
template <std::size_t Capacity> class FixedText
{
public:
    static constexpr std::size_t kCapacity = Capacity;

    std::string_view view() const { return std::string_view(m_bytes); }
    QString toString() const { return QString::fromUtf8(view()); }
    bool empty() const { return m_bytes[0] == '\0'; }
    void clear() { m_bytes[0] = '\0'; }

    // Takes the text when its UTF-8 form fits (with the terminator); else the
    // buffer keeps what it held and the answer is false.
    bool assignIfFits(QStringView text)
    {
        const QByteArray utf8 = text.toUtf8();
        return assignIfFits(std::string_view(utf8.constData(), std::size_t(utf8.size())));
    }
    bool assignIfFits(std::string_view utf8)
    {
        if (utf8.size() >= Capacity)
            return false;
        utf8.copy(m_bytes, utf8.size());
        m_bytes[utf8.size()] = '\0';
        return true;
    }
    // Takes the text, cut on a character boundary to what fits.
    void assignTruncated(QStringView text)
    {
        const QByteArray utf8 = text.toUtf8();
        std::size_t length = std::min(std::size_t(utf8.size()), Capacity - 1);
        while (length < std::size_t(utf8.size()) && length > 0 &&
               (static_cast<unsigned char>(utf8[qsizetype(length)]) & 0xC0) == 0x80)
            --length;
        assignIfFits(std::string_view(utf8.constData(), length));
    }

    friend bool operator==(const FixedText& a, const FixedText& b) { return a.view() == b.view(); }

private:
    char m_bytes[Capacity] = {};
};

// The glyph ids of a text as last laid out, owned by the record. "None" (no
// array) differs from an empty one: only a record with an array writes
// "glyphs" and "glyphCount" to the file.
using GlyphIds = std::optional<std::vector<std::uint16_t>>;

struct _WatermarkData
{
    FixedText<512> textString; // the text; empty for a picture watermark
    FixedText<512> filename;   // the picture's display name; empty for text
    FixedText<8192> filePath;  // full path of the picture file
    FixedText<512> fontName;   // PostScript name of the text's font
    float xOffset = 0;         // inches right of the page centre
    float yOffset = 0;         // inches above the page centre
    // Kept with the record; drawing does not use it.
    float fontColorRed = 0, fontColorGreen = 0, fontColorBlue = 0, fontColorAlpha = 0;
    // The colour the text is drawn in.
    float wellColorRed = 0, wellColorGreen = 0, wellColorBlue = 0, wellColorAlpha = 0;
    std::int32_t angle = 0;    // degrees, counter-clockwise
    std::int32_t density = 0;  // opacity of text in percent
    std::int32_t scale = 0;    // picture size in percent of its pixel size
    std::int32_t units = 0;    // editor's offset unit: 0 tenths of an inch, 1 mm
    std::int32_t fontSize = 0; // points
    std::int32_t isText = 0;   // never stored in the file
    double paperHeight = 0;    // points; set by the panel, not stored
    double paperWidth = 0;     // points; set by the panel, not stored
    double xPos = 0;           // origin of the last drawing of the text, points
    double yPos = 0;
    GlyphIds glyphs;
    std::int32_t glyphCount = 0;

    // Every field zero, every text empty, no glyph array.
    void clear() { *this = _WatermarkData(); }
    // The glyph ids that the array and glyphCount agree on: the first
    // glyphCount entries, never more than the array holds.
    std::vector<std::uint16_t> validGlyphs() const;

    friend bool operator==(const _WatermarkData&, const _WatermarkData&) = default;
};

// Capacities, terminator included.
inline constexpr std::size_t kWatermarkTextCapacity = 512;
inline constexpr std::size_t kWatermarkPathCapacity = 8192;

// The name a record is stored under: its text when isText is non-zero, else
// its picture's file name.
QString WatermarkKey(const _WatermarkData& record);

} // namespace orvan
