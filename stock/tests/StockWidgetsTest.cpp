// The stock button, its picture and the stock dialogs, offscreen.
#include "StockTestSupport.h"

#include "stock/AdvancedStockDialog.h"
#include "stock/CustomSizeDialog.h"
#include "stock/StockButton.h"
#include "stock/StockDescriptionDialog.h"
#include "stock/StockIconView.h"
#include "tests/support/WhenShown.h"
#include "ui/Help.h"
#include "ui/PopupMenus.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>

#include <functional>

namespace orvan {
namespace {

template <typename Widget> Widget* Child(const QObject* parent, const char* name)
{
    auto* child = parent->findChild<Widget*>(name);
    EXPECT_TRUE(child) << name;
    return child;
}

using testing::WhenShown;

// Triggers the menu's item for the command and value; false when there is none.
bool Choose(const QMenu* menu, std::uint32_t command, std::int32_t value)
{
    for (QAction* action : menu->actions())
        if (const MenuActionData data = MenuActionDataOf(action);
            !action->menu() && data.commandId == command && data.ticketValue == value) {
            action->trigger();
            return true;
        }
    return false;
}

class StockButtonTest : public testing::SamplePrinterTest
{
protected:
    // A button on a stock with that context's defaults.
    void makeButton(JobContext context)
    {
        DefaultStock(stock, context);
        button = std::make_unique<StockButton>(bundle.get(), context);
        button->setStock(&stock);
    }
    QString summary() const { return button->summaryView()->toPlainText(); }
    const QMenu* submenu(const char* name) const { return Child<QMenu>(button->menu(), name); }

