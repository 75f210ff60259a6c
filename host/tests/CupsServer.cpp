#include "host/tests/CupsServer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cups/cups.h>

#include <thread>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvan::testing {

namespace {

constexpr int kPortAttempts = 4;
constexpr auto kStopTimeout = std::chrono::seconds(5);
constexpr auto kPollInterval = std::chrono::milliseconds(50);

struct HttpCloser
{
    void operator()(http_t* http) const { httpClose(http); }
};
using HttpConnection = std::unique_ptr<http_t, HttpCloser>;
struct IppDeleter
{
    void operator()(ipp_t* ipp) const { ippDelete(ipp); }
};
using IppMessage = std::unique_ptr<ipp_t, IppDeleter>;

HttpConnection connectTo(int port)
{
    return HttpConnection(
        httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1, 1000, nullptr));
}

// The children die with the test: a crashed test leaves no server behind.
void dieWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}

void stopProcess(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(
            static_cast<int>(std::chrono::milliseconds(kStopTimeout).count()))) {
        process.kill();
        process.waitForFinished(2000);
    }
}

// True when the process holds the socket that listens on 127.0.0.1:port. A
// server whose port was taken in the meantime keeps running without a
// listener, and whatever answers on the port is then someone else.
bool listensOn(qint64 pid, int port)
{
    QFile table(QStringLiteral("/proc/net/tcp"));
    if (!table.open(QIODevice::ReadOnly))
        return true; // no way to tell: trust the answer
    const QByteArray local =
        "0100007F:" + QByteArray::number(port, 16).toUpper().rightJustified(4, '0');
    QByteArray inode;
    for (const QByteArray& line : table.readAll().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() > 9 && fields[1] == local && fields[3] == "0A")
            inode = fields[9];
    }
    if (inode.isEmpty())
        return false;
    const QByteArray socket = "socket:[" + inode + ']';
    const QDir fds(QStringLiteral("/proc/%1/fd").arg(pid));
    for (const QString& fd : fds.entryList(QDir::System | QDir::NoDotAndDotDot)) {
        char target[64];
        const ssize_t length =
            readlink(QFile::encodeName(fds.filePath(fd)).constData(), target, sizeof target);
        if (length > 0 && QByteArray(target, static_cast<qsizetype>(length)) == socket)
            return true;
    }
    return false;
}

bool writeFile(const QString& path, const QByteArray& text, QString* error)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size())
        return true;
    *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
    return false;
}

} // namespace

std::optional<JobStatus> QueryJob(int port, const QString& uri, int jobId)
{
    HttpConnection http = connectTo(port);
    if (!http)
        return std::nullopt;
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uriText = uri.toUtf8();
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, jobId ? "printer-uri" : "job-uri",
                 nullptr, uriText.constData());
    if (jobId)
        ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "all");
    char resource[256];
    char scheme[32], user[64], host[256];
    int uriPort = 0;
    if (httpSeparateURI(HTTP_URI_CODING_ALL, uriText.constData(), scheme, sizeof scheme, user,
                        sizeof user, host, sizeof host, &uriPort, resource,
                        sizeof resource) < HTTP_URI_STATUS_OK)
        qstrcpy(resource, "/");
    IppMessage response(cupsDoRequest(http.get(), request, jobId ? resource : "/"));
    if (!response || ippGetStatusCode(response.get()) > IPP_STATUS_OK_CONFLICTING)
        return std::nullopt;
    JobStatus status;
    for (ipp_attribute_t* attribute = ippFirstAttribute(response.get()); attribute;
         attribute = ippNextAttribute(response.get())) {
        if (ippGetGroupTag(attribute) != IPP_TAG_JOB || !ippGetName(attribute))
            continue;
        char text[2048];
        ippAttributeString(attribute, text, sizeof text);
        status.attributes.insert(QString::fromUtf8(ippGetName(attribute)), QString::fromUtf8(text));
        if (qstrcmp(ippGetName(attribute), "job-state") == 0)
            status.state = ippGetInteger(attribute, 0);
    }
    return status;
}

int FreeLoopbackPort()
{
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0)
        return 0;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = 0;
    socklen_t length = sizeof address;
    int port = 0;
    if (bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
        getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) == 0)
        port = ntohs(address.sin_port);
    close(fd);
    return port;
}

int RunProgram(const QString& program, const QStringList& arguments, QString* error,
               std::chrono::milliseconds timeout)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted(5000)) {
        *error = QStringLiteral("%1 did not start: %2").arg(program, process.errorString());
        return -1;
    }
    if (!process.waitForFinished(static_cast<int>(timeout.count()))) {
        stopProcess(process);
        *error = QStringLiteral("%1 did not finish within %2 ms").arg(program).arg(timeout.count());
        return -1;
    }
    if (process.exitStatus() != QProcess::NormalExit) {
        *error = QStringLiteral("%1 crashed").arg(program);
        return -1;
    }
    *error = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return process.exitCode();
}

