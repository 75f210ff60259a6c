// The Print dialog offscreen with the real plug-in: what Print writes into
// the session, when it refuses and stays open, and a job sent through it to a
// private cupsd.
#include "host/PrintDialog.h"
#include "host/JobSubmission.h"
#include "host/Presets.h"
#include "host/PreviewPane.h"
#include "host/tests/HostTestSupport.h"
#include "host/tests/PdfFixtures.h"
#include "settings/PageFormat.h"
#include "settings/TicketFile.h"
#include "shell/ShellTicketItems.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>

#include <poppler-qt6.h>

using namespace orvan;
using namespace orvan::testing;

namespace {

PrinterEntry SamplePrinter()
{
    return {.displayName = kSamplePrinterName, .isDefault = true, .isSample = true};
}

class PrintDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("XDG_CONFIG_HOME", m_home.filePath("config").toLocal8Bit());
        qputenv("ORVAN_SHARED_DATA_DIR", m_home.filePath("shared").toLocal8Bit());
        QString why;
        m_plugin = PluginHost::load(ORVAN_PLUGIN_DIR, &why);
        ASSERT_TRUE(m_plugin) << why.toStdString();
    }

    std::unique_ptr<PrintDialog> makeDialog(std::vector<PrinterEntry> printers,
                                            PrintDialog::Options options = {})
    {
        auto dialog = std::make_unique<PrintDialog>(m_session, *m_plugin, std::move(printers),
                                                    std::move(options));
        dialog->show();
        QApplication::processEvents();
        return dialog;
    }

    template <typename Widget> static Widget* field(PrintDialog& dialog, const char* name)
    {
        auto* widget = dialog.findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }

    // Copies, first and last page as the fields show them; no first page
    // when all pages print.
    static std::tuple<int, int, int> fields(PrintDialog& dialog)
    {
        return {field<QSpinBox>(dialog, "CopiesField")->value(),
                field<QRadioButton>(dialog, "PageRangeButton")->isChecked()
                    ? field<QSpinBox>(dialog, "FromPageField")->value()
                    : 0,
                field<QSpinBox>(dialog, "ToPageField")->value()};
    }

    static void enterCopiesAndPages(PrintDialog& dialog, int copies, int from, int to)
    {
        field<QSpinBox>(dialog, "CopiesField")->setValue(copies);
        field<QRadioButton>(dialog, "PageRangeButton")->setChecked(true);
        field<QSpinBox>(dialog, "FromPageField")->setValue(from);
        field<QSpinBox>(dialog, "ToPageField")->setValue(to);
    }

    // Picks the item with that text in a pop-up, as a user would.
    static void choose(PrintDialog& dialog, const char* popup, const QString& text)
    {
        auto* box = field<QComboBox>(dialog, popup);
        const int index = box->findText(text);
        ASSERT_GE(index, 0) << popup << " has no " << text.toStdString();
        box->setCurrentIndex(index);
        emit box->activated(index);
    }

    // A4 landscape, two pages a sheet, as a user picks them.
    static void chooseA4LandscapeTwoUp(PrintDialog& dialog)
    {
        choose(dialog, "PaperSizePopup", "A4");
        choose(dialog, "OrientationPopup", "Landscape");
        choose(dialog, "PagesPerSheetPopup", "2");
    }

    // Clicks Print; the texts of the error boxes it showed, each closed at once.
    static QStringList clickPrint(PrintDialog& dialog)
    {
        return closingErrorBoxes([&] { field<QPushButton>(dialog, "PrintButton")->click(); });
    }

    // Runs the action; the texts of the error boxes it showed, each closed at once.
    template <typename Action> static QStringList closingErrorBoxes(Action action)
    {
        QStringList texts;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, [&texts] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* box = qobject_cast<QMessageBox*>(widget);
                    box && box->objectName() == "PrintErrorBox" && box->isVisible()) {
                    texts << box->text();
                    box->done(QMessageBox::Ok);
                }
        });
        closer.start(20);
        action();
        QApplication::processEvents();
        return texts;
    }

    QTemporaryDir m_home;
    PrintSession m_session;
    std::unique_ptr<PluginHost> m_plugin;
};

