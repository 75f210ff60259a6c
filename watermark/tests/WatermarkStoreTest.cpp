#include "watermark/tests/WatermarkTestSupport.h"

#include "watermark/WatermarkList.h"

#include "settings/Bundle.h"

#include <QFileInfo>

using namespace orvan;
using namespace orvan::test;

namespace {

using WatermarkStoreTest = WatermarkFileTest;

PropertyValue dictionaryWith(const char* key, PropertyValue value)
{
    PropertyValue dictionary = PropertyValue::dictionary();
    dictionary.insert(key, std::move(value));
    return dictionary;
}

} // namespace

TEST(WatermarkDictionary, NumberTypesGlyphBytesAndRoundTrip)
{
    _WatermarkData record = textRecord("Draft");
    record.xOffset = 1.5f;
    record.xPos = 280.627441;
    record.glyphs = std::vector<std::uint16_t>{0x0024, 0x0102};
    record.glyphCount = 2;
    const PropertyValue dictionary = WatermarkDictionary(record);

    const std::pair<const char*, NumberType> types[] = {
        {"xOffset", NumberType::Float32},
        {"xPos", NumberType::Float64},
        {"angle", NumberType::Int},
        {"fontSize", NumberType::Int},
        {"wellColorBlue", NumberType::Float32},
        {"fontColorAlpha", NumberType::Float32},
        {"glyphCount", NumberType::SInt32},
    };
    for (const auto& [key, type] : types)
        EXPECT_EQ(dictionary.find(key)->numberType(), type) << key;
    EXPECT_EQ(dictionary.find("glyphs")->toData(), QByteArray("\x00\x24\x01\x02", 4));
    EXPECT_EQ(dictionary.find("filename")->toString(), QString()); // empty strings are written
    EXPECT_FALSE(WatermarkDictionary(textRecord("No glyphs")).contains("glyphs"));

    _WatermarkData back;
    back.isText = 1;
    ReadWatermarkDictionary(dictionary, back);
    EXPECT_EQ(back, record);
}

TEST(WatermarkDictionary, ReadingKeepsFieldsWhoseKeysAreAbsentOrTooLong)
{
    struct Row
    {
        const char* key;
        PropertyValue value;
        QString expectedText; // of textString or filePath
    };
    const Row rows[] = {
        {"angle", PropertyValue::integer(30), "Kept"},
        {"textString", PropertyValue(QString(511, 'a')), QString(511, 'a')},
        {"textString", PropertyValue(QString(512, 'a')), "Kept"},
        {"textString", PropertyValue(QString(256, QChar(0x00E9))), "Kept"}, // 512 UTF-8 bytes
        {"textString", PropertyValue::integer(7), "Kept"},                  // wrong kind
        {"filePath", PropertyValue(QString(8191, 'p')), QString(8191, 'p')},
        {"filePath", PropertyValue(QString(8192, 'p')), "Kept"},
    };
    for (const Row& row : rows) {
        _WatermarkData record = textRecord("Kept");
        record.filePath.assignIfFits(std::string_view("Kept"));
        ReadWatermarkDictionary(dictionaryWith(row.key, row.value), record);
        const QString actual = QLatin1String(row.key) == QLatin1String("filePath")
                                   ? record.filePath.toString()
                                   : record.textString.toString();
        EXPECT_EQ(actual, row.expectedText) << row.key;
        EXPECT_EQ(record.fontSize, 72) << row.key;
    }
}

TEST_F(WatermarkStoreTest, DefaultWatermarksOnFirstUse)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR);
    LoadListOfWatermarks(kWatermarkFile, bundle);
    ASSERT_EQ(listOfWatermarks(), (QStringList{"Draft", "Confidential", "Copy"}));
    EXPECT_EQ(FindWatermark("draft"), 0);
    EXPECT_EQ(FindWatermark("Secret"), -1);

    // Each default is a text record stored under its localised name.
    _WatermarkData record;
    ASSERT_TRUE(loadWatermarkData(kWatermarkFile, "Confidential", record));
    EXPECT_EQ(record.textString.toString(), "Confidential");
    EXPECT_EQ(record.fontName.toString(), "ArialMT");
    EXPECT_EQ(record.density, 25);
    EXPECT_FALSE(record.glyphs);
}

