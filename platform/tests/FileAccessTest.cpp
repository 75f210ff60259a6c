// Whole-file reads and replacement against real files, links, pipes and
// devices.
#include "platform/FileAccess.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvan {
namespace {

// Runs the test under a known umask, as users run us under theirs.
class FileAccess : public ::testing::Test
{
protected:
    void SetUp() override { m_savedMask = ::umask(022); }
    void TearDown() override { ::umask(m_savedMask); }

    std::string path(const char* name) const { return m_dir.filePath(name).toStdString(); }
    static mode_t modeOf(const std::string& path)
    {
        struct stat info = {};
        return ::lstat(path.c_str(), &info) == 0 ? info.st_mode : 0;
    }
    static std::string contents(const std::string& path)
    {
        std::vector<std::uint8_t> bytes;
        EXPECT_EQ(ReadWholeFile(path, 1 << 20, bytes), "") << path;
        return {bytes.begin(), bytes.end()};
    }
    void writeFile(const std::string& path, mode_t mode)
    {
        ASSERT_EQ(ReplaceFile(path, "old", FilePrivacy::Default), "");
        ::chmod(path.c_str(), mode);
    }

    QTemporaryDir m_dir;
    mode_t m_savedMask = 0;
};

TEST_F(FileAccess, ReplacedFilesGetTheModeTheirPrivacyAsks)
{
    const struct
    {
        const char* name;
        mode_t before; // 0: no file yet
        FilePrivacy privacy;
        mode_t after;
    } rows[] = {
        {"new-shared", 0, FilePrivacy::Default, 0644},
        {"new-private", 0, FilePrivacy::OwnerOnly, 0600},
        {"kept-shared", 0640, FilePrivacy::Default, 0640},
        {"readable-made-private", 0644, FilePrivacy::OwnerOnly, 0600},
    };
    for (const auto& row : rows) {
        const std::string file = path(row.name);
        if (row.before)
            writeFile(file, row.before);
        EXPECT_EQ(ReplaceFile(file, "new", row.privacy), "") << row.name;
        EXPECT_EQ(modeOf(file), S_IFREG | row.after) << row.name;
        EXPECT_EQ(contents(file), "new") << row.name;
    }
}

TEST_F(FileAccess, LinksAreFollowedAndTheirTargetReplaced)
{
    const std::string target = path("target");
    writeFile(target, 0644);
    const std::string link = path("link"), chain = path("chain"), dangling = path("dangling");
    ASSERT_EQ(::symlink("target", link.c_str()), 0);
    ASSERT_EQ(::symlink(link.c_str(), chain.c_str()), 0);
    ASSERT_EQ(::symlink("created", dangling.c_str()), 0);

    EXPECT_EQ(ReplaceFile(chain, "through the chain", FilePrivacy::OwnerOnly), "");
    EXPECT_TRUE(S_ISLNK(modeOf(link)) && S_ISLNK(modeOf(chain)));
    EXPECT_EQ(contents(target), "through the chain");
    EXPECT_EQ(ReplaceFile(dangling, "made", FilePrivacy::Default), "");
    EXPECT_TRUE(S_ISLNK(modeOf(dangling)));
    EXPECT_EQ(contents(path("created")), "made");
}

TEST_F(FileAccess, DevicesAndPipesAreWrittenThroughFoldersRefused)
{
    EXPECT_EQ(ReplaceFile("/dev/null", "gone", FilePrivacy::Default), "");
    EXPECT_TRUE(S_ISCHR(modeOf("/dev/null")));

    const std::string fifo = path("fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const int reader = ::open(fifo.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(ReplaceFile(fifo, "piped", FilePrivacy::Default), "");
    char got[16] = {};
    EXPECT_EQ(::read(reader, got, sizeof got), 5);
    ::close(reader);
    EXPECT_STREQ(got, "piped");
    EXPECT_TRUE(S_ISFIFO(modeOf(fifo)));

    EXPECT_NE(ReplaceFile(m_dir.path().toStdString(), "x", FilePrivacy::Default), "");
    EXPECT_TRUE(S_ISDIR(modeOf(m_dir.path().toStdString())));
}

TEST_F(FileAccess, TemporariesOfEndedWritersAreClearedOnTheNextWrite)
{
    // A process that has ended, so its pid names no writer.
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ASSERT_GT(child, 0);
    ::waitpid(child, nullptr, 0);
    const std::string stale = path(".out.orvan.") + std::to_string(child) + ".a1b2c3";
    const std::string live = path(".out.orvan.") + std::to_string(::getpid()) + ".d4e5f6";
    const std::string other = path(".out.orvan.notes");
    for (const std::string& file : {stale, live, other})
        writeFile(file, 0600);

    ASSERT_EQ(ReplaceFile(path("out"), "x", FilePrivacy::Default), "");
    EXPECT_EQ(modeOf(stale), 0u);
    EXPECT_NE(modeOf(live), 0u);
    EXPECT_NE(modeOf(other), 0u);
}

TEST_F(FileAccess, ReadsStopAtTheCap)
{
    const std::string file = path("four");
    ASSERT_EQ(ReplaceFile(file, "four", FilePrivacy::Default), "");
    std::vector<std::uint8_t> bytes;
    EXPECT_EQ(ReadWholeFile(file, 4, bytes), "");
    EXPECT_EQ(bytes.size(), 4u);
    const struct
    {
        std::string path;
        std::size_t limit;
    } refused[] = {{file, 3}, {"/dev/zero", 1 << 20}, {m_dir.path().toStdString(), 1 << 20}};
    for (const auto& row : refused) {
        EXPECT_NE(ReadWholeFile(row.path, row.limit, bytes), "") << row.path;
        EXPECT_TRUE(bytes.empty()) << row.path;
    }
    EXPECT_NE(ReadWholeFile("/dev/zero", 1 << 20, bytes).find("larger than 1 MiB"),
              std::string::npos);
}

TEST_F(FileAccess, PrivateFoldersAreClosedToOthers)
{
    const std::string made = path("a/b/private");
    EXPECT_EQ(MakeFolder(made, FilePrivacy::OwnerOnly), "");
    EXPECT_EQ(modeOf(made), S_IFDIR | 0700);
    EXPECT_EQ(modeOf(path("a/b")), S_IFDIR | 0755);
    const std::string open = path("open");
    ASSERT_EQ(::mkdir(open.c_str(), 0755), 0);
    EXPECT_EQ(MakeFolder(open, FilePrivacy::OwnerOnly), "");
    EXPECT_EQ(modeOf(open), S_IFDIR | 0700);
}

} // namespace
} // namespace orvan