// --- cupsd ---

QString CupsServer::daemonPath()
{
    for (const char* candidate : {"/usr/sbin/cupsd", "/usr/local/sbin/cupsd"})
        if (QFileInfo(QString::fromLatin1(candidate)).isExecutable())
            return QString::fromLatin1(candidate);
    return QStandardPaths::findExecutable(
        QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
}

std::unique_ptr<CupsServer> CupsServer::start(QString* error)
{
    std::unique_ptr<CupsServer> server(new CupsServer);
    if (!server->m_root.isValid()) {
        *error = QStringLiteral("no temporary folder: %1").arg(server->m_root.errorString());
        return nullptr;
    }
    // Filters run as an unprivileged user when the server runs as root; they
    // must reach the spool through this folder.
    chmod(QFile::encodeName(server->folder()).constData(), 0755);
    QString why;
    for (int attempt = 0; attempt < kPortAttempts; ++attempt) {
        server->m_port = FreeLoopbackPort();
        if (server->m_port == 0)
            continue;
        if (server->writeConfiguration(&why) && server->launch(&why)) {
            server->m_hadPreviousServer = qEnvironmentVariableIsSet("CUPS_SERVER");
            server->m_previousServer = qgetenv("CUPS_SERVER");
            qputenv("CUPS_SERVER", server->address().toLatin1());
            cupsSetServer(server->address().toLatin1().constData());
            return server;
        }
        // Another program may have taken the port in between: try another.
        server->stop();
    }
    *error = QStringLiteral("cupsd did not start: %1").arg(why);
    return nullptr;
}

CupsServer::~CupsServer()
{
    stop();
    if (m_port != 0 && qgetenv("CUPS_SERVER") == address().toLatin1()) {
        if (m_hadPreviousServer)
            qputenv("CUPS_SERVER", m_previousServer);
        else
            qunsetenv("CUPS_SERVER");
        cupsSetServer(nullptr);
    }
}

QString CupsServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

QString CupsServer::errorLog() const
{
    QFile log(folder() + QStringLiteral("/log/error_log"));
    return log.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(log.readAll()) : QString();
}

bool CupsServer::writeConfiguration(QString* error) const
{
    const QString root = folder();
    for (const char* sub : {"conf", "spool", "cache", "state", "tmp", "log", "output"})
        if (!QDir(root).mkpath(QLatin1String(sub))) {
            *error = QStringLiteral("cannot make %1/%2").arg(root, QLatin1String(sub));
            return false;
        }
    // Filters write their temporary files here, as whichever user runs them.
    chmod(QFile::encodeName(root + QStringLiteral("/tmp")).constData(), 01777);

    // ORVAN_TEST_CUPSD_LOG_LEVEL=debug when a test needs the whole story.
    const QString logLevel =
        qEnvironmentVariable("ORVAN_TEST_CUPSD_LOG_LEVEL", QStringLiteral("warn"));
    const QByteArray daemonConf = QStringLiteral("LogLevel %2\n"
                                                 "Listen 127.0.0.1:%1\n"
                                                 "Browsing No\n"
                                                 "BrowseLocalProtocols none\n"
                                                 "DefaultAuthType None\n"
                                                 "WebInterface No\n"
                                                 "DefaultShared No\n"
                                                 "PreserveJobHistory Yes\n"
                                                 "<Location />\n"
                                                 "  Order allow,deny\n"
                                                 "  Allow from 127.0.0.1\n"
                                                 "</Location>\n"
                                                 "<Location /admin>\n"
                                                 "  Order allow,deny\n"
                                                 "  Allow from 127.0.0.1\n"
                                                 "</Location>\n"
                                                 "<Policy default>\n"
                                                 "  JobPrivateAccess all\n"
                                                 "  JobPrivateValues none\n"
                                                 "  SubscriptionPrivateAccess all\n"
                                                 "  SubscriptionPrivateValues none\n"
                                                 "  <Limit All>\n"
                                                 "    AuthType None\n"
                                                 "    Order deny,allow\n"
                                                 "  </Limit>\n"
                                                 "</Policy>\n")
                                      .arg(m_port)
                                      .arg(logLevel)
                                      .toUtf8();
    // As root, cupsd runs filters as User and refuses root for it; as any
    // other user it runs everything as that user and ignores User and Group.
    QString accounts;
    if (geteuid() == 0)
        accounts = QStringLiteral("User lp\nGroup lp\nSystemGroup root\n");
    const QByteArray filesConf = QStringLiteral("ServerRoot %1/conf\n"
                                                "RequestRoot %1/spool\n"
                                                "CacheDir %1/cache\n"
                                                "StateDir %1/state\n"
                                                "TempDir %1/tmp\n"
                                                "DataDir /usr/share/cups\n"
                                                "ServerBin /usr/lib/cups\n"
                                                "DocumentRoot /usr/share/cups/doc-root\n"
                                                "AccessLog %1/log/access_log\n"
                                                "ErrorLog %1/log/error_log\n"
                                                "PageLog %1/log/page_log\n"
                                                "FileDevice Yes\n"
                                                "%2")
                                     .arg(root, accounts)
                                     .toUtf8();
    return writeFile(root + QStringLiteral("/conf/cupsd.conf"), daemonConf, error) &&
           writeFile(root + QStringLiteral("/conf/cups-files.conf"), filesConf, error);
}

bool CupsServer::launch(QString* error)
{
    const QString conf = folder() + QStringLiteral("/conf");
    m_daemon.setProgram(daemonPath());
    m_daemon.setArguments({QStringLiteral("-f"), QStringLiteral("-c"),
                           conf + QStringLiteral("/cupsd.conf"), QStringLiteral("-s"),
                           conf + QStringLiteral("/cups-files.conf")});
    m_daemon.setProcessChannelMode(QProcess::MergedChannels);
    m_daemon.setChildProcessModifier(dieWithParent);
    m_daemon.start();
    if (!m_daemon.waitForStarted(5000)) {
        *error = m_daemon.errorString();
        return false;
    }
    const auto deadline = std::chrono::steady_clock::now() + kServerStartTimeout;
    while (std::chrono::steady_clock::now() < deadline) {
        if (m_daemon.state() == QProcess::NotRunning) {
            *error = QStringLiteral("cupsd exited with status %1: %2 %3")
                         .arg(m_daemon.exitCode())
                         .arg(QString::fromLocal8Bit(m_daemon.readAll()).trimmed(),
                              errorLog().trimmed());
            return false;
        }
        if (answers()) {
            if (listensOn(m_daemon.processId(), m_port))
                return true;
            *error = QStringLiteral("another server answers on %1").arg(address());
            return false;
        }
        std::this_thread::sleep_for(kPollInterval);
    }
    *error = QStringLiteral("cupsd did not answer on %1 within %2 s: %3")
                 .arg(address())
                 .arg(std::chrono::seconds(kServerStartTimeout).count())
                 .arg(errorLog().trimmed());
    return false;
}

bool CupsServer::answers() const
{
    HttpConnection http = connectTo(m_port);
    if (!http)
        return false;
    IppMessage response(cupsDoRequest(http.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
    return response != nullptr;
}

void CupsServer::stop()
{
    stopProcess(m_daemon);
}

QString CupsServer::outputFile(const QString& queue) const
{
    return folder() + QStringLiteral("/output/") + queue + QStringLiteral(".prn");
}

bool CupsServer::addFileQueue(const QString& name, const QString& ppd, QString* error)
{
    return addQueue(name, QStringLiteral("file://") + outputFile(name), ppd, true, error);
}

bool CupsServer::addQueue(const QString& name, const QString& deviceUri, const QString& ppd,
                          bool enabled, QString* error)
{
    QStringList arguments{QStringLiteral("-h"), address(), QStringLiteral("-p"), name,
                          QStringLiteral("-v"), deviceUri};
    if (enabled)
        arguments << QStringLiteral("-E");
    if (!ppd.isEmpty())
        arguments << QStringLiteral("-P") << ppd;
    QString why;
    const int status = RunProgram(QStringLiteral("lpadmin"), arguments, &why);
    if (status == 0)
        return true;
    *error = QStringLiteral("lpadmin %1 failed (%2): %3\n%4")
                 .arg(arguments.join(QLatin1Char(' ')))
                 .arg(status)
                 .arg(why, errorLog());
    return false;
}

std::optional<JobStatus> CupsServer::job(int jobId) const
{
    return QueryJob(m_port, QStringLiteral("ipp://%1/jobs/%2").arg(address()).arg(jobId), 0);
}

std::optional<JobStatus> CupsServer::waitForJob(int jobId, std::chrono::milliseconds timeout) const
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    std::optional<JobStatus> status;
    do {
        status = job(jobId);
        if (status && status->finished())
            return status;
        std::this_thread::sleep_for(kPollInterval);
    } while (std::chrono::steady_clock::now() < deadline);
    return status;
}

// --- ippeveprinter ---

QString IppEveryWherePrinter::programPath()
{
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty())
        return {};
    for (const char* candidate : {"/usr/sbin/ippeveprinter", "/usr/bin/ippeveprinter"})
        if (QFileInfo(QString::fromLatin1(candidate)).isExecutable())
            return QString::fromLatin1(candidate);
    return QStandardPaths::findExecutable(QStringLiteral("ippeveprinter"));
}

bool IppEveryWherePrinter::startBus(QString* error)
{
    const QString socket = m_root.path() + QStringLiteral("/bus");
    m_bus.setProgram(QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")));
    m_bus.setArguments({QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1"),
                        QStringLiteral("--address=unix:path=") + socket});
    m_bus.setProcessChannelMode(QProcess::SeparateChannels);
    m_bus.setChildProcessModifier(dieWithParent);
    m_bus.start();
    if (!m_bus.waitForStarted(5000)) {
        *error = QStringLiteral("dbus-daemon did not start: %1").arg(m_bus.errorString());
        return false;
    }
    const auto deadline = std::chrono::steady_clock::now() + kServerStartTimeout;
    QByteArray printed;
    while (!printed.contains('\n') && std::chrono::steady_clock::now() < deadline &&
           m_bus.state() == QProcess::Running) {
        m_bus.waitForReadyRead(100);
        printed += m_bus.readAllStandardOutput();
    }
    m_busAddress = QString::fromLatin1(printed).trimmed();
    if (m_busAddress.isEmpty()) {
        *error = QStringLiteral("dbus-daemon printed no address: %1")
                     .arg(QString::fromLocal8Bit(m_bus.readAllStandardError()));
        return false;
    }
    return true;
}

std::unique_ptr<IppEveryWherePrinter> IppEveryWherePrinter::start(const QString& name,
                                                                  QString* error)
{
    std::unique_ptr<IppEveryWherePrinter> printer(new IppEveryWherePrinter);
    if (!printer->m_root.isValid()) {
        *error = QStringLiteral("no temporary folder");
        return nullptr;
    }
    if (!printer->startBus(error))
        return nullptr;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), printer->m_busAddress);
    const QString spool = printer->m_root.path() + QStringLiteral("/spool");
    QDir().mkpath(spool);
    QString why;
    for (int attempt = 0; attempt < kPortAttempts; ++attempt) {
        printer->m_port = FreeLoopbackPort();
        QProcess& process = printer->m_process;
        process.setProgram(programPath());
        // -n localhost -r off: no DNS-SD announcement, listen on loopback;
        // -c: a print command that returns at once (without one the
        // simulator takes seconds per job); -k keeps each document.
        process.setArguments(
            {QStringLiteral("-p"), QString::number(printer->m_port), QStringLiteral("-n"),
             QStringLiteral("localhost"), QStringLiteral("-r"), QStringLiteral("off"),
             QStringLiteral("-d"), spool, QStringLiteral("-k"), QStringLiteral("-c"),
             QStringLiteral("/bin/true"), QStringLiteral("-f"),
             QStringLiteral("application/pdf,application/postscript,application/octet-stream"),
             name});
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setChildProcessModifier(dieWithParent);
        process.start();
        if (!process.waitForStarted(5000)) {
            *error = process.errorString();
            return nullptr;
        }
        const auto deadline = std::chrono::steady_clock::now() + kServerStartTimeout;
        while (std::chrono::steady_clock::now() < deadline &&
               process.state() == QProcess::Running) {
            if (HttpConnection http = connectTo(printer->m_port)) {
                ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
                ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                             printer->uri().toUtf8().constData());
                IppMessage response(cupsDoRequest(http.get(), request, "/ipp/print"));
                if (response && ippGetStatusCode(response.get()) == IPP_STATUS_OK &&
                    listensOn(process.processId(), printer->m_port))
                    return printer;
            }
            std::this_thread::sleep_for(kPollInterval);
        }
        why = QStringLiteral("ippeveprinter did not answer on port %1: %2")
                  .arg(printer->m_port)
                  .arg(printer->output().trimmed());
        stopProcess(process);
    }
    *error = why;
    return nullptr;
}

IppEveryWherePrinter::~IppEveryWherePrinter()
{
    stopProcess(m_process);
    stopProcess(m_bus);
}

QString IppEveryWherePrinter::uri() const
{
    return QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(m_port);
}

QStringList IppEveryWherePrinter::receivedDocuments() const
{
    QStringList documents;
    for (const QFileInfo& entry :
         QDir(m_root.path() + QStringLiteral("/spool")).entryInfoList(QDir::Files))
        if (entry.size() > 0)
            documents << entry.absoluteFilePath();
    return documents;
}

std::optional<JobStatus> IppEveryWherePrinter::job(int jobId) const
{
    return QueryJob(m_port, uri(), jobId);
}

QString IppEveryWherePrinter::output() const
{
    m_output += const_cast<QProcess&>(m_process).readAll();
    return QString::fromLocal8Bit(m_output);
}

} // namespace orvan::testing
