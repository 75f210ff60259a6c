// Input limits: how an edit is cut to a length and a character set, which
// stored entries fit, and the fields that apply the limits as the user types
// and pastes; the localised format markers.
#include "ui/InputLimitValidator.h"
#include "ui/LocalizedFormat.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

const CharacterSet kDigits = CharacterSetFromString("0123456789");

TEST(InputLimits, EditsAreCutToTheLimitsAtTheInsertion)
{
    const QString clef = QString::fromUcs4(U"\U0001D11E"); // two UTF-16 units
    const struct
    {
        const char* what;
        InputLimits limits;
        QString textAfterEdit; // the field's text right after the edit
        int cursorAfterEdit;   // just after the inserted text
        QString expected;
        int expectedCursor;
    } cases[] = {
        // clang-format off
        {"typed, outside the set",               {0, 4, kDigits},      "12a3",          3,  "123",         2},
        {"typed mid-text into a full field",     {0, 4, kDigits},      "12934",         3,  "1234",        2},
        {"pasted: allowed ones up to the limit", {0, 5, kDigits},      "1a2-3 456789x", 13, "12345",       5},
        {"pasted mid-text: the tail stays",      {0, 5, std::nullopt}, "abXYZWcd",      6,  "abXcd",       3},
        {"no maximum",                           {3, 0, kDigits},      "12345678901",   11, "12345678901", 11},
        {"set whole, no insertion point",        {0, 3, std::nullopt}, "abcdef",        0,  "abc",         0},
        // A character beyond the basic plane is cut or dropped whole, never split.
        {"a pair past the limit", {0, 3, CharacterSetFromString("ab" + clef)}, "ab" + clef, 4, "ab", 2},
        {"a pair outside the set", {0, 3, CharacterSetFromString("a")},        "a" + clef,  3, "a",  1},
        // clang-format on
    };
    for (const auto& c : cases) {
        int cursor = c.cursorAfterEdit;
        EXPECT_EQ(c.limits.applied(c.textAfterEdit, cursor), c.expected) << c.what;
        EXPECT_EQ(cursor, c.expectedCursor) << c.what;
    }
}

TEST(InputLimits, StoredEntriesMustFitBothLimitsAndTheSet)
{
    const InputLimits limits{2, 4, CharacterSetFromString("abc")};
    for (const auto& [entry, fits] :
         {std::pair{"ab", true}, {"abca", true}, {"a", false}, {"abcab", false}, {"abd", false}})
        EXPECT_EQ(limits.accepts(entry), fits) << entry;
    EXPECT_TRUE((InputLimits{0, 0, std::nullopt}.accepts("")));
}

TEST(InputLimits, FieldsApplyThemToTyping)
{
    QLineEdit field;
    LimitInputLengthAndCharacters(&field, 1, 4, kDigits);
    QTest::keyClicks(&field, "1a2b3-45");
    EXPECT_EQ(field.text(), "1234");

    // Limits are replaced; below 1 and a null set remove them all.
    const QValidator* validator = field.validator();
    LimitInputLengthAndCharacters(&field, 0, 0, std::nullopt);
    EXPECT_EQ(field.validator(), validator);
    field.end(false);
    QTest::keyClicks(&field, ", any text");
    EXPECT_EQ(field.text(), "1234, any text");
    LimitInputLengthAndCharacters(static_cast<QLineEdit*>(nullptr), 1, 2, std::nullopt); // ignored

    // A combo box's list items pass whole while typing is limited.
    QComboBox box;
    box.setEditable(true);
    box.addItems({"Use Job Name"});
    LimitInputLengthAndCharacters(&box, 0, 4, kDigits);
    box.setCurrentIndex(0);
    EXPECT_EQ(box.currentText(), "Use Job Name");
    box.lineEdit()->clear();
    QTest::keyClicks(box.lineEdit(), "12a345");
    EXPECT_EQ(box.currentText(), "1234");
}

TEST(FormatText, ReplacesNumberedMarkersInOnePass)
{
    const std::tuple<const char*, QStringList, const char*> cases[] = {
        {"Between %1 and %2 pages.", {"1", "999"}, "Between 1 and 999 pages."},
        {"%2 before %1", {"a", "b"}, "b before a"},
        {"%1 %2", {"%2", "x"}, "%2 x"}, // an argument's marker is not expanded again
        {"%1 of %3, 100%", {"one"}, "one of %3, 100%"}, // markers without an argument stay
        {"%11", QStringList(11, "z"), "z"},
    };
    for (const auto& [format, arguments, expected] : cases)
        EXPECT_EQ(FormatText(format, arguments), expected) << format;
}

} // namespace
