// The Booklet/Watermark panel inside the real plug-in: its tab, its preview,
// the booklet button reaching the Paper/Output panel's dialog; and
// orvan-print's headless run writing a watermark whose font program draws
// its text.
#include "host/PluginHost.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "shell/PDEShell.h"
#include "watermark/BookletWatermarkModel.h"
#include "watermark/WatermarkTicket.h"
#include "watermark/tests/WatermarkTestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>

namespace orvan {
namespace {

using BookletWatermarkShellTest = test::WatermarkFileTest;

const QString kSamplePpd = ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd";

// The share of pixels that are clearly blue (the default watermarks' colour).
double BlueShare(const QImage& image)
{
    int blue = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            blue += pixel.blue() > 200 && pixel.red() < 230 && pixel.blue() - pixel.red() > 25;
        }
    return double(blue) / (image.width() * image.height());
}

TEST_F(BookletWatermarkShellTest, ThirdTabPreviewsTheTicketsWatermarkAndOpensBookletCreation)
{
    QString why;
    const auto plugin = PluginHost::load(ORVAN_PLUGIN_DIR, &why);
    ASSERT_TRUE(plugin) << why.toStdString();
    PrintSession session;
    session.setCurrentPrinter(Printer{QString(), kSamplePpd});
    session.printSettings().setItem(kPanelClient, kWatermarkTicketKey,
                                    PropertyValue("confidential"));
    QWidget window;
    ASSERT_EQ(plugin->prolog(), kNoError);
    ASSERT_EQ(plugin->initialize({&window}, &session), kNoError);
    ASSERT_EQ(plugin->sync(&session, true), kNoError);

    auto* tabs = window.findChild<QTabBar*>("ShellTabs");
    ASSERT_TRUE(tabs && tabs->count() >= 4);
    EXPECT_EQ(tabs->tabText(2), "Booklet/Watermark");
    ShellHandleControlHit(CurrentShellContext(), kShellTabControlID, 3);
    auto* popup = window.findChild<QComboBox*>("WatermarkPopup");
    auto* preview = window.findChild<QLabel*>("WatermarkPreview");
    ASSERT_TRUE(popup && preview);
    EXPECT_EQ(popup->currentText(), "Confidential");
    EXPECT_GT(BlueShare(preview->pixmap().toImage()), 0.005);
    popup->activated(0); // "No Watermark": a blank page
    EXPECT_LT(BlueShare(preview->pixmap().toImage()), 0.001);

    // The button runs the Paper/Output panel's own booklet dialog.
    auto* booklet = window.findChild<QPushButton*>("BookletCreationButton");
    ASSERT_TRUE(booklet && booklet->isEnabled());
    QString opened;
    QTimer::singleShot(0, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            opened = dialog->windowTitle();
            dialog->reject();
        }
    });
    booklet->click();
    EXPECT_EQ(opened, "Booklet Creation");
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);
}

TEST_F(BookletWatermarkShellTest, HeadlessRunWritesTheWatermarkWithItsGlyphsAndFont)
{
    PrintSession in;
    Ticket& settings = in.printSettings();
    settings.setItem(kPanelClient, kWatermarkTicketKey, PropertyValue("DRAFT"));
    settings.setItem(kPanelClient, kWatermarkOptionTicketKey,
                     PropertyValue::integer(3, NumberType::SInt32));
    settings.setItem(kPanelClient, kWatermarkFirstPageOnlyTicketKey,
                     PropertyValue::integer(1, NumberType::SInt32));
    QTemporaryDir folder;
    ASSERT_TRUE(saveTicketFile(folder.filePath("in.plist"), in));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ORVAN_PLUGIN_PATH", ORVAN_PLUGIN_DIR);
    process.setProcessEnvironment(environment);
    process.start(ORVAN_BINARY_DIR "/bin/orvan-print",
                  {"--dump-ticket", "--ticket", folder.filePath("in.plist"), "--ppd", kSamplePpd});
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    PrintSession out;
    const auto list = readPropertyList(process.readAllStandardOutput());
    ASSERT_TRUE(list && sessionFromPropertyList(*list, out));

    const Ticket& written = out.printSettings();
    EXPECT_EQ(written.string(kWatermarkTicketKey), "Draft");
    EXPECT_EQ(written.integer(kWatermarkOptionTicketKey, NumberType::SInt32), 3);
    EXPECT_EQ(written.integer(kWatermarkFirstPageOnlyTicketKey, NumberType::SInt32), 1);
    const std::optional<QString> subset = written.string(kWatermarkSubsetFontNameTicketKey);
    ASSERT_EQ(subset, "QV-ArialMT-QV");

    // Drawn without a display: the record holds the text's glyphs, and the
    // stored subset shows them as the text.
    _WatermarkData record;
    ASSERT_TRUE(loadWatermarkData(kWatermarkFile, "Draft", record));
    EXPECT_EQ(record.glyphCount, 5);
    QByteArray program;
    loadFontData(kWatermarkFile, *subset, program);
    EXPECT_EQ(test::GhostscriptText(program, *subset, record.glyphCount), "Draft");
}

} // namespace
} // namespace orvan