TEST_F(PrintDialogTest, FieldsStartFromTheTicketAndPrintWritesThemBack)
{
    WriteCopiesAndPages(m_session.printSettings(), 7, 4, 6);
    {
        const auto dialog = makeDialog({SamplePrinter()});
        EXPECT_EQ(fields(*dialog), std::tuple(7, 4, 6));
        enterCopiesAndPages(*dialog, 3, 2, 5);
        // All pages prints as the whole range.
        field<QRadioButton>(*dialog, "AllPagesButton")->setChecked(true);
        EXPECT_EQ(clickPrint(*dialog), QStringList());
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
    }
    const Ticket& settings = m_session.printSettings();
    EXPECT_EQ(CopiesFromTicket(settings), 3);
    EXPECT_EQ(PageRangeFromTicket(settings), std::pair(1, kAllPagesLast));
    EXPECT_EQ(settings.item(kCopiesKey)->client, kPrintingManagerClient);
    EXPECT_EQ(settings.string(kControllerFamilyKey), "Meridian");
}

// A printer from a PPD file, as orvan-print --ppd makes it: no queue, its
// own PPD; one that cannot be opened is named in the status line.
TEST_F(PrintDialogTest, PrinterFromAPpdFileKeepsThatFileOrSaysWhyNot)
{
    const QString ppd = m_home.filePath("Office.ppd");
    ASSERT_TRUE(QFile::copy(SamplePpdPath(), ppd));
    const QString broken = m_home.filePath("Broken.ppd");
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("not a printer description"));
    file.close();
    const auto dialog = makeDialog({{"Broken", {}, broken, true, true}, {"Office", {}, ppd}});
    const QString status = field<QLabel>(*dialog, "StatusLabel")->text();
    EXPECT_TRUE(status.contains("cannot open the PPD file " + broken + ": "))
        << status.toStdString();
    EXPECT_TRUE(m_session.currentPrinter()->ppdPath.isEmpty());

    choose(*dialog, "PrinterPopup", "Office");
    EXPECT_EQ(*m_session.currentPrinter(), (Printer{QString(), ppd}));
    EXPECT_TRUE(field<QLabel>(*dialog, "StatusLabel")->text().isEmpty());
}

TEST_F(PrintDialogTest, FailureToPrintShowsWhyAndKeepsTheDialogAndItsFields)
{
    ASSERT_TRUE(WritePostScriptDocument(m_home.filePath("report.ps"), 1));
    QFile(m_home.filePath("plain-file")).open(QIODevice::WriteOnly);
    const PrinterEntry unreachable =
        PrinterAtUri(QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(FreeLoopbackPort()));
    const struct
    {
        PrintDialog::Options options;
        PrinterEntry printer;
        const char* mentions;
    } cases[] = {
        // A file, no queue to take it.
        {{{m_home.filePath("report.ps")}, {}}, SamplePrinter(), "sample printer"},
        // The ticket cannot be saved.
        {{{}, m_home.filePath("plain-file/job.plist")}, SamplePrinter(), "saved"},
        {{{m_home.filePath("report.ps")}, {}}, unreachable, "cannot reach the printer"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mentions);
        const auto dialog = makeDialog({c.printer, SamplePrinter()}, c.options);
        enterCopiesAndPages(*dialog, 4, 3, 8);
        const QStringList boxes = clickPrint(*dialog);
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_TRUE(boxes.first().contains(c.mentions)) << boxes.first().toStdString();
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_NE(dialog->result(), QDialog::Accepted);
        EXPECT_FALSE(dialog->lastError().isEmpty());
        EXPECT_EQ(fields(*dialog), std::tuple(4, 3, 8));
    }
}

