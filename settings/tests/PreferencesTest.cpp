#include "settings/Preferences.h"
#include "settings/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace orvan;

namespace {

// Points the per-user and machine-wide folders into a fresh temporary folder.
class PreferencesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.filePath("config").toUtf8());
        QDir().mkpath(m_dir.filePath("shared"));
        qputenv("ORVAN_SHARED_DATA_DIR", m_dir.filePath("shared").toUtf8());
    }
    void TearDown() override
    {
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("ORVAN_SHARED_DATA_DIR");
    }
    QString userFile(const QString& name) const { return m_dir.filePath("config/orvan/" + name); }
    static void writeRaw(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }

    QTemporaryDir m_dir;
};

} // namespace

TEST_F(PreferencesTest, MissingFileReadsEmptyAndWriteCreatesIt)
{
    const auto prefs = CopyUserPreferences("com.orvan.print.inputhistory.plist");
    ASSERT_TRUE(prefs);
    EXPECT_TRUE(prefs->isDictionary());
    EXPECT_EQ(prefs->size(), 0u);

    PropertyValue history = PropertyValue::dictionary();
    history.insert("JobName",
                   PropertyValue(PropertyArray{PropertyValue("Report"), PropertyValue("Memo")}));
    ASSERT_TRUE(WriteUserPreferences("com.orvan.print.inputhistory.plist", history));
    EXPECT_TRUE(QFileInfo::exists(userFile("com.orvan.print.inputhistory.plist")));
    EXPECT_EQ(*CopyUserPreferences("com.orvan.print.inputhistory.plist"), history);
}

TEST_F(PreferencesTest, DamagedFilesReadAsEmptyAndAreSetAsideByTheNextWrite)
{
    const QByteArray history =
        "<?xml version=\"1.0\"?><plist><dict><key>JobName</key><array><string>Memo</string>"
        "</array></dict>"; // no closing tag
    writeRaw(userFile("truncated.plist"), history);
    writeRaw(userFile("broken.plist"), "this is not a property list");
    writeRaw(userFile("array.plist"),
             *writePropertyList(PropertyValue(PropertyArray{PropertyValue("x")})));
    writeRaw(userFile("other.plist"), "keep me");
    for (const char* name : {"truncated.plist", "broken.plist", "array.plist"}) {
        const auto prefs = CopyUserPreferences(name);
        ASSERT_TRUE(prefs) << name;
        EXPECT_EQ(*prefs, PropertyValue::dictionary()) << name;
        EXPECT_TRUE(QFile::exists(userFile(name))) << "reading moved " << name;
    }
    testing::internal::CaptureStderr();
    PropertyValue value = PropertyValue::dictionary();
    value.insert("Copies", PropertyValue("2"));
    ASSERT_TRUE(WriteUserPreferences("truncated.plist", value));
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("set aside"), std::string::npos) << said;
    EXPECT_EQ(*CopyUserPreferences("truncated.plist"), value);
    const QStringList aside =
        QDir(m_dir.filePath("config/orvan")).entryList({"truncated.plist.unreadable-*"});
    ASSERT_EQ(aside.size(), 1);
    QFile kept(m_dir.filePath("config/orvan/" + aside[0]));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), history);
    QFile other(userFile("other.plist"));
    ASSERT_TRUE(other.open(QIODevice::ReadOnly));
    EXPECT_EQ(other.readAll(), "keep me");
}

TEST_F(PreferencesTest, UserFilesAndTheirFolderArePrivateWhateverTheUmask)
{
    const mode_t savedMask = ::umask(022);
    const bool written = WriteUserPreferences("p.plist", PropertyValue::dictionary());
    ::umask(savedMask);
    ASSERT_TRUE(written);
    const auto modeOf = [](const QString& path) {
        struct stat info = {};
        return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 0777
                                                                       : 0777u;
    };
    EXPECT_EQ(modeOf(userFile("p.plist")), 0600u);
    EXPECT_EQ(modeOf(m_dir.filePath("config/orvan")), 0700u);
}

TEST_F(PreferencesTest, FailedWriteKeepsTheOldFileAndReportsTheCode)
{
    PropertyValue good = PropertyValue::dictionary();
    good.insert("k", PropertyValue("old"));
    ASSERT_TRUE(WriteUserPreferences("p.plist", good));

    // A value the format cannot carry is refused before the file is touched.
    PropertyValue bad = PropertyValue::dictionary();
    bad.insert("k", PropertyValue(QString("\x01")));
    testing::internal::CaptureStderr();
    EXPECT_FALSE(WriteUserPreferences("p.plist", bad));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "WriteUserPreferences() failed (-50)\n");
    EXPECT_EQ(*CopyUserPreferences("p.plist"), good);

    // A folder the user cannot write to: the write fails, nothing is half-written.
    if (geteuid() != 0) {
        ASSERT_EQ(chmod(QFile::encodeName(m_dir.filePath("config/orvan")).constData(), 0500), 0);
        testing::internal::CaptureStderr();
        EXPECT_FALSE(WriteUserPreferences("p.plist", PropertyValue::dictionary()));
        EXPECT_TRUE(
            testing::internal::GetCapturedStderr().starts_with("WriteUserPreferences() failed ("));
        chmod(QFile::encodeName(m_dir.filePath("config/orvan")).constData(), 0700);
        EXPECT_EQ(*CopyUserPreferences("p.plist"), good);
    }
}

TEST_F(PreferencesTest, SharedFolderIsCreatedOnFirstUse)
{
    const QString folder = m_dir.filePath("shared/Orvan");
    EXPECT_FALSE(QFileInfo::exists(folder));
    const QString location = CopyPreferenceFileURL("com.orvan.printing.watermarks.plist");
    EXPECT_EQ(location, folder + "/com.orvan.printing.watermarks.plist");
    EXPECT_TRUE(QFileInfo(folder).isDir());
    EXPECT_FALSE(CopyXMLData("com.orvan.printing.watermarks.plist")); // no file yet

    PropertyValue value = PropertyValue::dictionary();
    value.insert("WatermarkList", PropertyValue(PropertyArray{PropertyValue("Draft")}));
    ASSERT_TRUE(WriteXMLData("com.orvan.printing.watermarks.plist", value));
    EXPECT_EQ(*CopyXMLData("com.orvan.printing.watermarks.plist"), value);
    EXPECT_EQ(CreatePropertiesFromXMLFile(location), value);
    EXPECT_EQ(CreatePropertiesFromXMLFile(folder), std::nullopt);
}

TEST_F(PreferencesTest, SharedFileParseErrorIsReportedWithItsPosition)
{
    writeRaw(m_dir.filePath("shared/Orvan/bad.plist"),
             "<plist>\n<dict>\n<key>a</key>\n</dict>\n</plist>");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(CopyXMLData("bad.plist"));
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(err.starts_with("CopyXMLData()::CFPropertyListCreateFromXMLData() error: line 4"))
        << err;
    // Set aside, so that the next write does not destroy it.
    const QStringList left = QDir(m_dir.filePath("shared/Orvan")).entryList({"bad.plist*"});
    ASSERT_EQ(left.size(), 1);
    EXPECT_TRUE(left[0].startsWith("bad.plist.unreadable-")) << left[0].toStdString();
}

TEST_F(PreferencesTest, NoApplicationSupportFolderGivesNoLocation)
{
    qputenv("ORVAN_SHARED_DATA_DIR", m_dir.filePath("does-not-exist").toUtf8());
    EXPECT_TRUE(CopyPreferenceFileURL("x.plist").isEmpty());
    EXPECT_FALSE(CopyXMLData("x.plist"));
}
