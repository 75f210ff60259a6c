// orvan-print as users and scripts run it: headless ticket dumps with and
// without a print server, saved tickets, screenshots and its errors.
#include "host/JobSubmission.h"
#include "host/tests/HostTestSupport.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "shell/ShellTicketItems.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace orvan;
using namespace orvan::testing;

namespace {

class OrvanPrintProcess : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir().mkpath(path("tmp")));
        // Preferences and temporary files of its own.
        m_environment.remove("ORVAN_PLUGIN_PATH");
        m_environment.insert("XDG_CONFIG_HOME", path("config"));
        m_environment.insert("ORVAN_SHARED_DATA_DIR", path("shared"));
        m_environment.insert("TMPDIR", path("tmp"));
    }

    QString path(const QString& name) const { return m_home.filePath(name); }

    RunResult run(const QStringList& arguments) const
    {
        return RunOrvanPrint(arguments, m_environment);
    }

    // The session a --dump-ticket run with these arguments printed, after
    // checking the items the shell writes into every ticket.
    PrintSession dumpTicket(const QStringList& arguments) const
    {
        const RunResult dump = run(QStringList{"--dump-ticket"} + arguments);
        EXPECT_EQ(dump.exitCode, 0) << dump.why();
        // The panes run in this order; scripts read it from the dump.
        EXPECT_TRUE(
            dump.out.contains("\n<!-- panes: Orvan Features, Special Pages, Job Notes -->\n"))
            << dump.out.left(300).toStdString();
        PrintSession session;
        const auto plist = readPropertyList(dump.out);
        EXPECT_TRUE(plist && sessionFromPropertyList(*plist, session)) << dump.why();
        ExpectShellItems(session.printSettings());
        return session;
    }

    static void ExpectShellItems(const Ticket& settings)
    {
        for (const auto& [key, value] : {std::pair{kControllerFamilyKey, "Meridian"},
                                         std::pair{kControllerVersionKey, "5.0"}}) {
            const TicketItem* item = settings.item(key);
            ASSERT_TRUE(item) << key.toStdString();
            EXPECT_EQ(*item, (TicketItem{PropertyValue(QString(value)), "Q", false}));
        }
        const passwd* user = getpwuid(getuid());
        ASSERT_TRUE(user);
        EXPECT_EQ(settings.string(kClientUserNameKey), QString::fromLocal8Bit(user->pw_name));
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = HeadlessEnvironment();
};

TEST_F(OrvanPrintProcess, DumpWithoutServerOrDisplayIsOfTheSamplePrinterAndFirstDocument)
{
    ASSERT_TRUE(WritePostScriptDocument(path("Quarterly report.ps"), 1));
    ASSERT_TRUE(WritePostScriptDocument(path("second.ps"), 1));
    const PrintSession session = dumpTicket({path("Quarterly report.ps"), path("second.ps")});
    // With no server the sample printer is the one the dialog starts on.
    ASSERT_TRUE(session.currentPrinter());
    EXPECT_TRUE(session.currentPrinter()->queueName.isEmpty());
    EXPECT_EQ(QFileInfo(session.currentPrinter()->ppdPath).canonicalFilePath(),
              QFileInfo(SamplePpdPath()).canonicalFilePath());
    EXPECT_FALSE(session.printSettings().ppdDictionary().asDictionary().empty());
    const TicketItem* name = session.printSettings().item(kJobNameKey);
    ASSERT_TRUE(name);
    EXPECT_EQ(*name,
              (TicketItem{PropertyValue("Quarterly report.ps"), kPrintingManagerClient, false}));
    EXPECT_FALSE(dumpTicket({}).printSettings().containsItem(kJobNameKey));
}

TEST_F(OrvanPrintProcess, PpdFileAndQueueOfTheSamePpdGiveTheSameTicket)
{
    const PrintSession fileSession = dumpTicket({"--ppd", SamplePpdPath()});
    ASSERT_TRUE(fileSession.currentPrinter());
    EXPECT_EQ(fileSession.currentPrinter()->ppdPath, QFileInfo(SamplePpdPath()).absoluteFilePath());

    std::unique_ptr<CupsServer> server;
    ASSERT_NO_FATAL_FAILURE(StartCupsWithSampleQueue(server));
    if (!server)
        return;
    m_environment.insert("CUPS_SERVER", server->address());
    const PrintSession queueSession = dumpTicket({"--printer", "Meridian"});
    ASSERT_TRUE(queueSession.currentPrinter());
    EXPECT_EQ(queueSession.currentPrinter()->queueName, "Meridian");
    EXPECT_FALSE(queueSession.currentPrinter()->ppdPath.isEmpty());
    EXPECT_EQ(queueSession.printSettings().ppdDictionary(),
              fileSession.printSettings().ppdDictionary());
    // The PPD fetched from the server is a temporary file of the run.
    EXPECT_TRUE(QDir(path("tmp")).isEmpty())
        << QDir(path("tmp")).entryList().join(' ').toStdString();
}

