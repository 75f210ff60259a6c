// The Image Options panel with its widgets (offscreen) and without them
// (headless), driven as the shell drives it.
#include "imagequality/ImageOptionsPanel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/DictionaryAccess.h"
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

using testing::CurrentPpd;
using testing::PpdChoice;
using testing::SetPpdChoice;

std::pair<long, long> WrittenInvertFlags(const PrintSession& session)
{
    const PropertyValue* options = session.printSettings().dictionary(kInvertImageOptionsKey);
    long negative = -1, mirror = -1;
    EXPECT_TRUE(GetCFIndexFromCFDictionary(options, kNegativeImageKey, &negative));
    EXPECT_TRUE(GetCFIndexFromCFDictionary(options, kMirrorImageKey, &mirror));
    return {negative, mirror};
}

class ImageOptionsPanelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        pane = std::make_unique<QWidget>();
        ASSERT_EQ(panel.initialize(pane.get(), &session), kNoError);
        resolution = pane->findChild<QComboBox*>(QStringLiteral("ResolutionPopup"));
        tonerSaver = pane->findChild<QCheckBox*>(QStringLiteral("TonerSaverCheckBox"));
        negative = pane->findChild<QCheckBox*>(QStringLiteral("NegativeImageCheckBox"));
        mirror = pane->findChild<QCheckBox*>(QStringLiteral("MirrorImageCheckBox"));
        ASSERT_TRUE(resolution && tonerSaver && negative && mirror);
    }

    QImage picture(const char* objectName) const
    {
        auto* label = pane->findChild<QLabel*>(QLatin1String(objectName));
        return label
                   ? label->pixmap().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied)
                   : QImage();
    }
    static QImage bundlePicture(const char* name)
    {
        return QImage(testing::PluginBundle().resourcePath(QStringLiteral("images/") +
                                                           QLatin1String(name)))
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

    CurrentPpd ppd{testing::SamplePpdPath()};
    PrintSession session;
    ImageOptionsPanel panel{&testing::PluginBundle()};
    std::unique_ptr<QWidget> pane;
    QComboBox* resolution = nullptr;
    QCheckBox* tonerSaver = nullptr;
    QCheckBox* negative = nullptr;
    QCheckBox* mirror = nullptr;
};

TEST_F(ImageOptionsPanelTest, DescribesItselfWithItsTitleAndCreator)
{
    const PanelBase::Description description = panel.describe();
    EXPECT_EQ(description.title, QStringLiteral("Image Options"));
    EXPECT_EQ(description.creator, 0x5173686Cu); // 'Qshl'
    EXPECT_EQ(description.kind, QStringLiteral("com.orvan.print.pde.orvanfeatureskind"));
    EXPECT_EQ(resolution->count(), 7);
    EXPECT_EQ(tonerSaver->text(), QStringLiteral("Conserve Dry Ink"));
}

TEST_F(ImageOptionsPanelTest, ReadingShowsTheTicketInTheControls)
{
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    SetPpdChoice(session, "QVEconomode", "Draft");
    PropertyValue options = PropertyValue::dictionary();
    WriteTicketValue(&options, kNegativeImageKey, -1);
    WriteTicketValue(&options, kMirrorImageKey, -1);
    session.printSettings().setItem(kShellClient, kInvertImageOptionsKey, options);
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(resolution->currentText(), QStringLiteral("1200 dpi"));
    EXPECT_TRUE(tonerSaver->isChecked());
    EXPECT_FALSE(negative->isChecked()); // -1 is not above 0
    EXPECT_TRUE(mirror->isChecked());    // but it is not 0
    EXPECT_EQ(picture("ResolutionPicture"), bundlePicture("ImageOptions_Resolution_1200.png"));
    EXPECT_EQ(picture("TonerSaverPicture"), bundlePicture("ImageOptions_TonerSaver_On.png"));
    EXPECT_EQ(picture("InvertImagePicture"), bundlePicture("ImageOptions_InvertImage_Mirror.png"));

    // Without the item both boxes clear; an unknown resolution selects nothing.
    session.printSettings().releaseItem(kInvertImageOptionsKey);
    SetPpdChoice(session, "Resolution", "2400x2400dpi");
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_FALSE(negative->isChecked());
    EXPECT_FALSE(mirror->isChecked());
    EXPECT_EQ(resolution->currentIndex(), -1);
}

