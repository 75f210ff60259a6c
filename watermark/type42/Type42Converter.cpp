#include "watermark/type42/Type42Converter.h"

#include "watermark/type42/HexDump.h"
#include "watermark/type42/Type42Encoding.h"
#include "watermark/type42/Type42Font.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>

namespace orvan {
namespace {

// Longest PostScript name kept, in bytes (a 512-byte C string buffer).
constexpr std::size_t kMaxPostScriptName = 511;
// Longest run of font bytes in one sfnts string; printers limit strings to
// 65535 bytes and each string carries one padding byte.
constexpr std::size_t kMaxStringBytes = 65534;
// Header lines are formatted into one buffer of this size; the longest is
// the FontName line with a name of kMaxPostScriptName bytes.
constexpr std::size_t kLineBufferSize = 640;
// Digits of the largest glyph index (65535).
constexpr std::size_t kMaxDigits = 5;

std::string_view usablePostScriptName(std::string_view name)
{
    name = name.substr(0, name.find('\0'));
    if (name.size() <= kMaxPostScriptName)
        return name;
    std::size_t cut = kMaxPostScriptName;
    while (cut > 0 && (static_cast<unsigned char>(name[cut]) & 0xC0) == 0x80)
        --cut;
    return name.substr(0, cut);
}

double fixedToReal(std::uint32_t fixed)
{
    return static_cast<std::int32_t>(fixed) / 65536.0;
}

// A font unit value scaled to the em as a 16.16 number: shifted left 16
// bits, then divided with truncation.
double scaledToEm(std::int16_t value, std::uint16_t unitsPerEm)
{
    const std::int32_t shifted = std::int32_t{value} * 65536;
    return fixedToReal(static_cast<std::uint32_t>(shifted / std::int32_t{unitsPerEm}));
}

template <typename... Args> void appendFormatted(std::string& out, const char* format, Args... args)
{
    char line[kLineBufferSize];
    const int length = std::snprintf(line, sizeof line, format, args...);
    if (length > 0)
        out.append(line, std::min<std::size_t>(static_cast<std::size_t>(length), sizeof line - 1));
}

void appendNumber(std::string& out, std::size_t number)
{
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    out.append(digits, result.ptr);
}

void appendHeader(const Type42Font& font, std::string_view postScriptName,
                  const Type42Encoding& encoding, std::string& out)
{
    appendFormatted(out, "%%!PS-TrueTypeFont-%.4f-%.4f\n", fixedToReal(font.version),
                    fixedToReal(font.revision));
    if (font.maxMemType42 != 0)
        appendFormatted(out, "%%%%VMUsage: %lu %lu\n",
                        static_cast<unsigned long>(font.minMemType42),
                        static_cast<unsigned long>(font.maxMemType42));
    appendFormatted(out, "%d dict begin\n", 11);
    out += "/FontName /";
    out += postScriptName;
    out += " def\n";
    out += "/Encoding 256 array\n";
    for (std::size_t code = 0; code < encoding.size(); ++code) {
        out += "dup ";
        appendNumber(out, code);
        out += " /";
        out += encoding[code];
        out += " put\n";
    }
    // "readonly def" and the PaintType entry share one line: programs have
    // always been written so, and the output stays byte for byte the same.
    out += "readonly def";
    out += "/PaintType 0 def\n";
    out += "/FontMatrix [1 0 0 1 0 0] def\n";
    appendFormatted(out, "/FontBBox [%f %f %f %f] def\n", scaledToEm(font.xMin, font.unitsPerEm),
                    scaledToEm(font.yMin, font.unitsPerEm), scaledToEm(font.xMax, font.unitsPerEm),
                    scaledToEm(font.yMax, font.unitsPerEm));
    out += "/FontType 42 def\n";
    out += "/FontInfo 8 dict dup begin\n";
    out += "end readonly def\n";
}

// Appends the sfnts array; false when it had to stop early because no
// break point was in reach (the array is then left open).
bool appendSfnts(const Type42Font& font, std::string& out)
{
    out += "/sfnts [\n";
    const std::size_t length = font.bytes.size();
    std::size_t position = 0;
    std::size_t strings = 0;
    while (position < length) {
        std::size_t end = length;
        if (length - position >= kMaxStringBytes) {
            end = static_cast<std::size_t>(lastBreakPointWithin(font, position, kMaxStringBytes));
            if (end == 0)
                return false;
        }
        const std::size_t shift = 2 * strings;
        const std::size_t start = out.size();
        out.resize(start + 1 + hexDumpSize(position, end, shift) + 3);
        char* cursor = out.data() + start;
        *cursor++ = '<';
        cursor = writeHexDump(cursor, font.bytes.data(), position, end, shift);
        cursor[0] = '0';
        cursor[1] = '0';
        cursor[2] = '>';
        ++strings;
        position = end;
    }
    out += "] def\n";
    return true;
}

// Writes "/NAME GLYPH def\n" at `cursor`; returns its end.
char* writeCharString(char* cursor, std::string_view name, std::size_t glyph)
{
    *cursor++ = '/';
    std::memcpy(cursor, name.data(), name.size());
    cursor += name.size();
    *cursor++ = ' ';
    cursor = std::to_chars(cursor, cursor + kMaxDigits, glyph).ptr;
    std::memcpy(cursor, " def\n", 5);
    return cursor + 5;
}

void appendCharStrings(const Type42Font& font, std::string& out)
{
    appendFormatted(out, "/CharStrings %d dict dup begin\n", int{font.numGlyphs});
    // Only post format 2.0 names glyphs; other fonts get an empty dictionary,
    // which is how their programs have always been written.
    if (font.hasGlyphNames) {
        // Glyph 0 is .notdef to PostScript whatever the font calls it.
        const auto nameOf = [&font](std::size_t g) {
            return g == 0 ? std::string_view(".notdef") : font.glyphNames[g];
        };
        // Sized first, then written in place: thousands of short lines.
        std::size_t size = 0;
        for (std::size_t g = 0; g < font.glyphNames.size(); ++g) {
            if (!nameOf(g).empty())
                size += nameOf(g).size() + 7 + kMaxDigits;
        }
        const std::size_t start = out.size();
        out.resize(start + size);
        char* cursor = out.data() + start;
        for (std::size_t g = 0; g < font.glyphNames.size(); ++g) {
            if (!nameOf(g).empty())
                cursor = writeCharString(cursor, nameOf(g), g);
        }
        out.resize(static_cast<std::size_t>(cursor - out.data()));
    }
    out += "end readonly def\n";
    // "FontName" without a slash, as every stored program has it.
    out += "FontName currentdict end definefont pop\n";
}

std::size_t expectedSize(const Type42Font& font, std::string_view postScriptName)
{
    const std::size_t length = font.bytes.size();
    std::size_t names = 0;
    for (std::string_view name : font.glyphNames)
        names += name.size() + 16;
    return 8192 + postScriptName.size() + 2 * length + length / kHexBytesPerLine +
           4 * (length / kMaxStringBytes + 2) + names;
}

void printDiagnostic(Type42Result result)
{
    const char* line = nullptr;
    switch (result) {
    case Type42Result::Converted:
    case Type42Result::CutShort:
    case Type42Result::GlyphCountMismatch:
    case Type42Result::UnsupportedNameFormat:
        return;
    case Type42Result::MissingVitalTable:
        line = "DEBUG: Malformed TrueType file - missing vital table.\n";
        break;
    case Type42Result::BadMagicNumber:
        line = "DEBUG: Malformed TrueType file - Bad magic number\n";
        break;
    case Type42Result::TruncatedDirectory:
        line = "DEBUG: Malformed TrueType file - truncated table directory.\n";
        break;
    case Type42Result::TableOutOfBounds:
        line = "DEBUG: Malformed TrueType file - table extends past the end of the file.\n";
        break;
    case Type42Result::TableTooShort:
        line = "DEBUG: Malformed TrueType file - table too short.\n";
        break;
    case Type42Result::ZeroUnitsPerEm:
        line = "DEBUG: Malformed TrueType file - unitsPerEm is 0.\n";
        break;
    case Type42Result::GlyphNameOutOfBounds:
        line = "DEBUG: Malformed TrueType file - glyph name outside the post table.\n";
        break;
    }
    std::fputs(line, stderr);
}

} // namespace

std::string_view describe(Type42Result result)
{
    switch (result) {
    case Type42Result::Converted:
        return "converted";
    case Type42Result::CutShort:
        return "no break point within 65534 bytes; the program stops after the last complete "
               "string";
    case Type42Result::MissingVitalTable:
        return "malformed TrueType file: a vital table (maxp, head, post or name) is missing";
    case Type42Result::BadMagicNumber:
        return "malformed TrueType file: bad magic number in the head table";
    case Type42Result::GlyphCountMismatch:
        return "the post table names a different number of glyphs than maxp counts";
    case Type42Result::UnsupportedNameFormat:
        return "unsupported name table format (only format 0 is converted)";
    case Type42Result::TruncatedDirectory:
        return "malformed TrueType file: the file is shorter than its table directory";
    case Type42Result::TableOutOfBounds:
        return "malformed TrueType file: a table extends past the end of the file";
    case Type42Result::TableTooShort:
        return "malformed TrueType file: a table is too short for its fields";
    case Type42Result::ZeroUnitsPerEm:
        return "malformed TrueType file: the head table gives 0 units per em";
    case Type42Result::GlyphNameOutOfBounds:
        return "malformed TrueType file: a glyph name lies outside the post table";
    }
    return "unknown result";
}

Type42Result convertTTFtoPS42(FontBytes bytes, std::string_view postScriptName,
                              const Type42Encoding& encoding,
                              std::span<const Type42Glyph> charStrings, std::string& out,
                              Type42Diagnostics diagnostics)
{
    Type42Font font;
    const Type42Result read = readType42Font(bytes, font);
    if (read != Type42Result::Converted) {
        if (diagnostics == Type42Diagnostics::StandardError)
            printDiagnostic(read);
        return read;
    }
    const std::string_view name = usablePostScriptName(postScriptName);
    out.reserve(out.size() + expectedSize(font, name) + 32 * charStrings.size());
    appendHeader(font, name, encoding, out);
    if (!appendSfnts(font, out))
        return Type42Result::CutShort;
    appendFormatted(out, "/CharStrings %d dict dup begin\n", int(charStrings.size()));
    for (const Type42Glyph& entry : charStrings) {
        out += '/';
        out += entry.name;
        out += ' ';
        appendNumber(out, entry.glyph);
        out += " def\n";
    }
    out += "end readonly def\n";
    out += "FontName currentdict end definefont pop\n";
    return Type42Result::Converted;
}

Type42Result convertTTFtoPS42(FontBytes bytes, std::string_view postScriptName, std::string& out,
                              Type42Diagnostics diagnostics)
{
    Type42Font font;
    const Type42Result read = readType42Font(bytes, font);
    if (read != Type42Result::Converted) {
        if (diagnostics == Type42Diagnostics::StandardError)
            printDiagnostic(read);
        return read;
    }

    const std::string_view name = usablePostScriptName(postScriptName);
    const Type42Encoding encoding =
        buildEncoding(font.hasGlyphNames ? std::span<const std::string_view>(font.glyphNames)
                                         : std::span<const std::string_view>());
    out.reserve(out.size() + expectedSize(font, name));
    appendHeader(font, name, encoding, out);
    if (!appendSfnts(font, out))
        return Type42Result::CutShort;
    appendCharStrings(font, out);
    return Type42Result::Converted;
}

} // namespace orvan
