// Small TrueType files built in memory, and readers for the parts of a Type 42
// program that the tests check.
#pragma once

#include "watermark/type42/Type42Converter.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvan::test {

using Bytes = std::vector<std::uint8_t>;

// Stores `value` big-endian in `width` bytes at `at`, growing `bytes` as needed.
inline void put(Bytes& bytes, std::size_t at, std::uint32_t value, int width)
{
    bytes.resize(std::max(bytes.size(), at + width));
    for (int i = 0; i < width; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * (width - 1 - i));
}

inline void append(Bytes& bytes, std::uint32_t value, int width)
{
    put(bytes, bytes.size(), value, width);
}

struct Field
{
    std::size_t at;
    std::uint32_t value;
    int width;
};

// `size` zero bytes with `fields` stored in them.
inline Bytes table(std::size_t size, std::initializer_list<Field> fields)
{
    Bytes bytes(size);
    for (const Field& field : fields)
        put(bytes, field.at, field.value, field.width);
    return bytes;
}

inline Bytes post3(std::uint32_t minMemType42 = 0, std::uint32_t maxMemType42 = 0)
{
    return table(32, {{0, 0x00030000, 4}, {16, minMemType42, 4}, {20, maxMemType42, 4}});
}

// Post format 2.0: every glyph's name index, then the Pascal strings that
// indexes from 258 on name.
inline Bytes post2(const std::vector<std::uint16_t>& indexes,
                   const std::vector<std::string>& strings = {})
{
    Bytes post = table(34, {{0, 0x00020000, 4}, {32, std::uint32_t(indexes.size()), 2}});
    for (std::uint16_t index : indexes)
        append(post, index, 2);
    for (const std::string& text : strings) {
        post.push_back(static_cast<std::uint8_t>(text.size()));
        post.insert(post.end(), text.begin(), text.end());
    }
    return post;
}

inline Bytes loca(const std::vector<std::uint32_t>& offsets, int width = 4)
{
    Bytes bytes;
    for (std::uint32_t offset : offsets)
        append(bytes, offset, width);
    return bytes;
}

using Tables = std::vector<std::pair<std::string, Bytes>>;

// The fields of head, maxp, post and name that the converter reads.
struct FontSpec
{
    std::uint16_t glyphs = 1;
    std::uint32_t version = 0x00010000, revision = 0x00010000, magic = 0x5F0F3CF5;
    std::uint16_t unitsPerEm = 1000;
    std::int16_t xMin = 0, yMin = 0, xMax = 0, yMax = 0, locFormat = 1;
    Bytes post = post3();
    std::uint16_t nameFormat = 0;
};

// head, maxp, post and name: the least a font needs.
inline Tables vitalTables(const FontSpec& s = {})
{
    const auto u16 = [](std::int16_t value) { return std::uint32_t(std::uint16_t(value)); };
    return {{"head", table(54, {{0, s.version, 4},
                                {4, s.revision, 4},
                                {12, s.magic, 4},
                                {18, s.unitsPerEm, 2},
                                {36, u16(s.xMin), 2},
                                {38, u16(s.yMin), 2},
                                {40, u16(s.xMax), 2},
                                {42, u16(s.yMax), 2},
                                {50, u16(s.locFormat), 2}})},
            {"maxp", table(6, {{0, 0x00005000, 4}, {4, s.glyphs, 2}})},
            {"post", s.post},
            {"name", table(6, {{0, s.nameFormat, 2}, {4, 6, 2}})}};
}

// The vital tables, then "loca" and a "glyf" of `glyfSize` bytes of `fill`.
inline Tables glyphTables(const FontSpec& spec, Bytes locaTable, std::size_t glyfSize,
                          std::uint8_t fill = 0)
{
    Tables tables = vitalTables(spec);
    tables.emplace_back("loca", std::move(locaTable));
    tables.emplace_back("glyf", Bytes(glyfSize, fill));
    return tables;
}

// Where each table lands in build(): after the directory, each at a 4-byte
// boundary. The first table of that tag; past the last table for none.
inline std::size_t offsetOf(const Tables& tables, std::string_view tag)
{
    std::size_t offset = 12 + 16 * tables.size();
    for (const auto& [name, table] : tables) {
        if (name == tag)
            break;
        offset += (table.size() + 3) / 4 * 4;
    }
    return offset;
}

inline Bytes build(const Tables& tables)
{
    const std::size_t count = tables.size();
    Bytes font = table(12 + 16 * count, {{0, 0x00010000, 4}, {4, std::uint32_t(count), 2}});
    for (std::size_t i = 0; i < count; ++i) {
        const auto& [tag, contents] = tables[i];
        std::copy(tag.begin(), tag.end(), font.begin() + 12 + 16 * i);
        put(font, 12 + 16 * i + 8, std::uint32_t(font.size()), 4);
        put(font, 12 + 16 * i + 12, std::uint32_t(contents.size()), 4);
        font.insert(font.end(), contents.begin(), contents.end());
        font.resize((font.size() + 3) / 4 * 4);
    }
    return font;
}

inline std::string convertQuietly(const Bytes& font, std::string_view name = "TestFont")
{
    std::string out;
    convertTTFtoPS42(font, name, out, Type42Diagnostics::Silent);
    return out;
}

// Text from the start of the sfnts array up to "/CharStrings" or the end.
inline std::string_view sfntsText(std::string_view program)
{
    const std::size_t start = program.find("/sfnts [\n");
    if (start == std::string_view::npos)
        return {};
    return program.substr(start, program.find("/CharStrings", start) - start);
}

// The sfnts strings decoded, each without its padding byte; none when a
// string is malformed (not upper-case hexadecimal, odd, or without "00>").
inline std::optional<std::vector<Bytes>> sfntsStrings(std::string_view program)
{
    std::string text(sfntsText(program));
    std::erase(text, '\n');
    std::vector<Bytes> strings;
    for (std::size_t open = text.find('<'); open != std::string::npos;
         open = text.find('<', open + 1)) {
        const std::string digits = text.substr(open + 1, text.find('>', open) - open - 1);
        if (text.find('>', open) == std::string::npos || digits.size() % 2 ||
            !digits.ends_with("00") || digits.find_first_not_of("0123456789ABCDEF") != digits.npos)
            return std::nullopt;
        Bytes& bytes = strings.emplace_back();
        for (std::size_t i = 0; i + 2 < digits.size(); i += 2)
            bytes.push_back(static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    }
    return strings;
}

inline Bytes readFileBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace orvan::test