    Stock stock;
    std::unique_ptr<StockButton> button;
};

TEST_F(StockButtonTest, MenuChoicesChangeTheStockItsSummaryAndPicture)
{
    makeButton(JobContext::Covers);
    EXPECT_EQ(summary(), "Use Job Setting");
    QSignalSpy changed(button.get(), &StockButton::stockChanged);
    EXPECT_EQ(submenu("StockColorMenu")->title(), "Other Color");
    ASSERT_TRUE(Choose(submenu("StockColorMenu"), kStockColorCommand, 2)); // Blue
    EXPECT_EQ(stock.color(), 2);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(summary(), "- Blue");
    EXPECT_EQ(button->iconView()->imageNames(), QStringList{"Paper_Plain-Blue.gif"});
    // Transparency turns it Clear, and the picture with it.
    ASSERT_TRUE(Choose(submenu("StockTypeMenu"), kStockTypeCommand, 2));
    EXPECT_EQ(summary(), "- Clear\n- Transparency");
    EXPECT_EQ(button->iconView()->imageNames(), QStringList{"Paper_Plain-Clear.gif"});
    // The inserter, until a size is chosen.
    ASSERT_TRUE(Choose(button->menu(), kStockSourceCommand, kInstalledFeatureSource));
    EXPECT_EQ(summary(), "- Post-Print Inserter");
    ASSERT_TRUE(Choose(submenu("StockSizeMenu"), kStockSizeCommand, 4));
    EXPECT_EQ(stock.source(), kUnset);
    EXPECT_EQ(summary(), "- A4\n- Clear\n- Transparency");
}

TEST_F(StockButtonTest, MenuCommandsOpenTheDialogs)
{
    makeButton(JobContext::Job);
    stock.setCustomName("Green sheets");
    WhenShown("CustomPaperSize", [](QWidget* dialog) {
        static_cast<CustomSizeDialog*>(dialog)->setUnit(PaperSizeUnit::Millimetres);
        Child<QDoubleSpinBox>(dialog, "CustomSizeWidth")->setValue(200);
        Child<QDoubleSpinBox>(dialog, "CustomSizeLength")->setValue(250);
        Child<QPushButton>(dialog, "OKButton")->click();
    });
    ASSERT_TRUE(Choose(submenu("StockSizeMenu"), kStockSizeCommand, kCustomPageSize));
    EXPECT_EQ(testing::Flat(stock.asTicket()), "Color=1; Length=2500; Size=75; Type=1; Width=2000");

    WhenShown("AdvancedStockSelection", [](QWidget* dialog) {
        Child<QLineEdit>(dialog, "StockColorName")->setText("Sea green");
        Child<QPushButton>(dialog, "OKButton")->click();
    });
    ASSERT_TRUE(Choose(button->menu(), kStockAdvancedCommand, 0));
    EXPECT_EQ(summary(), "Color: Sea green\n- Plain");

    ASSERT_TRUE(Choose(button->menu(), kStockDefaultCommand, 0));
    EXPECT_EQ(summary(), "- White\n- Plain");
}

TEST(StockSummaryView, ShowStockSummaryNeedsBundleAndView)
{
    const auto bundle = testing::EnglishPluginBundle();
    QPlainTextEdit view("old");
    Stock stock;
    EXPECT_EQ(ShowStockSummary(nullptr, &view, &stock, JobContext::Job), kBadParameter);
    EXPECT_EQ(ShowStockSummary(bundle.get(), nullptr, &stock, JobContext::Job), kBadParameter);
    EXPECT_EQ(view.toPlainText(), "old");
    EXPECT_EQ(ShowStockSummary(bundle.get(), &view, nullptr, JobContext::Job), kNoError);
    EXPECT_TRUE(view.toPlainText().isEmpty());
    EXPECT_TRUE(view.isReadOnly());
}

TEST(StockIconDrawing, LayersPaintOverTheBase)
{
    const auto bundle = testing::EnglishPluginBundle();
    const auto middle = [&](const QStringList& images, const Bundle* from) {
        return RenderStockIcon(from, images, QSize(48, 48)).pixelColor(24, 24);
    };
    const QStringList blue{"Paper_Plain-Blue.gif"};
    const QColor blueMiddle = middle(blue, bundle.get());
    EXPECT_GT(blueMiddle.blue(), blueMiddle.red() + 40);
    EXPECT_EQ(blueMiddle.alpha(), 255);
    EXPECT_LT(middle({"Paper_Plain-Clear.gif"}, bundle.get()).alpha(), 128)
        << "a transparency lets the page through";
    EXPECT_EQ(middle(blue, nullptr).alpha(), 0);
    const QImage sheet = RenderStockIcon(bundle.get(), blue, QSize(48, 48));
    EXPECT_NE(RenderStockIcon(bundle.get(),
                              blue + QStringList{"Paper_Overlay-LightweightGloss.gif"},
                              QSize(48, 48)),
              sheet)
        << "the gloss overlay is drawn over the sheet";
    EXPECT_EQ(RenderStockIcon(bundle.get(), blue + QStringList{"Nothing.gif"}, QSize(48, 48)),
              sheet)
        << "a missing image leaves its layer out";
}

TEST(CustomSizeDialog, ShowsUnitsAndKeepsUntouchedValuesExact)
{
    const auto bundle = testing::EnglishPluginBundle();
    const CustomPaperSizeLimits limits = CustomPaperSizeLimitsFromPoints(216, 360, 936, 1368);
    CustomSizeDialog dialog(bundle.get(), 2100, 2970, limits, PaperSizeUnit::Inches);
    auto* width = Child<QDoubleSpinBox>(&dialog, "CustomSizeWidth");
    auto* length = Child<QDoubleSpinBox>(&dialog, "CustomSizeLength");
    EXPECT_DOUBLE_EQ(width->value(), 8.3);
    EXPECT_EQ(Child<QLabel>(&dialog, "CustomSizeRange")->text(),
              "Width 3.0 to 13.0, length 5.0 to 19.0 (Inches)");
    dialog.setUnit(PaperSizeUnit::Millimetres);
    EXPECT_DOUBLE_EQ(width->value(), 210.0);
    EXPECT_DOUBLE_EQ(width->minimum(), 77.0);
    EXPECT_EQ(dialog.paperWidth(), 2100) << "showing is not editing";
    length->setValue(300);
    EXPECT_EQ(dialog.paperLength(), 3000);
    dialog.setUnit(PaperSizeUnit::Inches);
    length->setValue(40.0);
    EXPECT_EQ(dialog.paperLength(), 4826) << "held to the printer's maximum";
    EXPECT_EQ(dialog.paperWidth(), 2100);

    // Cancel leaves the size alone.
    std::int32_t shownWidth = 1000, shownLength = 1500;
    WhenShown("CustomPaperSize", [](QWidget* shown) {
        Child<QDoubleSpinBox>(shown, "CustomSizeWidth")->setValue(5);
        Child<QPushButton>(shown, "CancelButton")->click();
    });
    EXPECT_FALSE(RunModalCustomSizeDialog(bundle.get(), shownWidth, shownLength));
    EXPECT_EQ(std::pair(shownWidth, shownLength), std::pair(1000, 1500));
}

TEST(AdvancedStockDialog, EditsTheAttributesAndCancelKeepsThem)
{
    const auto bundle = testing::EnglishPluginBundle();
    Stock stock;
    stock.setFinish(7); // from another program: kept as it is
    AdvancedStockDialog dialog(bundle.get(), stock, JobContext::Covers);
    auto* coating = Child<QComboBox>(&dialog, "StockCoatingType");
    EXPECT_EQ(Child<QComboBox>(&dialog, "StockPunched")->itemText(0), "Use Job Setting");
    EXPECT_FALSE(coating->isEnabled()) << "nothing coated yet";
    SetPopupButtonToTicketValue(Child<QComboBox>(&dialog, "StockSidesCoated"), 3);
    EXPECT_TRUE(coating->isEnabled());
    SetPopupButtonToTicketValue(coating, 2);
    SetPopupButtonToTicketValue(Child<QComboBox>(&dialog, "StockPunched"), 2);
    Child<QSpinBox>(&dialog, "StockWeight")->setValue(160);
    Child<QLineEdit>(&dialog, "StockTypeName")->setText(" Tabs ");
    Child<QSpinBox>(&dialog, "StockTabCount")->setValue(5);
    const AdvancedStockValues values = dialog.values();
    EXPECT_EQ(std::tuple(values.sidesCoated, values.coatingType, values.punched, values.weight,
                         values.finish, values.grain, values.tabCount),
              std::tuple(3, 2, 2, 160, 7, kUnset, 5));
    EXPECT_EQ(values.typeName, "Tabs");

    WhenShown("AdvancedStockSelection", [](QWidget* shown) {
        Child<QSpinBox>(shown, "StockWeight")->setValue(200);
        Child<QPushButton>(shown, "CancelButton")->click();
    });
    EXPECT_FALSE(RunModalAdvancedStockDialog(bundle.get(), stock, JobContext::Covers));
    EXPECT_EQ(stock.weight(), kUnset);
}

TEST(StockDescriptionSetup, NamesAndDescribesTheStockOnOKOnly)
{
    auto bundle = testing::EnglishPluginBundle();
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    stock.setCustomName("Old");
    QUrl helpShown;
    const HelpUrlOpener previous = SetHelpUrlOpener([&helpShown](const QUrl& url) {
        helpShown = url;
        return true;
    });
    WhenShown("StockDescriptionSetup", [](QWidget* dialog) {
        EXPECT_FALSE(Child<QLabel>(dialog, "StockDescriptionSummary")->text().isEmpty());
        EXPECT_EQ(Child<QLineEdit>(dialog, "StockName")->text(), "Old");
        Child<QPushButton>(dialog, "HelpButton")->click();
        Child<QLineEdit>(dialog, "StockName")->setText(" Letterhead blue ");
        Child<QLineEdit>(dialog, "StockDescription")->setText("Printed at the top");
        Child<QPushButton>(dialog, "OKButton")->click();
    });
    ASSERT_TRUE(RunModalStockDescriptionSetup(bundle.get(), stock, JobContext::Job));
    SetHelpUrlOpener(previous);
    EXPECT_EQ(stock.customName(), "Letterhead blue");
    EXPECT_EQ(stock.description(), "Printed at the top");
    EXPECT_TRUE(helpShown.path().endsWith(kStockDescriptionHelpPage))
        << helpShown.toString().toStdString();

    WhenShown("StockDescriptionSetup", [](QWidget* dialog) {
        Child<QLineEdit>(dialog, "StockName")->setText("Other");
        Child<QPushButton>(dialog, "CancelButton")->click();
    });
    EXPECT_FALSE(RunModalStockDescriptionSetup(bundle.get(), stock, JobContext::Job));
    EXPECT_EQ(stock.customName(), "Letterhead blue");
}

} // namespace
} // namespace orvan
