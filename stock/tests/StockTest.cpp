#include "stock/Stock.h"

#include "settings/DictionaryAccess.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace orvan;

namespace {

QStringList keysOf(const PropertyValue& dictionary)
{
    QStringList keys;
    for (const auto& [key, value] : dictionary.asDictionary())
        keys << key;
    return keys;
}

PropertyValue dictionaryOf(std::initializer_list<std::pair<const char*, long>> numbers)
{
    PropertyValue dictionary = PropertyValue::dictionary();
    for (const auto& [key, value] : numbers)
        WriteTicketValue(&dictionary, key, value);
    return dictionary;
}

long numberAt(const PropertyValue& dictionary, const char* key)
{
    long value = -1;
    EXPECT_TRUE(GetCFIndexFromCFDictionary(&dictionary, key, &value)) << key;
    return value;
}

// A stock with every field set to something other than its default.
Stock fullStock()
{
    Stock stock;
    stock.setWidth(2100);
    stock.setLength(2970);
    stock.setType(kNamedTabMediaType);
    stock.setCustomType("Index tabs");
    stock.setColor(kCustomMediaColor);
    stock.setCustomColor("Sea green");
    stock.setModulus(5);
    stock.setPunched(2);
    stock.setWeight(120);
    stock.setDescription("Heavy dividers");
    stock.setSidesCoated(2);
    stock.setCoatingType(3);
    stock.setFinish(4);
    stock.setGrain(1);
    stock.setCustomName("Dividers");
    stock.setCustomNameOnly(true);
    stock.setComment("Order more in May");
    stock.setSource(7);
    return stock;
}

} // namespace

TEST(StockDefaults, ConstructorsDifferInColourOnly)
{
    const Stock made;
    const Stock read(nullptr);
    EXPECT_EQ(made.color(), kWhiteMediaColor);
    EXPECT_EQ(read.color(), kUnset);
    const PropertyValue empty = PropertyValue::dictionary();
    EXPECT_EQ(Stock(&empty).color(), kUnset);
    for (const Stock* stock : {&made, &read}) {
        EXPECT_EQ(stock->size(), kUnset);
        EXPECT_EQ(stock->type(), kUnset);
        EXPECT_EQ(stock->coatingType(), 1);
        EXPECT_EQ(stock->sidesCoated(), kUnset);
        EXPECT_FALSE(stock->customNameOnly());
        EXPECT_TRUE(stock->customName().isEmpty());
    }
    EXPECT_FALSE(made == read);
}

TEST(StockSetters, CustomDimensionsAndSizeAreCoupled)
{
    Stock stock;
    stock.setSize(kLetterPageSize);
    stock.setWidth(2100);
    EXPECT_EQ(stock.size(), kCustomPageSize);
    EXPECT_EQ(stock.width(), 2100);
    stock.setLength(2970);
    stock.setSize(kCustomPageSize); // re-choosing Custom keeps the dimensions
    EXPECT_EQ(stock.width(), 2100);
    EXPECT_EQ(stock.length(), 2970);
    stock.setSize(4);
    EXPECT_EQ(stock.width(), kUnset);
    EXPECT_EQ(stock.length(), kUnset);
    stock.setWidth(kUnset); // clearing a dimension leaves the size alone
    EXPECT_EQ(stock.size(), 4);
}

TEST(StockSetters, TransparencyForcesClearOnlyWhenTypeIsSet)
{
    Stock stock;
    stock.setColor(2);
    stock.setType(kTransparencyMediaType);
    EXPECT_EQ(stock.color(), kClearMediaColor);
    stock.setColor(2); // a blue transparency is allowed afterwards
    EXPECT_EQ(stock.color(), 2);
    EXPECT_EQ(stock.type(), kTransparencyMediaType);
}

TEST(StockCopy, GoesThroughTheSetters)
{
    const Stock full = fullStock();
    Stock copy(full);
    EXPECT_EQ(copy, full);
    EXPECT_EQ(copy.width(), 2100);
    EXPECT_EQ(copy.size(), kCustomPageSize);

    // Colour is copied before type, so a blue transparency copies as Clear.
    Stock blueFilm;
    blueFilm.setType(kTransparencyMediaType);
    blueFilm.setColor(2);
    Stock assigned;
    assigned = blueFilm;
    EXPECT_EQ(assigned.color(), kClearMediaColor);
    EXPECT_EQ(Stock(blueFilm).color(), kClearMediaColor);
    EXPECT_FALSE(assigned == blueFilm);

    Stock& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.type(), kTransparencyMediaType);
}

