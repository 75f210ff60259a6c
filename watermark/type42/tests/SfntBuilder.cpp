#include "SfntBuilder.h"

#include <map>
#include <stdexcept>

namespace orvan::test {

void appendU16(Bytes& bytes, std::uint16_t value)
{
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
    bytes.push_back(static_cast<std::uint8_t>(value));
}

void appendU32(Bytes& bytes, std::uint32_t value)
{
    appendU16(bytes, static_cast<std::uint16_t>(value >> 16));
    appendU16(bytes, static_cast<std::uint16_t>(value));
}

void storeU16(Bytes& bytes, std::size_t offset, std::uint16_t value)
{
    bytes.at(offset) = static_cast<std::uint8_t>(value >> 8);
    bytes.at(offset + 1) = static_cast<std::uint8_t>(value);
}

void storeU32(Bytes& bytes, std::size_t offset, std::uint32_t value)
{
    storeU16(bytes, offset, static_cast<std::uint16_t>(value >> 16));
    storeU16(bytes, offset + 2, static_cast<std::uint16_t>(value));
}

Bytes headTable(const HeadFields& fields)
{
    Bytes head(54, 0);
    storeU32(head, 0, fields.version);
    storeU32(head, 4, fields.revision);
    storeU32(head, 12, fields.magicNumber);
    storeU16(head, 18, fields.unitsPerEm);
    storeU16(head, 36, static_cast<std::uint16_t>(fields.xMin));
    storeU16(head, 38, static_cast<std::uint16_t>(fields.yMin));
    storeU16(head, 40, static_cast<std::uint16_t>(fields.xMax));
    storeU16(head, 42, static_cast<std::uint16_t>(fields.yMax));
    storeU16(head, 50, static_cast<std::uint16_t>(fields.indexToLocFormat));
    return head;
}

Bytes maxpTable(std::uint16_t numGlyphs)
{
    Bytes maxp;
    appendU32(maxp, 0x00005000);
    appendU16(maxp, numGlyphs);
    return maxp;
}

Bytes postTable3(std::uint32_t minMemType42, std::uint32_t maxMemType42)
{
    Bytes post(32, 0);
    storeU32(post, 0, 0x00030000);
    storeU32(post, 16, minMemType42);
    storeU32(post, 20, maxMemType42);
    return post;
}

Bytes postTable2(const std::vector<std::uint16_t>& indexes, const std::vector<std::string>& strings)
{
    Bytes post(32, 0);
    storeU32(post, 0, 0x00020000);
    appendU16(post, static_cast<std::uint16_t>(indexes.size()));
    for (std::uint16_t index : indexes)
        appendU16(post, index);
    for (const std::string& text : strings) {
        post.push_back(static_cast<std::uint8_t>(text.size()));
        post.insert(post.end(), text.begin(), text.end());
    }
    return post;
}

GlyphName standardName(int index)
{
    return {index, {}};
}

GlyphName customName(std::string name)
{
    return {-1, std::move(name)};
}

Bytes postTable2(const std::vector<GlyphName>& names)
{
    std::vector<std::uint16_t> indexes;
    std::vector<std::string> strings;
    std::map<std::string, std::uint16_t> stored;
    for (const GlyphName& name : names) {
        if (name.standardIndex >= 0) {
            indexes.push_back(static_cast<std::uint16_t>(name.standardIndex));
            continue;
        }
        auto [it, added] =
            stored.emplace(name.custom, static_cast<std::uint16_t>(258 + strings.size()));
        if (added)
            strings.push_back(name.custom);
        indexes.push_back(it->second);
    }
    return postTable2(indexes, strings);
}

Bytes nameTable(std::uint16_t format, const std::vector<NameRecord>& records)
{
    Bytes name;
    appendU16(name, format);
    appendU16(name, static_cast<std::uint16_t>(records.size()));
    appendU16(name, static_cast<std::uint16_t>(6 + 12 * records.size()));
    Bytes storage;
    for (const NameRecord& record : records) {
        appendU16(name, record.platform);
        appendU16(name, record.encoding);
        appendU16(name, record.language);
        appendU16(name, record.nameId);
        appendU16(name, static_cast<std::uint16_t>(record.text.size()));
        appendU16(name, static_cast<std::uint16_t>(storage.size()));
        storage.insert(storage.end(), record.text.begin(), record.text.end());
    }
    name.insert(name.end(), storage.begin(), storage.end());
    return name;
}

Bytes utf16BE(std::u16string_view text)
{
    Bytes bytes;
    for (char16_t unit : text)
        appendU16(bytes, unit);
    return bytes;
}

Bytes locaLong(const std::vector<std::uint32_t>& offsets)
{
    Bytes loca;
    for (std::uint32_t offset : offsets)
        appendU32(loca, offset);
    return loca;
}

Bytes locaShort(const std::vector<std::uint16_t>& halfOffsets)
{
    Bytes loca;
    for (std::uint16_t offset : halfOffsets)
        appendU16(loca, offset);
    return loca;
}

FontBuilder& FontBuilder::add(std::string_view tag, Bytes table)
{
    if (tag.size() != 4)
        throw std::invalid_argument("table tags have four bytes");
    tables_.emplace_back(std::string(tag), std::move(table));
    return *this;
}

Bytes FontBuilder::build() const
{
    Bytes font;
    appendU32(font, 0x00010000);
    appendU16(font, static_cast<std::uint16_t>(tables_.size()));
    appendU16(font, 0); // searchRange, entrySelector, rangeShift: unused here
    appendU16(font, 0);
    appendU16(font, 0);
    std::size_t offset = 12 + 16 * tables_.size();
    for (const auto& [tag, table] : tables_) {
        font.insert(font.end(), tag.begin(), tag.end());
        appendU32(font, 0);
        appendU32(font, static_cast<std::uint32_t>(offset));
        appendU32(font, static_cast<std::uint32_t>(table.size()));
        offset += (table.size() + 3) / 4 * 4;
    }
    for (const auto& entry : tables_) {
        const Bytes& table = entry.second;
        font.insert(font.end(), table.begin(), table.end());
        font.resize((font.size() + 3) / 4 * 4, 0);
    }
    return font;
}

std::size_t FontBuilder::offsetOf(std::string_view tag) const
{
    std::size_t offset = 12 + 16 * tables_.size();
    for (const auto& [name, table] : tables_) {
        if (name == tag)
            return offset;
        offset += (table.size() + 3) / 4 * 4;
    }
    throw std::invalid_argument("no such table");
}

FontBuilder minimalFont(std::uint16_t numGlyphs, const HeadFields& head)
{
    FontBuilder font;
    font.add("head", headTable(head))
        .add("maxp", maxpTable(numGlyphs))
        .add("post", postTable3())
        .add("name", nameTable());
    return font;
}

FontBuilder namedFont(const std::vector<GlyphName>& names, const HeadFields& head)
{
    FontBuilder font;
    font.add("head", headTable(head))
        .add("maxp", maxpTable(static_cast<std::uint16_t>(names.size())))
        .add("post", postTable2(names))
        .add("name", nameTable());
    return font;
}

} // namespace orvan::test
