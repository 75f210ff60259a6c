// orvan-type42, the command-line tool, run as users run it.
#include "Type42TestSupport.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvan {
namespace {

using namespace orvan::test;

const QString kDejaVu = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
const QString kDroid = "/usr/share/fonts/truetype/droid/DroidSansFallbackFull.ttf";

struct ToolRun
{
    int status = -1; // -1 when the tool did not exit normally
    std::string output, error;
};

ToolRun tool(const QStringList& arguments, const QString& input = {})
{
    QProcess process;
    if (!input.isEmpty())
        process.setStandardInputFile(input);
    process.start(ORVAN_BINARY_DIR "/bin/orvan-type42", arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

std::string libraryProgram(const QString& path, std::string_view name)
{
    return convertQuietly(readFileBytes(path.toStdString()), name);
}

bool isOneLine(const std::string& text)
{
    return !text.empty() && text.find('\n') == text.size() - 1;
}

// The program of the font under its own name or the one given, from a file
// or standard input, to standard output or in place of an older file; a
// program cut short is written with a warning.
TEST(Type42Tool, WritesTheProgram)
{
    QTemporaryDir dir;
    const QString out = dir.filePath("font.t42");
    QFile old(out);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old contents") > 0);
    old.close();
    const struct
    {
        QStringList arguments;
        QString input, font;
        const char* name;
        bool toFile, warns;
    } cases[] = {
        {{kDejaVu}, {}, kDejaVu, "DejaVuSans", false, false},
        {{"-"}, kDejaVu, kDejaVu, "DejaVuSans", false, false},
        {{kDejaVu, "Orvan-Watermark", "-o", "-"}, {}, kDejaVu, "Orvan-Watermark", false, false},
        {{"-o", out, kDejaVu, "Named"}, {}, kDejaVu, "Named", true, false},
        {{kDroid}, {}, kDroid, "DroidSansFallback", false, true},
    };
    for (const auto& c : cases) {
        const ToolRun result = tool(c.arguments, c.input);
        EXPECT_EQ(result.status, 0) << c.name;
        const Bytes written = c.toFile ? readFileBytes(out.toStdString()) : Bytes();
        const std::string program =
            c.toFile ? std::string(written.begin(), written.end()) : result.output;
        EXPECT_TRUE(program == libraryProgram(c.font, c.name)) << c.name;
        if (c.warns)
            EXPECT_TRUE(isOneLine(result.error) &&
                        result.error.find("warning") != std::string::npos)
                << result.error;
        else
            EXPECT_EQ(result.error, "");
    }
}

// Usage errors exit with 2 and print the problem, then the synopsis; fonts
// that cannot be read or converted, and files that cannot be written, exit
// with 1 and one line.
TEST(Type42Tool, ErrorsExitNonZeroWithAShortMessage)
{
    QTemporaryDir dir;
    const auto write = [&dir](const QString& name, const Bytes& bytes) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(reinterpret_cast<const char*>(bytes.data()), qint64(bytes.size()));
        return file.fileName();
    };
    const QString magic = write("magic.ttf", build(vitalTables({.magic = 0})));
    const QString noName = write("noname.ttf", build(vitalTables()));
    const struct
    {
        QStringList arguments;
        int status;
    } cases[] = {
        {{}, 2},
        {{"a.ttf", "b", "c"}, 2},
        {{"--frobnicate", "a.ttf"}, 2},
        {{"a.ttf", "-o"}, 2},
        {{"a.ttf", "-o", "x", "-o", "y"}, 2},
        {{"a.ttf", ""}, 2},
        {{dir.filePath("missing.ttf")}, 1},
        {{magic}, 1},
        {{noName}, 1},
        {{kDejaVu, "-o", dir.filePath("no/such/folder/out.t42")}, 1},
        {{"/dev/zero"}, 1}, // stops at the size cap instead of growing without end
    };
    for (const auto& c : cases) {
        const ToolRun result = tool(c.arguments);
        const std::string shown = c.arguments.join(' ').toStdString();
        EXPECT_EQ(result.status, c.status) << shown;
        EXPECT_EQ(result.output, "") << shown;
        if (c.status == 2) {
            EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 2) << shown;
            EXPECT_NE(result.error.find("\nUsage: orvan-type42 FONT.ttf"), std::string::npos);
        } else {
            EXPECT_TRUE(isOneLine(result.error) && result.error.starts_with("orvan-type42: ") &&
                        result.error.find("DEBUG") == std::string::npos)
                << shown << ": " << result.error;
        }
    }
    EXPECT_NE(tool({magic}).error.find("bad magic number"), std::string::npos);
    // A font without a name of its own converts once it is given one.
    EXPECT_EQ(tool({noName, "Given"}).status, 0);
    const ToolRun help = tool({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.starts_with("Usage: orvan-type42"));
}

} // namespace
} // namespace orvan
