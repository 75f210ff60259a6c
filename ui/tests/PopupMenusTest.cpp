// Pop-up buttons and menus filled from setting maps and input histories.
#include "ui/PopupMenus.h"

#include "printerdesc/PpdFile.h"
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

inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

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

class PopupMenusTest : public ::testing::Test
{
protected:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8()); }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    // The items as "text value command" (the command's last three letters).
    static QString items(const QComboBox& popup)
    {
        QStringList rows;
        for (int i = 0; i < popup.count(); ++i) {
            const std::int32_t value = PopupButtonItemTicketValue(&popup, i);
            const std::uint32_t command = PopupButtonItemCommand(&popup, i);
            rows << popup.itemText(i) + ' ' + (value == kUnset ? "unset" : QString::number(value)) +
                        ' ' +
                        (command == kChooseCommand    ? "cho"
                         : command == kHistoryCommand ? "his"
                                                      : QString::number(command));
        }
        return rows.join(", ");
    }

    QTemporaryDir m_dir;
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

TEST_F(PopupMenusTest, PopupsMirrorTheMapWithValuesCommandsAndHistories)
{
    PropertyValue file = PropertyValue::dictionary();
    file.insert("Names", PropertyArray{"A", PropertyValue::integer(5), "B"});
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));
    // Map rows, job context, history key and the row each entry follows,
    // command override; the count (with the gated-out row), the items.
    const struct
    {
        int context;
        const char* history;
        std::uint32_t command;
        int count;
        const char* items;
    } cases[] = {
        // clang-format off
        {2, nullptr, 0, 5, "Printer Default 1 cho,  -5 0, STRING NOT FOUND 4 0, Use Job Setting unset 0"},
        // The override replaces every row's command; the default row at context 0.
        {0, nullptr, kHistoryCommand, 5,
         "Printer Default 1 his,  -5 his, STRING NOT FOUND 4 his, Printer Default unset his"},
        // History entries after their positions; only text entries count.
        {0, "Names", 0, 7,
         "Printer Default 1 cho, A 0 his,  -5 0, B 0 his, STRING NOT FOUND 4 0, Printer Default unset 0"},
        {0, "None", 0, 5, "Printer Default 1 cho,  -5 0, STRING NOT FOUND 4 0, Printer Default unset 0"},
        // clang-format on
    };
    for (const auto& c : cases) {
        QComboBox popup;
        popup.addItem("left over");
        const int count =
            c.history
                ? PopulatePopupButtonFromMapAndHistory(&m_bundle, &popup, kMenuMap, c.context,
                                                       c.history, 1, kHistoryCommand, 0)
                : PopulatePopupButtonFromMap(&m_bundle, &popup, kMenuMap, c.context, c.command);
        EXPECT_EQ(count, c.count);
        EXPECT_EQ(PopupButtonMaximum(&popup), c.count);
        EXPECT_EQ(MenuSourceMap(&popup), kMenuMap);
        EXPECT_EQ(items(popup), c.items);
        if (!c.history) // the separator
            EXPECT_FALSE(popup.model()->flags(popup.model()->index(1, 0)) & Qt::ItemIsSelectable);
    }
    QComboBox popup;
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
    QComboBox empty;
    EXPECT_EQ(GetPopupButtonTicketValue(&empty), 0);
}

TEST_F(PopupMenusTest, MenuActionsAreAppendedWithValueAndCommand)
{
    QMenu menu;
    menu.addAction("kept");
    EXPECT_EQ(PopulateMenuFromMap(&m_bundle, &menu, kMenuMap, 0, 0), 5);
    EXPECT_EQ(MenuSourceMap(&menu), kMenuMap);
    QStringList actions;
    for (const QAction* action : menu.actions()) {
        const MenuActionData data = MenuActionDataOf(action);
        actions << (action->isSeparator() ? "-" : action->text()) + ' ' +
                       QString::number(data.ticketValue) +
                       (data.commandId == kChooseCommand ? " cho" : "");
    }
    EXPECT_EQ(actions, QStringList({"kept 0", "Printer Default 1 cho", "- -5", "STRING NOT FOUND 4",
                                    "Printer Default " + QString::number(kUnset)}));
}

} // namespace
