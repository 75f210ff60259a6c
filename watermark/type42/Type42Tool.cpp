// orvan-type42: writes the Type 42 font program of a TrueType font.
//
//   orvan-type42 FONT.ttf [POSTSCRIPT-NAME] [-o OUT]
//
// The program goes to standard output, or to OUT (replaced atomically when it
// is a regular file, written through when it is a device or pipe, "-" for
// standard output). Without a name the font's own PostScript name is used.
// Fonts larger than kMaxFontFileSize are refused. Exit status: 0 done, 1 the
// font could not be read, converted or written, 2 bad usage. Plain C++ and
// POSIX only, so that it starts fast.

#include "platform/FileAccess.h"
#include "watermark/type42/FontPostScriptName.h"
#include "watermark/type42/Type42Converter.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr const char* kToolName = "orvan-type42";
constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

struct Arguments
{
    std::string fontPath;
    std::optional<std::string> postScriptName;
    std::optional<std::string> outputPath;
    bool help = false;
};

constexpr const char* kSynopsis = "Usage: orvan-type42 FONT.ttf [POSTSCRIPT-NAME] [-o OUT]\n";

void printHelp()
{
    std::fputs(kSynopsis, stdout);
    std::fputs("Writes the PostScript Type 42 font program of a TrueType font to standard\n"
               "output, or replaces OUT with it. FONT.ttf may be - for standard input.\n"
               "Without POSTSCRIPT-NAME the font's own PostScript name is used.\n",
               stdout);
}

// The message, then the synopsis.
int usageError(const char* message)
{
    std::fprintf(stderr, "%s: %s\n", kToolName, message);
    std::fputs(kSynopsis, stderr);
    return kExitUsage;
}

int failure(const std::string& subject, std::string_view message)
{
    std::fprintf(stderr, "%s: %s: %.*s\n", kToolName, subject.c_str(),
                 static_cast<int>(message.size()), message.data());
    return kExitFailure;
}

// Parses argv; a usage error yields its message.
std::optional<const char*> parseArguments(int argc, char** argv, Arguments& arguments)
{
    std::vector<std::string> positional;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (!optionsEnded && (arg == "-h" || arg == "--help")) {
            arguments.help = true;
        } else if (!optionsEnded && arg == "-o") {
            if (i + 1 >= argc)
                return "-o needs a file name";
            if (arguments.outputPath)
                return "-o given twice";
            arguments.outputPath = argv[++i];
        } else if (!optionsEnded && arg == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && arg.size() > 1 && arg[0] == '-') {
            return "unknown option";
        } else {
            positional.emplace_back(arg);
        }
    }
    if (arguments.help)
        return std::nullopt;
    if (positional.empty())
        return "no font file given";
    if (positional.size() > 2)
        return "too many arguments";
    arguments.fontPath = positional[0];
    if (positional.size() == 2) {
        if (positional[1].empty())
            return "the PostScript name is empty";
        arguments.postScriptName = positional[1];
    }
    if (arguments.outputPath && arguments.outputPath->empty())
        return "the output file name is empty";
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    Arguments arguments;
    if (const auto error = parseArguments(argc, argv, arguments))
        return usageError(*error);
    if (arguments.help) {
        printHelp();
        return 0;
    }

    std::vector<std::uint8_t> font;
    if (const auto error = orvan::ReadWholeFile(arguments.fontPath, orvan::kMaxFontFileSize, font);
        !error.empty())
        return failure(arguments.fontPath, error);

    std::optional<std::string> postScriptName = arguments.postScriptName;
    if (!postScriptName)
        postScriptName = orvan::fontPostScriptName(font);

    std::string program;
    const orvan::Type42Result result = orvan::convertTTFtoPS42(
        font, postScriptName.value_or(std::string()), program, orvan::Type42Diagnostics::Silent);
    // A broken font is reported as such even when it also lacks a name.
    if (orvan::appendsNothing(result))
        return failure(arguments.fontPath, orvan::describe(result));
    if (!postScriptName) {
        return failure(arguments.fontPath,
                       "the font has no PostScript name (name id 6); give one after the file");
    }
    if (result == orvan::Type42Result::CutShort) {
        std::fprintf(stderr, "%s: warning: %s: %.*s\n", kToolName, arguments.fontPath.c_str(),
                     static_cast<int>(orvan::describe(result).size()),
                     orvan::describe(result).data());
    }

    const std::string output = arguments.outputPath.value_or("-");
    if (const auto error = orvan::ReplaceFile(output, program, orvan::FilePrivacy::Default);
        !error.empty())
        return failure(output == "-" ? std::string("standard output") : output, error);
    return 0;
}
