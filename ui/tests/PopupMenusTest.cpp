// Pop-up buttons and menus filled from setting maps, input histories and PPD
// options: the widgets mirror the menu model (whose rules the setting map
// tests pin) with values, commands, separators and the maximum.
#include "ui/PopupMenus.h"

#include "printerdesc/PpdFile.h"
#include "ui/tests/XComboBoxTestSupport.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QSignalSpy>

namespace orvan {
namespace {

constexpr std::uint32_t kChooseCommand = FourCharCode("Qcho");
constexpr std::uint32_t kHistoryCommand = FourCharCode("Qhis");

// Four items from five rows: the closed gate hides a row that still counts.
constexpr _SettingMap kMenuMap[] = {
    {"PrinterDefault", 1, kChooseCommand, nullptr, 0},
    {"-", -5, 0, nullptr, 0},
    {"UseJobSetting", 3, 0, "NoSuchInstalledFeature", 1},
    {"No Such Key", 4, 0, nullptr, 0},
    {"Anything", kUnset, 0, nullptr, 0},
    {nullptr, 0, 0, nullptr, 0},
};

class PopupMenusTest : public testing::XComboBoxFixture
{
protected:
    // The items as "text value command" (the history command as "his").
    static QString items(const QComboBox& popup)
    {
        QStringList rows;
        for (int i = 0; i < popup.count(); ++i) {
            const std::int32_t value = PopupButtonItemTicketValue(&popup, i);
            const std::uint32_t command = PopupButtonItemCommand(&popup, i);
            rows << popup.itemText(i) + ' ' + (value == kUnset ? "unset" : QString::number(value)) +
                        ' ' + (command == kHistoryCommand ? "his" : QString::number(command != 0));
        }
        return rows.join(", ");
    }
};

TEST_F(PopupMenusTest, PopupsMirrorTheMapAndTheHistory)
{
    QComboBox popup;
    popup.addItem("left over");
    EXPECT_EQ(PopulatePopupButtonFromMap(&m_bundle, &popup, kMenuMap, 2, 0), 5);
    EXPECT_EQ(PopupButtonMaximum(&popup), 5);
    EXPECT_EQ(MenuSourceMap(&popup), kMenuMap);
    EXPECT_EQ(items(popup),
              "Printer Default 1 1,  -5 0, STRING NOT FOUND 4 0, Use Job Setting unset 0");
    EXPECT_FALSE(popup.model()->flags(popup.model()->index(1, 0)) & Qt::ItemIsSelectable);

    // History entries after their positions; only text entries count.
    writeHistory("Names", PropertyArray{"A", PropertyValue::integer(5), "B"});
    EXPECT_EQ(PopulatePopupButtonFromMapAndHistory(&m_bundle, &popup, kMenuMap, 0, "Names", 1,
                                                   kHistoryCommand, 0),
              7);
    EXPECT_EQ(PopupButtonMaximum(&popup), 7);
    EXPECT_EQ(items(popup), "Printer Default 1 1, A 0 his,  -5 0, B 0 his, STRING NOT FOUND 4 0, "
                            "Printer Default unset 0");
    EXPECT_EQ(PopupButtonItemCommand(&popup, 9), 0u);
    EXPECT_EQ(PopulatePopupButtonFromMap(&m_bundle, nullptr, kMenuMap, 0, 0), 0);
}

TEST_F(PopupMenusTest, PpdPopupsListTheOptionsChoicesWithTheirValues)
{
    PpdFilePtr ppd = OpenPPDFile(ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd");
    ASSERT_TRUE(ppd);
    QComboBox popup;
    EXPECT_EQ(PPDPopulatePopupWithChoices(&popup, ppd.get(), "Resolution", false), 7);
    EXPECT_EQ(PopupButtonMaximum(&popup), 7);
    EXPECT_EQ(items(popup), "200 x 100 dpi 6 0, 200 x 200 dpi 5 0, 300 dpi 1 0, 600 dpi 2 0, "
                            "1200 x 600 dpi 3 0, 1200 dpi 4 0, 1800 dpi 7 0");
    EXPECT_EQ(PPDPopulatePopupWithChoices(&popup, nullptr, "Resolution", false), 0);
    EXPECT_EQ(popup.count(), 7) << "untouched without a PPD";
}

TEST_F(PopupMenusTest, SelectionByTicketValueLeavesTheSelectionWhenNoItemMatches)
{
    QComboBox popup;
    PopulatePopupButtonFromMap(&m_bundle, &popup, kMenuMap, 0, 0);
    QSignalSpy changes(&popup, &QComboBox::currentIndexChanged);
    EXPECT_TRUE(SetPopupButtonToTicketValue(&popup, 4));
    EXPECT_EQ(popup.currentIndex(), 2);
    EXPECT_EQ(GetPopupButtonTicketValue(&popup), 4);
    EXPECT_FALSE(SetPopupButtonToTicketValue(&popup, 3)); // its row is gated out
    EXPECT_FALSE(SetPopupButtonToTicketValue(&popup, 99));
    EXPECT_EQ(popup.currentIndex(), 2);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(SetPopupButtonToTicketValue(nullptr, 1));
    EXPECT_EQ(GetPopupButtonTicketValue(nullptr), 0);
}

// A menu gets the items appended, with separators and each item's data.
TEST_F(PopupMenusTest, MenuActionsAreAppendedWithValueAndCommand)
{
    QMenu menu;
    menu.addAction("kept");
    EXPECT_EQ(PopulateMenuFromMap(&m_bundle, &menu, kMenuMap, 0, 0), 5);
    EXPECT_EQ(MenuSourceMap(&menu), kMenuMap);
    QStringList actions;
    for (const QAction* action : menu.actions())
        actions << (action->isSeparator() ? "-" : action->text()) + ' ' +
                       QString::number(MenuActionDataOf(action).ticketValue);
    EXPECT_EQ(actions, QStringList({"kept 0", "Printer Default 1", "- -5", "STRING NOT FOUND 4",
                                    "Printer Default " + QString::number(kUnset)}));
    EXPECT_EQ(MenuActionDataOf(menu.actions()[1]).commandId, kChooseCommand);
}

} // namespace
} // namespace orvan
