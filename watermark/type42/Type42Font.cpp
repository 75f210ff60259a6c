#include "watermark/type42/Type42Font.h"

#include "watermark/type42/GlyphNames.h"

#include <algorithm>
#include <optional>

namespace orvan {
namespace {

constexpr std::uint32_t kHeadMagicNumber = 0x5F0F3CF5;
constexpr std::uint32_t kPostFormat2 = 0x00020000;
constexpr std::size_t kStandardGlyphNames = 258;

// Smallest sizes that hold every field read from each table.
constexpr std::size_t kMaxpSize = 6;
constexpr std::size_t kHeadSize = 54;
constexpr std::size_t kPostSize = 32;
constexpr std::size_t kPostFormat2HeaderSize = 34;
constexpr std::size_t kNameSize = 2;

std::string_view cString(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

std::optional<FontBytes> tableBytes(FontBytes bytes, const SfntTable& table)
{
    if (!fitsIn(bytes.size(), table.offset, table.length))
        return std::nullopt;
    return bytes.subspan(table.offset, table.length);
}

// Post format 2.0: the index array and the Pascal strings after it.
Type42Result readGlyphNames(FontBytes post, std::uint16_t numGlyphs, Type42Font& font)
{
    if (post.size() < kPostFormat2HeaderSize)
        return Type42Result::TableTooShort;
    if (readU16(post, 32) != numGlyphs)
        return Type42Result::GlyphCountMismatch;
    const std::size_t namesStart = kPostFormat2HeaderSize + 2 * std::size_t{numGlyphs};
    if (post.size() < namesStart)
        return Type42Result::TableTooShort;

    std::size_t customNeeded = 0;
    for (std::size_t g = 0; g < numGlyphs; ++g) {
        const std::size_t index = readU16(post, kPostFormat2HeaderSize + 2 * g);
        if (index >= kStandardGlyphNames)
            customNeeded = std::max(customNeeded, index - kStandardGlyphNames + 1);
    }
    // Each custom name is found once here rather than by skipping from the
    // start for every glyph.
    std::vector<std::string_view> custom;
    custom.reserve(customNeeded);
    std::size_t at = namesStart;
    while (custom.size() < customNeeded && at < post.size()) {
        const std::size_t length = post[at];
        if (length > post.size() - at - 1)
            break;
        custom.push_back(
            cString(std::string_view(reinterpret_cast<const char*>(post.data()) + at + 1, length)));
        at += 1 + length;
    }
    if (custom.size() < customNeeded)
        return Type42Result::GlyphNameOutOfBounds;

    font.hasGlyphNames = true;
    font.glyphNames.resize(numGlyphs);
    for (std::size_t g = 0; g < numGlyphs; ++g) {
        const std::size_t index = readU16(post, kPostFormat2HeaderSize + 2 * g);
        font.glyphNames[g] = index < kStandardGlyphNames ? _macGlyphEncoding[index]
                                                         : custom[index - kStandardGlyphNames];
    }
    return Type42Result::Converted;
}

Type42Result readBreakPoints(FontBytes bytes, std::optional<FontBytes> loca,
                             std::optional<SfntTable> glyf, std::int16_t locaFormat,
                             Type42Font& font)
{
    const std::size_t tableCount = readableTableCount(bytes);
    font.breakPoints.reserve(tableCount + font.numGlyphs);
    for (std::size_t i = 0; i < tableCount; ++i)
        font.breakPoints.push_back(tableRecord(bytes, i).offset);
    font.tableBreakPoints = tableCount;

    // Without both loca and glyf there are no glyph starts to offer.
    if (!loca || !glyf)
        return Type42Result::Converted;
    const std::size_t entrySize = locaFormat == 0 ? 2 : locaFormat == 1 ? 4 : 0;
    if (loca->size() < entrySize * font.numGlyphs)
        return Type42Result::TableTooShort;
    for (std::size_t g = 0; g < font.numGlyphs; ++g) {
        std::uint64_t offset = 0;
        if (locaFormat == 0)
            offset = std::uint64_t{readU16(*loca, 2 * g)} * 2;
        else if (locaFormat == 1)
            offset = readU32(*loca, 4 * g);
        if (offset % 4 == 0) {
            const std::uint64_t start = glyf->offset + offset;
            if (font.breakPoints.size() > font.tableBreakPoints && start < font.breakPoints.back())
                font.glyphStartsAscend = false;
            font.breakPoints.push_back(start);
        }
    }
    return Type42Result::Converted;
}

} // namespace

std::uint64_t lastBreakPointWithin(const Type42Font& font, std::uint64_t from, std::uint64_t reach)
{
    const auto inReach = [from, reach](std::uint64_t point) {
        return point > from && point - from <= reach;
    };
    std::uint64_t best = 0;
    const auto tablesEnd =
        font.breakPoints.begin() + static_cast<std::ptrdiff_t>(font.tableBreakPoints);
    for (auto it = font.breakPoints.begin(); it != tablesEnd; ++it) {
        if (inReach(*it) && *it > best)
            best = *it;
    }
    if (font.glyphStartsAscend) {
        // The last glyph start not beyond the reach, found by bisection.
        const auto after = std::upper_bound(tablesEnd, font.breakPoints.end(), from + reach);
        if (after != tablesEnd && inReach(*(after - 1)) && *(after - 1) > best)
            best = *(after - 1);
        return best;
    }
    for (auto it = tablesEnd; it != font.breakPoints.end(); ++it) {
        if (inReach(*it) && *it > best)
            best = *it;
    }
    return best;
}

Type42Result readType42Font(FontBytes bytes, Type42Font& font)
{
    font = Type42Font{};
    font.bytes = bytes;
    if (bytes.size() < kSfntHeaderSize ||
        readableTableCount(bytes) < std::size_t{readU16(bytes, 4)})
        return Type42Result::TruncatedDirectory;

    const auto maxpRecord = find_table("maxp", bytes);
    const auto headRecord = find_table("head", bytes);
    const auto postRecord = find_table("post", bytes);
    const auto nameRecord = find_table("name", bytes);
    const auto locaRecord = find_table("loca", bytes);
    const auto glyfRecord = find_table("glyf", bytes);
    if (!maxpRecord || !headRecord || !postRecord || !nameRecord)
        return Type42Result::MissingVitalTable;

    const auto maxp = tableBytes(bytes, *maxpRecord);
    const auto head = tableBytes(bytes, *headRecord);
    const auto post = tableBytes(bytes, *postRecord);
    const auto name = tableBytes(bytes, *nameRecord);
    std::optional<FontBytes> loca;
    if (locaRecord) {
        loca = tableBytes(bytes, *locaRecord);
        if (!loca)
            return Type42Result::TableOutOfBounds;
    }
    if (!maxp || !head || !post || !name ||
        (glyfRecord && !fitsIn(bytes.size(), glyfRecord->offset, glyfRecord->length)))
        return Type42Result::TableOutOfBounds;
    if (maxp->size() < kMaxpSize || head->size() < kHeadSize || post->size() < kPostSize ||
        name->size() < kNameSize)
        return Type42Result::TableTooShort;

    if (readU32(*head, 12) != kHeadMagicNumber)
        return Type42Result::BadMagicNumber;
    font.version = readU32(*head, 0);
    font.revision = readU32(*head, 4);
    font.unitsPerEm = readU16(*head, 18);
    font.xMin = readS16(*head, 36);
    font.yMin = readS16(*head, 38);
    font.xMax = readS16(*head, 40);
    font.yMax = readS16(*head, 42);
    const std::int16_t locaFormat = readS16(*head, 50);
    font.numGlyphs = readU16(*maxp, 4);
    font.minMemType42 = readU32(*post, 16);
    font.maxMemType42 = readU32(*post, 20);

    if (readU32(*post, 0) == kPostFormat2) {
        const Type42Result names = readGlyphNames(*post, font.numGlyphs, font);
        if (names != Type42Result::Converted)
            return names;
    }
    if (readU16(*name, 0) != 0)
        return Type42Result::UnsupportedNameFormat;
    if (font.unitsPerEm == 0)
        return Type42Result::ZeroUnitsPerEm;
    return readBreakPoints(bytes, loca, glyfRecord, locaFormat, font);
}

} // namespace orvan