TEST_F(OrvanPrintProcess, SavedTicketKeepsTheItemsItWasGivenWithClientsAndLocks)
{
    PrintSession given;
    Ticket& settings = given.printSettings();
    settings.setItem("com.example.editor", "com.example.editor.Watermarked",
                     PropertyValue::boolean(true), true);
    settings.setItem(kPrintingManagerClient, kCopiesKey, PropertyValue::integer(4));
    settings.setItem("com.example.editor", "com.example.editor.Title", "Report \u00E9t\u00E9");
    PropertyValue layout = PropertyValue::dictionary();
    layout.insert("Columns", PropertyValue::integer(2, NumberType::SInt32));
    layout.insert("Scale", PropertyValue::real(0.3, NumberType::Float32));
    settings.setItem("com.example.editor", "com.example.editor.Layout", layout);
    given.pageFormat().setItem("com.example.editor", "com.apple.print.PageFormat.PMOrientation",
                               PropertyValue::integer(2), true);
    // The shell rewrites its own items, whatever the ticket said before.
    const Ticket expected = settings;
    settings.setItem("elsewhere", kControllerVersionKey, "1.0");
    ASSERT_TRUE(saveTicketFile(path("in.plist"), given));

    const PrintSession dumped =
        dumpTicket({"--ticket", path("in.plist"), "--save-ticket", path("out.plist")});
    PrintSession saved;
    ASSERT_TRUE(loadTicketFile(path("out.plist"), saved));
    for (const auto& [key, item] : expected.items()) {
        const TicketItem* kept = saved.printSettings().item(key);
        EXPECT_TRUE(kept && *kept == item) << key.toStdString();
    }
    EXPECT_EQ(saved.pageFormat(), given.pageFormat());
    // What was saved is what was printed.
    EXPECT_EQ(dumped.printSettings(), saved.printSettings());
    // Saving to a device writes through it instead of replacing it.
    EXPECT_EQ(run({"--dump-ticket", "--save-ticket", "/dev/null"}).exitCode, 0);
    struct stat device = {};
    EXPECT_TRUE(::stat("/dev/null", &device) == 0 && S_ISCHR(device.st_mode));
}

TEST_F(OrvanPrintProcess, UsageErrorsGiveOneLineAndStatusTwo)
{
    QFile garbage(path("garbage.plist"));
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly) &&
                garbage.write("<plist><dict><key>unterminated"));
    garbage.close();
    // PPDs no printer could have: noise, nothing, UTF-16 text, a folder.
    for (const auto& [name, bytes] :
         {std::pair{"noise.ppd", QByteArray("\x01\x02 not a PPD")},
          std::pair{"empty.ppd", QByteArray()},
          std::pair{"utf16.ppd", QByteArray("\xff\xfe*\0P\0P\0D\0-\0")}}) {
        QFile ppd(path(name));
        ASSERT_TRUE(ppd.open(QIODevice::WriteOnly));
        ppd.write(bytes);
    }
    const struct
    {
        QStringList arguments;
        const char* mentions; // a text the message must hold
    } cases[] = {
        {{"--frobnicate"}, "--frobnicate"},
        {{"--dump-ticket", "--printer"}, "--printer"}, // option without value
        {{"--printer", "a", "--ppd", "b"}, "--ppd"},   // two printers
        {{"--dump-ticket", "--tab", "2"}, "--tab"},    // tab without screenshot
        {{"--dump-ticket", "--ticket", path("none.plist")}, "none.plist"},
        {{"--dump-ticket", "--ticket", garbage.fileName()}, "garbage.plist"},
        {{"--dump-ticket", "--ppd", path("none.ppd")}, "none.ppd"},
        {{"--dump-ticket", "--ppd", path("noise.ppd")}, "cannot open the PPD file"},
        {{"--dump-ticket", "--ppd", path("empty.ppd")}, "empty.ppd: "},
        {{"--dump-ticket", "--ppd", path("utf16.ppd")}, "utf16.ppd: Missing asterisk"},
        {{"--dump-ticket", "--ppd", path("tmp")}, "folder"},
        {{"--dump-ticket", "--ticket", "/dev/zero"}, "larger than"},
        {{"--dump-ticket", "--printer", "NoSuchQueue"}, "NoSuchQueue"}, // and no server
        {{"--dump-ticket", path("none.pdf")}, "none.pdf"},
        {{"--print"}, "--print"}, // nothing to print
        {{"--print", "--dump-ticket", path("none.pdf")}, "--print"},
        {{"--dump-ticket", "--preset", "Nope"}, "no preset named Nope"},
        {{}, "display"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments.join(' ').toStdString());
        const RunResult failed = run(c.arguments);
        EXPECT_EQ(failed.exitCode, 2) << failed.why();
        const QString message = failed.err.trimmed();
        EXPECT_TRUE(message.startsWith("orvan-print: ") && !message.contains('\n') &&
                    message.contains(c.mentions))
            << failed.why();
        EXPECT_TRUE(failed.out.isEmpty());
    }
}

TEST_F(OrvanPrintProcess, MissingPluginIsNamedInTheError)
{
    ASSERT_TRUE(QDir().mkpath(path("no-plugin")));
    m_environment.insert("ORVAN_PLUGIN_PATH", path("no-plugin"));
    const RunResult failed = run({"--dump-ticket"});
    EXPECT_GT(failed.exitCode, 0);
    EXPECT_TRUE(failed.err.contains(path("no-plugin"))) << failed.why();
    EXPECT_TRUE(failed.out.isEmpty());
}

TEST_F(OrvanPrintProcess, ScreenshotIsAPngOfTheWholeDialog)
{
    const RunResult shot = run({"--screenshot", path("first.png")});
    ASSERT_EQ(shot.exitCode, 0) << shot.why();
    const QImage first(path("first.png"), "PNG");
    EXPECT_GT(first.width(), 400);
    EXPECT_GT(first.height(), 400);

    const RunResult tab = run({"--screenshot", path("second.png"), "--tab", "2"});
    ASSERT_EQ(tab.exitCode, 0) << tab.why();
    const QImage second(path("second.png"), "PNG");
    EXPECT_FALSE(second.isNull());
    EXPECT_NE(second, first);

    const RunResult missing = run({"--screenshot", path("x.png"), "--tab", "99"});
    EXPECT_EQ(missing.exitCode, 2) << missing.why();
    EXPECT_FALSE(QFile::exists(path("x.png")));
}

} // namespace
