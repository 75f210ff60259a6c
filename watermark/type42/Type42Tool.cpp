// orvan-type42: writes the Type 42 font program of a TrueType font.
//
//   orvan-type42 FONT.ttf [POSTSCRIPT-NAME] [-o OUT]
//
// The program goes to standard output, or replaces OUT atomically. Without a
// name the font's own PostScript name is used. Exit status: 0 done, 1 the
// font could not be read, converted or written, 2 bad usage. Plain C++ and
// POSIX only, so that it starts fast.

#include "watermark/type42/FontPostScriptName.h"
#include "watermark/type42/Type42Converter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
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

// Reads a whole file; on failure returns errno.
int readFile(const std::string& path, std::vector<std::uint8_t>& bytes)
{
    const int fd = path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return errno;
    struct stat info
    {
    };
    if (::fstat(fd, &info) == 0) {
        if (S_ISDIR(info.st_mode)) {
            ::close(fd);
            return EISDIR;
        }
        if (S_ISREG(info.st_mode))
            bytes.reserve(static_cast<std::size_t>(info.st_size));
    }
    std::uint8_t chunk[65536];
    for (;;) {
        const ssize_t got = ::read(fd, chunk, sizeof chunk);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const int error = errno;
            if (fd != STDIN_FILENO)
                ::close(fd);
            return error;
        }
        if (got == 0)
            break;
        bytes.insert(bytes.end(), chunk, chunk + got);
    }
    if (fd != STDIN_FILENO)
        ::close(fd);
    return 0;
}

// Writes all of `text` to `fd`; on failure returns errno.
int writeAll(int fd, const std::string& text)
{
    const char* data = text.data();
    std::size_t left = text.size();
    while (left > 0) {
        const ssize_t put = ::write(fd, data, left);
        if (put < 0 && errno == EINTR)
            continue;
        if (put < 0)
            return errno;
        data += put;
        left -= static_cast<std::size_t>(put);
    }
    return 0;
}

// Replaces `path` with `text`: a temporary file beside it, synced, then
// renamed over it, so that readers see the old file or the whole new one.
int replaceFile(const std::string& path, const std::string& text)
{
    std::string temporary = path + ".XXXXXX";
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0)
        return errno;
    mode_t mode = 0;
    struct stat existing
    {
    };
    if (::stat(path.c_str(), &existing) == 0) {
        mode = existing.st_mode & 07777;
    } else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        mode = 0666 & ~mask;
    }
    int error = writeAll(fd, text);
    if (error == 0 && ::fchmod(fd, mode) != 0)
        error = errno;
    if (error == 0 && ::fsync(fd) != 0)
        error = errno;
    if (::close(fd) != 0 && error == 0)
        error = errno;
    if (error == 0 && ::rename(temporary.c_str(), path.c_str()) != 0)
        error = errno;
    if (error != 0)
        ::unlink(temporary.c_str());
    return error;
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
    if (const int error = readFile(arguments.fontPath, font))
        return failure(arguments.fontPath, std::strerror(error));

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

    if (arguments.outputPath) {
        if (const int error = replaceFile(*arguments.outputPath, program))
            return failure(*arguments.outputPath, std::strerror(error));
    } else if (const int error = writeAll(STDOUT_FILENO, program)) {
        return failure("standard output", std::strerror(error));
    }
    return 0;
}