TEST(StockTicket, DefaultStockWritesOnlyItsColour)
{
    const PropertyValue dictionary = Stock().asTicket();
    EXPECT_EQ(keysOf(dictionary), QStringList{"Color"});
    EXPECT_EQ(numberAt(dictionary, "Color"), 1);
    EXPECT_EQ(dictionary.find("Color")->numberType(), NumberType::CFIndex);
    EXPECT_EQ(Stock(nullptr).asTicket().size(), 0u);
}

TEST(StockTicket, FullStockWritesEveryKeyWithItsOwnSpelling)
{
    const PropertyValue dictionary = fullStock().asTicket();
    QStringList expected{"Size",        "Width",          "Length",        "Type",   "CustomType",
                         "Modulus",     "Color",          "CustomColor",   "Weight", "Punched",
                         "Description", "SidesCoated",    "kCoatingType",  "Finish", "kGrain",
                         "CustomName",  "CustomNameOnly", "CustomComment", "Source"};
    QStringList keys = keysOf(dictionary);
    expected.sort();
    keys.sort();
    EXPECT_EQ(keys, expected);
    EXPECT_EQ(numberAt(dictionary, "kCoatingType"), 3);
    EXPECT_EQ(numberAt(dictionary, "kGrain"), 1);
    EXPECT_EQ(dictionary.find("CustomComment")->toString(), "Order more in May");
    EXPECT_EQ(dictionary.find("CustomNameOnly")->toBool(), true);
    EXPECT_EQ(Stock(&dictionary), fullStock());
}

TEST(StockTicket, DimensionsTravelOnlyWithACustomSize)
{
    Stock custom;
    custom.setWidth(1000);
    custom.setLength(1500);
    const PropertyValue written = custom.asTicket();
    EXPECT_EQ(numberAt(written, "Width"), 1000);
    EXPECT_EQ(numberAt(written, "Length"), 1500);

    // A dictionary that carries dimensions beside a named size loses them.
    const PropertyValue letter = dictionaryOf({{"Size", 1}, {"Width", 1000}, {"Length", 1500}});
    const Stock read(&letter);
    EXPECT_EQ(read.width(), kUnset);
    EXPECT_EQ(read.length(), kUnset);
    EXPECT_FALSE(read.asTicket().contains("Width"));

    // Without "Size" nothing is read either, even with dimensions present.
    const PropertyValue noSize = dictionaryOf({{"Width", 1000}});
    EXPECT_EQ(Stock(&noSize).width(), kUnset);
}

TEST(StockTicket, CoatingTypeTravelsWithSidesCoated)
{
    Stock stock;
    stock.setCoatingType(kUnset);
    stock.setSidesCoated(1);
    const PropertyValue written = stock.asTicket();
    EXPECT_EQ(numberAt(written, "kCoatingType"), kUnset); // written whatever it holds

    stock.setSidesCoated(kUnset);
    stock.setCoatingType(4);
    EXPECT_FALSE(stock.asTicket().contains("kCoatingType"));

    // Read back only beside "SidesCoated".
    const PropertyValue alone = dictionaryOf({{"kCoatingType", 4}});
    EXPECT_EQ(Stock(&alone).coatingType(), 1);
    const PropertyValue both = dictionaryOf({{"SidesCoated", 2}, {"kCoatingType", 4}});
    EXPECT_EQ(Stock(&both).coatingType(), 4);
}

TEST(StockTicket, ModulusIsWrittenAlwaysButReadOnlyForTabTypes)
{
    Stock tabStock;
    tabStock.setType(24);
    tabStock.setModulus(5);
    EXPECT_EQ(numberAt(tabStock.asTicket(), "Modulus"), 5);

    struct Case
    {
        long type;
        std::int32_t modulus;
    };
    for (const Case& c : {Case{24, kUnset}, Case{33, kUnset}, Case{1, kUnset},
                          Case{kPrecutTabMediaType, 5}, Case{kNamedTabMediaType, 5}}) {
        const PropertyValue dictionary = dictionaryOf({{"Type", c.type}, {"Modulus", 5}});
        EXPECT_EQ(Stock(&dictionary).modulus(), c.modulus) << "type " << c.type;
    }
}

