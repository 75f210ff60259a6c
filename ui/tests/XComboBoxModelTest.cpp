// The editable combo box's model: fixed items, the input history, limits
// and the values read from the text.
#include "ui/XComboBoxModel.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

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
    void SetUp() override { qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8()); }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    static void writeHistory(const QString& key, const PropertyValue& entries)
    {
        PropertyValue file =
            CopyUserPreferences(kInputHistoryFileName).value_or(PropertyValue::dictionary());
        file.insert(key, entries);
        ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));
    }
    static PropertyValue storedHistory(const QString& key)
    {
        return *CopyUserPreferences(kInputHistoryFileName)->find(key);
    }
    XComboBoxModel numberBox(std::int32_t minimum, std::int32_t maximum) const
    {
        return XComboBoxModel({.kind = XComboBoxKind::Number,
                               .bundle = &m_bundle,
                               .map = kCopiesMap,
                               .historyKey = "Copies",
                               .minimum = minimum,
                               .maximum = maximum},
                              kEnglish);
    }
    XComboBoxModel textBox(const QString& historyKey = "JobName") const
    {
        return XComboBoxModel({.bundle = &m_bundle,
                               .map = kCopiesMap,
                               .historyKey = historyKey,
                               .historyLimit = 3,
                               .firstLimit = 2,
                               .secondLimit = 6,
                               .allowedCharacters = CharacterSetFromString(
                                   "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")},
                              kEnglish);
    }

    QTemporaryDir m_dir;
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

TEST_F(XComboBoxModelTest, NumberBoxTakesAsManyDigitsAsItsMaximumHas)
{
    for (const auto& [maximum, digits] :
         {std::pair{0, 9}, {-20, 9}, {9999, 4}, {10000, 5}, {7, 1}}) {
        const XComboBoxModel model = numberBox(0, maximum);
        EXPECT_EQ(model.inputLimits().secondLimit, digits) << maximum;
        EXPECT_EQ(model.options().secondLimit, digits);
        ASSERT_TRUE(model.inputLimits().allowed);
        EXPECT_TRUE(ContainsOnly("0123456789", *model.inputLimits().allowed));
        EXPECT_FALSE(ContainsOnly("-", *model.inputLimits().allowed));
        EXPECT_FALSE(ContainsOnly(",", *model.inputLimits().allowed));
    }
}

TEST_F(XComboBoxModelTest, ListsFixedItemsThenTheValidHistoryEntries)
{
    writeHistory("Copies", PropertyArray{"12", PropertyValue::integer(42), "0", "10000", "abc",
                                         "9999", PropertyValue::boolean(true)});
    writeHistory("JobName", PropertyArray{"Report", "R", "Quarterly", "Memo!", "Memo",
                                          PropertyValue::integer(7)});
    const XComboBoxModel numbers = numberBox(1, 9999);
    EXPECT_EQ(numbers.items(),
              QStringList({"Printer Default", "Use Job Setting", "12", "42", "9999"}));
    EXPECT_EQ(numbers.fixedItemCount(), 2);
    EXPECT_EQ(numbers.history().size(), 7u); // kept whole, for recording
    EXPECT_EQ(textBox().items(),
              QStringList({"Printer Default", "Use Job Setting", "Report", "Memo"}));
    EXPECT_EQ(numbers.ticketValueForText("Use Job Setting"), 7);
    EXPECT_EQ(numbers.textForTicketValue(5), "Printer Default");
    EXPECT_FALSE(numbers.textForTicketValue(6));
    EXPECT_FALSE(numbers.textForTicketValue(9)); // after the stop row

    // A history that is not an array, or a box without a key, lists nothing.
    writeHistory("Copies", "12");
    EXPECT_EQ(numberBox(1, 9999).items().size(), 2);
    EXPECT_EQ(textBox("").items().size(), 2);
}

TEST_F(XComboBoxModelTest, TextsAreValidatedAndReadAsValues)
{
    const XComboBoxModel copies = numberBox(1, 9999);
    const XComboBoxModel unbounded = numberBox(10, 0); // only the minimum binds
    const XComboBoxModel name = textBox();
    // Box, text; the text validation shows (none: the text stays), the value.
    const std::tuple<const XComboBoxModel*, const char*, std::optional<QString>, PropertyValue>
        cases[] = {
            {&copies, "0", "1", PropertyValue::integer(1)},
            {&copies, "12000", "9999", PropertyValue::integer(9999)},
            {&copies, "50", std::nullopt, PropertyValue::integer(50)},
            {&copies, "Use Job Setting", std::nullopt, PropertyValue::integer(7)},
            {&unbounded, "999999999", std::nullopt, PropertyValue::integer(999999999)},
            {&unbounded, "3", "10", PropertyValue::integer(10)},
            {&name, "0", std::nullopt, "0"},
            {&name, "Report", std::nullopt, "Report"}, // texts are taken as they stand
        };
    for (const auto& [model, text, shown, expected] : cases) {
        EXPECT_EQ(model->validatedText(text), shown) << text;
        PropertyValue value;
        EXPECT_EQ(model->copyValue(text, value), kNoError);
        EXPECT_EQ(value, expected) << text;
        EXPECT_EQ(value.numberType(), expected.numberType());
    }
    // An empty box has no value: the result says so and the output is kept.
    PropertyValue value("kept");
    EXPECT_FALSE(copies.validatedText(""));
    EXPECT_EQ(copies.copyValue("", value), kXComboBoxEmpty);
    EXPECT_EQ(value, PropertyValue("kept"));
}

TEST_F(XComboBoxModelTest, RecordingPutsNewTextsFirstAndKeepsTheLimit)
{
    writeHistory("JobName", PropertyArray{"Report", "Memo", "Draft"});
    writeHistory("Other", PropertyArray{"untouched"});
    // A fixed item's text, or a text already listed, adds nothing.
    for (const char* text : {"Printer Default", "Memo", ""})
        EXPECT_TRUE(textBox().recordHistory(text));
    EXPECT_EQ(storedHistory("JobName"), (PropertyArray{"Report", "Memo", "Draft"}));
    // A new text goes first; the oldest entry falls off at the limit of 3.
    EXPECT_TRUE(textBox().recordHistory("Letter"));
    EXPECT_EQ(storedHistory("JobName"), (PropertyArray{"Letter", "Report", "Memo"}));
    EXPECT_EQ(storedHistory("Other"), PropertyArray{"untouched"});
    EXPECT_FALSE(textBox("").recordHistory("Anything")); // no history key: nothing written
}

} // namespace
