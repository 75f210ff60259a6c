#include "settings/DictionaryAccess.h"

#include <gtest/gtest.h>

using namespace orvan;

TEST(DictionaryAccess, GetCFIndexLeavesOutputOnMissOrWrongKind)
{
    PropertyValue dict = PropertyValue::dictionary();
    dict.insert("text", PropertyValue("5"));
    dict.insert("big", PropertyValue::integer(1LL << 35, NumberType::SInt64));
    WriteTicketValue(&dict, "n", -12);

    long out = 77;
    EXPECT_FALSE(GetCFIndexFromCFDictionary(&dict, "absent", &out));
    EXPECT_FALSE(GetCFIndexFromCFDictionary(nullptr, "n", &out));
    EXPECT_FALSE(GetCFIndexFromCFDictionary(&dict, QString(), &out));
    EXPECT_FALSE(GetCFIndexFromCFDictionary(&dict, "text", &out));
    EXPECT_FALSE(GetCFIndexFromCFDictionary(&dict, "big", &out));
    EXPECT_EQ(out, 77);
    EXPECT_TRUE(GetCFIndexFromCFDictionary(&dict, "n", &out));
    EXPECT_EQ(out, -12);
    EXPECT_EQ(dict.find("n")->numberType(), NumberType::CFIndex);
}

TEST(DictionaryAccess, SetAndGetNumberByType)
{
    PropertyValue dict = PropertyValue::dictionary();
    CFDictionarySetNumber(&dict, "JobType", NumberType::SInt32, std::int64_t{6});
    CFDictionarySetNumber(&dict, "DelayedPrintTime", NumberType::SInt64,
                          std::int64_t{5'000'000'000});
    CFDictionarySetNumber(&dict, "Gutter", NumberType::Float32, 0.25);
    EXPECT_EQ(dict.find("JobType")->numberType(), NumberType::SInt32);
    EXPECT_EQ(dict.find("DelayedPrintTime")->numberType(), NumberType::SInt64);

    std::int32_t small = 0;
    std::int64_t wide = 0;
    float gutter = 0;
    EXPECT_TRUE(CFDictionaryGetNumber(&dict, "JobType", &small, NumberType::SInt32));
    EXPECT_EQ(small, 6);
    EXPECT_FALSE(CFDictionaryGetNumber(&dict, "DelayedPrintTime", &small, NumberType::SInt32));
    EXPECT_EQ(small, 6);
    EXPECT_TRUE(CFDictionaryGetNumber(&dict, "DelayedPrintTime", &wide, NumberType::SInt64));
    EXPECT_EQ(wide, 5'000'000'000);
    EXPECT_TRUE(CFDictionaryGetNumber(&dict, "Gutter", &gutter, NumberType::Float32));
    EXPECT_FLOAT_EQ(gutter, 0.25f);
    EXPECT_FALSE(CFDictionaryGetNumber(&dict, "Gutter", &small, NumberType::SInt32));
}

TEST(DictionaryAccess, SetCStringDecodesWithTheEncoding)
{
    PropertyValue dict = PropertyValue::dictionary();
    CFDictionarySetCString(&dict, "roman", "caf\x8E", TextEncoding::MacRoman);
    CFDictionarySetCString(&dict, "latin", "caf\xE9", TextEncoding::ISOLatin1);
    CFDictionarySetCString(&dict, "bad", "caf\xE9", TextEncoding::UTF8);
    EXPECT_EQ(dict.find("roman")->toString(), QString::fromUtf8("café"));
    EXPECT_EQ(dict.find("latin")->toString(), QString::fromUtf8("café"));
    EXPECT_EQ(dict.find("bad"), nullptr);
}

TEST(DictionaryAccess, GetDictionaryOrCreate)
{
    PropertyValue dict = PropertyValue::dictionary();
    dict.insert("s", PropertyValue("keep"));
    PropertyValue* existing = CFDictionaryGetDictionaryOrCreate(&dict, "s");
    ASSERT_NE(existing, nullptr);
    EXPECT_EQ(*existing, PropertyValue("keep")); // no type check

    PropertyValue* created = CFDictionaryGetDictionaryOrCreate(&dict, "d");
    ASSERT_NE(created, nullptr);
    EXPECT_TRUE(created->isDictionary());
    EXPECT_EQ(dict.size(), 2u);
    created->insert("x", PropertyValue::integer(1));
    EXPECT_EQ(CFDictionaryGetDictionaryOrCreate(&dict, "d"), created);
    EXPECT_EQ(dict.size(), 2u);
    EXPECT_EQ(dict.find("d")->find("x")->toInteger(), 1);

    EXPECT_EQ(CFDictionaryGetDictionaryOrCreate(nullptr, "d"), nullptr);
    PropertyValue text("t");
    EXPECT_EQ(CFDictionaryGetDictionaryOrCreate(&text, "d"), nullptr);
}