// With its controls the panel writes both flags as 1, whatever the boxes
// show, and the next read therefore checks both.
TEST_F(ImageOptionsPanelTest, WritingWithControlsStoresBothFlagsOn)
{
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    ASSERT_FALSE(negative->isChecked());
    ASSERT_FALSE(mirror->isChecked());
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(WrittenInvertFlags(session), std::make_pair(1L, 1L));

    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_TRUE(negative->isChecked());
    EXPECT_TRUE(mirror->isChecked());
}

TEST_F(ImageOptionsPanelTest, UsersChoicesReachTheTicketAndThePictures)
{
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(resolution->currentText(), QStringLiteral("600 dpi"));
    const int index = resolution->findText(QStringLiteral("1800 dpi"));
    ASSERT_GE(index, 0);
    resolution->setCurrentIndex(index);
    emit resolution->activated(index);
    tonerSaver->click();
    mirror->click();
    EXPECT_EQ(picture("ResolutionPicture"), bundlePicture("ImageOptions_Resolution_1800.png"));
    EXPECT_EQ(picture("TonerSaverPicture"), bundlePicture("ImageOptions_TonerSaver_On.png"));
    EXPECT_EQ(picture("InvertImagePicture"), bundlePicture("ImageOptions_InvertImage_Mirror.png"));

    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "Resolution"), QStringLiteral("1800x1800dpi"));
    EXPECT_EQ(PpdChoice(session, "QVEconomode"), QStringLiteral("Draft"));

    tonerSaver->click();
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVEconomode"), QStringLiteral("None"));
}

TEST(ImageOptionsPanelWithoutResolution, ShowsAnEmptyDisabledPopup)
{
    CurrentPpd small(testing::TestPpdPath("no-resolution.ppd"));
    PrintSession session;
    ImageOptionsPanel other(&testing::PluginBundle());
    QWidget otherPane;
    ::testing::internal::CaptureStderr();
    ASSERT_EQ(other.initialize(&otherPane, &session), kNoError);
    ::testing::internal::GetCapturedStderr();
    auto* popup = otherPane.findChild<QComboBox*>(QStringLiteral("ResolutionPopup"));
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->count(), 0);
    EXPECT_FALSE(popup->isEnabled());
}

// Headless (no parent) the panel still reads and writes the ticket; having no
// invert-image controls, it writes both flags as 0.
TEST(ImageOptionsPanelHeadless, WritesBothInvertFlagsOff)
{
    CurrentPpd ppd(testing::SamplePpdPath());
    PrintSession session;
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    PropertyValue options = PropertyValue::dictionary();
    WriteTicketValue(&options, kNegativeImageKey, 1);
    WriteTicketValue(&options, kMirrorImageKey, 1);
    session.printSettings().setItem(kShellClient, kInvertImageOptionsKey, options);

    ImageOptionsPanel panel(&testing::PluginBundle());
    ASSERT_EQ(panel.initialize(nullptr, &session), kNoError);
    EXPECT_EQ(panel.view(), nullptr);
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_TRUE(panel.model().invertImage().mirrorImage);
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(WrittenInvertFlags(session), std::make_pair(0L, 0L));
    EXPECT_EQ(PpdChoice(session, "Resolution"), QStringLiteral("1200x1200dpi"));
    EXPECT_EQ(panel.sync(nullptr, false), kSyncMissingContext);
}

} // namespace
} // namespace orvan
