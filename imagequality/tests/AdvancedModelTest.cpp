// The Advanced model: the booklet-order and face-down/face-up rules that write
// one thing and read back another, the PPD choices, events and product info.
#include "imagequality/AdvancedModel.h"
#include "imagequality/ProductInfo.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/SettingMap.h"
#include "settings/Ticket.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvan {
namespace {

using testing::PpdChoice;
using testing::SetPpdChoice;

constexpr std::int32_t kQujn = static_cast<std::int32_t>(FourCharCode("Qujn"));

class AdvancedModelTest : public ::testing::Test
{
protected:
    void SetUp() override { model.load(&testing::PluginBundle(), ppd.get()); }

    QString shownText(std::int32_t controlID) const
    {
        const AdvancedModel::Popup& popup = model.popup(controlID);
        const MenuItem* item = popup.menu.item(popup.selectedItem);
        return item ? item->text : QString();
    }
    void choose(std::int32_t controlID, int item)
    {
        EXPECT_EQ(model.handleControlHit(controlID, item, nullptr), kEventNotHandled);
    }

    testing::CurrentPpd ppd;
    AdvancedModel model;
    PrintSession session;
};

TEST_F(AdvancedModelTest, FaceDownWritesTrueWhichReadsBackAsFaceUp)
{
    choose(kOutputOptionsControlID, 1);
    EXPECT_EQ(model.outputOption(), 1); // the item number, not the item's value 0
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"), "True");
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kOutputOptionsControlID), "Face Up");

    // Face Up (item 2) has no choice: the ticket keeps what it has.
    SetPpdChoice(session, "QVOutputOption", "False");
    choose(kOutputOptionsControlID, 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"), "False");
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kOutputOptionsControlID), "Face Down");
}

TEST_F(AdvancedModelTest, BookletOrderWritesQujnAndReadsTheFirstItemOrKeepsTheSelection)
{
    // No item in the ticket: 2, which no item carries, so the choice stays.
    choose(kBookletImageOrderControlID, 2);
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(model.bookletImageOrder(), kDefaultBookletImageOrder);
    EXPECT_EQ(shownText(kBookletImageOrderControlID), "Left to Right");
    ASSERT_EQ(model.sync(&session, false), kNoError);
    const TicketItem* item = session.printSettings().item(kBookletLayoutOrderKey);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->value, PropertyValue::integer(2));
    EXPECT_EQ(item->value.numberType(), NumberType::CFIndex);
    EXPECT_EQ(item->client, kPanelClient);

    // Either item writes 'Qujn', which reads back as the first item.
    choose(kBookletImageOrderControlID, 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(session.printSettings().integer(kBookletLayoutOrderKey), kQujn);
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kBookletImageOrderControlID), "Right to Left");
}

TEST_F(AdvancedModelTest, BannerAndOffsetComeBackUnchanged)
{
    SetPpdChoice(session, "JCLBanner", "True");
    SetPpdChoice(session, "Jog", "EndOfSet");
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kBannerSheetControlID) + "|" + shownText(kRequestOffsetControlID),
              "On|Offset Each Set");
    session.printSettings().ppdDictionary() = PropertyValue::dictionary();
    choose(kRequestOffsetControlID, 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "JCLBanner"), "True");
    EXPECT_EQ(PpdChoice(session, "Jog"), "None");
}

TEST_F(AdvancedModelTest, EventsPassOnAndOnlyAboutAsksForADialog)
{
    AdvancedAction action = AdvancedAction::None;
    EXPECT_EQ(model.handleControlHit(kAboutControlID, 0, &action), kEventNotHandled);
    EXPECT_EQ(action, AdvancedAction::RunAboutDialog);
    EXPECT_EQ(model.handleControlHit(kBannerSheetControlID, 3, &action), kEventNotHandled);
    EXPECT_EQ(action, AdvancedAction::None);
    EXPECT_EQ(model.bannerSheet(), -1); // an item the pop-up lacks changes nothing
    EXPECT_EQ(model.sync(nullptr, true), kSyncMissingContext);
}

} // namespace
} // namespace orvan
