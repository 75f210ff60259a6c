// A session's job on its way to the printer: straight to an IPP printer and
// through a private cupsd whose queue points at one, the failures a user
// meets, and orvan-print --print from a script, with its passcode kept out
// of everything but the job.
#include "host/JobSubmission.h"
#include "host/Presets.h"
#include "host/tests/HostTestSupport.h"
#include "paperoutput/JobNotesModel.h"
#include "paperoutput/PaperOutputRecord.h"
#include "settings/TicketFile.h"
#include "specialpages/Cover.h"
#include "specialpages/ExceptionPage.h"
#include "specialpages/Insert.h"
#include "specialpages/SpecialPageKeys.h"
#include "submission/tests/IppText.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <functional>

using namespace orvan;
using namespace orvan::submission;
using namespace orvan::testing;

namespace {

constexpr char kPasscode[] = "0012";

Stock ColouredStock(std::int32_t type, std::int32_t color)
{
    Stock stock(nullptr);
    stock.setType(type);
    stock.setColor(color);
    return stock;
}

// Stock, a front cover, two inserts, an exception range, staple and punch,
// an output bin, secure print and job notes.
void FillFullJob(Ticket& t)
{
    Stock stock = ColouredStock(1, 2); // Standard, Blue
    stock.setSize(1);                  // Letter
    stock.setSource(1);
    stock.setWeight(90);
    stock.setDescription("Linen, \"laid\" finish");
    t.setItem(kPanelClient, kJobLevelStockKey, stock.asTicket());
    Cover front;
    front.stock() = ColouredStock(kUnset, 3); // Yellow
    front.setSidesImaged(kCoverPrintedSimplex);
    t.setItem(kRecordClient, kFrontCoverKey, front.asTicket());
    Insert first, second;
    first.setStartPage(1);
    first.stock() = ColouredStock(kUnset, 5); // Pink
    second.setStartPage(2);
    second.setQuantity(2);
    second.stock() = ColouredStock(24, kUnset); // tab stock
    t.setItem(kRecordClient, kInsertListKey, PropertyArray{first.asTicket(), second.asTicket()});
    ExceptionPage range;
    range.setStartPage(2);
    range.setEndPage(3);
    range.setPlex(1);
    range.stock() = ColouredStock(kUnset, 4); // Green
    t.setItem(kRecordClient, kExceptionListKey, PropertyArray{range.asTicket()});
    t.ppdDictionary().insert("StapleLocation", "SinglePortrait");
    t.ppdDictionary().insert("QVPunch", "2HolePunch");
    t.ppdDictionary().insert("OutputBin", "Top");
    t.setItem(kPanelClient, kJobTypeKey,
              PropertyDictionary{{kJobTypeValueKey, PropertyValue::integer(6, NumberType::SInt32)},
                                 {kSecurePrintPasswordKey, kPasscode}});
    t.setItem(kPanelClient, kJobNotesJobNameKey, "Quarterly report");
    t.setItem(kPanelClient, kJobNotesSheetMessageKey, "For the board");
    t.setItem(kPanelClient, kJobNotesMessageKey, "Load the blue paper");
}

class Submission : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (IppEveryWherePrinter::programPath().isEmpty())
            GTEST_SKIP() << "ippeveprinter or dbus-daemon is not installed";
        qputenv("XDG_CONFIG_HOME", path("config").toLocal8Bit());
        qputenv("ORVAN_SHARED_DATA_DIR", path("shared").toLocal8Bit());
        ASSERT_TRUE(WritePostScriptDocument(path("document.ps"), 3));
        ASSERT_TRUE(WriteFinisherPrinterAttributes(path("finisher.conf")));
        QString why;
        m_printer = IppEveryWherePrinter::start("Orvan Finisher", &why, path("finisher.conf"));
        ASSERT_TRUE(m_printer) << why.toStdString();
        FillFullJob(m_session.printSettings());
    }

    QString path(const QString& name) const { return m_home.filePath(name); }

    // A private cupsd with a queue "Finisher" that prints to the IPP printer.
    void startQueue()
    {
        ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(m_server));
        QString why;
        ASSERT_TRUE(m_server->addQueue("Finisher", m_printer->uri(), QString(), &why))
            << why.toStdString();
    }

    QTemporaryDir m_home;
    PrintSession m_session;
    std::unique_ptr<IppEveryWherePrinter> m_printer;
    std::unique_ptr<CupsServer> m_server;
};

