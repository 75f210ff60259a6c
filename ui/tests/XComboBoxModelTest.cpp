// The editable combo box's model: fixed items, the input history, limits
// and the values read from the text.
#include "ui/tests/XComboBoxTestSupport.h"

namespace orvan {
namespace {

const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

class XComboBoxModelTest : public testing::XComboBoxFixture
{
protected:
    XComboBoxModel numberBox(std::int32_t minimum, std::int32_t maximum) const
    {
        return XComboBoxModel(numberOptions(minimum, maximum), kEnglish);
    }
    XComboBoxModel textBox(const QString& historyKey = "JobName") const
    {
        return XComboBoxModel(textOptions(historyKey), kEnglish);
    }
};

TEST_F(XComboBoxModelTest, NumberBoxTakesAsManyDigitsAsItsMaximumHas)
{
    for (const auto& [maximum, digits] :
         {std::pair{0, 9}, {-20, 9}, {9999, 4}, {10000, 5}, {7, 1}}) {
        const InputLimits limits = numberBox(0, maximum).inputLimits();
        EXPECT_EQ(limits.secondLimit, digits) << maximum;
        ASSERT_TRUE(limits.allowed);
        EXPECT_TRUE(ContainsOnly("0123456789", *limits.allowed));
        EXPECT_FALSE(ContainsOnly("-", *limits.allowed) || ContainsOnly(",", *limits.allowed));
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
            {&copies, "Use Job Setting", std::nullopt, PropertyValue::integer(7)},
            {&unbounded, "999999999", std::nullopt, PropertyValue::integer(999999999)},
            {&unbounded, "3", "10", PropertyValue::integer(10)},
            {&name, "0", std::nullopt, "0"}, // texts are taken as they stand
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
} // namespace orvan
