// orvan-print as users and scripts run it: headless ticket dumps with and
// without a print server, saved tickets, screenshots and its errors.
#include "host/tests/CupsServer.h"
#include "host/tests/HostTestSupport.h"
#include "platform/SystemFacts.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "shell/ShellTicketItems.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

#include <chrono>

using namespace orvan;
using namespace orvan::testing;

namespace {

constexpr auto kRunTimeout = std::chrono::seconds(30);

struct RunResult
{
    bool finished = false;
    int exitCode = -1;
    QByteArray out;
    QString err;
};

QString Describe(const RunResult& run)
{
    return QStringLiteral("exit %1, stderr: %2").arg(run.exitCode).arg(run.err);
}

QString CurrentUserName()
{
    const passwd* entry = getpwuid(getuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString();
}

class OrvanPrintProcess : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_home.isValid());
        ASSERT_TRUE(QDir().mkpath(tempFolder()));
        // No display, no print server unless a test starts one, preferences
        // and temporary files of its own.
        m_environment = QProcessEnvironment::systemEnvironment();
        for (const char* name :
             {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ORVAN_PLUGIN_PATH"})
            m_environment.remove(QLatin1String(name));
        m_environment.insert(QStringLiteral("CUPS_SERVER"),
                             QStringLiteral("127.0.0.1:%1").arg(FreeLoopbackPort()));
        m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                             m_home.filePath(QStringLiteral("config")));
        m_environment.insert(QStringLiteral("ORVAN_SHARED_DATA_DIR"),
                             m_home.filePath(QStringLiteral("shared")));
        m_environment.insert(QStringLiteral("TMPDIR"), tempFolder());
    }

    QString tempFolder() const { return m_home.filePath(QStringLiteral("tmp")); }
    QString path(const QString& name) const { return m_home.filePath(name); }

    RunResult run(const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(ORVAN_BINARY_DIR "/bin/orvan-print"), arguments);
        RunResult result;
        if (!process.waitForStarted(5000))
            return result;
        result.finished = process.waitForFinished(
            static_cast<int>(std::chrono::milliseconds(kRunTimeout).count()));
        if (!result.finished) {
            process.kill();
            process.waitForFinished(2000);
        }
        result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        result.out = process.readAllStandardOutput();
        result.err = QString::fromLocal8Bit(process.readAllStandardError());
        return result;
    }

    // The session a --dump-ticket run printed.
    static PrintSession DumpedSession(const RunResult& run)
    {
        PropertyListError error;
        const auto plist = readPropertyList(run.out, &error);
        EXPECT_TRUE(plist) << error.toString().toStdString();
        PrintSession session;
        QString why;
        if (plist)
            EXPECT_TRUE(sessionFromPropertyList(*plist, session, &why)) << why.toStdString();
        return session;
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
};

void ExpectShellItems(const Ticket& settings)
{
    for (const auto& [key, value] : {std::pair{kControllerFamilyKey, QStringLiteral("Meridian")},
                                     std::pair{kControllerVersionKey, QStringLiteral("5.0")}}) {
        const TicketItem* item = settings.item(key);
        ASSERT_TRUE(item) << key.toStdString();
        EXPECT_EQ(item->value.toString(), value);
        EXPECT_EQ(item->client, QStringLiteral("Q"));
        EXPECT_FALSE(item->locked);
    }
    const QString user = CurrentUserName();
    ASSERT_FALSE(user.isEmpty());
    EXPECT_EQ(settings.string(kClientUserNameKey).value_or(QString()), user);
    // The computer name travels only with a user, and only when every
    // character is printable Latin-1.
    const auto computer = ComputerName();
    bool printable = computer.has_value();
    for (const QChar c : computer.value_or(QString()))
        printable = printable && c.unicode() >= 0x20 && c.unicode() <= 0xFE;
    EXPECT_EQ(settings.containsItem(kClientComputerNameKey), printable);
    if (printable)
        EXPECT_EQ(settings.string(kClientComputerNameKey), computer);
}

TEST_F(OrvanPrintProcess, DumpsTheShellItemsWithoutServerOrDisplay)
{
    const RunResult dump = run({QStringLiteral("--dump-ticket")});
    ASSERT_TRUE(dump.finished);
    ASSERT_EQ(dump.exitCode, 0) << Describe(dump).toStdString();
    const PrintSession session = DumpedSession(dump);
    ExpectShellItems(session.printSettings());
    // With no server the sample printer is the one the dialog starts on.
    ASSERT_TRUE(session.currentPrinter());
    EXPECT_TRUE(session.currentPrinter()->queueName.isEmpty());
    EXPECT_EQ(QFileInfo(session.currentPrinter()->ppdPath).canonicalFilePath(),
              QFileInfo(SamplePpdPath()).canonicalFilePath());
    EXPECT_FALSE(session.printSettings().ppdDictionary().asDictionary().empty());
}

