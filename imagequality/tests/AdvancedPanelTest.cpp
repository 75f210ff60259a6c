// The Advanced panel with its widgets (offscreen): the pop-ups' contents, the
// user's choices through them, and the about dialog.
#include "imagequality/AdvancedPanel.h"
#include "imagequality/AboutDialog.h"
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

#include <memory>

namespace orvan {
namespace {

using testing::CurrentPpd;
using testing::PpdChoice;
using testing::SetPpdChoice;

class AdvancedPanelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        pane = std::make_unique<QWidget>();
        ASSERT_EQ(panel.initialize(pane.get(), &session), kNoError);
    }

    QComboBox* popup(const char* name) const
    {
        return pane->findChild<QComboBox*>(QLatin1String(name));
    }
    // What a user's pick does: the pop-up shows the item and reports it.
    static void pick(QComboBox* popup, const QString& text)
    {
        const int index = popup->findText(text);
        ASSERT_GE(index, 0) << qPrintable(text);
        popup->setCurrentIndex(index);
        emit popup->activated(index);
    }

    CurrentPpd ppd{testing::SamplePpdPath()};
    PrintSession session;
    AdvancedPanel panel{&testing::PluginBundle()};
    std::unique_ptr<QWidget> pane;
};

TEST_F(AdvancedPanelTest, BuildsItsLabelledPopupsAndAboutButton)
{
    EXPECT_EQ(panel.describe().title, QStringLiteral("Advanced"));
    const std::pair<const char*, int> popups[] = {{"BookletImageOrderPopup", 2},
                                                  {"OutputOptionsPopup", 2},
                                                  {"BannerSheetPopup", 2},
                                                  {"RequestOffsetPopup", 2}};
    for (const auto& [name, count] : popups) {
        QComboBox* box = popup(name);
        ASSERT_NE(box, nullptr) << name;
        EXPECT_EQ(box->count(), count) << name;
        EXPECT_EQ(box->currentIndex(), 0) << name;
    }
    auto* about = pane->findChild<QPushButton*>(QStringLiteral("AboutButton"));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->text(), QStringLiteral("About\u2026"));
    const QList<QLabel*> labels = pane->findChildren<QLabel*>();
    QStringList texts;
    for (const QLabel* label : labels)
        texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("Booklet Image Order:")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Request Offset:")));
}

TEST_F(AdvancedPanelTest, FaceDownIsWrittenAsTrueAndShownAsFaceUp)
{
    QComboBox* output = popup("OutputOptionsPopup");
    pick(output, QStringLiteral("Face Down"));
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"), QStringLiteral("True"));
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(output->currentText(), QStringLiteral("Face Up"));

    // Face Up writes nothing: the ticket keeps "True".
    pick(output, QStringLiteral("Face Up"));
    SetPpdChoice(session, "QVOutputOption", "False");
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"), QStringLiteral("False"));
}

TEST_F(AdvancedPanelTest, BookletOrderReadsBackAsTheFirstItemOrKeepsTheSelection)
{
    QComboBox* order = popup("BookletImageOrderPopup");
    pick(order, QStringLiteral("Left to Right"));
    ASSERT_EQ(panel.sync(&session, false), kNoError); // stores 'Qujn'
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(order->currentText(), QStringLiteral("Right to Left"));

    // Without the item the order reads as 2, which no item carries.
    session.printSettings().releaseItem(kBookletLayoutOrderKey);
    pick(order, QStringLiteral("Left to Right"));
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(order->currentText(), QStringLiteral("Left to Right"));
}

TEST_F(AdvancedPanelTest, BannerAndOffsetRoundTripThroughThePopups)
{
    SetPpdChoice(session, "JCLBanner", "True");
    SetPpdChoice(session, "Jog", "EndOfSet");
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(popup("BannerSheetPopup")->currentText(), QStringLiteral("On"));
    EXPECT_EQ(popup("RequestOffsetPopup")->currentText(), QStringLiteral("Offset Each Set"));

    pick(popup("RequestOffsetPopup"), QStringLiteral("Off"));
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "JCLBanner"), QStringLiteral("True"));
    EXPECT_EQ(PpdChoice(session, "Jog"), QStringLiteral("None"));
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
    pane->findChild<QPushButton*>(QStringLiteral("AboutButton"))->click();

    const PropertyValue& info = testing::PluginBundle().infoDictionary();
    const QString product = info.find(QStringLiteral("CFBundleName"))->toString();
    EXPECT_EQ(name, product);
    EXPECT_EQ(title, QStringLiteral("About ") + product);
    EXPECT_EQ(version, QStringLiteral("Version %1 (build %2)")
                           .arg(info.find(QStringLiteral("CFBundleShortVersionString"))->toString(),
                                info.find(QStringLiteral("CFBundleVersion"))->toString()));
}

TEST(AdvancedPanelHeadless, ReadsAndWritesWithoutWidgets)
{
    CurrentPpd ppd(testing::SamplePpdPath());
    PrintSession session;
    SetPpdChoice(session, "JCLBanner", "True");
    SetPpdChoice(session, "Jog", "EndOfSet");
    AdvancedPanel panel(&testing::PluginBundle());
    ASSERT_EQ(panel.initialize(nullptr, &session), kNoError);
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "JCLBanner"), QStringLiteral("True"));
    EXPECT_EQ(PpdChoice(session, "Jog"), QStringLiteral("EndOfSet"));
    EXPECT_EQ(PpdChoice(session, "QVOutputOption"),
              QStringLiteral("False")); // the PPD default, read as 0
    EXPECT_EQ(session.printSettings().integer(kBookletLayoutOrderKey), kDefaultBookletImageOrder);
}

} // namespace
} // namespace orvan