// A preset keeps the settings as shown; "Default Settings" clears them; a
// preset that is missing or unreadable leaves everything as it was.
TEST_F(PrintDialogTest, PresetsSaveAndRestoreTheSettings)
{
    {
        const auto dialog = makeDialog({SamplePrinter()});
        enterCopiesAndPages(*dialog, 4, 2, 3);
        ASSERT_TRUE(dialog->savePreset("Board packs"));
        auto* presets = field<QComboBox>(*dialog, "PresetPopup");
        EXPECT_EQ(presets->currentText(), "Board packs");
        EXPECT_EQ(presets->itemText(0), "Default Settings");
        EXPECT_EQ(presets->itemText(presets->count() - 1), "Save Settings as Preset\u2026");

        presets->setCurrentIndex(0);
        emit presets->activated(0);
        const auto [copies, firstPage, lastPage] = fields(*dialog); // one copy of all pages
        EXPECT_EQ(std::tuple(copies, firstPage), std::tuple(1, 0));
        EXPECT_FALSE(m_session.printSettings().containsItem(kCopiesKey));
        EXPECT_TRUE(dialog->findChild<QWidget*>("PluginPane"));

        const int saved = presets->findText("Board packs");
        presets->setCurrentIndex(saved);
        emit presets->activated(saved);
        EXPECT_EQ(fields(*dialog), std::tuple(4, 2, 3));

        // A preset file that went bad in the meantime.
        QFile broken(PresetsFolder() + "/Board packs.plist");
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("<plist>") > 0);
        broken.close();
        enterCopiesAndPages(*dialog, 6, 1, 1);
        const QStringList boxes = closingErrorBoxes([&] { emit presets->activated(saved); });
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_TRUE(boxes.first().contains("cannot be read")) << boxes.first().toStdString();
        EXPECT_EQ(fields(*dialog), std::tuple(6, 1, 1));
    }
    // orvan-print --preset with a name nobody saved.
    WriteCopiesAndPages(m_session.printSettings(), 5, 1, kAllPagesLast);
    PrintDialog::Options options;
    options.initialPreset = "Nope";
    const auto dialog = makeDialog({SamplePrinter()}, options);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->lastError(), "there is no preset named Nope");
    EXPECT_TRUE(field<QLabel>(*dialog, "StatusLabel")->text().contains("no preset named Nope"));
    EXPECT_EQ(fields(*dialog), std::tuple(5, 0, 1));
}

// A file that cannot be printed: the preview area says why, and Print is
// refused with the same reason.
TEST_F(PrintDialogTest, UnprintableFileIsExplainedInThePreviewAndRefused)
{
    const QString file = m_home.filePath("notes.txt");
    QFile text(file);
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("not a document\n") > 0);
    text.close();
    const auto dialog = makeDialog({SamplePrinter()}, {{file}});
    dialog->waitForPreview(5000);
    auto* message = field<QLabel>(*dialog, "PreviewMessage");
    EXPECT_TRUE(message->isVisible());
    EXPECT_TRUE(message->text().contains("notes.txt"));
    const QStringList boxes = clickPrint(*dialog);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes.first(), message->text());
    EXPECT_TRUE(dialog->isVisible());
}

// What a user checks a watermark with before using paper. The page setup
// goes into the tickets where the panels read it, the preview lays the
// sheets out accordingly, and the saved PDF has half the pages, each carrying
// the watermark; the user's own file stays as it was. (Sheet sizes and
// stamps in detail: DocumentPreparerTest.)
TEST_F(PrintDialogTest, PageSetupReachesTheTicketsThePreviewAndTheSavedPdf)
{
    ASSERT_NO_FATAL_FAILURE(SelectConfidentialWatermark(m_session.printSettings()));
    const QString file = m_home.filePath("report.pdf");
    ASSERT_TRUE(WritePdfDocument(file, 5));
    QFile original(file);
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray before = original.readAll();
    PrintDialog::Options options{{file}};
    options.pdfPath = m_home.filePath("saved.pdf");
    const auto dialog = makeDialog({SamplePrinter()}, options);
    chooseA4LandscapeTwoUp(*dialog);
    EXPECT_EQ(m_session.printSettings().boolean(kLayoutNUpKey), true);
    EXPECT_TRUE(field<QComboBox>(*dialog, "PageOrderPopup")->isEnabled());
    choose(*dialog, "PrinterPopup", "Save as PDF"); // its papers have A4 too
    auto* pane = field<PreviewPane>(*dialog, "PreviewPane");
    for (int i = 0; i < 50 && pane->spreadCount() != 3; ++i)
        QSignalSpy(pane, &PreviewPane::spreadShown).wait(200);
    EXPECT_TRUE(pane->isShowingPages());
    EXPECT_EQ(field<QLabel>(*dialog, "SheetPositionLabel")->text(), "1 of 3");

    EXPECT_EQ(clickPrint(*dialog), QStringList());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    const auto saved = Poppler::Document::load(options.pdfPath);
    ASSERT_TRUE(saved);
    ASSERT_EQ(saved->numPages(), 3);
    EXPECT_EQ(saved->page(0)->text(QRectF()).count("CONFIDENTIAL"), 2);
    ASSERT_TRUE(original.seek(0));
    EXPECT_EQ(original.readAll(), before);
}

