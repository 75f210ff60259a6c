// The Image Options panel with its widgets, offscreen, driven as the shell
// drives it; controls found by object name. (The invert flags it writes with
// and without its controls are checked through the shell and orvan-print.)
#include "imagequality/ImageOptionsPanel.h"
#include "imagequality/tests/PanelTestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>

namespace orvan {
namespace {

using testing::PpdChoice;
using testing::SetPpdChoice;

class ImageOptionsPanelTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(panel.initialize(&pane, &session), kNoError); }

    template <typename Widget> Widget* control(const char* name)
    {
        auto* widget = pane.findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    // Whether the label shows the bundle's picture of that name (which must exist).
    bool shows(const char* label, const char* picture)
    {
        const auto format = QImage::Format_ARGB32_Premultiplied;
        const QImage expected(testing::PluginBundle().resourcePath(QString("images/") + picture));
        const QImage actual = control<QLabel>(label)->pixmap().toImage();
        return !expected.isNull() &&
               actual.convertToFormat(format) == expected.convertToFormat(format);
    }
    // The check boxes and the pop-up as "negative mirror toner-saver resolution".
    QString shown()
    {
        return QStringList{control<QCheckBox>("NegativeImageCheckBox")->isChecked() ? "1" : "0",
                           control<QCheckBox>("MirrorImageCheckBox")->isChecked() ? "1" : "0",
                           control<QCheckBox>("TonerSaverCheckBox")->isChecked() ? "1" : "0",
                           control<QComboBox>("ResolutionPopup")->currentText()}
            .join(' ');
    }

    testing::CurrentPpd ppd;
    PrintSession session;
    QWidget pane;
    ImageOptionsPanel panel{&testing::PluginBundle()};
};

TEST_F(ImageOptionsPanelTest, ReadingShowsTheTicketInTheControlsAndPictures)
{
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    SetPpdChoice(session, "QVEconomode", "Draft");
    testing::SetInvertFlags(session.printSettings(), PropertyValue::integer(0),
                            PropertyValue::integer(1));
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(shown(), "0 1 1 1200 dpi");
    EXPECT_TRUE(shows("ResolutionPicture", "ImageOptions_Resolution_1200.png"));
    EXPECT_TRUE(shows("TonerSaverPicture", "ImageOptions_TonerSaver_On.png"));
    EXPECT_TRUE(shows("InvertImagePicture", "ImageOptions_InvertImage_Mirror.png"));

    // Without the item both boxes clear; an unknown resolution selects
    // nothing and shows the 600 dpi picture.
    session.printSettings().releaseItem(kInvertImageOptionsKey);
    SetPpdChoice(session, "Resolution", "2400x2400dpi");
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_EQ(shown(), "0 0 1 ");
    EXPECT_TRUE(shows("ResolutionPicture", "ImageOptions_Resolution_600.png"));
    EXPECT_TRUE(shows("InvertImagePicture", "ImageOptions_InvertImage_Off.png"));
}

TEST_F(ImageOptionsPanelTest, UsersChoicesReachTheTicketAndThePictures)
{
    ASSERT_EQ(panel.sync(&session, true), kNoError);
    EXPECT_TRUE(shows("TonerSaverPicture", "ImageOptions_TonerSaver_Off.png"));
    auto* resolution = control<QComboBox>("ResolutionPopup");
    const int index = resolution->findText("1800 dpi");
    resolution->setCurrentIndex(index);
    emit resolution->activated(index);
    control<QCheckBox>("TonerSaverCheckBox")->click();
    EXPECT_TRUE(shows("ResolutionPicture", "ImageOptions_Resolution_1800.png"));
    EXPECT_TRUE(shows("TonerSaverPicture", "ImageOptions_TonerSaver_On.png"));
    ASSERT_EQ(panel.sync(&session, false), kNoError);
    EXPECT_EQ(PpdChoice(session, "Resolution"), "1800x1800dpi");
    EXPECT_EQ(PpdChoice(session, "QVEconomode"), "Draft");
}

} // namespace
} // namespace orvan
