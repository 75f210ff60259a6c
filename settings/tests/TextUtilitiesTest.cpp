#include "settings/TextUtilities.h"
#include "settings/SystemVersion.h"

#include <gtest/gtest.h>

#include <climits>

using namespace orvan;

TEST(CountDigits, CountsDigitsOfTheMagnitude)
{
    const std::pair<long, int> rows[] = {{0, 1},       {-7, 1},      {9, 1},     {10, 2},
                                         {100, 3},     {999, 3},     {1000, 4},  {999999, 6},
                                         {1000000, 7}, {-100000, 6}, {99999, 5}, {LONG_MAX, 19}};
    for (const auto& [n, digits] : rows)
        EXPECT_EQ(CountDigits(n), digits) << n;
}

TEST(XMLUnescape, ReferencesAndUnknownEntities)
{
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("a&amp;b&#65;&#x42;&unknown;c"),
              "a&bAB&unknown;c");
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("&lt;&gt;&apos;&quot;"), "<>'\"");
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("&#X4a;&#x1F5A8;"),
              QString::fromUtf8("J\U0001F5A8"));
    // After a numeric reference's digits, the rest up to ';' is consumed.
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("&#65zzz;B"), "AB");
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("&#66"), "B");
    // No semicolon at all: the text stays as written.
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("fish & chips"), "fish & chips");
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("plain"), "plain");
}

TEST(XMLUnescape, CallerEntitiesWinOverPredefinedOnes)
{
    PropertyValue extra = PropertyValue::dictionary();
    extra.insert("amp", PropertyValue("AND"));
    extra.insert("orvan", PropertyValue("Orvan"));
    EXPECT_EQ(XMLCreateStringByUnescapingEntities("&orvan; &amp; &lt;", &extra), "Orvan AND <");
}

TEST(SystemVersion, ThresholdsAndDefaults)
{
    struct Row
    {
        std::optional<SystemVersion> version;
        bool on104;
        bool on105;
    };
    const Row rows[] = {
        {SystemVersion{10, 4, 0}, true, false},
        {SystemVersion{10, 3, 9}, false, false},
        {SystemVersion{10, 4, 11}, true, false},
        {SystemVersion{10, 5, 0}, true, true},
        {SystemVersion{11, 0, 0}, true, true},
        {std::nullopt, false, false}, // defaults 10.3 / 10.4
    };
    for (const Row& row : rows) {
        SetSystemVersionForTesting(row.version);
        EXPECT_EQ(RunningOn104OrLater(), row.on104);
        EXPECT_EQ(RunningOn105OrLater(), row.on105);
    }
    // Without a test version the checks answer as the newest system.
    ResetSystemVersionForTesting();
    EXPECT_TRUE(RunningOn104OrLater());
    EXPECT_TRUE(RunningOn105OrLater());
}