TEST(StockTicket, ReadingBypassesTheCoupledSetters)
{
    const PropertyValue film = dictionaryOf({{"Type", kTransparencyMediaType}});
    EXPECT_EQ(Stock(&film).color(), kUnset);
    const PropertyValue blueFilm = dictionaryOf({{"Type", kTransparencyMediaType}, {"Color", 2}});
    EXPECT_EQ(Stock(&blueFilm).color(), 2);
}

TEST(StockTicket, MalformedValuesAreIgnored)
{
    PropertyValue dictionary = PropertyValue::dictionary();
    dictionary.insert("Size", PropertyValue("A4"));
    dictionary.insert("Type", PropertyValue::integer(1LL << 40, NumberType::SInt64));
    dictionary.insert("CustomName", PropertyValue::integer(3));
    dictionary.insert("CustomNameOnly", PropertyValue::integer(1));
    WriteTicketValue(&dictionary, "Weight", 90);
    const Stock stock(&dictionary);
    EXPECT_EQ(stock.size(), kUnset);
    EXPECT_EQ(stock.type(), kUnset);
    EXPECT_TRUE(stock.customName().isEmpty());
    EXPECT_FALSE(stock.customNameOnly());
    EXPECT_EQ(stock.weight(), 90);
    const PropertyValue notADictionary("Letter");
    EXPECT_EQ(Stock(&notADictionary).color(), kUnset);
}

TEST(StockEquality, StringsIgnoreCaseAndEveryFieldCounts)
{
    const Stock base = fullStock();
    EXPECT_EQ(base, base);

    Stock differentCase = base;
    differentCase.setCustomType("INDEX TABS");
    differentCase.setComment("order MORE in may");
    EXPECT_EQ(differentCase, base);

    using Change = void (*)(Stock&);
    const Change changes[] = {
        [](Stock& s) { s.setSize(4); },
        [](Stock& s) { s.setWidth(2000); },
        [](Stock& s) { s.setColor(3); },
        [](Stock& s) { s.setModulus(kUnset); },
        [](Stock& s) { s.setPunched(kUnset); },
        [](Stock& s) { s.setCoatingType(1); },
        [](Stock& s) { s.setGrain(2); },
        [](Stock& s) { s.setCustomNameOnly(false); },
        [](Stock& s) { s.setDescription("Light dividers"); },
        [](Stock& s) { s.setCustomName(""); },
        [](Stock& s) { s.setSource(kUnset); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        Stock changed = base;
        changes[i](changed);
        EXPECT_FALSE(changed == base) << "change " << i;
    }
}

TEST(StockDefaults, DefaultStockPerContext)
{
    Stock job = fullStock();
    DefaultStock(job, JobContext::Job);
    EXPECT_EQ(job.size(), kLetterPageSize);
    EXPECT_EQ(job.width(), kUnset);
    EXPECT_EQ(job.color(), kWhiteMediaColor);
    EXPECT_EQ(job.type(), kStandardMediaType);

    Stock cover = fullStock();
    DefaultStock(cover, JobContext::Covers);
    EXPECT_EQ(cover.size(), kUnset);
    EXPECT_EQ(cover.width(), kUnset);
    EXPECT_EQ(cover.length(), kUnset);
    EXPECT_EQ(cover.color(), kUnset);
    EXPECT_EQ(cover.type(), kUnset);

    for (const Stock* stock : {&job, &cover}) {
        EXPECT_EQ(stock->punched(), kUnset);
        EXPECT_EQ(stock->weight(), kUnset);
        EXPECT_EQ(stock->modulus(), kUnset);
        EXPECT_EQ(stock->sidesCoated(), kUnset);
        EXPECT_TRUE(stock->customType().isEmpty());
        EXPECT_TRUE(stock->customColor().isEmpty());
        EXPECT_TRUE(stock->description().isEmpty());
        EXPECT_TRUE(stock->customName().isEmpty());
        EXPECT_FALSE(stock->customNameOnly());
        // Kept as they were.
        EXPECT_EQ(stock->coatingType(), 3);
        EXPECT_EQ(stock->finish(), 4);
        EXPECT_EQ(stock->grain(), 1);
        EXPECT_EQ(stock->comment(), "Order more in May");
        EXPECT_EQ(stock->source(), 7);
    }
}
