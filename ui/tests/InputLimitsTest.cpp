#include "ui/InputLimits.h"
#include "ui/LocalizedFormat.h"

#include <gtest/gtest.h>

using namespace orvan;

namespace {

struct EditCase
{
    const char* what;
    InputLimits limits;
    QString textAfterEdit; // the field's text right after the edit
    int cursorAfterEdit;   // just after the inserted text
    QString expected;
    int expectedCursor;
};

const CharacterSet kDigits = CharacterSetFromString(QStringLiteral("0123456789"));

} // namespace

TEST(InputLimits, EditsAreCutToTheLimitsAtTheInsertion)
{
    // clang-format off
    const EditCase cases[] = {
        {"typed, allowed",                     {0, 4, kDigits},      "123",           3,  "123",         3},
        {"typed, outside the set",             {0, 4, kDigits},      "12a3",          3,  "123",         2},
        {"typed mid-text into a full field",   {0, 4, kDigits},      "12934",         3,  "1234",        2},
        {"pasted: allowed ones up to the limit", {0, 5, kDigits},    "1a2-3 456789x", 13, "12345",       5},
        {"pasted mid-text: the tail stays",    {0, 5, std::nullopt}, "abXYZWcd",      6,  "abXcd",       3},
        {"no maximum",                         {3, 0, kDigits},      "12345678901",   11, "12345678901", 11},
        {"no set",                             {0, 3, std::nullopt}, "a!",            2,  "a!",          2},
        {"set whole, no insertion point",      {0, 3, std::nullopt}, "abcdef",        0,  "abc",         0},
    };
    // clang-format on
    for (const EditCase& c : cases) {
        int cursor = c.cursorAfterEdit;
        EXPECT_EQ(c.limits.applied(c.textAfterEdit, cursor), c.expected) << c.what;
        EXPECT_EQ(cursor, c.expectedCursor) << c.what;
    }
}

TEST(InputLimits, CharactersBeyondTheBasicPlaneStayWhole)
{
    const QString clef = QString::fromUcs4(U"\U0001D11E"); // two UTF-16 units
    InputLimits limits{0, 3, CharacterSetFromString(QStringLiteral("ab") + clef)};
    // Cutting one unit would split the pair: the whole character goes.
    int cursor = 4;
    EXPECT_EQ(limits.applied(QStringLiteral("ab") + clef, cursor), "ab");
    EXPECT_EQ(cursor, 2);

    // A character outside the set is dropped as a whole too.
    limits.allowed = CharacterSetFromString(QStringLiteral("a"));
    cursor = 3;
    EXPECT_EQ(limits.applied(QStringLiteral("a") + clef, cursor), "a");
    EXPECT_EQ(cursor, 1);
}

TEST(InputLimits, StoredEntriesMustFitBothLimitsAndTheSet)
{
    const InputLimits limits{2, 4, CharacterSetFromString(QStringLiteral("abc"))};
    EXPECT_TRUE(limits.accepts("ab"));
    EXPECT_TRUE(limits.accepts("abca"));
    EXPECT_FALSE(limits.accepts("a"));     // shorter than the first limit
    EXPECT_FALSE(limits.accepts("abcab")); // longer than the second
    EXPECT_FALSE(limits.accepts("abd"));   // outside the set
    EXPECT_TRUE((InputLimits{0, 0, std::nullopt}.accepts("")));
}

TEST(FormatText, ReplacesNumberedMarkersInOnePass)
{
    EXPECT_EQ(FormatText("Between %1 and %2 pages.", {"1", "999"}), "Between 1 and 999 pages.");
    EXPECT_EQ(FormatText("%2 before %1", {"a", "b"}), "b before a");
    // An argument holding a marker is not expanded again.
    EXPECT_EQ(FormatText("%1 %2", {"%2", "x"}), "%2 x");
    // Markers without an argument, and lone percent signs, stay.
    EXPECT_EQ(FormatText("%1 of %3, 100%", {"one"}), "one of %3, 100%");
    EXPECT_EQ(FormatText("%11", QStringList(11, "z")), "z");
}
