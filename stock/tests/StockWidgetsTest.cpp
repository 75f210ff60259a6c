// The stock button, its picture and the stock dialogs, offscreen.
#include "StockTestSupport.h"

#include "stock/AdvancedStockDialog.h"
#include "stock/CustomSizeDialog.h"
#include "stock/StockButton.h"
#include "stock/StockIconView.h"
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

using testing::SamplePrinterTest;

// Runs `step` on the visible top-level widget with that object name once a
// modal dialog's event loop runs; a dialog still open after five seconds is
// rejected so that a failing test cannot hang.
void whenShown(const QString& objectName, std::function<void(QWidget*)> step)
{
    QTimer::singleShot(0, [objectName, step] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == objectName && widget->isVisible()) {
                step(widget);
                return;
            }
        }
        ADD_FAILURE() << "no visible " << objectName.toStdString();
    });
    QTimer::singleShot(5000, [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible())
                dialog->reject();
    });
}

QAction* actionFor(QMenu* menu, std::uint32_t command, std::int32_t value)
{
    for (QAction* action : menu->actions()) {
        const MenuActionData data = MenuActionDataOf(action);
        if (!action->menu() && data.commandId == command && data.ticketValue == value)
            return action;
    }
    return nullptr;
}

QMenu* submenu(const StockButton& button, const char* name)
{
    return button.menu()->findChild<QMenu*>(QString::fromLatin1(name));
}

void click(QWidget* dialog, const char* buttonName)
{
    auto* button = dialog->findChild<QPushButton*>(QString::fromLatin1(buttonName));
    ASSERT_TRUE(button) << buttonName;
    button->click();
}

using StockButtonTest = SamplePrinterTest;

TEST_F(StockButtonTest, ChoosingAColourChangesTheStockAndItsSummary)
{
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    StockButton button(bundle.get(), JobContext::Job);
    button.setStock(&stock);
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("- White\n- Plain"));
    QSignalSpy changed(&button, &StockButton::stockChanged);

    QMenu* colors = submenu(button, "StockColorMenu");
    ASSERT_TRUE(colors);
    EXPECT_EQ(colors->title(), QStringLiteral("Other Color"));
    QAction* blue = actionFor(colors, kStockColorCommand, 2);
    ASSERT_TRUE(blue);
    EXPECT_EQ(blue->text(), QStringLiteral("Blue"));
    blue->trigger();

    EXPECT_EQ(stock.color(), 2);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("- Blue\n- Plain"));
    EXPECT_EQ(button.iconView()->imageNames(), QStringList{QStringLiteral("Paper_Plain-Blue.gif")});

    // Transparency turns it Clear, and the picture with it.
    actionFor(submenu(button, "StockTypeMenu"), kStockTypeCommand, 2)->trigger();
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("- Clear\n- Transparency"));
    EXPECT_EQ(button.iconView()->imageNames(),
              QStringList{QStringLiteral("Paper_Plain-Clear.gif")});
}

TEST_F(StockButtonTest, CoverStockFromTheInserterAndBack)
{
    Stock stock;
    DefaultStock(stock, JobContext::Covers);
    StockButton button(bundle.get(), JobContext::Covers);
    button.setStock(&stock);
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("Use Job Setting"));

    QAction* inserter = actionFor(button.menu(), kStockSourceCommand, kInstalledFeatureSource);
    ASSERT_TRUE(inserter);
    inserter->trigger();
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("- Post-Print Inserter"));

    actionFor(submenu(button, "StockSizeMenu"), kStockSizeCommand, 4)->trigger();
    EXPECT_EQ(stock.source(), kUnset);
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("- A4"));

    ASSERT_TRUE(actionFor(submenu(button, "StockColorMenu"), kStockColorCommand, kUnset))
        << "Use Job Setting";
    EXPECT_FALSE(actionFor(submenu(button, "StockColorMenu"), kStockColorCommand, 22));
}

TEST_F(StockButtonTest, CustomSizeFromTheMenuOpensTheDialog)
{
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    StockButton button(bundle.get(), JobContext::Job);
    button.setStock(&stock);
    whenShown(QStringLiteral("CustomPaperSize"), [](QWidget* dialog) {
        static_cast<CustomSizeDialog*>(dialog)->setUnit(PaperSizeUnit::Millimetres);
        dialog->findChild<QDoubleSpinBox*>(QStringLiteral("CustomSizeWidth"))->setValue(200);
        dialog->findChild<QDoubleSpinBox*>(QStringLiteral("CustomSizeLength"))->setValue(250);
        click(dialog, "OKButton");
    });
    actionFor(submenu(button, "StockSizeMenu"), kStockSizeCommand, kCustomPageSize)->trigger();
    EXPECT_EQ(stock.size(), kCustomPageSize);
    EXPECT_EQ(stock.width(), 2000);
    EXPECT_EQ(stock.length(), 2500);
}

