// Builds small TrueType files in memory for the converter's tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvan::test {

using Bytes = std::vector<std::uint8_t>;

void appendU16(Bytes& bytes, std::uint16_t value);
void appendU32(Bytes& bytes, std::uint32_t value);
void storeU16(Bytes& bytes, std::size_t offset, std::uint16_t value);
void storeU32(Bytes& bytes, std::size_t offset, std::uint32_t value);

struct HeadFields
{
    std::uint32_t version = 0x00010000;
    std::uint32_t revision = 0x00010000;
    std::uint32_t magicNumber = 0x5F0F3CF5;
    std::uint16_t unitsPerEm = 1000;
    std::int16_t xMin = 0, yMin = 0, xMax = 0, yMax = 0;
    std::int16_t indexToLocFormat = 1;
};

Bytes headTable(const HeadFields& fields = {});
Bytes maxpTable(std::uint16_t numGlyphs);
// Post format 3.0 (no glyph names).
Bytes postTable3(std::uint32_t minMemType42 = 0, std::uint32_t maxMemType42 = 0);
// Post format 2.0 from raw parts: the name index of every glyph and the
// Pascal strings that follow; numberOfGlyphs is the index count.
Bytes postTable2(const std::vector<std::uint16_t>& indexes,
                 const std::vector<std::string>& strings);

// One glyph's post 2.0 name: a standard Macintosh index or a custom string.
struct GlyphName
{
    int standardIndex = -1;
    std::string custom;
};
GlyphName standardName(int index);
GlyphName customName(std::string name);
// Post format 2.0 with custom names stored in order of first use.
Bytes postTable2(const std::vector<GlyphName>& names);

struct NameRecord
{
    std::uint16_t platform = 3, encoding = 1, language = 0x0409, nameId = 6;
    Bytes text;
};
Bytes nameTable(std::uint16_t format = 0, const std::vector<NameRecord>& records = {});
Bytes utf16BE(std::u16string_view text);

Bytes locaLong(const std::vector<std::uint32_t>& offsets);
Bytes locaShort(const std::vector<std::uint16_t>& halfOffsets);

// Tables laid out after the directory in the order added, each at a 4-byte
// boundary and padded with zeros to one.
class FontBuilder
{
public:
    FontBuilder& add(std::string_view tag, Bytes table);
    Bytes build() const;
    // The offset `tag` gets in build(); the first table of that tag.
    std::size_t offsetOf(std::string_view tag) const;

private:
    std::vector<std::pair<std::string, Bytes>> tables_;
};

// head, maxp, post 3.0 and name (format 0): the least a font needs.
FontBuilder minimalFont(std::uint16_t numGlyphs = 1, const HeadFields& head = {});
// As minimalFont with post format 2.0 names.
FontBuilder namedFont(const std::vector<GlyphName>& names, const HeadFields& head = {});

} // namespace orvan::test
