// The stock record: its coupled setters, its dictionary both ways, equality,
// the per-context defaults, and the choice maps its values come from.
#include "StockTestSupport.h"

using namespace orvan;
using orvan::testing::Flat;
using orvan::testing::Unflat;

namespace {

// Every field set to something other than its default.
const QString kFullStock =
    "Color=10; CustomColor=Sea green; CustomComment=Order more in May; CustomName=Dividers; "
    "CustomNameOnly=true; CustomType=Index tabs; Description=Heavy dividers; Finish=4; "
    "Length=2970; Modulus=5; Punched=2; SidesCoated=2; Size=75; Source=7; Type=6; Weight=120; "
    "Width=2100; kCoatingType=3; kGrain=1";

Stock FullStock()
{
    const PropertyValue dictionary = Unflat(kFullStock);
    return Stock(&dictionary);
}

// A made stock is White, a read one has every attribute unset.
TEST(Stock, ConstructorsDifferInColourOnly)
{
    const Stock made;
    const Stock read(nullptr);
    const PropertyValue empty = PropertyValue::dictionary();
    EXPECT_EQ(made.color(), kWhiteMediaColor);
    EXPECT_EQ(read.color(), kUnset);
    EXPECT_EQ(read.coatingType(), 1);
    EXPECT_EQ(Stock(&empty).color(), kUnset);
    Stock white = read;
    white.setColor(kWhiteMediaColor);
    EXPECT_EQ(white, made); // coatingType 1 in both, all else unset
}

TEST(Stock, CoupledSetters)
{
    Stock stock;
    stock.setSize(kLetterPageSize);
    stock.setWidth(2100);
    EXPECT_EQ(stock.size(), kCustomPageSize);
    stock.setLength(2970);
    stock.setSize(kCustomPageSize); // re-choosing Custom keeps the dimensions
    EXPECT_EQ(std::pair(stock.width(), stock.length()), std::pair(2100, 2970));
    stock.setSize(4);
    EXPECT_EQ(std::pair(stock.width(), stock.length()), std::pair(kUnset, kUnset));
    stock.setWidth(kUnset); // clearing a dimension leaves the size alone
    EXPECT_EQ(stock.size(), 4);

    stock.setColor(2);
    stock.setType(kTransparencyMediaType);
    EXPECT_EQ(stock.color(), kClearMediaColor);
    stock.setColor(2); // a blue transparency is allowed afterwards
    EXPECT_EQ(stock.color(), 2);
}

TEST(Stock, CopiesGoThroughTheSetters)
{
    EXPECT_EQ(Stock(FullStock()), FullStock());
    // Colour is copied before type, so a blue transparency copies as Clear.
    Stock blueFilm;
    blueFilm.setType(kTransparencyMediaType);
    blueFilm.setColor(2);
    Stock assigned;
    assigned = blueFilm;
    EXPECT_EQ(assigned.color(), kClearMediaColor);
    EXPECT_EQ(Stock(blueFilm).color(), kClearMediaColor);
}

TEST(Stock, WritesTheDictionary)
{
    Stock custom;
    custom.setWidth(1000);
    custom.setLength(1500);
    Stock coatedSide;
    coatedSide.setCoatingType(kUnset);
    coatedSide.setSidesCoated(1);
    Stock coatingAlone;
    coatingAlone.setCoatingType(4);
    const PropertyValue letter = Unflat("Size=1; Width=1000; Length=1500");
    const std::pair<Stock, QString> cases[] = {
        {Stock(), "Color=1"},
        {Stock(nullptr), ""},
        {custom, "Color=1; Length=1500; Size=75; Width=1000"},
        // A dictionary that carries dimensions beside a named size loses them.
        {Stock(&letter), "Size=1"},
        // "kCoatingType" goes with "SidesCoated", whatever it holds.
        {coatedSide, "Color=1; SidesCoated=1; kCoatingType=-2147483648"},
        {coatingAlone, "Color=1"},
        {FullStock(), kFullStock},
    };
    for (const auto& [stock, expected] : cases)
        EXPECT_EQ(Flat(stock.asTicket()), expected);
    EXPECT_EQ(Stock().asTicket().find("Color")->numberType(), NumberType::CFIndex);
}

TEST(Stock, ReadsTheDictionaryPastTheCoupledSetters)
{
    PropertyValue malformed = Unflat("Weight=90; Size=A4; CustomName=3; CustomNameOnly=1");
    malformed.insert("Type", PropertyValue::integer(1LL << 40, NumberType::SInt64));
    using Field = std::int32_t (Stock::*)() const;
    const std::tuple<PropertyValue, Field, std::int32_t> cases[] = {
        {Unflat("Width=1000"), &Stock::width, kUnset}, // no "Size", no dimensions
        {Unflat("Size=1; Width=1000"), &Stock::width, kUnset},
        {Unflat("kCoatingType=4"), &Stock::coatingType, 1},
        {Unflat("SidesCoated=2; kCoatingType=4"), &Stock::coatingType, 4},
        // The tab count is read for the pre-cut and the named tab types only.
        {Unflat("Type=24; Modulus=5"), &Stock::modulus, kUnset},
        {Unflat("Type=4; Modulus=5"), &Stock::modulus, 5},
        {Unflat("Type=6; Modulus=5"), &Stock::modulus, 5},
        {Unflat("Type=2"), &Stock::color, kUnset},
        {Unflat("Type=2; Color=2"), &Stock::color, 2},
        {malformed, &Stock::size, kUnset},
        {malformed, &Stock::type, kUnset},
        {malformed, &Stock::weight, 90},
        {PropertyValue("Letter"), &Stock::color, kUnset},
    };
    for (const auto& [dictionary, field, expected] : cases) {
        const Stock stock(&dictionary);
        EXPECT_EQ((stock.*field)(), expected) << dictionary.debugString().toStdString();
    }
    EXPECT_EQ(Flat(Stock(&malformed).asTicket()), "Weight=90");
}

TEST(Stock, EqualityIgnoresCaseAndEveryFieldCounts)
{
    // The full stock with some entries replaced; an empty value removes one.
    const auto changed = [](const QString& changes) {
        PropertyValue dictionary = Unflat(kFullStock);
        const PropertyValue replaced = Unflat(changes);
        for (const auto& [key, value] : replaced.asDictionary())
            value == PropertyValue("") ? void(dictionary.remove(key))
                                       : dictionary.insert(key, value);
        return Stock(&dictionary);
    };
    EXPECT_EQ(FullStock(), FullStock());
    EXPECT_EQ(changed("CustomType=INDEX TABS; CustomComment=order MORE in may"), FullStock());
    for (const char* change :
         {"Size=4", "Width=2000", "Length=3000", "Type=4", "CustomType=Bond", "Color=3",
          "CustomColor=Sky", "Modulus=", "Punched=", "Weight=90", "Description=Light dividers",
          "SidesCoated=1", "kCoatingType=1", "Finish=1", "kGrain=2",
          "CustomName=", "CustomNameOnly=", "CustomComment=Later", "Source="})
        EXPECT_FALSE(changed(change) == FullStock()) << change;
}

TEST(Stock, DefaultStockPerContext)
{
    // Coating type, finish, grain, comment and source are kept.
    for (const auto& [context, expected] :
         {std::pair{JobContext::Job, "Color=1; CustomComment=Order more in May; Finish=4; Size=1; "
                                     "Source=7; Type=1; kGrain=1"},
          {JobContext::Covers, "CustomComment=Order more in May; Finish=4; Source=7; kGrain=1"}}) {
        Stock stock = FullStock();
        DefaultStock(stock, context);
        EXPECT_EQ(Flat(stock.asTicket()), expected);
        EXPECT_EQ(std::tuple(stock.coatingType(), stock.width()), std::tuple(3, kUnset));
    }
}

} // namespace
