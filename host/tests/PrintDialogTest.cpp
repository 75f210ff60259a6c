// The Print dialog offscreen with the real plug-in: what Print writes into
// the session, when it refuses and stays open, and a job sent through it to a
// private cupsd.
#include "host/PrintDialog.h"
#include "host/JobSubmission.h"
#include "host/PluginHost.h"
#include "host/tests/CupsServer.h"
#include "host/tests/HostTestSupport.h"
#include "settings/TicketFile.h"
#include "shell/ShellTicketItems.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace orvan;
using namespace orvan::testing;

namespace {

// Closes the dialog's error box as soon as it shows, keeping its text.
class ErrorBoxCloser
{
public:
    ErrorBoxCloser()
    {
        m_timer.setInterval(20);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                auto* box = qobject_cast<QMessageBox*>(widget);
                if (box && box->objectName() == QLatin1String("PrintErrorBox") &&
                    box->isVisible()) {
                    m_texts << box->text();
                    box->done(QMessageBox::Ok);
                }
            }
        });
        m_timer.start();
    }
    const QStringList& texts() const { return m_texts; }

private:
    QTimer m_timer;
    QStringList m_texts;
};

PrinterEntry SamplePrinter()
{
    PrinterEntry entry;
    entry.displayName = kSamplePrinterName;
    entry.isSample = true;
    entry.isDefault = true;
    return entry;
}

class PrintDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_home.isValid());
        qputenv("XDG_CONFIG_HOME", m_home.filePath(QStringLiteral("config")).toLocal8Bit());
        qputenv("ORVAN_SHARED_DATA_DIR", m_home.filePath(QStringLiteral("shared")).toLocal8Bit());
        QString why;
        m_plugin = PluginHost::load(QStringLiteral(ORVAN_PLUGIN_DIR), &why);
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

    // Copies and a page range typed into the dialog's fields.
    static void enterCopiesAndPages(PrintDialog& dialog, int copies, int from, int to)
    {
        dialog.findChild<QSpinBox*>(QStringLiteral("CopiesField"))->setValue(copies);
        dialog.findChild<QRadioButton*>(QStringLiteral("PageRangeButton"))->setChecked(true);
        dialog.findChild<QSpinBox*>(QStringLiteral("FromPageField"))->setValue(from);
        dialog.findChild<QSpinBox*>(QStringLiteral("ToPageField"))->setValue(to);
    }

    static void clickPrint(PrintDialog& dialog)
    {
        dialog.findChild<QPushButton*>(QStringLiteral("PrintButton"))->click();
        QApplication::processEvents();
    }

    // The dialog is still up, its pane running and its fields as they were.
    static void expectOpenWith(PrintDialog& dialog, int copies, int from, int to)
    {
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_NE(dialog.result(), QDialog::Accepted);
        EXPECT_FALSE(dialog.lastError().isEmpty());
        EXPECT_TRUE(dialog.findChild<QWidget*>(QStringLiteral("PluginPane")));
        EXPECT_EQ(dialog.findChild<QSpinBox*>(QStringLiteral("CopiesField"))->value(), copies);
        EXPECT_TRUE(
            dialog.findChild<QRadioButton*>(QStringLiteral("PageRangeButton"))->isChecked());
        EXPECT_EQ(dialog.findChild<QSpinBox*>(QStringLiteral("FromPageField"))->value(), from);
        EXPECT_EQ(dialog.findChild<QSpinBox*>(QStringLiteral("ToPageField"))->value(), to);
    }

    QTemporaryDir m_home;
    PrintSession m_session;
    std::unique_ptr<PluginHost> m_plugin;
};

TEST_F(PrintDialogTest, FieldsStartFromTheTicket)
{
    WriteCopiesAndPages(m_session.printSettings(), 7, 4, 6);
    const auto dialog = makeDialog({SamplePrinter()});
    EXPECT_EQ(dialog->findChild<QSpinBox*>(QStringLiteral("CopiesField"))->value(), 7);
    EXPECT_TRUE(dialog->findChild<QRadioButton*>(QStringLiteral("PageRangeButton"))->isChecked());
    EXPECT_EQ(dialog->findChild<QSpinBox*>(QStringLiteral("FromPageField"))->value(), 4);
    EXPECT_EQ(dialog->findChild<QSpinBox*>(QStringLiteral("ToPageField"))->value(), 6);
    const auto* tabs = dialog->findChild<QTabBar*>(QStringLiteral("ShellTabs"));
    ASSERT_TRUE(tabs);
    EXPECT_GT(tabs->count(), 0);
}

