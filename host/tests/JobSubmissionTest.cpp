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
void FillFullJob(PrintSession& session)
{
    Ticket& t = session.printSettings();
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

// Every job attribute the full job carries, in the order built.
const char* const kFullJobAttributes[] = {
    "job-name",
    "copies",
    "media-col",
    "finishings",
    "finishings-col",
    "output-bin",
    "cover-front",
    "insert-sheet",
    "overrides",
    "job-sheet-message",
    "job-message-to-operator",
};

class Submission : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (IppEveryWherePrinter::programPath().isEmpty())
            GTEST_SKIP() << "ippeveprinter or dbus-daemon is not installed";
        qputenv("XDG_CONFIG_HOME", path("config").toLocal8Bit());
        ASSERT_TRUE(WritePostScriptDocument(path("document.ps"), 3));
        ASSERT_TRUE(WriteFinisherPrinterAttributes(path("finisher.conf")));
        QString why;
        m_printer = IppEveryWherePrinter::start("Orvan Finisher", &why, path("finisher.conf"));
        ASSERT_TRUE(m_printer) << why.toStdString();
        FillFullJob(m_session);
    }

    QString path(const QString& name) const { return m_home.filePath(name); }

    // Each attribute of the full job as the printer recorded its job, next to
    // what was sent: the attributes that arrived exactly, value types included
    // (the members of a collection in any order).
    QStringList arrivedAsSent(int printerJobId)
    {
        const auto recorded = m_printer->job(printerJobId);
        EXPECT_TRUE(recorded);
        const JobDescription sent = DescribeJob(m_session, "document.ps");
        QStringList arrived;
        for (const char* name : kFullJobAttributes) {
            const QString expected = IppText(sent.attributes.get(), name, true);
            EXPECT_FALSE(expected.isEmpty()) << name;
            if (recorded && IppText(recorded.get(), name, true) == expected)
                arrived << name;
        }
        return arrived;
    }

    QTemporaryDir m_home;
    PrintSession m_session;
    std::unique_ptr<IppEveryWherePrinter> m_printer;
};

TEST_F(Submission, FullJobReachesAnIppPrinterWithEveryAttributeTyped)
{
    const auto result =
        SubmitSession(m_session, PrinterAtUri(m_printer->uri()), {path("document.ps")});
    ASSERT_TRUE(result.error.isEmpty())
        << result.error.toStdString() << m_printer->output().toStdString();
    ASSERT_EQ(result.jobIds, std::vector<int>{1});
    EXPECT_EQ(result.notices, QStringList());
    QStringList all;
    for (const char* name : kFullJobAttributes)
        all << name;
    EXPECT_EQ(arrivedAsSent(1), all);
    // The passcode is an operation attribute: the printer's log of the request shows it.
    EXPECT_TRUE(m_printer->logged(QStringLiteral("job-password (octetString) %1").arg(kPasscode)));
    EXPECT_TRUE(m_printer->logged("job-password-encryption (keyword) none"));
}

// cupsd hands a job's options to its backend as text and keeps "job-..."
// attributes to itself; the IPP backend turns the text back into attributes
// as its own option table types them.
TEST_F(Submission, FullJobReachesAnIppPrinterThroughACupsQueue)
{
    std::unique_ptr<CupsServer> server;
    ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(server));
    if (!server)
        return;
    QString why;
    ASSERT_TRUE(server->addQueue("Finisher", m_printer->uri(), QString(), &why))
        << why.toStdString();
    const PrinterEntry queue{.displayName = "Finisher", .queueName = "Finisher"};
    const auto result = SubmitSession(m_session, queue, {path("document.ps")});
    ASSERT_TRUE(result.error.isEmpty()) << result.error.toStdString();
    ASSERT_EQ(result.jobIds.size(), 1u);
    const JobAttributes status = server->waitForJob(result.jobIds.front());
    ASSERT_EQ(status.value("job-state"), "completed") << server->errorLog().toStdString();
    EXPECT_EQ(status.value("job-sheet-message"), "For the board");
    EXPECT_EQ(status.value("job-message-to-operator"), "Load the blue paper");

    EXPECT_EQ(arrivedAsSent(1), (QStringList{"job-name", "finishings", "output-bin"}));
    // These arrive as collections with members the backend types by its own
    // table (names for media-weight-metric, cover-type, finishing-template),
    // and of the two inserts the backend's parser makes one.
    const auto recorded = m_printer->job(1);
    ASSERT_TRUE(recorded);
    for (const char* name :
         {"media-col", "cover-front", "finishings-col", "insert-sheet", "overrides"})
        EXPECT_TRUE(IppText(recorded.get(), name).startsWith(QStringLiteral("%1 (").arg(name)))
            << name;
    EXPECT_TRUE(m_printer->logged(QStringLiteral("job-password (octetString) %1").arg(kPasscode)));
}