// Each kind of job sent straight to the printer and through a queue: which
// attributes arrive as sent, value types included (the members of a
// collection in any order). cupsd hands a job's options to its backend as
// text and keeps "job-..." attributes to itself; the IPP backend turns the
// text back into attributes as its own option table types them.
TEST_F(Submission, EveryKindOfJobReachesThePrinterDirectlyAndThroughAQueue)
{
    ASSERT_NO_FATAL_FAILURE(startQueue());
    const struct
    {
        const char* what;
        std::function<void(Ticket&)> fill;
        QStringList attributes;
        QStringList throughQueue; // those that arrive exactly through the queue
    } rows[] = {
        {"stock, cover, inserts, exceptions, finishing, bin, secure print, notes",
         FillFullJob,
         {"job-name", "copies", "media-col", "finishings", "finishings-col", "output-bin",
          "cover-front", "insert-sheet", "overrides", "job-sheet-message",
          "job-message-to-operator"},
         {"job-name", "finishings", "output-bin"}},
        {"image quality, sides, pages, page setup",
         [](Ticket& t) {
             t.ppdDictionary().insert("Resolution", "1200x1200dpi");
             t.ppdDictionary().insert("JCLPrintQuality", "Enhanced");
             t.ppdDictionary().insert("Duplex", "DuplexTumble");
             t.setItem(kPanelClient, orvan::kLayoutRowsKey, PropertyValue::integer(2));
             t.setItem(kPanelClient, orvan::kLayoutColumnsKey, PropertyValue::integer(1));
             WriteCopiesAndPages(t, 2, 1, 2);
         },
         {"printer-resolution", "print-quality", "sides", "number-up", "copies", "page-ranges"},
         {"printer-resolution", "print-quality", "sides", "number-up", "copies", "page-ranges"}},
        {"fax",
         [](Ticket& t) {
             t.setItem(kPanelClient, kJobTypeKey,
                       PropertyDictionary{
                           {kJobTypeValueKey, PropertyValue::integer(5, NumberType::SInt32)}});
             t.setItem(kPanelClient, kFaxRecipientListKey,
                       PropertyArray{PropertyDictionary{{kFaxNumberKey, "555-0100"}}});
             t.setItem(kPanelClient, kFaxOptionsKey,
                       PropertyDictionary{{kFaxConfirmationSheetKey, PropertyValue::boolean(true)},
                                          {kFaxCoverSheetKey, PropertyValue::boolean(true)},
                                          {kFaxCoverSheetNotesKey, "Two pages"},
                                          {kFaxDialingPrefixKey, "9"},
                                          {kFaxResolutionKey, PropertyValue::integer(1)}});
         },
         {"destination-uris", "confirmation-sheet-print", "cover-sheet-info", "printer-resolution"},
         {"confirmation-sheet-print", "printer-resolution"}},
    };
    int printerJobs = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PrintSession session;
        row.fill(session.printSettings());
        const JobDescription sent = DescribeJob(session, "document.ps");
        const auto arrived = [&](int jobId) {
            const auto recorded = m_printer->job(jobId);
            QStringList names;
            for (const QString& name : row.attributes) {
                const QString expected = IppText(sent.attributes.get(), qPrintable(name), true);
                EXPECT_FALSE(expected.isEmpty()) << qPrintable(name);
                if (recorded && IppText(recorded.get(), qPrintable(name), true) == expected)
                    names << name;
            }
            return names;
        };
        const auto direct =
            SubmitSession(session, PrinterAtUri(m_printer->uri()), {path("document.ps")});
        ASSERT_TRUE(direct.error.isEmpty())
            << direct.error.toStdString() << m_printer->output().toStdString();
        EXPECT_EQ(direct.notices, QStringList());
        EXPECT_EQ(arrived(++printerJobs), row.attributes);
        const auto queued =
            SubmitSession(session, PrinterEntry{.queueName = "Finisher"}, {path("document.ps")});
        ASSERT_TRUE(queued.error.isEmpty()) << queued.error.toStdString();
        EXPECT_EQ(m_server->waitForJob(queued.jobIds.front()).value("job-state"), "completed")
            << m_server->errorLog().toStdString();
        EXPECT_EQ(arrived(++printerJobs), row.throughQueue);
    }

    // The full job through the queue: the server keeps the notes, and the
    // backend sends the collections with members typed by its own table
    // (names for media-weight-metric, cover-type, finishing-template).
    const JobAttributes status = m_server->waitForJob(1);
    EXPECT_EQ(status.value("job-sheet-message"), "For the board");
    EXPECT_EQ(status.value("job-message-to-operator"), "Load the blue paper");
    const auto recorded = m_printer->job(2);
    ASSERT_TRUE(recorded);
    for (const char* name :
         {"media-col", "cover-front", "finishings-col", "insert-sheet", "overrides"})
        EXPECT_TRUE(IppText(recorded.get(), name).startsWith(QStringLiteral("%1 (").arg(name)))
            << name;
    // The passcode is an operation attribute: the printer's log shows it in
    // the direct job's one request and in two of the queue backend's.
    const QString passcode = QStringLiteral("job-password (octetString) %1").arg(kPasscode);
    ASSERT_TRUE(m_printer->logged(passcode));
    EXPECT_EQ(m_printer->output().count(passcode), 3);
    EXPECT_TRUE(m_printer->logged("job-password-encryption (keyword) none"));
}

