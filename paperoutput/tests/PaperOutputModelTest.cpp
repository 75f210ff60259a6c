// The panel's model with real tickets and the sample printer's PPD: the two
// sync directions, the two-sided precedence, booklet layout and its
// interactions, separators, and tickets whose items have the wrong kinds.
#include "paperoutput/PaperOutputModel.h"
#include "paperoutput/tests/PaperOutputTestSupport.h"
#include "settings/DictionaryAccess.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"

namespace orvan {
namespace {

using testing::Entry;
using testing::PluginBundle;

class PaperOutputModelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QString error;
        PPDSetCurrent(OpenPPDFile(testing::kSamplePpd, &error));
        ASSERT_TRUE(PPDGetCurrent()) << error.toStdString();
        model.load(&PluginBundle(), PPDGetCurrent());
    }
    void TearDown() override { PPDCloseCurrent(); }

    void read() { model.syncFromTicket(ticket, &pageFormat); }
    void write() { ASSERT_EQ(model.syncToTicket(ticket), kNoError); }
    QString ppdChoice(const char* keyword) const
    {
        return ticket.ppdDictionary().find(keyword)->toString();
    }
    QString item(const QString& key) const
    {
        PropertyValue all = PropertyValue::dictionary();
        if (const PropertyValue* value = ticket.value(key))
            all.insert(key, *value);
        return Entry(&all, key);
    }
    std::int32_t shownTwoSided() const
    {
        const auto& popup = model.popup(kTwoSidedControlID);
        return popup.menu.item(popup.selectedItem)->referenceValue;
    }

    PaperOutputModel model;
    Ticket ticket;
    Ticket pageFormat;
};

TEST_F(PaperOutputModelTest, TwoSidedReadsTheFirstOfItsThreeHomes)
{
    const struct
    {
        std::optional<long> finishingDuplex, duplexing;
        const char* ppdChoice;
        std::int32_t expected;
    } rows[] = {
        {3, 2, "DuplexNoTumble", 3},
        {std::nullopt, 2, "DuplexTumble", 2},
        {std::nullopt, std::nullopt, "DuplexTumble", 3},
        {std::nullopt, std::nullopt, nullptr, 1}, // the PPD's default "None"
    };
    for (const auto& row : rows) {
        ticket = Ticket();
        if (row.finishingDuplex)
            ticket.setItem(kPanelClient, kFinishingDuplexKey,
                           PropertyValue::integer(*row.finishingDuplex));
        if (row.duplexing)
            ticket.setItem(kPanelClient, kDuplexingKey, PropertyValue::integer(*row.duplexing));
        if (row.ppdChoice)
            ticket.ppdDictionary().insert(kDuplexKeyword, row.ppdChoice);
        model.record().twoSided = 0;
        read();
        EXPECT_EQ(model.record().twoSided, row.expected);
        EXPECT_EQ(shownTwoSided(), row.expected);
    }
}

TEST_F(PaperOutputModelTest, BookletLayoutForcesTwoSidedAndCopiesTheFrontCover)
{
    ticket.setItem(kPanelClient, kBookletLayoutKey, PropertyValue::boolean(true));
    model.open(ticket);
    EXPECT_EQ(item(kBookletLayoutKey), "false") << "every opening starts with booklet layout off";
    read();
    auto cover = std::make_unique<Cover>();
    cover->setSidesImaged(kCoverPrintedSimplex);
    model.record().frontCover = std::move(cover);
    model.record().bookletSize = 5;

    BookletCreationParams params = BookletParamsFromRecord(model.record());
    params.layout = kBookletLayoutOn;
    params.fold = kBookletFold;
    model.applyBookletCreation(params);
    write();
    for (const QString& key : {kFinishingDuplexKey, kDuplexingKey})
        EXPECT_EQ(item(key), "CFIndex:3") << key.toStdString();
    EXPECT_EQ(ppdChoice("Duplex"), "DuplexTumble");
    EXPECT_EQ(shownTwoSided(), kDuplexLongEdge);
    EXPECT_FALSE(model.popup(kTwoSidedControlID).enabled);
    EXPECT_EQ(item(kBookletLayoutKey), "true");
    EXPECT_EQ(Entry(ticket.dictionary(kJobLevelStockKey), kStockSizeKey), "CFIndex:5");
    EXPECT_EQ(item(kFinishingOptionsKey), "Long:24");
    ASSERT_TRUE(model.record().backCover);
    EXPECT_EQ(*model.record().backCover, *model.record().frontCover);
    EXPECT_TRUE(ticket.containsItem(QStringLiteral("com.orvan.print.SpecialPages.FrontCover")));

    // Any finishing command turns the booklet off again.
    PaperOutputAction action;
    model.handleCommand(kSingleStapleCommand, kSingleStaple, &action);
    write();
    EXPECT_EQ(item(kFinishingDuplexKey), "CFIndex:2");
    EXPECT_TRUE(model.popup(kTwoSidedControlID).enabled);
    EXPECT_EQ(item(kBookletLayoutKey), "false");
    EXPECT_EQ(Entry(ticket.dictionary(kJobLevelStockKey), kStockSizeKey), "absent");
    EXPECT_EQ(item(kFinishingOptionsKey), "Long:4");
    EXPECT_EQ(ppdChoice("StapleLocation"), "SinglePortrait");

    // Leaving a booklet fold through the dialog clears the finishing option.
    params = BookletParamsFromRecord(model.record());
    params.fold = kBookletFoldStaple;
    model.applyBookletCreation(params);
    EXPECT_EQ(testing::Finishing(model.record()),
              "option=24 staples=1/1/1 fold=53 punch=1 layout=2 sides=2");
    params.fold = kFinishingNone;
    model.applyBookletCreation(params);
    EXPECT_EQ(model.record().finishingOption, kFinishingOptionNone);
}