TEST_F(PrintDialogTest, PrinterFromAPpdFileKeepsThatFile)
{
    // As orvan-print --ppd makes it: no queue, its own PPD.
    const QString ppd = m_home.filePath(QStringLiteral("Office.ppd"));
    ASSERT_TRUE(QFile::copy(SamplePpdPath(), ppd));
    PrinterEntry fromFile = SamplePrinter();
    fromFile.displayName = QStringLiteral("Office");
    fromFile.ppdFile = ppd;
    const auto dialog = makeDialog({fromFile, SamplePrinter()});
    ASSERT_TRUE(m_session.currentPrinter());
    EXPECT_EQ(m_session.currentPrinter()->ppdPath, ppd);
    EXPECT_TRUE(m_session.currentPrinter()->queueName.isEmpty());
    clickPrint(*dialog);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_session.currentPrinter()->ppdPath, ppd);
}

TEST_F(PrintDialogTest, PrintWithoutFilesAcceptsAndWritesTheFieldsAndTheShellItems)
{
    const auto dialog = makeDialog({SamplePrinter()});
    enterCopiesAndPages(*dialog, 3, 2, 5);
    ErrorBoxCloser closer;
    clickPrint(*dialog);
    EXPECT_TRUE(closer.texts().isEmpty()) << closer.texts().join('\n').toStdString();
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    const Ticket& settings = m_session.printSettings();
    EXPECT_EQ(settings.integer(kCopiesKey), 3);
    EXPECT_EQ(settings.integer(kFirstPageKey), 2);
    EXPECT_EQ(settings.integer(kLastPageKey), 5);
    EXPECT_EQ(settings.string(kControllerFamilyKey), QStringLiteral("Meridian"));
}

TEST_F(PrintDialogTest, AllPagesPrintsAsTheWholeRange)
{
    WriteCopiesAndPages(m_session.printSettings(), 1, 3, 4);
    const auto dialog = makeDialog({SamplePrinter()});
    dialog->findChild<QRadioButton*>(QStringLiteral("AllPagesButton"))->setChecked(true);
    clickPrint(*dialog);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(PageRangeFromTicket(m_session.printSettings()), std::pair(1, kAllPagesLast));
}

TEST_F(PrintDialogTest, FileOnTheSamplePrinterWarnsAndStaysOpen)
{
    const QString file = m_home.filePath(QStringLiteral("report.ps"));
    ASSERT_TRUE(WritePostScriptDocument(file, 1));
    PrintDialog::Options options;
    options.files = {file};
    const auto dialog = makeDialog({SamplePrinter()}, options);
    enterCopiesAndPages(*dialog, 4, 3, 8);
    ErrorBoxCloser closer;
    clickPrint(*dialog);
    ASSERT_EQ(closer.texts().size(), 1);
    EXPECT_TRUE(closer.texts().first().contains(QStringLiteral("sample printer")))
        << closer.texts().first().toStdString();
    expectOpenWith(*dialog, 4, 3, 8);
}

