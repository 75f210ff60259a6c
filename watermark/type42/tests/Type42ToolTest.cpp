// orvan-type42, the command-line tool, run as users run it.

#include "SfntBuilder.h"
#include "ShellCommand.h"
#include "Type42Program.h"
#include "watermark/type42/Type42Converter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace orvan {
namespace {

using namespace orvan::test;

const std::string kTool = std::string(ORVAN_BINARY_DIR) + "/bin/orvan-type42";
const std::string kDejaVu = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

CommandResult tool(const std::string& arguments)
{
    return runCommand(kTool + " " + arguments);
}

std::string libraryProgram(const std::string& path, std::string_view name)
{
    return convertQuietly(readFileBytes(path), name);
}

bool isOneLine(const std::string& text)
{
    return !text.empty() && text.find('\n') == text.size() - 1;
}

class Type42Tool : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(dir_.valid()); }

    std::string write(const std::string& name, const Bytes& bytes)
    {
        const std::string path = dir_.path() + "/" + name;
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        return path;
    }

    TemporaryDirectory dir_;
};

TEST_F(Type42Tool, WritesTheProgramUnderTheFontsOwnName)
{
    const CommandResult result = tool(kDejaVu);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(result.output == libraryProgram(kDejaVu, "DejaVuSans"));
    EXPECT_TRUE(tool("- < " + kDejaVu).output == result.output);
}

TEST_F(Type42Tool, UsesTheNameGivenOnTheCommandLine)
{
    const CommandResult result = tool(kDejaVu + " Orvan-Watermark");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output == libraryProgram(kDejaVu, "Orvan-Watermark"));
}

TEST_F(Type42Tool, ReplacesTheOutputFileWholeAndLeavesNoTemporaryFile)
{
    const std::string out = dir_.path() + "/font.t42";
    std::ofstream(out) << "old contents";
    ::chmod(out.c_str(), 0640);
    const CommandResult result = tool("-o " + out + " " + kDejaVu + " Named");
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(result.output, "");
    const Bytes written = readFileBytes(out);
    const std::string expected = libraryProgram(kDejaVu, "Named");
    EXPECT_TRUE(std::string(written.begin(), written.end()) == expected);
    struct stat info
    {
    };
    ASSERT_EQ(::stat(out.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.path()),
                            std::filesystem::directory_iterator()),
              1);
}

TEST_F(Type42Tool, UsageErrorsExitWith2)
{
    for (const std::string arguments :
         {"", "a.ttf b c", "--frobnicate a.ttf", "a.ttf -o", "a.ttf -o x -o y", "a.ttf ''"}) {
        const CommandResult result = tool(arguments);
        EXPECT_EQ(result.status, 2) << arguments;
        EXPECT_EQ(result.output, "") << arguments;
        // The problem, then the synopsis.
        EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 2) << result.error;
        EXPECT_NE(result.error.find("\nUsage: orvan-type42 FONT.ttf"), std::string::npos);
    }
    const CommandResult help = tool("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.output.rfind("Usage: orvan-type42", 0), 0u);
}

TEST_F(Type42Tool, FailuresGiveOneLineAndExit1)
{
    HeadFields badMagic;
    badMagic.magicNumber = 0;
    const Bytes noName = minimalFont().build();
    const std::string cases[] = {
        dir_.path() + "/missing.ttf",
        dir_.path(),
        write("magic.ttf", minimalFont(1, badMagic).build()),
        write("short.ttf", Bytes(20, 0)),
        write("noname.ttf", noName),
        kDejaVu + " -o " + dir_.path() + "/no/such/folder/out.t42",
    };
    for (const std::string& arguments : cases) {
        const CommandResult result = tool(arguments);
        EXPECT_EQ(result.status, 1) << arguments;
        EXPECT_EQ(result.output, "") << arguments;
        EXPECT_TRUE(isOneLine(result.error)) << arguments << ": " << result.error;
        EXPECT_EQ(result.error.rfind("orvan-type42: ", 0), 0u) << result.error;
        EXPECT_EQ(result.error.find("DEBUG"), std::string::npos) << result.error;
    }
    EXPECT_NE(tool(dir_.path() + "/magic.ttf").error.find("bad magic number"), std::string::npos);
    // A font without a name of its own converts once it is given one.
    EXPECT_EQ(tool(dir_.path() + "/noname.ttf Given").status, 0);
}

TEST_F(Type42Tool, ProgramCutShortIsWrittenWithAWarning)
{
    const std::string droid = "/usr/share/fonts/truetype/droid/DroidSansFallbackFull.ttf";
    const CommandResult result = tool(droid);
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(isOneLine(result.error)) << result.error;
    EXPECT_NE(result.error.find("warning"), std::string::npos);
    EXPECT_TRUE(result.output == libraryProgram(droid, "DroidSansFallback"));
}

} // namespace
} // namespace orvan
