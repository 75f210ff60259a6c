// Private print servers for tests: a cupsd of the test's own on a free
// loopback port, with its configuration, spool and logs in a temporary
// folder, and an IPP Everywhere printer simulator. Both are children that die
// with the test process and are stopped, within a bound, with their owner.
#pragma once

#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cups/ipp.h>

#include <memory>

namespace orvan::testing {

// A job's attributes as the server reports them, as text by name.
using JobAttributes = QMap<QString, QString>;
using IppResponse = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

// A server process: it dies with the test process and is stopped (SIGTERM,
// then SIGKILL) when its owner goes.
class ServerProcess : public QProcess
{
public:
    ServerProcess();
    ~ServerProcess() override { stop(); }
    void stop();
};

class CupsServer
{
public:
    // The cupsd binary, or an empty string when the machine has none.
    static QString daemonPath();
    // Starts a server, as root or not, and points this process's CUPS clients
    // at it; nullptr with the reason (and the server's log) when it does not
    // answer within a bound on any of a few free ports.
    static std::unique_ptr<CupsServer> start(QString* error);
    ~CupsServer(); // restores the former CUPS_SERVER

    QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
    QString errorLog() const;
    // Adds a queue on the device URI, started and accepting jobs when enabled
    // (lpadmin leaves it stopped and rejecting otherwise).
    bool addQueue(const QString& name, const QString& deviceUri, const QString& ppd, QString* error,
                  bool enabled = true);
    // Where a queue on "file://" + outputFile(queue) puts its last filter's output.
    QString outputFile(const QString& queue) const { return m_root.filePath("output/" + queue); }
    // Polls the job until it ends or a bound passes; its attributes as last
    // seen (none when the server does not know it).
    JobAttributes waitForJob(int jobId) const;

private:
    CupsServer() = default;
    QTemporaryDir m_root;
    ServerProcess m_daemon;
    int m_port = 0;
    QByteArray m_previousServer; // empty when CUPS_SERVER was not set
};

// ippeveprinter, keeping the documents it receives. It will not start without
// a DNS-SD client, even when told not to announce itself, and that client
// needs a message bus: the printer gets a private bus of its own.
class IppEveryWherePrinter
{
public:
    // The program, or an empty string when the machine lacks it or dbus-daemon.
    static QString programPath();
    // With an attributes file the printer describes itself from it (its
    // document formats included) and logs every request it receives, so that
    // output() shows the operation attributes it keeps nowhere else.
    static std::unique_ptr<IppEveryWherePrinter> start(const QString& name, QString* error,
                                                       const QString& attributesFile = {});

    QString uri() const { return QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(m_port); }
    QStringList receivedDocuments() const;
    // The printer's log. It goes to a file, so that a busy printer never
    // waits for the test to read it.
    QString output() const;
    // Waits, within a bound, until the printer's log shows the text.
    bool logged(const QString& text) const;
    // The printer's own record of its job: Get-Job-Attributes, every attribute.
    IppResponse job(int jobId) const;

private:
    IppEveryWherePrinter() = default;
    QTemporaryDir m_root;
    ServerProcess m_bus;
    ServerProcess m_printer;
    int m_port = 0;
};

// A loopback port that nothing listens on at the moment of the call.
int FreeLoopbackPort();

} // namespace orvan::testing