TEST_F(StockButtonTest, DefaultAndAdvancedCommandsAreOnTheMenu)
{
    Stock stock;
    stock.setColor(4);
    stock.setCustomName(QStringLiteral("Green sheets"));
    StockButton button(bundle.get(), JobContext::Job);
    button.setStock(&stock);

    whenShown(QStringLiteral("AdvancedStockSelection"), [](QWidget* dialog) {
        dialog->findChild<QLineEdit*>(QStringLiteral("StockColorName"))
            ->setText(QStringLiteral("Sea green"));
        click(dialog, "OKButton");
    });
    actionFor(button.menu(), kStockAdvancedCommand, 0)->trigger();
    EXPECT_EQ(stock.color(), kCustomMediaColor);
    EXPECT_TRUE(stock.customName().isEmpty());
    EXPECT_EQ(button.summaryView()->toPlainText(),
              QStringLiteral("Color: Sea green\n- Printer Default"));

    actionFor(button.menu(), kStockDefaultCommand, 0)->trigger();
    EXPECT_EQ(button.summaryView()->toPlainText(), QStringLiteral("- White\n- Plain"));
}

TEST(StockSummaryView, ShowStockSummaryNeedsBundleAndView)
{
    const auto bundle = testing::PluginBundle();
    QPlainTextEdit view;
    view.setPlainText(QStringLiteral("old"));
    Stock stock;
    EXPECT_EQ(ShowStockSummary(nullptr, &view, &stock, JobContext::Job), kBadParameter);
    EXPECT_EQ(ShowStockSummary(bundle.get(), nullptr, &stock, JobContext::Job), kBadParameter);
    EXPECT_EQ(view.toPlainText(), QStringLiteral("old"));
    EXPECT_EQ(ShowStockSummary(bundle.get(), &view, nullptr, JobContext::Job), kNoError);
    EXPECT_TRUE(view.toPlainText().isEmpty());
    EXPECT_TRUE(view.isReadOnly());
}

TEST(StockIconDrawing, LayersPaintOverTheBase)
{
    const auto bundle = testing::PluginBundle();
    const QSize size(48, 48);
    const QImage clear =
        RenderStockIcon(bundle.get(), {QStringLiteral("Paper_Plain-Clear.gif")}, size);
    const QImage blue =
        RenderStockIcon(bundle.get(), {QStringLiteral("Paper_Plain-Blue.gif")}, size);
    const QImage glossy = RenderStockIcon(bundle.get(),
                                          {QStringLiteral("Paper_Plain-Blue.gif"),
                                           QStringLiteral("Paper_Overlay-LightweightGloss.gif")},
                                          size);
    const QPoint middle(24, 24);
    EXPECT_GT(blue.pixelColor(middle).blue(), blue.pixelColor(middle).red() + 40);
    EXPECT_EQ(blue.pixelColor(middle).alpha(), 255);
    EXPECT_LT(clear.pixelColor(middle).alpha(), 128) << "a transparency lets the page through";
    EXPECT_NE(glossy, blue) << "the gloss overlay is drawn over the sheet";
    // A missing image leaves its layer out.
    const QImage missing = RenderStockIcon(
        bundle.get(), {QStringLiteral("Paper_Plain-Blue.gif"), QStringLiteral("Nothing.gif")},
        size);
    EXPECT_EQ(missing, blue);
    EXPECT_EQ(RenderStockIcon(nullptr, {QStringLiteral("Paper_Plain-Blue.gif")}, size)
                  .pixelColor(middle)
                  .alpha(),
              0);
}

