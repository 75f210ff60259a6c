// The Advanced panel's model: its menus, control events and the two sync
// directions, including the booklet-order and face-down/face-up rules that
// write one thing and read back another.
#include "imagequality/AdvancedModel.h"
#include "imagequality/ProductInfo.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/SettingMap.h"
#include "settings/Ticket.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvan {
namespace {

using testing::CurrentPpd;
using testing::PpdChoice;
using testing::SetPpdChoice;

constexpr std::int32_t kQujn = static_cast<std::int32_t>(FourCharCode("Qujn"));

class AdvancedModelTest : public ::testing::Test
{
protected:
    void SetUp() override { model.load(&testing::PluginBundle(), ppd.get()); }

    int shown(std::int32_t controlID) const { return model.popup(controlID).selectedItem; }
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

    CurrentPpd ppd{testing::SamplePpdPath()};
    AdvancedModel model;
    PrintSession session;
};

TEST_F(AdvancedModelTest, MenusComeFromTheirMapsAndThePpd)
{
    const auto texts = [this](std::int32_t id) {
        QStringList list;
        for (const MenuItem& item : model.popup(id).menu.items())
            list << QStringLiteral("%1=%2").arg(item.text).arg(item.referenceValue);
        return list;
    };
    EXPECT_EQ(texts(kBookletImageOrderControlID),
              QStringList({QStringLiteral("Right to Left=%1").arg(kQujn),
                           QStringLiteral("Left to Right=%1").arg(kQujn)}));
    EXPECT_EQ(texts(kOutputOptionsControlID),
              QStringList({QStringLiteral("Face Down=0"), QStringLiteral("Face Up=1")}));
    EXPECT_EQ(texts(kBannerSheetControlID),
              QStringList({QStringLiteral("On=1"), QStringLiteral("Off=0")}));
    EXPECT_EQ(texts(kRequestOffsetControlID),
              QStringList({QStringLiteral("Offset Each Set=1"), QStringLiteral("Off=0")}));
    for (const std::int32_t id : {kBookletImageOrderControlID, kOutputOptionsControlID,
                                  kBannerSheetControlID, kRequestOffsetControlID})
        EXPECT_EQ(shown(id), 1) << id;
    EXPECT_TRUE(model.popup(kAboutControlID).menu.isEmpty());
}

TEST_F(AdvancedModelTest, ChoosingFaceDownWritesTrueWhichReadsBackAsFaceUp)
{
    choose(kOutputOptionsControlID, 1);
    EXPECT_EQ(model.outputOption(), 1); // the item number, not the item's value 0
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"), QStringLiteral("True"));

    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kOutputOptionsControlID), QStringLiteral("Face Up"));
    EXPECT_EQ(model.outputOption(), 1);
}

TEST_F(AdvancedModelTest, ChoosingFaceUpLeavesTheTicketsChoiceAlone)
{
    choose(kOutputOptionsControlID, 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_FALSE(
        session.printSettings().ppdDictionary().contains(QStringLiteral("QVOutputOption")));

    SetPpdChoice(session, "QVOutputOption", "False");
    choose(kOutputOptionsControlID, 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"), QStringLiteral("False"));

    // "False" reads as 0, which shows "Face Down".
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kOutputOptionsControlID), QStringLiteral("Face Down"));
}

TEST_F(AdvancedModelTest, BookletOrderDefaultsToTwoWhichKeepsTheSelection)
{
    choose(kBookletImageOrderControlID, 2);
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(model.bookletImageOrder(), kDefaultBookletImageOrder);
    EXPECT_EQ(shownText(kBookletImageOrderControlID), QStringLiteral("Left to Right"));

    ASSERT_EQ(model.sync(&session, false), kNoError);
    const TicketItem* item = session.printSettings().item(kBookletLayoutOrderKey);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->value, PropertyValue::integer(2));
    EXPECT_EQ(item->value.numberType(), NumberType::CFIndex);
    EXPECT_EQ(item->client, kPanelClient);
    EXPECT_FALSE(item->locked);
}

TEST_F(AdvancedModelTest, EveryBookletOrderItemWritesQujnAndReadsAsTheFirstItem)
{
    choose(kBookletImageOrderControlID, 2);
    EXPECT_EQ(model.bookletImageOrder(), kQujn);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(session.printSettings().integer(kBookletLayoutOrderKey), kQujn);

    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shown(kBookletImageOrderControlID), 1);
    EXPECT_EQ(shownText(kBookletImageOrderControlID), QStringLiteral("Right to Left"));

    // A stored value no item carries is kept as it is and selects nothing new.
    session.printSettings().setItem(kPanelClient, kBookletLayoutOrderKey,
                                    PropertyValue::integer(7));
    choose(kBookletImageOrderControlID, 2);
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shown(kBookletImageOrderControlID), 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(session.printSettings().integer(kBookletLayoutOrderKey), 7);
}

