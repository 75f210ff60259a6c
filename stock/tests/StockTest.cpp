// The stock record: its coupled setters, its dictionary both ways, equality,
// the per-context defaults, and the choice maps its values come from.
#include "StockTestSupport.h"

#include "settings/SettingMaps.h"

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
    EXPECT_FALSE(made == read);
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
    Stock& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.type(), kTransparencyMediaType);
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
        {Unflat("Type=33; Modulus=5"), &Stock::modulus, kUnset},
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
    const Stock base = FullStock();
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

TEST(Stock, DefaultStockPerContext)
{
    // Coating type, finish, grain, comment and source are kept.
    Stock kept;
    kept.setCoatingType(3);
    kept.setFinish(4);
    kept.setGrain(1);
    kept.setComment("Order more in May");
    kept.setSource(7);
    for (const JobContext context : {JobContext::Job, JobContext::Covers}) {
        Stock stock = FullStock();
        DefaultStock(stock, context);
        Stock expected = kept;
        if (context == JobContext::Job) {
            expected.setSize(kLetterPageSize);
            expected.setType(kStandardMediaType);
        } else {
            expected.setColor(kUnset);
        }
        EXPECT_EQ(Flat(stock.asTicket()), Flat(expected.asTicket()));
        EXPECT_TRUE(stock == expected); // coating type 3 and no dimensions too
    }
}

// The size, type and colour values are the PPD choice maps' ticket values.
TEST(StockTables, RowCountsAndTheCustomColour)
{
    const auto rows = [](const PPDChoiceMap* table) {
        int count = 0;
        while (table[count].choice)
            ++count;
        return count;
    };
    EXPECT_EQ(rows(ppdmaps::_PageSizeMap), 56);
    EXPECT_EQ(rows(ppdmaps::_MediaTypeMap), 43);
    EXPECT_EQ(rows(ppdmaps::_MediaColorMap), 22);
    // The custom colour is no row: it names the stock's customColor string.
    EXPECT_EQ(PPDChoiceForTicketValue("MediaColor", kCustomMediaColor), nullptr);
}

} // namespace