TEST_F(Submission, FailuresGiveOneLineAndNoJob)
{
    ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(m_server));
    QString why;
    ASSERT_TRUE(m_server->addQueue("Stopped", "file:///dev/null", SamplePpdPath(), &why, false))
        << why.toStdString();
    // A printer that takes only the paper it has refuses a custom size.
    Stock poster = ColouredStock(1, 2);
    poster.setWidth(6000);
    poster.setLength(9000);
    PrintSession posterJob;
    posterJob.printSettings().setItem(kPanelClient, kJobLevelStockKey, poster.asTicket());
    const PrinterEntry printer = PrinterAtUri(m_printer->uri());
    const struct
    {
        const char* what;
        const PrintSession& session;
        PrinterEntry printer;
        QString file;
        const char* reason;
    } cases[] = {
        {"unreachable printer", m_session,
         PrinterAtUri(QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(FreeLoopbackPort())),
         path("document.ps"), "cannot reach the printer at 127.0.0.1"},
        {"refused attribute", posterJob, printer, path("document.ps"),
         "the printer refused the job: "},
        {"missing file", m_session, printer, path("absent.ps"), "cannot read"},
        {"stopped queue",
         m_session,
         {.displayName = "Stopped", .queueName = "Stopped"},
         path("document.ps"),
         "Stopped"},
        {"unknown queue",
         m_session,
         {.displayName = "Nowhere", .queueName = "Nowhere"},
         path("document.ps"),
         "Nowhere"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const auto result = SubmitSession(c.session, c.printer, {c.file});
        EXPECT_TRUE(result.jobIds.empty());
        EXPECT_TRUE(result.error.contains(c.reason)) << result.error.toStdString();
        EXPECT_FALSE(result.error.contains('\n'));
    }
    EXPECT_TRUE(m_printer->job(1) == nullptr ||
                IppText(m_printer->job(1).get(), "job-id").isEmpty());
}

// orvan-print --print as a script runs it: the printer gets the paper the
// dialog would send, watermark included; afterwards the passcode is found
// nowhere but in the job's own ticket (and at the printer).
TEST_F(Submission, HeadlessPrintStampsTheWatermarkAndKeepsThePasscodeToTheJob)
{
    ASSERT_NO_FATAL_FAILURE(SelectConfidentialWatermark(m_session.printSettings()));
    ASSERT_TRUE(saveTicketFile(path("secure.plist"), m_session));
    const RunResult job =
        RunOrvanPrint({"--print", "--printer", m_printer->uri(), "--ticket", path("secure.plist"),
                       "--save-ticket", path("job.plist"), path("document.ps")});
    ASSERT_EQ(job.exitCode, 0) << job.why();
    EXPECT_EQ(job.out, "1\n");
    EXPECT_TRUE(m_printer->logged(QStringLiteral("job-password (octetString) %1").arg(kPasscode)));
    const QStringList received = m_printer->receivedDocuments();
    ASSERT_EQ(received.size(), 1);
    QProcess pdftotext;
    pdftotext.start("pdftotext", {received.first(), "-"});
    ASSERT_TRUE(pdftotext.waitForFinished(30000));
    const QByteArray text = pdftotext.readAllStandardOutput();
    EXPECT_EQ(text.count("CONFIDENTIAL"), 3) << text.toStdString();
    EXPECT_TRUE(text.contains("orvan test page 3")) << text.toStdString();
    EXPECT_EQ(QFileInfo(path("job.plist")).permissions() & 0x0077, 0)
        << "the job's ticket is the user's alone";

    // A preset made from the job, and a run from it.
    PrintSession saved;
    ASSERT_TRUE(loadTicketFile(path("job.plist"), saved));
    QString why;
    ASSERT_TRUE(SavePreset("Board packs", saved, &why)) << why.toStdString();
    EXPECT_EQ(QFileInfo(PresetsFolder()).permissions() & 0x0077, 0);
    EXPECT_EQ(QFileInfo(PresetsFolder() + "/Board packs.plist").permissions() & 0x0077, 0);
    const RunResult preset = RunOrvanPrint(
        {"--print", "--printer", m_printer->uri(), "--preset", "Board packs", path("document.ps")});
    EXPECT_EQ(preset.exitCode, 0) << preset.why();
    EXPECT_EQ(preset.out, "2\n");
    const auto printed = m_printer->job(2);
    ASSERT_TRUE(printed);
    EXPECT_EQ(IppText(printed.get(), "job-name"),
              "job-name (nameWithoutLanguage)=Quarterly report");

    QByteArray everything = job.out + job.err.toUtf8() + preset.out + preset.err.toUtf8();
    QDirIterator files(path("config"), QDir::Files, QDirIterator::Subdirectories);
    int fileCount = 0;
    for (; files.hasNext(); ++fileCount) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        everything += file.readAll();
    }
    EXPECT_GE(fileCount, 1);
    EXPECT_FALSE(everything.contains(kPasscode)) << everything.toStdString();

    // A printer that does not answer: one line and status 1.
    const RunResult down =
        RunOrvanPrint({"--print", "--printer",
                       QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(FreeLoopbackPort()),
                       path("document.ps")});
    EXPECT_EQ(down.exitCode, 1);
    EXPECT_TRUE(down.err.startsWith("orvan-print: cannot reach the printer at 127.0.0.1:"))
        << down.why();
    EXPECT_EQ(down.err.count('\n'), 1);
    EXPECT_TRUE(down.out.isEmpty());
}

} // namespace