TEST_F(PrintDialogTest, UnwritableSavedTicketWarnsAndStaysOpen)
{
    const QString notAFolder = m_home.filePath(QStringLiteral("plain-file"));
    {
        QFile file(notAFolder);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    PrintDialog::Options options;
    options.saveTicketPath = notAFolder + QStringLiteral("/job.plist");
    const auto dialog = makeDialog({SamplePrinter()}, options);
    enterCopiesAndPages(*dialog, 2, 1, 1);
    ErrorBoxCloser closer;
    clickPrint(*dialog);
    ASSERT_EQ(closer.texts().size(), 1);
    EXPECT_TRUE(closer.texts().first().contains(QStringLiteral("saved")))
        << closer.texts().first().toStdString();
    expectOpenWith(*dialog, 2, 1, 1);
    EXPECT_FALSE(QFile::exists(options.saveTicketPath));
}

TEST_F(PrintDialogTest, PrintOnACupsQueueSendsTheJobAndSavesItsTicket)
{
    if (CupsServer::daemonPath().isEmpty())
        GTEST_SKIP() << "cupsd is not installed";
    QString why;
    const auto server = CupsServer::start(&why);
    ASSERT_TRUE(server) << why.toStdString();
    ASSERT_TRUE(server->addFileQueue(QStringLiteral("Meridian"), SamplePpdPath(), &why))
        << why.toStdString();
    const QString file = m_home.filePath(QStringLiteral("report.ps"));
    ASSERT_TRUE(WritePostScriptDocument(file, 3));

    PrinterEntry queue;
    queue.displayName = QStringLiteral("Meridian in room 4");
    queue.queueName = QStringLiteral("Meridian");
    queue.isDefault = true;
    PrintDialog::Options options;
    options.files = {file};
    options.saveTicketPath = m_home.filePath(QStringLiteral("job.plist"));
    {
        const auto dialog = makeDialog({queue, SamplePrinter()}, options);
        ASSERT_TRUE(m_session.currentPrinter());
        EXPECT_EQ(m_session.currentPrinter()->queueName, QStringLiteral("Meridian"));
        EXPECT_FALSE(m_session.currentPrinter()->ppdPath.isEmpty());
        enterCopiesAndPages(*dialog, 2, 2, 3);
        ErrorBoxCloser closer;
        clickPrint(*dialog);
        EXPECT_TRUE(closer.texts().isEmpty()) << closer.texts().join('\n').toStdString();
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
    }

    // The first job of a fresh server.
    const auto status = server->waitForJob(1);
    ASSERT_TRUE(status);
    ASSERT_TRUE(status->completed()) << "job state " << status->state << "\n"
                                     << server->errorLog().toStdString();
    EXPECT_EQ(status->attributes.value(QStringLiteral("copies")), QStringLiteral("2"));
    EXPECT_EQ(status->attributes.value(QStringLiteral("page-ranges")), QStringLiteral("2-3"));
    EXPECT_EQ(status->attributes.value(QStringLiteral("job-name")), QStringLiteral("report.ps"));
    QFile output(server->outputFile(QStringLiteral("Meridian")));
    ASSERT_TRUE(output.open(QIODevice::ReadOnly));
    const QByteArray printed = output.readAll();
    EXPECT_FALSE(printed.contains(PageMarker(1)));
    EXPECT_TRUE(printed.contains(PageMarker(3)));

    PrintSession saved;
    ASSERT_TRUE(loadTicketFile(options.saveTicketPath, saved, &why)) << why.toStdString();
    EXPECT_EQ(saved.printSettings(), m_session.printSettings());
    EXPECT_EQ(CopiesFromTicket(saved.printSettings()), 2);
    // Every PPD choice of the session went out as a job option (True and
    // False travel as IPP booleans).
    for (const auto& [keyword, choice] : saved.printSettings().ppdDictionary().asDictionary())
        EXPECT_EQ(status->attributes.value(keyword).compare(choice.toString(), Qt::CaseInsensitive),
                  0)
            << keyword.toStdString() << " = " << status->attributes.value(keyword).toStdString();
}

TEST_F(PrintDialogTest, SwitchingPrintersKeepsTheTicketAndDropsTheFetchedPpd)
{
    if (CupsServer::daemonPath().isEmpty())
        GTEST_SKIP() << "cupsd is not installed";
    QString why;
    const auto server = CupsServer::start(&why);
    ASSERT_TRUE(server) << why.toStdString();
    ASSERT_TRUE(server->addFileQueue(QStringLiteral("Meridian"), SamplePpdPath(), &why))
        << why.toStdString();
    m_session.printSettings().setItem(QStringLiteral("com.example.editor"),
                                      QStringLiteral("com.example.editor.Title"),
                                      PropertyValue(QStringLiteral("Minutes")), true);
    PrinterEntry queue;
    queue.displayName = QStringLiteral("Meridian");
    queue.queueName = QStringLiteral("Meridian");
    QString fetched;
    {
        const auto dialog = makeDialog({queue, SamplePrinter()});
        ASSERT_TRUE(m_session.currentPrinter());
        fetched = m_session.currentPrinter()->ppdPath;
        ASSERT_TRUE(QFile::exists(fetched));
        auto* popup = dialog->findChild<QComboBox*>(QStringLiteral("PrinterPopup"));
        ASSERT_TRUE(popup);
        popup->setCurrentIndex(1);
        emit popup->activated(1);
        EXPECT_EQ(m_session.currentPrinter()->ppdPath, SamplePpdPath());
        EXPECT_TRUE(dialog->findChild<QWidget*>(QStringLiteral("PluginPane")));

        // Back on the queue: a fresh copy of its PPD replaces the first.
        popup->setCurrentIndex(0);
        emit popup->activated(0);
        EXPECT_EQ(m_session.currentPrinter()->queueName, QStringLiteral("Meridian"));
        EXPECT_FALSE(QFile::exists(fetched));
        fetched = m_session.currentPrinter()->ppdPath;
        EXPECT_TRUE(QFile::exists(fetched));
        clickPrint(*dialog);
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
    }
    EXPECT_FALSE(QFile::exists(fetched));
    const TicketItem* kept =
        m_session.printSettings().item(QStringLiteral("com.example.editor.Title"));
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->value.toString(), QStringLiteral("Minutes"));
    EXPECT_TRUE(kept->locked);
    EXPECT_EQ(m_session.printSettings().string(kControllerFamilyKey), QStringLiteral("Meridian"));
}

} // namespace