// Switching to the sample printer and back keeps the ticket and leaves no
// fetched PPD behind; Print then sends the job and saves its ticket. The
// page setup and range travel as job attributes, the watermark in the
// document the queue receives.
TEST_F(PrintDialogTest, PrintOnACupsQueueAfterSwitchingPrintersSendsTheJobAndItsWatermark)
{
    std::unique_ptr<CupsServer> server;
    ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(server));
    if (!server)
        return;
    ASSERT_NO_FATAL_FAILURE(SelectConfidentialWatermark(m_session.printSettings()));
    const QString file = m_home.filePath("report.pdf");
    ASSERT_TRUE(WritePdfDocument(file, 4));
    m_session.printSettings().setItem("com.example.editor", "com.example.editor.Title", "Minutes",
                                      true);
    const PrinterEntry queue{.displayName = "Meridian in room 4", .queueName = "Meridian"};
    PrintDialog::Options options{{file}, m_home.filePath("job.plist")};
    QString fetched;
    {
        const auto dialog = makeDialog({queue, SamplePrinter()}, options);
        ASSERT_TRUE(m_session.currentPrinter());
        EXPECT_EQ(m_session.currentPrinter()->queueName, "Meridian");
        fetched = m_session.currentPrinter()->ppdPath;
        ASSERT_TRUE(QFile::exists(fetched));
        choose(*dialog, "PrinterPopup", kSamplePrinterName);
        EXPECT_EQ(m_session.currentPrinter()->ppdPath, SamplePpdPath());
        EXPECT_TRUE(dialog->findChild<QWidget*>("PluginPane"));
        // Back on the queue: a fresh copy of its PPD replaces the first.
        choose(*dialog, "PrinterPopup", queue.displayName);
        EXPECT_EQ(m_session.currentPrinter()->queueName, "Meridian");
        EXPECT_FALSE(QFile::exists(fetched));
        fetched = m_session.currentPrinter()->ppdPath;
        EXPECT_TRUE(QFile::exists(fetched));

        chooseA4LandscapeTwoUp(*dialog);
        enterCopiesAndPages(*dialog, 2, 2, 3);
        EXPECT_EQ(clickPrint(*dialog), QStringList());
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
    }
    EXPECT_FALSE(QFile::exists(fetched));
    const TicketItem* kept = m_session.printSettings().item("com.example.editor.Title");
    EXPECT_TRUE(kept && *kept == (TicketItem{"Minutes", "com.example.editor", true}));

    // The first job of a fresh server.
    const JobAttributes status = server->waitForJob(1);
    ASSERT_EQ(status.value("job-state"), "completed") << server->errorLog().toStdString();
    EXPECT_EQ(status.value("media-col"), "{media-size={x-dimension=20990 y-dimension=29704}}");
    EXPECT_EQ(status.value("number-up-layout"), "lrtb");
    EXPECT_EQ(status.value("multiple-document-handling"), "separate-documents-collated-copies");
    EXPECT_EQ(status.value("orientation-requested"), "landscape");
    PrintSession saved;
    ASSERT_TRUE(loadTicketFile(options.saveTicketPath, saved));
    EXPECT_EQ(saved.printSettings(), m_session.printSettings());
    // Every PPD choice of the session went out as a job option (True and
    // False travel as IPP booleans).
    for (const auto& [keyword, choice] : saved.printSettings().ppdDictionary().asDictionary())
        EXPECT_EQ(status.value(keyword).compare(choice.toString(), Qt::CaseInsensitive), 0)
            << keyword.toStdString() << " = " << status.value(keyword).toStdString();

    // The queue's output drawn by Ghostscript: the watermark is the only red
    // on the sheet, once for each page.
    const QString sheet = m_home.filePath("sheet.png");
    QProcess gs;
    gs.start("gs", {"-q", "-dNOPAUSE", "-dBATCH", "-dSAFER", "-sDEVICE=png16m", "-r20",
                    "-dLastPage=1", "-sOutputFile=" + sheet, server->outputFile("Meridian")});
    ASSERT_TRUE(gs.waitForFinished(60000));
    const QImage image(sheet);
    ASSERT_FALSE(image.isNull());
    int red = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            red += qRed(image.pixel(x, y)) - qGreen(image.pixel(x, y)) > 60;
    EXPECT_GT(red, 20);
}

} // namespace