TEST_F(PaperOutputModelTest, ChoosingAJobTypeWithASetupAsksForItsDialog)
{
    const struct
    {
        std::int32_t jobType;
        PaperOutputAction action;
    } rows[] = {
        {kJobTypeNormal, PaperOutputAction::None},
        {kJobTypeSecure, PaperOutputAction::RunSecurePrintSetup},
        {kJobTypeSampleSet, PaperOutputAction::None},
        {kJobTypeDelayed, PaperOutputAction::RunDelayedPrintSetup},
    };
    for (const auto& row : rows) {
        const int item = model.popup(kJobTypeControlID).menu.findReferenceValue(row.jobType);
        ASSERT_GT(item, 0) << row.jobType;
        PaperOutputAction action = PaperOutputAction::RunCoversDialog;
        EXPECT_EQ(model.handleControlHit(kJobTypeControlID, item, &action), kEventNotHandled);
        EXPECT_EQ(action, row.action) << row.jobType;
        EXPECT_EQ(model.setupEnabled(), row.action != PaperOutputAction::None);
    }
    PaperOutputAction action;
    EXPECT_EQ(model.handleControlHit(kJobTypeControlID + 100, 1, &action), kEventNotHandled);
    EXPECT_EQ(model.record().jobType, kJobTypeDelayed) << "controls of other panels change nothing";
}

TEST_F(PaperOutputModelTest, SeparatorsTravelWithTransparencyStock)
{
    PaperOutputRecord& record = model.record();
    record.jobLevelStock.setType(kTransparencyMediaType);
    record.separatorOption = kSeparatorBlank;
    record.separatorStock.setColor(2); // Blue
    write();
    EXPECT_EQ(ppdChoice("MediaType"), "Transparency");
    EXPECT_EQ(ppdChoice("MediaColor"), "Clear");
    PaperOutputModel again;
    again.load(&PluginBundle(), PPDGetCurrent());
    again.syncFromTicket(ticket, nullptr);
    EXPECT_TRUE(again.separatorsEnabled());
    EXPECT_EQ(again.record().separatorOption, kSeparatorBlank);
    EXPECT_EQ(again.record().separatorStock, record.separatorStock);
    EXPECT_TRUE(again.stockSummary().endsWith("- Separators: Blank Separators, Blue"))
        << again.stockSummary().toStdString();
}

TEST_F(PaperOutputModelTest, ItemsOfTheWrongKindKeepTheirDefaultsAndTheRestIsRead)
{
    ticket.setItem(kPanelClient, kJobTypeKey, PropertyValue::array());
    ticket.setItem(kPanelClient, kFinishingOptionsKey, QStringLiteral("4"));
    ticket.setItem(kPanelClient, kFinishingDuplexKey, QStringLiteral("3"));
    ticket.setItem(kPanelClient, kDuplexingKey, PropertyValue::integer(3));
    ticket.setItem(kPanelClient, kJobLevelStockKey, QStringLiteral("Letter"));
    ticket.setItem(kPanelClient, kGutterKey, PropertyValue::dictionary());
    ticket.setItem(kPanelClient, kBookletLayoutKey, PropertyValue::integer(1));
    ticket.setItem(kPanelClient, kFaxRecipientListKey, PropertyValue::dictionary());
    ticket.setItem(kPanelClient, kSeparatorOptionKey, PropertyValue::integer(9));
    ticket.setItem(kPanelClient, kFinishingCustomKey, QStringLiteral("Tape the spine"));
    ticket.setItem(kPanelClient, kFinishingOffsetKey, PropertyValue::integer(2));
    read();
    const PaperOutputRecord& record = model.record();
    EXPECT_EQ(record.jobType, kJobTypeNormal);
    EXPECT_EQ(record.finishingOption, kFinishingOptionNone);
    EXPECT_EQ(record.twoSided, kDuplexShortEdge);
    EXPECT_EQ(record.jobLevelStock.size(), kLetterPageSize);
    EXPECT_EQ(record.gutter, 0);
    EXPECT_FALSE(record.bookletLayoutOn());
    EXPECT_TRUE(record.faxRecipientList.isNull());
    EXPECT_EQ(record.separatorOption, kSeparatorNone);
    EXPECT_EQ(record.finishingCustom, "Tape the spine");
    EXPECT_EQ(record.offset, 2);

    write();
    EXPECT_EQ(Entry(ticket.dictionary(kJobTypeKey), kJobTypeValueKey), "SInt32:1");
    for (const auto& [key, expected] :
         {std::pair{kFinishingOptionsKey, "Long:0"}, std::pair{kFinishingDuplexKey, "CFIndex:3"},
          std::pair{kGutterKey, "CFIndex:0"}, std::pair{kFinishingOffsetKey, "SInt32:2"},
          std::pair{kFinishingSlipSheetKey, "SInt32:0"},
          std::pair{kFinishingBindValueKey, "SInt32:0"},
          std::pair{kFinishingOffsetPagesPerSubsetKey, "absent"}})
        EXPECT_EQ(item(key), expected) << key.toStdString();
}

} // namespace
} // namespace orvan
