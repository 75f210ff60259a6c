#include "ui/XComboBoxModel.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

// Fixed items: rows up to the one whose value is 0; the row without a text is
// left out and the gate is not applied.
constexpr _SettingMap kCopiesMap[] = {
    {"PrinterDefault", 5, 0, nullptr, 0},        {"No Such Key", 6, 0, nullptr, 0},
    {"UseJobSetting", 7, 0, "NoSuchFeature", 1}, {"-", 0, 0, nullptr, 0},
    {"PrinterDefault", 9, 0, nullptr, 0},        {nullptr, 0, 0, nullptr, 0},
};

const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

class XComboBoxModelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8());
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    static void writeHistory(const QString& key, PropertyArray entries)
    {
        PropertyValue file =
            CopyUserPreferences(kInputHistoryFileName).value_or(PropertyValue::dictionary());
        file.insert(key, PropertyValue(std::move(entries)));
        ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));
    }
    static PropertyValue storedHistory(const QString& key)
    {
        const PropertyValue file = *CopyUserPreferences(kInputHistoryFileName);
        const PropertyValue* history = file.find(key);
        return history ? *history : PropertyValue();
    }

    _XComboBoxOptions numberBox(std::int32_t minimum, std::int32_t maximum) const
    {
        _XComboBoxOptions options;
        options.kind = XComboBoxKind::Number;
        options.bundle = &m_bundle;
        options.map = kCopiesMap;
        options.historyKey = "Copies";
        options.minimum = minimum;
        options.maximum = maximum;
        return options;
    }
    _XComboBoxOptions textBox() const
    {
        _XComboBoxOptions options;
        options.kind = XComboBoxKind::Text;
        options.bundle = &m_bundle;
        options.map = kCopiesMap;
        options.historyKey = "JobName";
        options.historyLimit = 3;
        options.firstLimit = 2;
        options.secondLimit = 6;
        options.allowedCharacters =
            CharacterSetFromString("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
        return options;
    }

    QTemporaryDir m_dir;
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

} // namespace

TEST_F(XComboBoxModelTest, NumberBoxTakesAsManyDigitsAsItsMaximumHas)
{
    const std::pair<std::int32_t, int> rows[] = {{0, 9}, {-20, 9}, {9999, 4}, {10000, 5}, {7, 1}};
    for (const auto& [maximum, digits] : rows) {
        const XComboBoxModel model(numberBox(0, maximum), kEnglish);
        EXPECT_EQ(model.inputLimits().secondLimit, digits) << "maximum " << maximum;
        EXPECT_EQ(model.options().secondLimit, digits);
        ASSERT_TRUE(model.inputLimits().allowed);
        EXPECT_TRUE(ContainsOnly("0123456789", *model.inputLimits().allowed));
        EXPECT_FALSE(ContainsOnly("-", *model.inputLimits().allowed));
        EXPECT_FALSE(ContainsOnly(",", *model.inputLimits().allowed));
    }
}

TEST_F(XComboBoxModelTest, FixedItemsStopAtValueZeroAndLeaveOutMissingTexts)
{
    ASSERT_TRUE(m_bundle.isValid());
    const XComboBoxModel model(textBox(), kEnglish);
    EXPECT_EQ(model.items(), QStringList({"Printer Default", "Use Job Setting"}));
    EXPECT_EQ(model.fixedItemCount(), 2);
    EXPECT_EQ(model.ticketValueForText("Use Job Setting"), 7);
    EXPECT_EQ(model.textForTicketValue(5), "Printer Default");
    EXPECT_FALSE(model.textForTicketValue(6));
    EXPECT_FALSE(model.textForTicketValue(9)); // after the stop row
}

