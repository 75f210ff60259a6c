// Fonts that are truncated or lie about their tables: a diagnostic and no
// output, never a read outside the font's bytes (the fuzz target and the
// sanitizer builds run these same paths).

#include "SfntBuilder.h"
#include "Type42Program.h"
#include "watermark/type42/Type42Converter.h"

#include <gtest/gtest.h>

#include <memory>

namespace orvan {
namespace {

using namespace orvan::test;

// The font in a heap block of exactly its size, so that AddressSanitizer
// catches any read past its end.
Type42Result convertExact(const Bytes& font, std::string& out)
{
    auto copy = std::make_unique<std::uint8_t[]>(font.size());
    std::copy(font.begin(), font.end(), copy.get());
    return convertTTFtoPS42(FontBytes(copy.get(), font.size()), "F", out,
                            Type42Diagnostics::Silent);
}

Type42Result resultOf(const Bytes& font)
{
    std::string out;
    const Type42Result result = convertExact(font, out);
    EXPECT_EQ(out.empty(), appendsNothing(result)) << describe(result);
    return result;
}

std::size_t directoryRecord(const FontBuilder&, int index)
{
    return 12 + 16 * static_cast<std::size_t>(index);
}

TEST(Type42Safety, EveryTruncationOfAFontIsRejectedOrConvertedWithinBounds)
{
    FontBuilder builder = namedFont({standardName(0), customName("Euro"), customName("longname")});
    builder.add("loca", locaLong({0, 4, 8})).add("glyf", Bytes(12, 0x5A));
    const Bytes font = builder.build();
    for (std::size_t length = 0; length < font.size(); ++length) {
        const Type42Result result = resultOf(Bytes(font.begin(), font.begin() + length));
        EXPECT_TRUE(appendsNothing(result)) << "length " << length;
    }
    EXPECT_EQ(resultOf(font), Type42Result::Converted);
}

TEST(Type42Safety, DirectoryLongerThanTheFile)
{
    Bytes font = minimalFont().build();
    storeU16(font, 4, 400);
    EXPECT_EQ(resultOf(font), Type42Result::TruncatedDirectory);
    EXPECT_EQ(resultOf(Bytes(font.begin(), font.begin() + 11)), Type42Result::TruncatedDirectory);
}

TEST(Type42Safety, TablesReachingPastTheEndOfTheFile)
{
    const FontBuilder builder = minimalFont();
    const Bytes good = builder.build();

    Bytes longHead = good;
    storeU32(longHead, directoryRecord(builder, 0) + 12, static_cast<std::uint32_t>(good.size()));
    EXPECT_EQ(resultOf(longHead), Type42Result::TableOutOfBounds);

    // offset + length wraps around in 32 bits.
    Bytes wrapping = good;
    storeU32(wrapping, directoryRecord(builder, 1) + 8, 0xFFFFFFF0u);
    storeU32(wrapping, directoryRecord(builder, 1) + 12, 0x20u);
    EXPECT_EQ(resultOf(wrapping), Type42Result::TableOutOfBounds);

    FontBuilder withGlyf = minimalFont();
    withGlyf.add("loca", locaLong({0})).add("glyf", Bytes(8, 0));
    Bytes lyingGlyf = withGlyf.build();
    storeU32(lyingGlyf, directoryRecord(withGlyf, 5) + 12, 0x7FFFFFFF);
    EXPECT_EQ(resultOf(lyingGlyf), Type42Result::TableOutOfBounds);
}

TEST(Type42Safety, TablesTooShortForTheirFields)
{
    const std::pair<const char*, Bytes> shortTables[] = {{"head", Bytes(50, 0)},
                                                         {"maxp", Bytes(4, 0)},
                                                         {"post", Bytes(20, 0)},
                                                         {"name", Bytes(1, 0)}};
    for (const auto& [tag, table] : shortTables) {
        FontBuilder builder;
        for (std::string_view name : {"head", "maxp", "post", "name"}) {
            if (name == tag)
                builder.add(name, table);
            else if (name == "head")
                builder.add(name, headTable());
            else if (name == "maxp")
                builder.add(name, maxpTable(1));
            else if (name == "post")
                builder.add(name, postTable3());
            else
                builder.add(name, nameTable());
        }
        EXPECT_EQ(resultOf(builder.build()), Type42Result::TableTooShort) << tag;
    }
}

TEST(Type42Safety, GlyphNameIndexArrayPastThePostTable)
{
    // numberOfGlyphs agrees with maxp but the index array is cut short.
    Bytes post = postTable2({0, 1, 2, 3}, {});
    post.resize(post.size() - 4);
    FontBuilder builder;
    builder.add("head", headTable())
        .add("maxp", maxpTable(4))
        .add("post", post)
        .add("name", nameTable());
    EXPECT_EQ(resultOf(builder.build()), Type42Result::TableTooShort);
}

TEST(Type42Safety, GlyphNamesBeyondTheStoredStrings)
{
    FontBuilder missingString;
    missingString.add("head", headTable())
        .add("maxp", maxpTable(2))
        .add("post", postTable2({0, 260}, {"one", "two"}))
        .add("name", nameTable());
    EXPECT_EQ(resultOf(missingString.build()), Type42Result::GlyphNameOutOfBounds);

    // The last Pascal string claims more bytes than the table holds.
    Bytes post = postTable2({0, 258}, {"abc"});
    post[post.size() - 4] = 200;
    FontBuilder overlong;
    overlong.add("head", headTable())
        .add("maxp", maxpTable(2))
        .add("post", post)
        .add("name", nameTable());
    EXPECT_EQ(resultOf(overlong.build()), Type42Result::GlyphNameOutOfBounds);
}

TEST(Type42Safety, LocaShorterThanTheGlyphCount)
{
    FontBuilder builder = minimalFont(5);
    builder.add("loca", locaLong({0, 4, 8})).add("glyf", Bytes(16, 0));
    EXPECT_EQ(resultOf(builder.build()), Type42Result::TableTooShort);
}

TEST(Type42Safety, ZeroUnitsPerEm)
{
    HeadFields head;
    head.unitsPerEm = 0;
    std::string out;
    testing::internal::CaptureStderr();
    EXPECT_EQ(convertTTFtoPS42(minimalFont(1, head).build(), "F", out),
              Type42Result::ZeroUnitsPerEm);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "DEBUG: Malformed TrueType file - unitsPerEm is 0.\n");
    EXPECT_TRUE(out.empty());
}

TEST(Type42Safety, BreakPointsBeyondTheFileAreHarmless)
{
    FontBuilder builder = minimalFont(2);
    builder.add("loca", locaLong({0x7FFFFFF0u, 0xFFFFFFFCu})).add("glyf", Bytes(70000, 1));
    const Bytes font = builder.build();
    std::string out;
    // Only table offsets remain in reach: the first string ends at glyf.
    EXPECT_EQ(convertExact(font, out), Type42Result::CutShort);
    const auto strings = sfntsStrings(out);
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 1u);
    EXPECT_EQ(strings->at(0).size(), builder.offsetOf("glyf"));
}

} // namespace
} // namespace orvan