TEST_F(AdvancedModelTest, BannerAndOffsetComeBackUnchanged)
{
    SetPpdChoice(session, "JCLBanner", "True");
    SetPpdChoice(session, "Jog", "EndOfSet");
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(shownText(kBannerSheetControlID), QStringLiteral("On"));
    EXPECT_EQ(shownText(kRequestOffsetControlID), QStringLiteral("Offset Each Set"));
    session.printSettings().ppdDictionary() = PropertyValue::dictionary();
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "JCLBanner"), QStringLiteral("True"));
    EXPECT_EQ(PpdChoice(session, "Jog"), QStringLiteral("EndOfSet"));

    // Chosen items write their values' choices.
    choose(kBannerSheetControlID, 2);
    choose(kRequestOffsetControlID, 2);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "JCLBanner"), QStringLiteral("False"));
    EXPECT_EQ(PpdChoice(session, "Jog"), QStringLiteral("None"));
}

TEST(AdvancedModelDefaults, WithoutTicketChoicesThePpdDefaultsAreRead)
{
    CurrentPpd other(testing::TestPpdPath("no-resolution.ppd"));
    PrintSession session;
    AdvancedModel small;
    small.load(&testing::PluginBundle(), other.get());
    EXPECT_TRUE(small.popup(kBannerSheetControlID).menu.isEmpty()); // no JCLBanner
    ASSERT_EQ(small.sync(&session, true), kNoError);
    EXPECT_EQ(small.outputOption(), 1); // default True
    EXPECT_EQ(small.popup(kOutputOptionsControlID).selectedItem, 2);
    EXPECT_EQ(small.requestOffset(), 1); // default EndOfSet
    EXPECT_EQ(small.bannerSheet(), -1);  // no option, no default: unchanged
    ASSERT_EQ(small.sync(&session, false), kNoError);
    EXPECT_FALSE(session.printSettings().ppdDictionary().contains(QStringLiteral("JCLBanner")));
    EXPECT_EQ(PpdChoice(session, "Jog"), QStringLiteral("EndOfSet"));
}

TEST_F(AdvancedModelTest, EventsPassOnAndOnlyAboutAsksForADialog)
{
    AdvancedAction action = AdvancedAction::RunAboutDialog;
    EXPECT_EQ(model.handleControlHit(kBannerSheetControlID, 1, &action), kEventNotHandled);
    EXPECT_EQ(action, AdvancedAction::None);
    EXPECT_EQ(model.handleControlHit(kAboutControlID, 0, &action), kEventNotHandled);
    EXPECT_EQ(action, AdvancedAction::RunAboutDialog);
    EXPECT_EQ(model.handleControlHit(999, 1, &action), kEventNotHandled);
    EXPECT_EQ(action, AdvancedAction::None);

    // An item the pop-up does not have changes nothing.
    const std::int32_t before = model.bannerSheet();
    choose(kBannerSheetControlID, 3);
    choose(kBannerSheetControlID, 0);
    EXPECT_EQ(model.bannerSheet(), before);
    EXPECT_EQ(shown(kBannerSheetControlID), 1);
}

TEST_F(AdvancedModelTest, SyncNeedsASession)
{
    EXPECT_EQ(model.sync(nullptr, false), kSyncMissingContext);
    EXPECT_EQ(model.sync(nullptr, true), kSyncMissingContext);
}

TEST_F(AdvancedModelTest, SummaryShowsWhatEachPopupShows)
{
    SetPpdChoice(session, "QVOutputOption", "True");
    SetPpdChoice(session, "JCLBanner", "True");
    ASSERT_EQ(model.sync(&session, true), kNoError);
    PropertyValue titles, values;
    model.appendSummary(&testing::PluginBundle(), &titles, &values);
    EXPECT_EQ(testing::Strings(titles),
              QStringList({QStringLiteral("Booklet Image Order"), QStringLiteral("Output Options"),
                           QStringLiteral("Banner Sheet"), QStringLiteral("Request Offset")}));
    EXPECT_EQ(testing::Strings(values),
              QStringList({QStringLiteral("Right to Left"), QStringLiteral("Face Up"),
                           QStringLiteral("On"), QStringLiteral("Off")}));
}

// --- About -----------------------------------------------------------------------

TEST(ProductInfo, ComesFromTheBundlesInfoDictionary)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    QFile info(folder.filePath(QStringLiteral("Info.plist")));
    ASSERT_TRUE(info.open(QIODevice::WriteOnly));
    info.write(R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
<key>CFBundleName</key><string>Test Features</string>
<key>CFBundleShortVersionString</key><string>2.1</string>
<key>CFBundleVersion</key><string>77</string>
<key>CFBundleGetInfoString</key><string>not this</string>
</dict></plist>)");
    info.close();
    const Bundle bundle(folder.path());
    const ProductInfo product = ProductInfoFromBundle(&bundle);
    EXPECT_EQ(product.name, QStringLiteral("Test Features"));
    EXPECT_EQ(product.version, QStringLiteral("2.1"));
    EXPECT_EQ(product.build, QStringLiteral("77"));
    // No string tables in this bundle: the built-in formats.
    EXPECT_EQ(ProductVersionLine(&bundle, product), QStringLiteral("Version 2.1 (77)"));
    EXPECT_EQ(ProductAboutTitle(&bundle, product), QStringLiteral("About Test Features"));
    EXPECT_EQ(ProductVersionLine(&testing::PluginBundle(), product),
              QStringLiteral("Version 2.1 (build 77)"));

    EXPECT_TRUE(ProductInfoFromBundle(nullptr).name.isEmpty());
}

} // namespace
} // namespace orvan
