#include "settings/PropertyValue.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

using namespace orvan;

TEST(PropertyValue, NumbersRememberTheirType)
{
    struct Row
    {
        NumberType type;
        std::int64_t value;
    };
    for (const Row& row :
         {Row{NumberType::SInt32, -7}, Row{NumberType::CFIndex, 14},
          Row{NumberType::SInt64, std::int64_t{1} << 40}, Row{NumberType::Int, 9}}) {
        const PropertyValue v = PropertyValue::integer(row.value, row.type);
        EXPECT_EQ(v.kind(), PropertyValue::Kind::Integer);
        EXPECT_EQ(v.numberType(), row.type);
        EXPECT_EQ(v.integerAs(NumberType::SInt64), row.value);
    }
    const PropertyValue f = PropertyValue::real(0.5, NumberType::Float32);
    EXPECT_EQ(f.numberType(), NumberType::Float32);
    EXPECT_EQ(f.kind(), PropertyValue::Kind::Real);
    // A copy keeps the type as well.
    const PropertyValue copy = f;
    EXPECT_EQ(copy.numberType(), NumberType::Float32);
}

TEST(PropertyValue, ConversionsAreExactOrRefused)
{
    const PropertyValue big = PropertyValue::integer(std::int64_t{1} << 31, NumberType::SInt64);
    EXPECT_FALSE(big.integerAs(NumberType::SInt32));
    EXPECT_FALSE(big.integerAs(NumberType::CFIndex));
    EXPECT_EQ(big.integerAs(NumberType::SInt64), std::int64_t{1} << 31);

    const PropertyValue lowest = PropertyValue::integer(std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(lowest.integerAs(NumberType::SInt32), std::numeric_limits<std::int32_t>::min());
    EXPECT_FALSE(lowest.integerAs(NumberType::SInt16));

    const PropertyValue half = PropertyValue::real(2.5);
    EXPECT_FALSE(half.integerAs(NumberType::SInt32));
    EXPECT_EQ(half.realAs(NumberType::Float32), 2.5);
    EXPECT_FALSE(PropertyValue::real(0.1).realAs(NumberType::Float32)); // 0.1 has no exact float
    EXPECT_EQ(PropertyValue::real(3.0).integerAs(NumberType::SInt8), 3);

    const PropertyValue huge =
        PropertyValue::integer(std::numeric_limits<std::int64_t>::max(), NumberType::SInt64);
    EXPECT_FALSE(huge.realAs(NumberType::Float64));
    EXPECT_FALSE(PropertyValue::real(9223372036854775808.0).integerAs(NumberType::SInt64));
    EXPECT_FALSE(PropertyValue("12").integerAs(NumberType::SInt32));
}

TEST(PropertyValue, EqualityIsByValueNotNumberType)
{
    EXPECT_EQ(PropertyValue::integer(3, NumberType::SInt32),
              PropertyValue::integer(3, NumberType::CFIndex));
    EXPECT_EQ(PropertyValue::integer(3), PropertyValue::real(3.0));
    EXPECT_NE(PropertyValue::integer(3), PropertyValue("3"));
    EXPECT_NE(PropertyValue::boolean(true), PropertyValue::integer(1));
    EXPECT_NE(PropertyValue(), PropertyValue::dictionary());
    EXPECT_EQ(PropertyValue::data("ab"), PropertyValue::data("ab"));
}

TEST(PropertyValue, CopiesAreDeep)
{
    PropertyValue inner = PropertyValue::dictionary();
    inner.insert("n", PropertyValue::integer(1));
    PropertyValue outer = PropertyValue::dictionary();
    outer.insert("inner", inner);
    outer.insert("list", PropertyValue(PropertyArray{PropertyValue("a")}));

    PropertyValue copy = outer;
    copy.find("inner")->insert("n", PropertyValue::integer(2));
    copy.find("list")->append(PropertyValue("b"));

    EXPECT_EQ(outer.find("inner")->find("n")->toInteger(), 1);
    EXPECT_EQ(outer.find("list")->size(), 1u);
    EXPECT_EQ(copy.find("list")->size(), 2u);
    EXPECT_NE(copy, outer);
}

TEST(PropertyValue, WrongKindAccessIsHarmless)
{
    PropertyValue text("x");
    EXPECT_EQ(text.find("k"), nullptr);
    EXPECT_FALSE(text.remove("k"));
    text.insert("k", PropertyValue::integer(1)); // not a dictionary: ignored
    EXPECT_EQ(text, PropertyValue("x"));
    EXPECT_TRUE(std::as_const(text).asDictionary().empty());
    EXPECT_EQ(text.size(), 0u);
    EXPECT_FALSE(text.toBool());
    EXPECT_EQ(PropertyValue::integer(5).toString("none"), "none");
}

TEST(PropertyValue, DebugStringNamesKindsAndTypes)
{
    PropertyValue v = PropertyValue::dictionary();
    v.insert("JobType", PropertyValue::integer(6, NumberType::SInt32));
    v.insert("Name", PropertyValue("Ä"));
    v.insert("Blob", PropertyValue::data(QByteArray(20, 'z')));
    const QString text = v.debugString();
    EXPECT_TRUE(text.contains("\"JobType\" = 6 (SInt32)")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"Name\" = \"Ä\""));
    EXPECT_TRUE(text.contains("<20 bytes: 7a 7a")) << text.toStdString();
}
