// Writes the seed corpus of the Type 42 fuzzer: small fonts that reach every
// path of the converter (post formats, glyph names, both loca formats, split
// and cut-short sfnts, name records).

#include "Type42TestSupport.h"

#include <cstdio>
#include <fstream>
#include <string>

using namespace orvan::test;

namespace {

void save(const std::string& folder, const std::string& name, const Bytes& font)
{
    std::ofstream(folder + "/" + name, std::ios::binary)
        .write(reinterpret_cast<const char*>(font.data()),
               static_cast<std::streamsize>(font.size()));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const std::string folder = argv[1];

    save(folder, "minimal", build(vitalTables()));

    FontSpec named;
    named.glyphs = 6;
    named.post = post2({0, 3, 36, 258, 259, 258}, {"Euro", "a.alt"});
    save(folder, "named-long-loca",
         build(glyphTables(named, loca({0, 4, 8, 12, 16, 20, 24}), 24, 0x42)));

    FontSpec shortLoca;
    shortLoca.glyphs = 3;
    shortLoca.locFormat = 0;
    shortLoca.xMin = -300;
    shortLoca.yMax = 2000;
    save(folder, "short-loca", build(glyphTables(shortLoca, loca({0, 2, 4, 6}, 2), 12, 0x17)));

    FontSpec split;
    split.glyphs = 3;
    save(folder, "split", build(glyphTables(split, loca({0, 40000, 40002, 70000}), 70000, 0x99)));

    Tables cut = vitalTables();
    cut.emplace_back("glyf", Bytes(70000, 0x11));
    save(folder, "cut-short", build(cut));

    FontSpec withNames;
    withNames.post = post3(1000, 2000);
    Tables names = vitalTables(withNames);
    // A name table with one Windows (UTF-16BE) and one Mac Roman PostScript name.
    Bytes name = table(6 + 2 * 12, {{0, 0, 2}, {2, 2, 2}, {4, 30, 2}});
    const char16_t* windowsName = u"Seed-Regular";
    Bytes strings;
    for (const char16_t* c = windowsName; *c; ++c)
        append(strings, *c, 2);
    const std::size_t windowsLength = strings.size();
    for (std::uint8_t c : {0x53, 0x65, 0x65, 0x64, 0x8E}) // "Seed" and a Mac Roman e-acute
        strings.push_back(c);
    const Field records[] = {{6, 3, 2},
                             {8, 1, 2},
                             {10, 0x0409, 2},
                             {12, 6, 2},
                             {14, std::uint32_t(windowsLength), 2},
                             {16, 0, 2},
                             {18, 1, 2},
                             {20, 0, 2},
                             {22, 0, 2},
                             {24, 6, 2},
                             {26, 5, 2},
                             {28, std::uint32_t(windowsLength), 2}};
    for (const Field& field : records)
        put(name, field.at, field.value, field.width);
    name.insert(name.end(), strings.begin(), strings.end());
    names[3].second = name;
    save(folder, "name-records", build(names));
    return 0;
}
