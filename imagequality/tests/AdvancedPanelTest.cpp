// The Advanced panel's about dialog, offscreen. (Its pop-ups' rules are the
// model's, and the shell's tests drive them through the widgets.)
#include "imagequality/AdvancedPanel.h"
#include "imagequality/tests/PanelTestSupport.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace orvan {
namespace {

TEST(AdvancedPanel, AboutButtonShowsNameVersionAndBuild)
{
    testing::CurrentPpd ppd;
    PrintSession session;
    QWidget pane;
    AdvancedPanel panel(&testing::PluginBundle());
    ASSERT_EQ(panel.initialize(&pane, &session), kNoError);
    QStringList shown;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        shown << dialog->windowTitle() << dialog->findChild<QLabel*>("ProductName")->text()
              << dialog->findChild<QLabel*>("ProductVersion")->text();
        dialog->accept();
    });
    pane.findChild<QPushButton*>("AboutButton")->click();

    const PropertyValue& info = testing::PluginBundle().infoDictionary();
    const auto entry = [&info](const char* key) { return info.find(key)->toString(); };
    EXPECT_EQ(shown, QStringList({"About " + entry("CFBundleName"), entry("CFBundleName"),
                                  QStringLiteral("Version %1 (build %2)")
                                      .arg(entry("CFBundleShortVersionString"),
                                           entry("CFBundleVersion"))}));
}

} // namespace
} // namespace orvan
