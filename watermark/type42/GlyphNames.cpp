#include "watermark/type42/GlyphNames.h"

namespace orvan {

// clang-format off
constexpr std::array<std::string_view, 258> _macGlyphEncoding = {
    ".notdef", ".null", "CR", "space", "exclam", "quotedbl", "numbersign", "dollar", "percent",
    "ampersand", "quotesingle", "parenleft", "parenright", "asterisk", "plus", "comma", "hyphen",
    "period", "slash", "zero", "one", "two", "three", "four", "five", "six", "seven", "eight",
    "nine", "colon", "semicolon", "less", "equal", "greater", "question", "at", "A", "B", "C", "D",
    "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W",
    "X", "Y", "Z", "bracketleft", "backslash", "bracketright", "asciicircum", "underscore", "grave",
    "a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m", "n", "o", "p", "q", "r", "s",
    "t", "u", "v", "w", "x", "y", "z", "braceleft", "bar", "braceright", "asciitilde", "Adieresis",
    "Aring", "Ccedilla", "Eacute", "Ntilde", "Odieresis", "Udieresis", "aacute", "agrave",
    "acircumflex", "adieresis", "atilde", "aring", "ccedilla", "eacute", "egrave", "ecircumflex",
    "edieresis", "iacute", "igrave", "icircumflex", "idieresis", "ntilde", "oacute", "ograve",
    "ocircumflex", "odieresis", "otilde", "uacute", "ugrave", "ucircumflex", "udieresis", "dagger",
    "degree", "cent", "sterling", "section", "bullet", "paragraph", "germandbls", "registered",
    "copyright", "trademark", "acute", "dieresis", "notequal", "AE", "Oslash", "infinity",
    "plusinus", "lessequal", "greaterequal", "yen", "mu1", "partialdiff", "summation", "product",
    "pi", "integral", "ordfeminine", "ordmasculine", "Ohm", "ae", "oslash", "questiondown",
    "exclamdown", "logicalnot", "radical", "florin", "approxequal", "increment", "guillemotleft",
    "guillemotright", "ellipsis", "nbspace", "Agrave", "Atilde", "Otilde", "OE", "oe", "endash",
    "emdash", "quotedblleft", "quotedblright", "quoteleft", "quoteright", "divide", "lozenge",
    "ydieresis", "Ydieresis", "fraction", "currency", "guilsingleft", "guilsinglright", "fi", "fl",
    "daggerdbl", "periodcentered", "quotesinglbase", "quotedblbase", "perthousand", "Acircumflex",
    "Ecircumflex", "Aacute", "Edieresis", "Egrave", "Iacute", "Icircumflex", "Idieresis", "Igrave",
    "Oacute", "Ocircumflex", "applelogo", "Ograve", "Uacute", "Ucircumflex", "Ugrave", "dotlessi",
    "circumflex", "tilde", "overscore", "breve", "dotaccent", "ring", "cedilla", "hungarumlaut",
    "ogonek", "caron", "Lslash", "lslash", "Scaron", "scaron", "Zcaron", "zcaron", "brokenbar",
    "Eth", "eth", "Yacute", "yacute", "Thorn", "thorn", "minus", "multiply", "onesuperior",
    "twosuperior", "threesuperior", "onehalf", "onequarter", "threequarters", "franc", "Gbreve",
    "gbreve", "Idot", "Scedilla", "scedilla", "Cacute", "cacute", "Ccaron", "ccaron", "dmacron",
};

#define ORVAN_NOTDEF_4 ".notdef", ".notdef", ".notdef", ".notdef"
#define ORVAN_NOTDEF_16 ORVAN_NOTDEF_4, ORVAN_NOTDEF_4, ORVAN_NOTDEF_4, ORVAN_NOTDEF_4

constexpr std::array<std::string_view, 256> _StandardEncodings = {
    // 0-31
    ORVAN_NOTDEF_16, ORVAN_NOTDEF_16,
    // 32-127
    "space", "exclam", "quotedbl", "numbersign", "dollar", "percent", "ampersand", "quoteright",
    "parenleft", "parenright", "asterisk", "plus", "comma", "hyphen", "period", "slash", "zero",
    "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "colon", "semicolon",
    "less", "equal", "greater", "question", "at", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J",
    "K", "L", "M", "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "bracketleft",
    "backslash", "bracketright", "asciicircum", "underscore", "quoteleft", "a", "b", "c", "d", "e",
    "f", "g", "h", "i", "j", "k", "l", "m", "n", "o", "p", "q", "r", "s", "t", "u", "v", "w", "x",
    "y", "z", "braceleft", "bar", "braceright", "asciitilde", ".notdef",
    // 128-160
    ORVAN_NOTDEF_16, ORVAN_NOTDEF_16, ".notdef",
    // 161-255
    "exclamdown", "cent", "sterling", "fraction", "yen", "florin", "section", "currency",
    "quotesingle", "quotedblleft", "guillemotleft", "guilsinglleft", "guilsinglright", "fi", "fl",
    ".notdef", "endash", "dagger", "daggerdbl", "periodcentered", ".notdef", "paragraph", "bullet",
    "quotesinglbase", "quotedblbase", "quotedblright", "guillemotright", "ellipsis", "perthousand",
    ".notdef", "questiondown", ".notdef", "grave", "acute", "circumflex", "tilde", "macron",
    "breve", "dotaccent", "dieresis", ".notdef", "ring", "cedilla", ".notdef", "hungarumlaut",
    "ogonek", "caron", "emdash", ORVAN_NOTDEF_16, "AE", ".notdef", "ordfeminine", ORVAN_NOTDEF_4,
    "Lslash", "Oslash", "OE", "ordmasculine", ORVAN_NOTDEF_4, ".notdef", "ae", ".notdef", ".notdef",
    ".notdef", "dotlessi", ".notdef", ".notdef", "lslash", "oslash", "oe", "germandbls",
    ORVAN_NOTDEF_4,
};

// clang-format on

#undef ORVAN_NOTDEF_16
#undef ORVAN_NOTDEF_4

namespace {

// A short initialiser list would leave empty names at the end unnoticed.
template <std::size_t N> constexpr bool allNamed(const std::array<std::string_view, N>& names)
{
    for (std::string_view name : names) {
        if (name.empty())
            return false;
    }
    return true;
}

static_assert(allNamed(_macGlyphEncoding) && _macGlyphEncoding[257] == "dmacron");
static_assert(allNamed(_StandardEncodings) && _StandardEncodings[251] == "germandbls" &&
              _StandardEncodings[225] == "AE" && _StandardEncodings[161] == "exclamdown");

} // namespace

} // namespace orvan
