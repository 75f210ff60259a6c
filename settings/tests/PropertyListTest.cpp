#include "settings/PropertyList.h"
#include "settings/PropertyListFastReader.h"
#include "settings/PropertyListLeaves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace orvan;

namespace {

PropertyValue roundTrip(const PropertyValue& value)
{
    QString why;
    const auto xml = writePropertyList(value, &why);
    EXPECT_TRUE(xml) << why.toStdString();
    if (!xml)
        return {};
    PropertyListError error;
    const auto back = readPropertyList(*xml, &error);
    EXPECT_TRUE(back) << error.toString().toStdString() << "\n" << xml->toStdString();
    return back.value_or(PropertyValue());
}

QByteArray wrap(const char* body)
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n") +
           body + "\n</plist>\n";
}

} // namespace

TEST(PropertyList, EveryKindRoundTrips)
{
    PropertyValue root = PropertyValue::dictionary();
    root.insert("string", PropertyValue(QString::fromUtf8(
                              "Grüße, 日本語, emoji \U0001F5A8 & <tags> \"q\" 'a'")));
    root.insert("empty string", PropertyValue(QString()));
    root.insert("negative", PropertyValue::integer(-2147483648LL));
    root.insert("int64 max", PropertyValue::integer(std::numeric_limits<std::int64_t>::max(),
                                                    NumberType::SInt64));
    root.insert("int64 min", PropertyValue::integer(std::numeric_limits<std::int64_t>::min(),
                                                    NumberType::SInt64));
    root.insert("true", PropertyValue::boolean(true));
    root.insert("false", PropertyValue::boolean(false));
    QByteArray bytes;
    for (int i = 0; i < 1000; ++i)
        bytes.append(static_cast<char>(i * 37));
    root.insert("data", PropertyValue::data(bytes));
    root.insert("empty data", PropertyValue::data(QByteArray()));
    root.insert("date",
                PropertyValue::date(QDateTime(QDate(2026, 11, 22), QTime(9, 30, 5), Qt::UTC)));
    root.insert("empty dict", PropertyValue::dictionary());
    root.insert("empty array", PropertyValue::array());
    PropertyValue nested = PropertyValue::array();
    nested.append(PropertyValue::dictionary());
    nested.asArray()[0].insert("k", PropertyValue("v"));
    nested.append(PropertyValue::array());
    root.insert("nested", nested);
    root.insert(QString::fromUtf8("key with <&> and ü"), PropertyValue("x"));
    root.insert("tab\tand\nnewline\rreturn", PropertyValue("line1\r\nline2\ttab"));

    const PropertyValue back = roundTrip(root);
    EXPECT_EQ(back, root);
    EXPECT_EQ(back.find("int64 min")->integerAs(NumberType::SInt64),
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(back.find("negative")->numberType(), NumberType::CFIndex);
    EXPECT_EQ(back.find("int64 max")->numberType(), NumberType::SInt64);
}

TEST(PropertyList, RealsRoundTripExactly)
{
    std::mt19937_64 random(42);
    std::uniform_real_distribution<double> any(-1e300, 1e300);
    PropertyValue list = PropertyValue::array();
    const double fixed[] = {0.1,
                            1.0 / 3.0,
                            -0.0,
                            5e-324,
                            std::numeric_limits<double>::max(),
                            std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity(),
                            72.0};
    for (double d : fixed)
        list.append(PropertyValue::real(d));
    for (int i = 0; i < 500; ++i)
        list.append(
            PropertyValue::real(any(random) * std::pow(10.0, -static_cast<int>(random() % 300))));
    const PropertyValue back = roundTrip(list);
    ASSERT_EQ(back.size(), list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        const double want = *list.asArray()[i].toReal();
        const double got = *back.asArray()[i].toReal();
        EXPECT_EQ(std::memcmp(&want, &got, sizeof want), 0) << want << " came back as " << got;
    }
    const auto nan = readPropertyList(wrap("<real>nan</real>"));
    ASSERT_TRUE(nan);
    EXPECT_TRUE(std::isnan(*nan->toReal()));
}

TEST(PropertyList, WrittenFileReadsBackAndRewritesByteIdentical)
{
    PropertyValue root = PropertyValue::dictionary();
    root.insert("b", PropertyValue::array());
    root.asDictionary()["b"].append(PropertyValue::real(2.5));
    root.insert("a", PropertyValue::data("\x01\x02\x03"));
    const auto first = writePropertyList(root);
    ASSERT_TRUE(first);
    const auto parsed = readPropertyList(*first);
    ASSERT_TRUE(parsed);
    const auto second = writePropertyList(*parsed);
    ASSERT_TRUE(second);
    EXPECT_EQ(*first, *second);
    // Keys come out sorted, data in base64 lines.
    EXPECT_LT(first->indexOf("<key>a</key>"), first->indexOf("<key>b</key>"));
    EXPECT_TRUE(first->contains("\t<data>\n\tAQID\n\t</data>\n"));
}

TEST(PropertyList, RefusesWhatXmlCannotCarry)
{
    struct Row
    {
        const char* what;
        PropertyValue value;
    };
    PropertyValue badKey = PropertyValue::dictionary();
    badKey.insert(QString("bell\x07"), PropertyValue("x"));
    const Row rows[] = {
        {"control character", PropertyValue(QString("a\x01"
                                                    "b"))},
        {"NUL", PropertyValue(QString(QChar(0)))},
        {"lone high surrogate", PropertyValue(QString(QChar(0xD800)))},
        {"lone low surrogate", PropertyValue(QString(QChar(0xDC00)) + "x")},
        {"non-character", PropertyValue(QString(QChar(0xFFFF)))},
        {"key", badKey},
        {"null", PropertyValue()},
        {"invalid date", PropertyValue::date(QDateTime())},
    };
    for (const Row& row : rows) {
        QString why;
        EXPECT_FALSE(writePropertyList(row.value, &why)) << row.what;
        EXPECT_FALSE(why.isEmpty()) << row.what;
    }
}

TEST(PropertyList, BrokenInputSaysWhatAndWhere)
{
    struct Row
    {
        QByteArray xml;
        const char* expectInMessage;
        qint64 line;
    };
    const Row rows[] = {
        {wrap("<dict><key>a</key></dict>"), "has no value", 3},
        {wrap("<dict><key>a</key><integer>12x</integer></dict>"), "not an integer", 3},
        {wrap("<integer>99999999999999999999</integer>"), "64-bit", 3},
        {wrap("<dict><string>no key</string></dict>"), "expected <key>", 3},
        {wrap("<widget/>"), "unknown element", 3},
        {wrap("<data>!!!!</data>"), "base64", 3},
        {wrap("<date>yesterday</date>"), "ISO 8601", 3},
        {wrap("<true>yes</true>"), "", 3},
        {wrap("<string>a</string><string>b</string>"), "more than one value", 3},
        {wrap("<array><string>x</array>"), "", 3},
        {QByteArray("<?xml version=\"1.0\"?>\n<plist "
                    "version=\"1.0\">\n<dict>\n<key>a</key>\n<string>trunc"),
         "", 5},
        {QByteArray(), "", 1},
        {QByteArray("not xml at all"), "", 1},
    };
    for (const Row& row : rows) {
        PropertyListError error;
        EXPECT_FALSE(readPropertyList(row.xml, &error)) << row.xml.toStdString();
        EXPECT_FALSE(error.message.isEmpty());
        EXPECT_TRUE(error.message.contains(row.expectInMessage)) << error.message.toStdString();
        EXPECT_EQ(error.line, row.line) << error.toString().toStdString();
        EXPECT_GT(error.column, 0);
    }
}

TEST(PropertyList, DeepNestingIsRefusedNotACrash)
{
    QByteArray xml = "<plist>";
    for (int i = 0; i < 100000; ++i)
        xml += "<array>";
    PropertyListError error;
    EXPECT_FALSE(readPropertyList(xml, &error));
    EXPECT_TRUE(error.message.contains("deeper")) << error.message.toStdString();
}

TEST(PropertyList, ReadsEntitiesHexIntegersAndBareValues)
{
    const auto v = readPropertyList(
        wrap("<dict><key>a&amp;b</key><string>&#x41;&lt;</string>"
             "<key>h</key><integer>0x1F</integer><key>n</key><integer> -5 </integer></dict>"));
    ASSERT_TRUE(v);
    EXPECT_EQ(v->find("a&b")->toString(), "A<");
    EXPECT_EQ(v->find("h")->toInteger(), 31);
    EXPECT_EQ(v->find("n")->toInteger(), -5);
    const auto bare = readPropertyList("<?xml version=\"1.0\"?><array><true/></array>");
    ASSERT_TRUE(bare);
    EXPECT_EQ(bare->size(), 1u);
}

TEST(PropertyList, FastPathAgreesWithTheFullReaderOrStandsAside)
{
    // Each document is read by both paths; where the fast path answers, the
    // full reader must answer the same. Some must go to the full reader.
    struct Row
    {
        QByteArray xml;
        bool fastHandles;
    };
    const Row rows[] = {
        {wrap("<dict><key>a</key><string>x &amp; y &#x263A; &#65;</string></dict>"), true},
        {wrap("<array><data>AQID</data><data>\n\tAQ==\n</data><data/><string/><dict/><array/></"
              "array>"),
         true},
        {wrap("<dict><key>n</key><integer>-9223372036854775808</integer><key>r</key><real>-0.0</"
              "real></dict>"),
         true},
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist "
         "version=\"1.0\"><string>Grüße</string></plist>",
         true},
        {wrap("<string>line\r\nbreak</string>"), false},     // line-end folding
        {wrap("<!-- note --><string>x</string>"), false},    // comment
        {wrap("<string><![CDATA[<raw>]]></string>"), false}, // CDATA
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><string>caf\xE9</string></plist>",
         false},
        {wrap("<true></true>"), false},
    };
    for (const Row& row : rows) {
        const auto fast = plist::readFast(row.xml);
        const auto full = plist::readWithFullReader(row.xml);
        ASSERT_TRUE(full) << row.xml.toStdString();
        EXPECT_EQ(fast.has_value(), row.fastHandles) << row.xml.toStdString();
        if (fast)
            EXPECT_EQ(*fast, *full);
        EXPECT_EQ(*readPropertyList(row.xml), *full);
    }
    EXPECT_EQ(readPropertyList(wrap("<string>line\r\nbreak</string>"))->toString(), "line\nbreak");
    EXPECT_EQ(readPropertyList("<?xml version=\"1.0\" "
                               "encoding=\"ISO-8859-1\"?><plist><string>caf\xE9</string></plist>")
                  ->toString(),
              QString::fromUtf8("café"));
}

