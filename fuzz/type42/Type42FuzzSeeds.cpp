// Writes the seed corpus of the Type 42 fuzzer: small fonts that reach every
// path of the converter (post formats, glyph names, both loca formats, split
// and cut-short sfnts, name records).

#include "SfntBuilder.h"

#include <cstdio>
#include <fstream>
#include <string>

using namespace orvan::test;

namespace {

void save(const std::string& folder, const std::string& name, const Bytes& font)
{
    std::ofstream(folder + "/" + name, std::ios::binary)
        .write(reinterpret_cast<const char*>(font.data()), static_cast<std::streamsize>(font.size()));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const std::string folder = argv[1];

    save(folder, "minimal", minimalFont().build());

    FontBuilder named = namedFont({standardName(0), standardName(3), standardName(36),
                                   customName("Euro"), customName("a.alt"), customName("Euro")});
    named.add("loca", locaLong({0, 4, 8, 12, 16, 20})).add("glyf", Bytes(24, 0x42));
    save(folder, "named-long-loca", named.build());

    HeadFields shortLoca;
    shortLoca.indexToLocFormat = 0;
    shortLoca.xMin = -300;
    shortLoca.yMax = 2000;
    FontBuilder shortFont = minimalFont(3, shortLoca);
    shortFont.add("loca", locaShort({0, 2, 4})).add("glyf", Bytes(12, 0x17));
    save(folder, "short-loca", shortFont.build());

    FontBuilder split = minimalFont(3);
    split.add("loca", locaLong({0, 40000, 40002})).add("glyf", Bytes(70000, 0x99));
    save(folder, "split", split.build());

    FontBuilder cut = minimalFont();
    cut.add("glyf", Bytes(70000, 0x11));
    save(folder, "cut-short", cut.build());

    FontBuilder withNames;
    withNames.add("head", headTable())
        .add("maxp", maxpTable(1))
        .add("post", postTable3(1000, 2000))
        .add("name", nameTable(0, {NameRecord{3, 1, 0x0409, 6, utf16BE(u"Seed-Regular")},
                                   NameRecord{1, 0, 0, 6, Bytes{'S', 'e', 'e', 'd', 0x8E}}}));
    save(folder, "name-records", withNames.build());
    return 0;
}
