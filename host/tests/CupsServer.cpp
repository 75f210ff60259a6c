#include "host/tests/CupsServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTcpServer>

#include <cups/cups.h>

#include <csignal>
#include <functional>
#include <thread>

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvan::testing {

namespace {

constexpr int kPortAttempts = 4;
constexpr int kStartMs = 10000;
constexpr int kJobMs = 20000;

QString FindProgram(const QString& name)
{
    return QStandardPaths::findExecutable(
        name, {"/usr/sbin", "/usr/bin", "/usr/local/sbin", "/usr/local/bin"});
}

void WriteFile(const QString& path, const QString& text)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8()); // a server that cannot read it says so
}

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
}

// Polls until done() holds, for at most ms; whether it held.
bool PollUntil(int ms, const std::function<bool()>& done)
{
    QElapsedTimer clock;
    for (clock.start(); !clock.hasExpired(ms);
         std::this_thread::sleep_for(std::chrono::milliseconds(50)))
        if (done())
            return true;
    return false;
}

// The server's answer to Get-Printer-Attributes on its printer at resource,
// or Get-Job-Attributes when jobId is not 0; null when nothing answers.
IppResponse Request(int port, const char* resource, int jobId = 0)
{
    const std::unique_ptr<http_t, decltype(&httpClose)> http(
        httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1, 1000, nullptr),
        &httpClose);
    if (!http)
        return {nullptr, &ippDelete};
    ipp_t* request =
        ippNewRequest(jobId ? IPP_OP_GET_JOB_ATTRIBUTES : IPP_OP_GET_PRINTER_ATTRIBUTES);
    const QByteArray uri = "ipp://127.0.0.1:" + QByteArray::number(port) + resource;
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    if (jobId)
        ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return {cupsDoRequest(http.get(), request, resource), &ippDelete};
}

// True when the process holds the socket listening on 127.0.0.1:port: a
// server whose port was taken in the meantime runs without a listener, and
// whatever answers there is a stranger.
bool ListensOn(qint64 pid, int port)
{
    QFile table(QStringLiteral("/proc/net/tcp"));
    if (!table.open(QIODevice::ReadOnly))
        return true; // no way to tell: trust the answer
    const QByteArray local =
        "0100007F:" + QByteArray::number(port, 16).toUpper().rightJustified(4, '0');
    QString socket = "none";
    for (const QByteArray& line : table.readAll().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() > 9 && fields[1] == local && fields[3] == "0A") // listening
            socket = "socket:[" + fields[9] + ']';
    }
    const QDir fds(QStringLiteral("/proc/%1/fd").arg(pid));
    for (const QString& fd : fds.entryList(QDir::System | QDir::NoDotAndDotDot))
        if (QFile::symLinkTarget(fds.filePath(fd)).endsWith(socket))
            return true;
    return false;
}

// Starts the process on free loopback ports until, on one, the process itself
// answers IPP at resource within kStartMs; the port, or 0 with the reason.
int StartOnFreePort(ServerProcess& process, const std::function<QStringList(int)>& arguments,
                    const char* resource, QString* error)
{
    for (int attempt = 0; attempt < kPortAttempts; ++attempt) {
        const int port = FreeLoopbackPort();
        process.setArguments(arguments(port));
        process.start();
        const auto exitedOrAnswers = [&] {
            return process.state() != QProcess::Running ||
                   (Request(port, resource) && ListensOn(process.processId(), port));
        };
        if (process.waitForStarted() && PollUntil(kStartMs, exitedOrAnswers) &&
            process.state() == QProcess::Running)
            return port;
        *error = QStringLiteral("%1 did not answer on port %2: %3 %4")
                     .arg(process.program())
                     .arg(port)
                     .arg(process.errorString(), process.readAll());
        process.stop();
    }
    return 0;
}

} // namespace