TEST(PropertyList, Base64IsStrictAndLineSplitRoundTrips)
{
    for (int length : {0, 1, 2, 3, 4, 56, 57, 58, 59, 114, 1000}) {
        QByteArray bytes;
        for (int i = 0; i < length; ++i)
            bytes.append(static_cast<char>(i * 131 + 7));
        QByteArray lines;
        plist::appendBase64Lines(lines, bytes, 2);
        EXPECT_EQ(lines.replace("\t", "").replace("\n", ""), bytes.toBase64()) << length;
        const auto back = plist::decodeBase64(lines, nullptr);
        ASSERT_TRUE(back) << length;
        EXPECT_EQ(*back, bytes) << length;
    }
    for (const char* bad : {"A", "AB=C", "AB===", "A===", "AB==CD", "AB*D", "ABC\x01"}) {
        QString why;
        EXPECT_FALSE(plist::decodeBase64(QByteArray(bad), &why)) << bad;
        EXPECT_FALSE(why.isEmpty());
    }
    EXPECT_EQ(plist::decodeBase64(QByteArray("AQI"), nullptr), QByteArray("\x01\x02")); // unpadded
    EXPECT_EQ(plist::decodeBase64(QByteArray(" A Q\nI = "), nullptr), QByteArray("\x01\x02"));
}
