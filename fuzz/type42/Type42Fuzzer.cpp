// Arbitrary bytes as a TrueType font: the converter must never read outside
// them, and must leave the output as it was whenever it reports a failure.

#include "watermark/type42/FontPostScriptName.h"
#include "watermark/type42/Type42Converter.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const orvan::FontBytes font(data, size);
    const auto name = orvan::fontPostScriptName(font);

    const std::string prefix = "prefix";
    std::string out = prefix;
    const orvan::Type42Result result = orvan::convertTTFtoPS42(
        font, name ? *name : std::string("F"), out, orvan::Type42Diagnostics::Silent);
    if (out.compare(0, prefix.size(), prefix) != 0)
        __builtin_trap();
    if (orvan::appendsNothing(result) != (out.size() == prefix.size()))
        __builtin_trap();
    if (result == orvan::Type42Result::Converted &&
        out.compare(out.size() - 40, 40, "FontName currentdict end definefont pop\n") != 0)
        __builtin_trap();
    return 0;
}