TEST_F(OrvanPrintProcess, PpdFileAndQueueOfTheSamePpdGiveTheSameTicket)
{
    const RunResult fromFile =
        run({QStringLiteral("--dump-ticket"), QStringLiteral("--ppd"), SamplePpdPath()});
    ASSERT_TRUE(fromFile.finished);
    ASSERT_EQ(fromFile.exitCode, 0) << Describe(fromFile).toStdString();
    const PrintSession fileSession = DumpedSession(fromFile);
    ASSERT_TRUE(fileSession.currentPrinter());
    EXPECT_EQ(fileSession.currentPrinter()->ppdPath, QFileInfo(SamplePpdPath()).absoluteFilePath());
    ExpectShellItems(fileSession.printSettings());

    if (CupsServer::daemonPath().isEmpty())
        GTEST_SKIP() << "cupsd is not installed";
    QString why;
    const auto server = CupsServer::start(&why);
    ASSERT_TRUE(server) << why.toStdString();
    ASSERT_TRUE(server->addFileQueue(QStringLiteral("Meridian"), SamplePpdPath(), &why))
        << why.toStdString();
    m_environment.insert(QStringLiteral("CUPS_SERVER"), server->address());

    const RunResult fromQueue = run(
        {QStringLiteral("--dump-ticket"), QStringLiteral("--printer"), QStringLiteral("Meridian")});
    ASSERT_TRUE(fromQueue.finished);
    ASSERT_EQ(fromQueue.exitCode, 0) << Describe(fromQueue).toStdString();
    const PrintSession queueSession = DumpedSession(fromQueue);
    ASSERT_TRUE(queueSession.currentPrinter());
    EXPECT_EQ(queueSession.currentPrinter()->queueName, QStringLiteral("Meridian"));
    EXPECT_FALSE(queueSession.currentPrinter()->ppdPath.isEmpty());
    EXPECT_EQ(queueSession.printSettings().ppdDictionary(),
              fileSession.printSettings().ppdDictionary());
    ExpectShellItems(queueSession.printSettings());
    // The PPD fetched from the server is a temporary file of the run.
    EXPECT_TRUE(QDir(tempFolder()).isEmpty())
        << QDir(tempFolder()).entryList(QDir::Files).join(' ').toStdString();

    const RunResult unknown = run(
        {QStringLiteral("--dump-ticket"), QStringLiteral("--printer"), QStringLiteral("Nowhere")});
    EXPECT_EQ(unknown.exitCode, 2) << Describe(unknown).toStdString();
    EXPECT_TRUE(unknown.err.contains(QStringLiteral("Nowhere")));
}

TEST_F(OrvanPrintProcess, SavedTicketKeepsTheItemsItWasGivenWithClientsAndLocks)
{
    PrintSession given;
    Ticket& settings = given.printSettings();
    settings.setItem(QStringLiteral("com.example.editor"),
                     QStringLiteral("com.example.editor.Watermarked"), PropertyValue::boolean(true),
                     true);
    settings.setItem(QStringLiteral("com.apple.printingmanager"),
                     QStringLiteral("com.apple.print.PrintSettings.PMCopies"),
                     PropertyValue::integer(4));
    settings.setItem(QStringLiteral("com.example.editor"),
                     QStringLiteral("com.example.editor.Title"),
                     PropertyValue(QStringLiteral("Quarterly report \u00E9t\u00E9")));
    // The shell rewrites its own items, whatever the ticket said before.
    settings.setItem(QStringLiteral("elsewhere"), kControllerVersionKey,
                     PropertyValue(QStringLiteral("1.0")));
    given.pageFormat().setItem(QStringLiteral("com.example.editor"),
                               QStringLiteral("com.apple.print.PageFormat.PMOrientation"),
                               PropertyValue::integer(2), true);
    const QString in = path(QStringLiteral("in.plist"));
    const QString out = path(QStringLiteral("out.plist"));
    QString why;
    ASSERT_TRUE(saveTicketFile(in, given, &why)) << why.toStdString();

    const RunResult dump = run({QStringLiteral("--ticket"), in, QStringLiteral("--save-ticket"),
                                out, QStringLiteral("--dump-ticket")});
    ASSERT_TRUE(dump.finished);
    ASSERT_EQ(dump.exitCode, 0) << Describe(dump).toStdString();

    PrintSession saved;
    ASSERT_TRUE(loadTicketFile(out, saved, &why)) << why.toStdString();
    for (const auto& [key, item] : settings.items()) {
        if (key == kControllerVersionKey)
            continue;
        const TicketItem* kept = saved.printSettings().item(key);
        ASSERT_TRUE(kept) << key.toStdString();
        EXPECT_EQ(*kept, item) << key.toStdString();
    }
    EXPECT_EQ(*saved.pageFormat().item(QStringLiteral("com.apple.print.PageFormat.PMOrientation")),
              *given.pageFormat().item(QStringLiteral("com.apple.print.PageFormat.PMOrientation")));
    ExpectShellItems(saved.printSettings());
    // What was saved is what was printed.
    EXPECT_EQ(DumpedSession(dump).printSettings(), saved.printSettings());
}

