#include "ui/PopupMenus.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/SettingMapAccess.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

constexpr std::uint32_t kChooseCommand = FourCharCode("Qcho");
constexpr std::uint32_t kHistoryCommand = FourCharCode("Qhis");

// Four items from five rows: the closed gate hides a row that still counts.
constexpr _SettingMap kMenuMap[] = {
    {"PrinterDefault", 1, kChooseCommand, nullptr, 0},
    {"-", -5, 0, nullptr, 0},
    {"UseJobSetting", 3, 0, "NoSuchInstalledFeature", 1},
    {"No Such Key", 4, 0, nullptr, 0},
    {"Anything", kUnsetValue, 0, nullptr, 0},
    {nullptr, 0, 0, nullptr, 0},
};

class PopupMenusTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8());
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    QTemporaryDir m_dir;
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

QStringList texts(const QComboBox& popup)
{
    QStringList result;
    for (int i = 0; i < popup.count(); ++i)
        result << popup.itemText(i);
    return result;
}

} // namespace

TEST_F(PopupMenusTest, PopupMirrorsTheMapWithValuesCommandsAndSeparators)
{
    QComboBox popup;
    popup.addItem("left over");
    EXPECT_EQ(PopulatePopupButtonFromMap(&m_bundle, &popup, kMenuMap, 2, 0), 5);
    EXPECT_EQ(PopupButtonMaximum(&popup), 5);
    EXPECT_EQ(MenuSourceMap(&popup), kMenuMap);
    EXPECT_EQ(texts(popup),
              QStringList({"Printer Default", "", "STRING NOT FOUND", "Use Job Setting"}));
    EXPECT_EQ(PopupButtonItemTicketValue(&popup, 0), 1);
    EXPECT_EQ(PopupButtonItemCommand(&popup, 0), kChooseCommand);
    EXPECT_EQ(PopupButtonItemTicketValue(&popup, 1), -5);
    EXPECT_FALSE(popup.model()->flags(popup.model()->index(1, 0)).testFlag(Qt::ItemIsSelectable));
    EXPECT_EQ(PopupButtonItemTicketValue(&popup, 3), kUnsetValue);
    EXPECT_EQ(PopupButtonItemCommand(&popup, 9), 0u);

    // The override replaces every row's command.
    PopulatePopupButtonFromMap(&m_bundle, &popup, kMenuMap, 0, kHistoryCommand);
    EXPECT_EQ(PopupButtonItemCommand(&popup, 0), kHistoryCommand);
    EXPECT_EQ(popup.itemText(3), "Printer Default"); // the default row at job context 0

    EXPECT_EQ(PopulatePopupButtonFromMap(&m_bundle, nullptr, kMenuMap, 0, 0), 0);
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
    QComboBox empty;
    EXPECT_EQ(GetPopupButtonTicketValue(&empty), 0);
}

TEST_F(PopupMenusTest, HistoryEntriesAreInsertedAfterTheirPositions)
{
    PropertyValue file = PropertyValue::dictionary();
    file.insert("Names", PropertyValue(PropertyArray{PropertyValue("A"), PropertyValue::integer(5),
                                                     PropertyValue("B")}));
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));

    QComboBox popup;
    EXPECT_EQ(PopulatePopupButtonFromMapAndHistory(&m_bundle, &popup, kMenuMap, 0, "Names", 1,
                                                   kHistoryCommand, 0),
              7);
    EXPECT_EQ(PopupButtonMaximum(&popup), 7);
    EXPECT_EQ(texts(popup), QStringList({"Printer Default", "A", "", "B", "STRING NOT FOUND",
                                         "Printer Default"}));
    EXPECT_EQ(PopupButtonItemCommand(&popup, 1), kHistoryCommand);
    EXPECT_EQ(PopupButtonItemCommand(&popup, 3), kHistoryCommand);

    // No history under the key: just the map.
    EXPECT_EQ(PopulatePopupButtonFromMapAndHistory(&m_bundle, &popup, kMenuMap, 0, "None", 1,
                                                   kHistoryCommand, 0),
              5);
    EXPECT_EQ(popup.count(), 4);
}

TEST_F(PopupMenusTest, MenuActionsCarryValueAndCommand)
{
    QMenu menu;
    menu.addAction("kept");
    EXPECT_EQ(PopulateMenuFromMap(&m_bundle, &menu, kMenuMap, 0, 0), 5);
    const QList<QAction*> actions = menu.actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_EQ(actions[0]->text(), "kept"); // appended, not replaced
    EXPECT_EQ(MenuActionDataOf(actions[0]).ticketValue, 0);
    EXPECT_EQ(actions[1]->text(), "Printer Default");
    EXPECT_EQ(MenuActionDataOf(actions[1]).ticketValue, 1);
    EXPECT_EQ(MenuActionDataOf(actions[1]).commandId, kChooseCommand);
    EXPECT_TRUE(actions[2]->isSeparator());
    EXPECT_EQ(MenuActionDataOf(actions[3]).ticketValue, 4);
    EXPECT_EQ(MenuSourceMap(&menu), kMenuMap);
}
