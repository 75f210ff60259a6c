// From a session's tickets to CUPS jobs: the job options, jobs a private
// cupsd refuses, and a job that reaches an IPP printer through its queue.
// (A job on a file queue goes through the Print dialog's tests.)
#include "host/JobSubmission.h"
#include "host/tests/HostTestSupport.h"

using namespace orvan;
using namespace orvan::testing;

namespace {

TEST(JobOptions, FromTheSessionsTicket)
{
    const struct
    {
        std::optional<int> copies;
        std::optional<std::pair<int, int>> pages;
        std::vector<std::pair<QString, PropertyValue>> ppdChoices;
        QString expected; // sorted, "keyword=value" separated by spaces
    } cases[] = {
        {{}, {}, {}, "copies=1"},
        {3,
         std::pair{2, 5},
         {{"Duplex", "DuplexNoTumble"}, {"MediaType", "Plain"}},
         "Duplex=DuplexNoTumble MediaType=Plain copies=3 page-ranges=2-5"},
        {1, std::pair{4, kAllPagesLast}, {}, "copies=1 page-ranges=4-"},
        {2, std::pair{1, kAllPagesLast}, {}, "copies=2"},
        {1, std::pair{7, 7}, {}, "copies=1 page-ranges=7-7"},
        // Nonsense in the ticket falls back to one copy of all pages.
        {0, std::pair{5, 2}, {}, "copies=1"},
        // Empty and non-text choices are not options.
        {{},
         {},
         {{"InputSlot", ""}, {"Jog", PropertyValue::integer(1)}, {"OutputBin", "Top"}},
         "OutputBin=Top copies=1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expected.toStdString());
        PrintSession session;
        Ticket& settings = session.printSettings();
        if (c.copies)
            settings.setItem(kPrintingManagerClient, kCopiesKey, PropertyValue::integer(*c.copies));
        if (c.pages) {
            settings.setItem(kPrintingManagerClient, kFirstPageKey,
                             PropertyValue::integer(c.pages->first));
            settings.setItem(kPrintingManagerClient, kLastPageKey,
                             PropertyValue::integer(c.pages->second));
        }
        for (const auto& [keyword, choice] : c.ppdChoices)
            settings.ppdDictionary().insert(keyword, choice);
        QStringList options;
        for (const auto& [name, value] : JobOptionsFromSession(session))
            options << name + '=' + value;
        options.sort();
        EXPECT_EQ(options.join(' '), c.expected);
    }
}

class PrivateCups : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(m_server));
        if (m_server)
            ASSERT_TRUE(WritePostScriptDocument(document(), 2));
    }

    QString document() const { return m_files.filePath("document.ps"); }

    QTemporaryDir m_files;
    std::unique_ptr<CupsServer> m_server;
};

TEST_F(PrivateCups, StoppedMissingQueuesAndMissingFilesGiveNoJobAndAReason)
{
    QString why;
    ASSERT_TRUE(m_server->addQueue("Stopped", "file:///dev/null", SamplePpdPath(), &why, false))
        << why.toStdString();
    const std::pair<const char*, QString> cases[] = {{"Stopped", document()},
                                                     {"NoSuchQueue", document()},
                                                     {"Meridian", m_files.filePath("absent.ps")}};
    for (const auto& [queue, file] : cases) {
        SCOPED_TRACE(queue);
        QString reason;
        EXPECT_EQ(SubmitJob(queue, {file}, "t", {}, &reason), 0);
        EXPECT_FALSE(reason.isEmpty());
    }
}

TEST_F(PrivateCups, JobReachesAnIppPrinterThroughItsQueue)
{
    if (IppEveryWherePrinter::programPath().isEmpty())
        GTEST_SKIP() << "ippeveprinter or dbus-daemon is not installed";
    QString why;
    const auto printer = IppEveryWherePrinter::start("Orvan Test IPP", &why);
    ASSERT_TRUE(printer) << why.toStdString();
    // A raw queue: the printer gets the document itself, with the job's
    // options as IPP attributes.
    ASSERT_TRUE(m_server->addQueue("Network", printer->uri(), QString(), &why))
        << why.toStdString();
    PrintSession session;
    WriteCopiesAndPages(session.printSettings(), 3, 1, kAllPagesLast);
    const int job =
        SubmitJob("Network", {document()}, "over ipp", JobOptionsFromSession(session), &why);
    ASSERT_GT(job, 0) << why.toStdString();
    const JobAttributes status = m_server->waitForJob(job);
    ASSERT_EQ(status.value("job-state"), "completed")
        << m_server->errorLog().toStdString() << printer->output().toStdString();

    const QStringList received = printer->receivedDocuments();
    ASSERT_EQ(received.size(), 1) << printer->output().toStdString();
    QFile sent(document());
    QFile arrived(received.first());
    ASSERT_TRUE(sent.open(QIODevice::ReadOnly) && arrived.open(QIODevice::ReadOnly));
    EXPECT_EQ(arrived.readAll(), sent.readAll());
    // The options as the server took them (it hands them on to the printer).
    EXPECT_EQ(status.value("copies"), "3");
    EXPECT_EQ(status.value("job-name"), "over ipp");
}

} // namespace