TEST_F(XComboBoxModelTest, OnlyValidHistoryEntriesAreListed)
{
    writeHistory("Copies", {PropertyValue("12"), PropertyValue::integer(42), PropertyValue("0"),
                            PropertyValue("10000"), PropertyValue("abc"), PropertyValue("9999"),
                            PropertyValue::boolean(true)});
    writeHistory("JobName",
                 {PropertyValue("Report"), PropertyValue("R"), PropertyValue("Quarterly"),
                  PropertyValue("Memo!"), PropertyValue("Memo"), PropertyValue::integer(7)});

    const XComboBoxModel numbers(numberBox(1, 9999), kEnglish);
    EXPECT_EQ(numbers.items(),
              QStringList({"Printer Default", "Use Job Setting", "12", "42", "9999"}));
    EXPECT_EQ(numbers.history().size(), 7u); // kept whole, for recording

    const XComboBoxModel texts(textBox(), kEnglish);
    EXPECT_EQ(texts.items(), QStringList({"Printer Default", "Use Job Setting", "Report", "Memo"}));

    // A history that is not an array, or a box without a key, lists nothing.
    PropertyValue file = *CopyUserPreferences(kInputHistoryFileName);
    file.insert("Copies", PropertyValue("12"));
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));
    EXPECT_EQ(XComboBoxModel(numberBox(1, 9999), kEnglish).items().size(), 2);
    _XComboBoxOptions noKey = textBox();
    noKey.historyKey.clear();
    EXPECT_EQ(XComboBoxModel(noKey, kEnglish).items().size(), 2);
}

TEST_F(XComboBoxModelTest, NumbersAreClampedToTheRangeWhenRead)
{
    const XComboBoxModel model(numberBox(1, 9999), kEnglish);
    EXPECT_EQ(model.validatedText("0"), "1");
    EXPECT_EQ(model.validatedText("12000"), "9999");
    EXPECT_FALSE(model.validatedText("50"));
    EXPECT_FALSE(model.validatedText("Printer Default"));
    EXPECT_FALSE(model.validatedText(""));

    PropertyValue value;
    EXPECT_EQ(model.copyValue("12000", value), kNoError);
    EXPECT_EQ(value, PropertyValue::integer(9999));
    EXPECT_EQ(value.numberType(), NumberType::CFIndex);
    EXPECT_EQ(model.copyValue("0", value), kNoError);
    EXPECT_EQ(value, PropertyValue::integer(1));
    EXPECT_EQ(model.copyValue("Use Job Setting", value), kNoError);
    EXPECT_EQ(value, PropertyValue::integer(7));

    // An empty box has no value: the result says so and the output is kept.
    value = PropertyValue("kept");
    EXPECT_EQ(model.copyValue("", value), kXComboBoxEmpty);
    EXPECT_EQ(value, PropertyValue("kept"));

    // Without a maximum only the minimum binds.
    const XComboBoxModel unbounded(numberBox(10, 0), kEnglish);
    EXPECT_FALSE(unbounded.validatedText("999999999"));
    EXPECT_EQ(unbounded.validatedText("3"), "10");

    // Text boxes take the text as it stands.
    const XComboBoxModel text(textBox(), kEnglish);
    EXPECT_FALSE(text.validatedText("0"));
    EXPECT_EQ(text.copyValue("Report", value), kNoError);
    EXPECT_EQ(value, PropertyValue("Report"));
}

TEST_F(XComboBoxModelTest, RecordingPutsNewTextsFirstAndKeepsTheLimit)
{
    writeHistory("JobName",
                 {PropertyValue("Report"), PropertyValue("Memo"), PropertyValue("Draft")});
    writeHistory("Other", {PropertyValue("untouched")});

    // A fixed item's text, or a text already listed, adds nothing.
    {
        XComboBoxModel model(textBox(), kEnglish);
        EXPECT_TRUE(model.recordHistory("Printer Default"));
        EXPECT_TRUE(model.recordHistory("Memo"));
        EXPECT_TRUE(model.recordHistory(""));
    }
    EXPECT_EQ(storedHistory("JobName"),
              PropertyValue(PropertyArray{PropertyValue("Report"), PropertyValue("Memo"),
                                          PropertyValue("Draft")}));

    // A new text goes first; the oldest entry falls off at the limit of 3.
    {
        XComboBoxModel model(textBox(), kEnglish);
        EXPECT_TRUE(model.recordHistory("Letter"));
    }
    EXPECT_EQ(storedHistory("JobName"),
              PropertyValue(PropertyArray{PropertyValue("Letter"), PropertyValue("Report"),
                                          PropertyValue("Memo")}));
    EXPECT_EQ(storedHistory("Other"), PropertyValue(PropertyArray{PropertyValue("untouched")}));

    // A box without a history key writes nothing.
    _XComboBoxOptions noKey = textBox();
    noKey.historyKey.clear();
    XComboBoxModel model(noKey, kEnglish);
    EXPECT_FALSE(model.recordHistory("Anything"));
}