TEST(CustomSizeDialog, ShowsUnitsAndKeepsUntouchedValuesExact)
{
    const auto bundle = testing::PluginBundle();
    const CustomPaperSizeLimits limits = CustomPaperSizeLimitsFromPoints(216, 360, 936, 1368);
    CustomSizeDialog dialog(bundle.get(), 2100, 2970, limits, PaperSizeUnit::Inches);
    auto* width = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("CustomSizeWidth"));
    auto* length = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("CustomSizeLength"));
    ASSERT_TRUE(width && length);
    EXPECT_DOUBLE_EQ(width->value(), 8.3);
    EXPECT_EQ(width->decimals(), 1);
    EXPECT_DOUBLE_EQ(width->minimum(), 3.0);
    EXPECT_DOUBLE_EQ(length->maximum(), 19.0);
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("CustomSizeRange"))->text(),
              QStringLiteral("Width 3.0 to 13.0, length 5.0 to 19.0 (Inches)"));

    dialog.setUnit(PaperSizeUnit::Millimetres);
    EXPECT_DOUBLE_EQ(width->value(), 210.0);
    EXPECT_DOUBLE_EQ(length->value(), 297.0);
    EXPECT_DOUBLE_EQ(width->minimum(), 77.0);
    EXPECT_EQ(dialog.paperWidth(), 2100) << "showing is not editing";

    length->setValue(300);
    EXPECT_EQ(dialog.paperLength(), 3000);
    dialog.setUnit(PaperSizeUnit::Inches);
    length->setValue(12.0);
    EXPECT_EQ(dialog.paperLength(), 3048);
    length->setValue(40.0);
    EXPECT_EQ(dialog.paperLength(), 4826) << "held to the printer's maximum";
    EXPECT_EQ(dialog.paperWidth(), 2100);
}

TEST(CustomSizeDialog, CancelLeavesTheSizeAlone)
{
    const auto bundle = testing::PluginBundle();
    std::int32_t width = 1000, length = 1500;
    whenShown(QStringLiteral("CustomPaperSize"), [](QWidget* dialog) {
        dialog->findChild<QDoubleSpinBox*>(QStringLiteral("CustomSizeWidth"))->setValue(5);
        click(dialog, "CancelButton");
    });
    EXPECT_FALSE(RunModalCustomSizeDialog(bundle.get(), width, length));
    EXPECT_EQ(width, 1000);
    EXPECT_EQ(length, 1500);
}

TEST(AdvancedStockDialog, EditsTheAttributesAndCancelKeepsThem)
{
    const auto bundle = testing::PluginBundle();
    Stock stock;
    stock.setFinish(7); // from another program: kept as it is
    AdvancedStockDialog dialog(bundle.get(), stock, JobContext::Covers);
    auto* sides = dialog.findChild<QComboBox*>(QStringLiteral("StockSidesCoated"));
    auto* coating = dialog.findChild<QComboBox*>(QStringLiteral("StockCoatingType"));
    auto* punched = dialog.findChild<QComboBox*>(QStringLiteral("StockPunched"));
    ASSERT_TRUE(sides && coating && punched);
    EXPECT_EQ(punched->itemText(0), QStringLiteral("Use Job Setting"));
    EXPECT_FALSE(coating->isEnabled()) << "nothing coated yet";
    SetPopupButtonToTicketValue(sides, 3);
    EXPECT_TRUE(coating->isEnabled());
    SetPopupButtonToTicketValue(coating, 2);
    SetPopupButtonToTicketValue(punched, 2);
    dialog.findChild<QSpinBox*>(QStringLiteral("StockWeight"))->setValue(160);
    dialog.findChild<QLineEdit*>(QStringLiteral("StockTypeName"))
        ->setText(QStringLiteral(" Tabs "));
    dialog.findChild<QSpinBox*>(QStringLiteral("StockTabCount"))->setValue(5);

    const AdvancedStockValues values = dialog.values();
    EXPECT_EQ(values.sidesCoated, 3);
    EXPECT_EQ(values.coatingType, 2);
    EXPECT_EQ(values.punched, 2);
    EXPECT_EQ(values.weight, 160);
    EXPECT_EQ(values.finish, 7);
    EXPECT_EQ(values.grain, kUnset);
    EXPECT_EQ(values.typeName, QStringLiteral("Tabs"));
    EXPECT_EQ(values.tabCount, 5);

    whenShown(QStringLiteral("AdvancedStockSelection"), [](QWidget* shown) {
        shown->findChild<QSpinBox*>(QStringLiteral("StockWeight"))->setValue(200);
        click(shown, "CancelButton");
    });
    EXPECT_FALSE(RunModalAdvancedStockDialog(bundle.get(), stock, JobContext::Covers));
    EXPECT_EQ(stock.weight(), kUnset);
}

} // namespace
} // namespace orvan