// The job types and the settings of the other panels, one job each, sent
// straight to the printer and through a queue: what arrives as sent.
TEST_F(Submission, EveryJobTypeReachesThePrinter)
{
    std::unique_ptr<CupsServer> server;
    ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(server));
    if (!server)
        return;
    QString why;
    ASSERT_TRUE(server->addQueue("Finisher", m_printer->uri(), QString(), &why))
        << why.toStdString();
    const auto jobType = [](std::int32_t type, PropertyDictionary more = {}) {
        more[kJobTypeValueKey] = PropertyValue::integer(type, NumberType::SInt32);
        return PropertyValue(std::move(more));
    };
    const struct
    {
        const char* what;
        std::function<void(Ticket&)> fill;
        QStringList attributes;
        // Those that arrive exactly through the queue: the server keeps "job-..."
        // attributes, and the backend types collection members by its own table
        // (names for proof-print-copies, destination-uri, message).
        QStringList throughQueue;
    } rows[] = {
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
        {"saved job",
         [&](Ticket& t) {
             t.setItem(kPanelClient, kJobTypeKey,
                       jobType(3, {{kSaveDispositionKey, PropertyValue::integer(1)},
                                   {kSavedJobLocationKey, "file:///job-repository/Finance/"}}));
         },
         {"job-storage"},
         {}},
        {"sample set",
         [&](Ticket& t) { t.setItem(kPanelClient, kJobTypeKey, jobType(8)); },
         {"proof-print"},
         {}},
        {"fax",
         [&](Ticket& t) {
             t.setItem(kPanelClient, kJobTypeKey, jobType(5));
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
        ASSERT_TRUE(direct.error.isEmpty()) << direct.error.toStdString();
        EXPECT_EQ(direct.notices, QStringList());
        EXPECT_EQ(arrived(++printerJobs), row.attributes);
        const auto queued =
            SubmitSession(session, PrinterEntry{.queueName = "Finisher"}, {path("document.ps")});
        ASSERT_TRUE(queued.error.isEmpty()) << queued.error.toStdString();
        EXPECT_EQ(server->waitForJob(queued.jobIds.front()).value("job-state"), "completed");
        EXPECT_EQ(arrived(++printerJobs), row.throughQueue);
    }
}

TEST_F(Submission, FailuresGiveOneLineAndNoJob)
{
    QFile binary(path("program.bin"));
    ASSERT_TRUE(binary.open(QIODevice::WriteOnly) && binary.write(QByteArray("\x7f"
                                                                             "ELF\x02\x01\x01",
                                                                             7)));
    binary.close();
    // A printer that takes only the paper it has refuses a custom size.
    Stock poster = ColouredStock(1, 2);
    poster.setWidth(6000);
    poster.setLength(9000);
    PrintSession posterJob;
    posterJob.printSettings().setItem(kPanelClient, kJobLevelStockKey, poster.asTicket());
    const QString unreachable =
        QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(FreeLoopbackPort());
    const struct
    {
        const char* what;
        const PrintSession& session;
        QString printerUri;
        QString file;
        const char* reason;
    } cases[] = {
        {"unreachable printer", m_session, unreachable, path("document.ps"),
         "cannot reach the printer at 127.0.0.1"},
        {"refused attribute", posterJob, m_printer->uri(), path("document.ps"),
         "the printer refused the job: "},
        {"unprintable file", m_session, m_printer->uri(), path("program.bin"),
         "is not a document that can be printed"},
        {"missing file", m_session, m_printer->uri(), path("absent.ps"), "cannot read"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const auto result = SubmitSession(c.session, PrinterAtUri(c.printerUri), {c.file});
        EXPECT_TRUE(result.jobIds.empty());
        EXPECT_TRUE(result.error.contains(c.reason)) << result.error.toStdString();
        EXPECT_FALSE(result.error.contains('\n'));
    }
    EXPECT_TRUE(m_printer->job(1) == nullptr ||
                IppText(m_printer->job(1).get(), "job-id").isEmpty());
}

TEST_F(Submission, QueueFailuresGiveOneLineAndNoJob)
{
    std::unique_ptr<CupsServer> server;
    ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(server));
    if (!server)
        return;
    QString why;
    ASSERT_TRUE(server->addQueue("Stopped", "file:///dev/null", SamplePpdPath(), &why, false))
        << why.toStdString();
    for (const char* queue : {"Stopped", "NoSuchQueue"}) {
        SCOPED_TRACE(queue);
        const auto result =
            SubmitSession(m_session, PrinterEntry{.displayName = queue, .queueName = queue},
                          {path("document.ps")});
        EXPECT_TRUE(result.jobIds.empty());
        EXPECT_FALSE(result.error.isEmpty());
        EXPECT_FALSE(result.error.contains('\n'));
    }
}

// orvan-print --print as a script runs it; afterwards the passcode is found
// nowhere but in the job's own ticket (and at the printer).
TEST_F(Submission, HeadlessPrintKeepsThePasscodeOutOfEverythingButTheJob)
{
    ASSERT_TRUE(saveTicketFile(path("secure.plist"), m_session));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    environment.insert("XDG_CONFIG_HOME", path("config"));
    environment.insert("CUPS_SERVER", QStringLiteral("127.0.0.1:%1").arg(FreeLoopbackPort()));
    const auto run = [&](const QStringList& arguments) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(ORVAN_BINARY_DIR "/bin/orvan-print", arguments);
        EXPECT_TRUE(process.waitForFinished(30000));
        return std::tuple(process.exitCode(), process.readAllStandardOutput(),
                          process.readAllStandardError());
    };

    const auto [status, out, err] =
        run({"--print", "--printer", m_printer->uri(), "--ticket", path("secure.plist"),
             "--save-ticket", path("job.plist"), path("document.ps")});
    ASSERT_EQ(status, 0) << err.toStdString();
    EXPECT_EQ(out, "1\n");
    EXPECT_TRUE(m_printer->logged(QStringLiteral("job-password (octetString) %1").arg(kPasscode)));
    EXPECT_EQ(QFileInfo(path("job.plist")).permissions() & 0x0077, 0)
        << "the job's ticket is the user's alone";

    // A preset made from the job, and a run from it.
    PrintSession job;
    ASSERT_TRUE(loadTicketFile(path("job.plist"), job));
    QString why;
    ASSERT_TRUE(SavePreset("Board packs", job, &why)) << why.toStdString();
    EXPECT_EQ(QFileInfo(PresetsFolder()).permissions() & 0x0077, 0);
    EXPECT_EQ(QFileInfo(PresetsFolder() + "/Board packs.plist").permissions() & 0x0077, 0);
    const auto [presetStatus, presetOut, presetErr] = run(
        {"--print", "--printer", m_printer->uri(), "--preset", "Board packs", path("document.ps")});
    EXPECT_EQ(presetStatus, 0) << presetErr.toStdString();
    EXPECT_EQ(presetOut, "2\n");
    const auto printed = m_printer->job(2);
    ASSERT_TRUE(printed);
    EXPECT_EQ(IppText(printed.get(), "job-name"),
              "job-name (nameWithoutLanguage)=Quarterly report");

    QByteArray everything = out + err + presetOut + presetErr;
    QDirIterator files(path("config"), QDir::Files, QDirIterator::Subdirectories);
    int fileCount = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        everything += file.readAll();
        ++fileCount;
    }
    EXPECT_GE(fileCount, 1);
    EXPECT_FALSE(everything.contains(kPasscode)) << everything.toStdString();

    // Bad input from a script: one line and a non-zero status.
    const auto [unknownStatus, unknownOut, unknownErr] =
        run({"--print", "--printer", m_printer->uri(), "--preset", "Nope", path("document.ps")});
    EXPECT_EQ(unknownStatus, 2);
    EXPECT_EQ(unknownErr, "orvan-print: there is no preset named Nope\n");
    const QString unreachable =
        QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(FreeLoopbackPort());
    const auto [downStatus, downOut, downErr] =
        run({"--print", "--printer", unreachable, path("document.ps")});
    EXPECT_EQ(downStatus, 1);
    EXPECT_TRUE(downErr.startsWith("orvan-print: cannot reach the printer at 127.0.0.1:"))
        << downErr.toStdString();
    EXPECT_EQ(downErr.count('\n'), 1);
    EXPECT_TRUE(downOut.isEmpty());
}

} // namespace
