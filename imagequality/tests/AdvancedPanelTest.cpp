// The Advanced panel's about dialog, offscreen. (Its pop-ups' rules are the
// model's, and the shell's tests drive them through the widgets.)
#include "imagequality/AdvancedPanel.h"
#include "imagequality/ProductInfo.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "tests/support/WhenShown.h"

#include <QLabel>
#include <QPushButton>

namespace orvan {
namespace {

TEST(AdvancedPanel, AboutButtonShowsNameVersionAndBuild)
{
    testing::CurrentPpd ppd;
    PrintSession session;
    QWidget pane;
    const Bundle& bundle = testing::PluginBundle();
    AdvancedPanel panel(&bundle);
    ASSERT_EQ(panel.initialize(&pane, &session), kNoError);
    QStringList shown;
    testing::WhenShown("AboutDialog", [&](QWidget* dialog) {
        shown << dialog->windowTitle() << dialog->findChild<QLabel*>("ProductName")->text()
              << dialog->findChild<QLabel*>("ProductVersion")->text();
        qobject_cast<QDialog*>(dialog)->accept();
    });
    pane.findChild<QPushButton*>("AboutButton")->click();
    const ProductInfo info = ProductInfoFromBundle(&bundle);
    ASSERT_FALSE(info.name.isEmpty() || info.version.isEmpty() || info.build.isEmpty());
    EXPECT_EQ(shown, QStringList({"About " + info.name, info.name,
                                  "Version " + info.version + " (build " + info.build + ")"}));
}

} // namespace
} // namespace orvan
