// The Advanced panel with its widgets (offscreen): the user's choices through
// the pop-ups, and the about dialog.
#include "imagequality/AdvancedPanel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/Ticket.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

namespace orvan {
namespace {

class AdvancedPanelTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(panel.initialize(&pane, &session), kNoError); }

    QComboBox* popup(const char* name) { return pane.findChild<QComboBox*>(QLatin1String(name)); }
    // A user's pick: the pop-up shows the item and reports it.
    static void pick(QComboBox* popup, const char* text)
    {
        const int index = popup->findText(QLatin1String(text));
        ASSERT_GE(index, 0) << text;
        popup->setCurrentIndex(index);
        emit popup->activated(index);
    }

    testing::CurrentPpd ppd{testing::SamplePpdPath()};
    PrintSession session;
    QWidget pane;
    AdvancedPanel panel{&testing::PluginBundle()};
};

TEST_F(AdvancedPanelTest, FaceDownIsWrittenAsTrueAndShownAsFaceUp)
{
    QComboBox* output = popup("OutputOptionsPopup");
    pick(output, "Face Down");
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(testing::PpdChoice(session, "QVOutputOption"), QStringLiteral("True"));
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(output->currentText(), QStringLiteral("Face Up"));
}

TEST_F(AdvancedPanelTest, BookletOrderReadsBackAsTheFirstItemOrKeepsTheSelection)
{
    QComboBox* order = popup("BookletImageOrderPopup");
    pick(order, "Left to Right");
    ASSERT_EQ(panel.sync(&session, true), kNoError); // no item: 2 keeps the choice
    EXPECT_EQ(order->currentText(), QStringLiteral("Left to Right"));

    pick(order, "Left to Right");
    ASSERT_EQ(panel.sync(&session, false), kNoError); // stores 'Qujn'
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(order->currentText(), QStringLiteral("Right to Left"));
}

TEST_F(AdvancedPanelTest, AboutButtonShowsNameVersionAndBuild)
{
    QString title, name, version;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        title = dialog->windowTitle();
        name = dialog->findChild<QLabel*>(QStringLiteral("ProductName"))->text();
        version = dialog->findChild<QLabel*>(QStringLiteral("ProductVersion"))->text();
        dialog->accept();
    });
    pane.findChild<QPushButton*>(QStringLiteral("AboutButton"))->click();

    const PropertyValue& info = testing::PluginBundle().infoDictionary();
    const auto entry = [&info](const char* key) {
        return info.find(QLatin1String(key))->toString();
    };
    EXPECT_EQ(name, entry("CFBundleName"));
    EXPECT_EQ(title, QStringLiteral("About ") + entry("CFBundleName"));
    EXPECT_EQ(version, QStringLiteral("Version %1 (build %2)")
                           .arg(entry("CFBundleShortVersionString"), entry("CFBundleVersion")));
}

} // namespace
} // namespace orvan
