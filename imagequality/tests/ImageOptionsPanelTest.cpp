// The Image Options panel with its widgets (offscreen) and headless, driven
// as the shell drives it; controls found by object name.
#include "imagequality/ImageOptionsPanel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/Ticket.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

namespace orvan {
namespace {

using testing::PpdChoice;
using testing::SetPpdChoice;

class ImageOptionsPanelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(panel.initialize(pane.get(), &session), kNoError);
        resolution = pane->findChild<QComboBox*>(QStringLiteral("ResolutionPopup"));
        tonerSaver = pane->findChild<QCheckBox*>(QStringLiteral("TonerSaverCheckBox"));
        negative = pane->findChild<QCheckBox*>(QStringLiteral("NegativeImageCheckBox"));
        mirror = pane->findChild<QCheckBox*>(QStringLiteral("MirrorImageCheckBox"));
        ASSERT_TRUE(resolution && tonerSaver && negative && mirror);
    }

    // Whether the label shows the bundle's picture of that name.
    bool shows(const char* label, const char* picture) const
    {
        const auto format = QImage::Format_ARGB32_Premultiplied;
        const QString path = testing::PluginBundle().resourcePath(QStringLiteral("images/") +
                                                                  QLatin1String(picture));
        return pane->findChild<QLabel*>(QLatin1String(label))
                   ->pixmap()
                   .toImage()
                   .convertToFormat(format) == QImage(path).convertToFormat(format);
    }

    testing::CurrentPpd ppd{testing::SamplePpdPath()};
    PrintSession session;
    ImageOptionsPanel panel{&testing::PluginBundle()};
    std::unique_ptr<QWidget> pane = std::make_unique<QWidget>();
    QComboBox* resolution = nullptr;
    QCheckBox* tonerSaver = nullptr;
    QCheckBox* negative = nullptr;
    QCheckBox* mirror = nullptr;
};

TEST_F(ImageOptionsPanelTest, ReadingShowsTheTicketInTheControlsAndPictures)
{
    EXPECT_EQ(panel.describe().creator, 0x5173686Cu); // 'Qshl'
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    SetPpdChoice(session, "QVEconomode", "Draft");
    testing::SetInvertFlags(session.printSettings(), -1, -1);
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(resolution->currentText(), QStringLiteral("1200 dpi"));
    EXPECT_TRUE(tonerSaver->isChecked());
    EXPECT_FALSE(negative->isChecked()); // -1 is not above 0
    EXPECT_TRUE(mirror->isChecked());    // but it is not 0
    EXPECT_TRUE(shows("ResolutionPicture", "ImageOptions_Resolution_1200.png"));
    EXPECT_TRUE(shows("TonerSaverPicture", "ImageOptions_TonerSaver_On.png"));
    EXPECT_TRUE(shows("InvertImagePicture", "ImageOptions_InvertImage_Mirror.png"));

    // Without the item both boxes clear; an unknown resolution selects nothing.
    session.printSettings().releaseItem(kInvertImageOptionsKey);
    SetPpdChoice(session, "Resolution", "2400x2400dpi");
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_FALSE(negative->isChecked());
    EXPECT_FALSE(mirror->isChecked());
    EXPECT_EQ(resolution->currentIndex(), -1);
}

// With its controls the panel writes both flags as 1 whatever the boxes show,
// so the next read checks both.
TEST_F(ImageOptionsPanelTest, WritingWithControlsStoresBothFlagsOn)
{
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    ASSERT_FALSE(negative->isChecked() || mirror->isChecked());
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(testing::InvertFlags(session.printSettings()), std::make_pair(1L, 1L));
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_TRUE(negative->isChecked() && mirror->isChecked());
}

TEST_F(ImageOptionsPanelTest, UsersChoicesReachTheTicketAndThePictures)
{
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    const int index = resolution->findText(QStringLiteral("1800 dpi"));
    resolution->setCurrentIndex(index);
    emit resolution->activated(index);
    tonerSaver->click();
    EXPECT_TRUE(shows("ResolutionPicture", "ImageOptions_Resolution_1800.png"));
    EXPECT_TRUE(shows("TonerSaverPicture", "ImageOptions_TonerSaver_On.png"));
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "Resolution"), QStringLiteral("1800x1800dpi"));
    EXPECT_EQ(PpdChoice(session, "QVEconomode"), QStringLiteral("Draft"));
}

// Headless the panel still reads and writes; having no invert-image controls,
// it writes both flags as 0.
TEST(ImageOptionsPanelHeadless, WritesBothInvertFlagsOff)
{
    testing::CurrentPpd ppd(testing::SamplePpdPath());
    PrintSession session;
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    testing::SetInvertFlags(session.printSettings(), 1, 1);
    ImageOptionsPanel panel(&testing::PluginBundle());
    ASSERT_EQ(panel.initialize(nullptr, &session), kNoError);
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(testing::InvertFlags(session.printSettings()), std::make_pair(0L, 0L));
    EXPECT_EQ(PpdChoice(session, "Resolution"), QStringLiteral("1200x1200dpi"));
}

} // namespace
} // namespace orvan