struct ErrorCase
{
    const char* name;
    QStringList arguments;
    const char* mentions; // a text the message must hold
};

TEST_F(OrvanPrintProcess, UsageErrorsGiveOneLineAndStatusTwo)
{
    const QString garbage = path(QStringLiteral("garbage.plist"));
    {
        QFile file(garbage);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<plist><dict><key>unterminated");
    }
    const ErrorCase cases[] = {
        {"unknown option", {QStringLiteral("--frobnicate")}, "--frobnicate"},
        {"option without value",
         {QStringLiteral("--dump-ticket"), QStringLiteral("--printer")},
         "--printer"},
        {"two printers",
         {QStringLiteral("--printer"), QStringLiteral("a"), QStringLiteral("--ppd"),
          QStringLiteral("b")},
         "--ppd"},
        {"tab without screenshot",
         {QStringLiteral("--dump-ticket"), QStringLiteral("--tab"), QStringLiteral("2")},
         "--tab"},
        {"missing ticket",
         {QStringLiteral("--dump-ticket"), QStringLiteral("--ticket"),
          path(QStringLiteral("none.plist"))},
         "none.plist"},
        {"broken ticket",
         {QStringLiteral("--dump-ticket"), QStringLiteral("--ticket"), garbage},
         "garbage.plist"},
        {"missing PPD",
         {QStringLiteral("--dump-ticket"), QStringLiteral("--ppd"),
          path(QStringLiteral("none.ppd"))},
         "none.ppd"},
        {"unknown queue",
         {QStringLiteral("--dump-ticket"), QStringLiteral("--printer"),
          QStringLiteral("NoSuchQueue")},
         "NoSuchQueue"},
        {"unreadable document",
         {QStringLiteral("--dump-ticket"), path(QStringLiteral("none.pdf"))},
         "none.pdf"},
        {"no display", {}, "display"},
    };
    for (const ErrorCase& c : cases) {
        SCOPED_TRACE(c.name);
        const RunResult failed = run(c.arguments);
        ASSERT_TRUE(failed.finished);
        EXPECT_EQ(failed.exitCode, 2) << Describe(failed).toStdString();
        const QString message = failed.err.trimmed();
        EXPECT_FALSE(message.contains(QLatin1Char('\n'))) << message.toStdString();
        EXPECT_TRUE(message.startsWith(QStringLiteral("orvan-print: "))) << message.toStdString();
        EXPECT_TRUE(message.contains(QLatin1String(c.mentions))) << message.toStdString();
        EXPECT_TRUE(failed.out.isEmpty());
    }
}

TEST_F(OrvanPrintProcess, MissingPluginIsNamedInTheError)
{
    const QString empty = path(QStringLiteral("no-plugin"));
    ASSERT_TRUE(QDir().mkpath(empty));
    m_environment.insert(QStringLiteral("ORVAN_PLUGIN_PATH"), empty);
    const RunResult failed = run({QStringLiteral("--dump-ticket")});
    ASSERT_TRUE(failed.finished);
    EXPECT_NE(failed.exitCode, 0);
    EXPECT_TRUE(failed.err.contains(empty)) << failed.err.toStdString();
    EXPECT_TRUE(failed.out.isEmpty());
}

TEST_F(OrvanPrintProcess, ScreenshotIsAPngOfTheWholeDialog)
{
    const QString png = path(QStringLiteral("dialog.png"));
    const RunResult shot = run({QStringLiteral("--screenshot"), png});
    ASSERT_TRUE(shot.finished);
    ASSERT_EQ(shot.exitCode, 0) << Describe(shot).toStdString();
    QImage image;
    ASSERT_TRUE(image.load(png, "PNG"));
    EXPECT_GT(image.width(), 400);
    EXPECT_GT(image.height(), 400);

    const QString second = path(QStringLiteral("second-panel.png"));
    const RunResult tab =
        run({QStringLiteral("--screenshot"), second, QStringLiteral("--tab"), QStringLiteral("2")});
    ASSERT_EQ(tab.exitCode, 0) << Describe(tab).toStdString();
    QImage secondImage;
    ASSERT_TRUE(secondImage.load(second, "PNG"));
    EXPECT_NE(secondImage, image);

    const RunResult missing = run({QStringLiteral("--screenshot"), path(QStringLiteral("x.png")),
                                   QStringLiteral("--tab"), QStringLiteral("99")});
    EXPECT_EQ(missing.exitCode, 2) << Describe(missing).toStdString();
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("x.png"))));
}

} // namespace