TEST_F(WatermarkStoreTest, FirstEntryWithoutTextOrPictureIsDroppedInMemoryOnly)
{
    saveWatermarkList(kWatermarkFile, {"Ghost", "Draft", "Ghost2"});
    saveWatermarkData(kWatermarkFile, textRecord("Draft"));
    LoadListOfWatermarks(kWatermarkFile, Bundle(ORVAN_PLUGIN_DIR));
    EXPECT_EQ(listOfWatermarks(), (QStringList{"Draft", "Ghost2"}));
    EXPECT_EQ(loadWatermarkList(kWatermarkFile)->size(), 3);
}

TEST_F(WatermarkStoreTest, SavingEditedTextAddsEntryAndRemovingTakesFirstListedOnly)
{
    _WatermarkData record = textRecord("Draft");
    ASSERT_TRUE(saveWatermarkData(kWatermarkFile, record));
    record.textString.assignIfFits(std::string_view("Draft 2"));
    ASSERT_TRUE(saveWatermarkData(kWatermarkFile, record));
    saveWatermarkList(kWatermarkFile, {"Draft", "Draft 2", "draft", "Draft"});
    storeFontData(kWatermarkFile, "QV-ArialMT-QV", "%!PS");

    removeWatermarkData(kWatermarkFile, "Draft");
    EXPECT_EQ(*loadWatermarkList(kWatermarkFile), (QStringList{"Draft 2", "draft", "Draft"}));
    _WatermarkData loaded = textRecord("Stale");
    EXPECT_FALSE(loadWatermarkData(kWatermarkFile, "Draft", loaded));
    EXPECT_EQ(loaded, _WatermarkData()); // a failed load clears the record
    EXPECT_TRUE(loadWatermarkData(kWatermarkFile, "Draft 2", loaded));
    QByteArray font;
    loadFontData(kWatermarkFile, "QV-ArialMT-QV", font); // font programs stay
    EXPECT_EQ(font, "%!PS");
}

TEST_F(WatermarkStoreTest, FontDataNeverCreatesTheFileAndAppendsOnLoad)
{
    storeFontData(kWatermarkFile, "ArialMT", "program");
    EXPECT_FALSE(QFileInfo::exists(filePath()));
    removeWatermarkData(kWatermarkFile, "Draft");
    EXPECT_FALSE(QFileInfo::exists(filePath()));

    saveWatermarkList(kWatermarkFile, {});
    storeFontData(kWatermarkFile, "ArialMT", "program");
    QByteArray out = "head:";
    loadFontData(kWatermarkFile, "ArialMT", out);
    loadFontData(kWatermarkFile, "Missing", out);
    EXPECT_EQ(out, "head:program");
}

TEST_F(WatermarkStoreTest, UnreadableFileReadsAsNoneAndIsKeptAsideBeforeReplacing)
{
    const QByteArray cases[] = {
        "not a property list",
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Draft</key><dict>",
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><array/></plist>",
    };
    for (const QByteArray& bytes : cases) {
        QDir(m_dir.path() + "/Orvan").removeRecursively();
        QDir().mkpath(m_dir.path() + "/Orvan");
        writeRaw(bytes);
        _WatermarkData record = textRecord("Stale");
        EXPECT_FALSE(loadWatermarkData(kWatermarkFile, "Draft", record));
        EXPECT_FALSE(loadWatermarkList(kWatermarkFile));
        storeFontData(kWatermarkFile, "ArialMT", "x"); // no dictionary: nothing written
        EXPECT_EQ(readRaw(), bytes);

        ASSERT_TRUE(saveWatermarkData(kWatermarkFile, textRecord("Draft")));
        const QStringList aside =
            QDir(m_dir.path() + "/Orvan").entryList({"*.unreadable-*"}, QDir::Files);
        ASSERT_EQ(aside.size(), 1) << bytes.constData();
        QFile kept(m_dir.path() + "/Orvan/" + aside.first());
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
        EXPECT_EQ(kept.readAll(), bytes);
        EXPECT_TRUE(loadWatermarkData(kWatermarkFile, "Draft", record));
    }
}

TEST_F(WatermarkStoreTest, HugeFileIsNotRead)
{
    saveWatermarkList(kWatermarkFile, {"Draft"});
    QFile file(filePath());
    ASSERT_TRUE(file.resize(kMaxWatermarkFileSize + 1)); // sparse: costs no disk
    EXPECT_FALSE(loadWatermarkList(kWatermarkFile));
}

TEST_F(WatermarkStoreTest, FailedSaveIsReportedOnStandardError)
{
    QDir().mkpath(filePath()); // a folder where the file should be
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(saveWatermarkData(kWatermarkFile, textRecord("Draft")));
    EXPECT_THAT(::testing::internal::GetCapturedStderr(),
                ::testing::HasSubstr("saveWatermarkData: Error "));
}