ServerProcess::ServerProcess()
{
    setProcessChannelMode(QProcess::MergedChannels);
    setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

void ServerProcess::stop()
{
    terminate();
    if (state() != QProcess::NotRunning && !waitForFinished(5000)) {
        kill();
        waitForFinished(2000);
    }
}

int FreeLoopbackPort()
{
    QTcpServer listener;
    return listener.listen(QHostAddress::LocalHost) ? listener.serverPort() : 0;
}

// --- cupsd ---

QString CupsServer::daemonPath()
{
    return FindProgram("cupsd");
}

std::unique_ptr<CupsServer> CupsServer::start(QString* error)
{
    std::unique_ptr<CupsServer> server(new CupsServer);
    const QString root = server->m_root.path();
    for (const char* folder : {"conf", "spool", "cache", "state", "tmp", "log", "output"})
        QDir(root).mkpath(folder);
    // As root, cupsd runs filters as User (never root) and refuses root for
    // it: they reach the spool through root and write temporary files in tmp.
    // As anyone else it runs everything as that user and ignores User.
    chmod(QFile::encodeName(root).constData(), 0755);
    chmod(QFile::encodeName(root + "/tmp").constData(), 01777);
    WriteFile(root + "/conf/cups-files.conf",
              QStringLiteral("ServerRoot %1/conf\nRequestRoot %1/spool\nCacheDir %1/cache\n"
                             "StateDir %1/state\nTempDir %1/tmp\nErrorLog %1/log/error_log\n"
                             "AccessLog %1/log/access_log\nPageLog %1/log/page_log\n"
                             "FileDevice Yes\n%2")
                  .arg(root, geteuid() == 0 ? "User lp\nGroup lp\nSystemGroup root\n" : ""));
    const auto arguments = [&](int port) {
        // ORVAN_TEST_CUPSD_LOG_LEVEL=debug when a test needs the whole story.
        WriteFile(root + "/conf/cupsd.conf",
                  QStringLiteral("LogLevel %2\nListen 127.0.0.1:%1\nBrowsing No\n"
                                 "DefaultAuthType None\nWebInterface No\nPreserveJobHistory Yes\n"
                                 "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
                                 "<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n")
                      .arg(port)
                      .arg(qEnvironmentVariable("ORVAN_TEST_CUPSD_LOG_LEVEL", "warn")));
        return QStringList{"-f", "-c", root + "/conf/cupsd.conf", "-s",
                           root + "/conf/cups-files.conf"};
    };
    server->m_daemon.setProgram(daemonPath());
    server->m_port = StartOnFreePort(server->m_daemon, arguments, "/", error);
    if (server->m_port == 0) {
        *error += server->errorLog();
        return nullptr;
    }
    server->m_previousServer = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", server->address().toLatin1());
    cupsSetServer(server->address().toLatin1().constData());
    return server;
}

CupsServer::~CupsServer()
{
    m_previousServer.isEmpty() ? qunsetenv("CUPS_SERVER")
                               : qputenv("CUPS_SERVER", m_previousServer);
    cupsSetServer(nullptr);
}

QString CupsServer::errorLog() const
{
    return ReadText(m_root.filePath("log/error_log"));
}

bool CupsServer::addQueue(const QString& name, const QString& deviceUri, const QString& ppd,
                          QString* error, bool enabled)
{
    QStringList arguments{"-h", address(), "-p", name, "-v", deviceUri};
    if (enabled)
        arguments << "-E";
    if (!ppd.isEmpty())
        arguments << "-P" << ppd;
    ServerProcess lpadmin;
    lpadmin.start(FindProgram("lpadmin"), arguments);
    if (lpadmin.waitForFinished(kJobMs) && lpadmin.exitStatus() == QProcess::NormalExit &&
        lpadmin.exitCode() == 0)
        return true;
    *error = QStringLiteral("lpadmin %1 failed: %2 %3\n%4")
                 .arg(arguments.join(' '), lpadmin.errorString(), lpadmin.readAll(), errorLog());
    return false;
}

JobAttributes CupsServer::waitForJob(int jobId) const
{
    JobAttributes job;
    PollUntil(kJobMs, [&] {
        const auto response = Request(m_port, "/", jobId);
        for (ipp_attribute_t* attribute = response ? ippFirstAttribute(response.get()) : nullptr;
             attribute; attribute = ippNextAttribute(response.get())) {
            char text[2048];
            ippAttributeString(attribute, text, sizeof text);
            if (ippGetGroupTag(attribute) == IPP_TAG_JOB && ippGetName(attribute))
                job.insert(ippGetName(attribute), QString::fromUtf8(text));
        }
        return QStringList{"canceled", "aborted", "completed"}.contains(job.value("job-state"));
    });
    return job;
}

// --- ippeveprinter ---

QString IppEveryWherePrinter::programPath()
{
    return FindProgram("dbus-daemon").isEmpty() ? QString() : FindProgram("ippeveprinter");
}

std::unique_ptr<IppEveryWherePrinter>
IppEveryWherePrinter::start(const QString& name, QString* error, const QString& attributesFile)
{
    std::unique_ptr<IppEveryWherePrinter> printer(new IppEveryWherePrinter);
    ServerProcess& bus = printer->m_bus;
    bus.setProcessChannelMode(QProcess::SeparateChannels);
    bus.start(FindProgram("dbus-daemon"),
              {"--session", "--nofork", "--print-address=1",
               "--address=unix:path=" + printer->m_root.filePath("bus")});
    if (!bus.waitForReadyRead(kStartMs)) {
        *error = "dbus-daemon printed no address: " + bus.readAllStandardError();
        return nullptr;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", bus.readAllStandardOutput().trimmed());
    printer->m_printer.setProcessEnvironment(environment);
    printer->m_printer.setProgram(programPath());
    printer->m_printer.setStandardOutputFile(printer->m_root.filePath("printer.log"));
    const QString spool = printer->m_root.filePath("spool");
    QDir().mkpath(spool);
    // -n localhost -r off: no DNS-SD announcement, on loopback; -c: a print
    // command that returns at once (without one the simulator takes seconds
    // per job); -k keeps each document.
    const auto arguments = [&](int port) {
        const QStringList description =
            attributesFile.isEmpty()
                ? QStringList{"-f",
                              "application/pdf,application/postscript,application/octet-stream"}
                : QStringList{"-vv", "-a", attributesFile};
        return QString("-n localhost -r off -k -c /bin/true").split(' ') + description +
               QStringList{"-p", QString::number(port), "-d", spool, name};
    };
    printer->m_port = StartOnFreePort(printer->m_printer, arguments, "/ipp/print", error);
    return printer->m_port ? std::move(printer) : nullptr;
}

QString IppEveryWherePrinter::output() const
{
    return ReadText(m_root.filePath("printer.log"));
}

bool IppEveryWherePrinter::logged(const QString& text) const
{
    return PollUntil(kStartMs, [&] { return output().contains(text); });
}

IppResponse IppEveryWherePrinter::job(int jobId) const
{
    return Request(m_port, "/ipp/print", jobId);
}

QStringList IppEveryWherePrinter::receivedDocuments() const
{
    QStringList documents;
    for (const QFileInfo& entry : QDir(m_root.filePath("spool")).entryInfoList(QDir::Files))
        if (entry.size() > 0)
            documents << entry.absoluteFilePath();
    return documents;
}

} // namespace orvan::testing
