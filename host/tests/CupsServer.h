// Private print servers for tests: a cupsd of the test's own, listening on a
// free loopback port with its configuration, spool, cache, state and logs in
// a temporary folder, and an IPP Everywhere printer simulator beside it. Both
// are children of the test process and end with their owner, so a failing
// assertion never leaves a server behind.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <optional>

namespace orvan::testing {

inline constexpr auto kServerStartTimeout = std::chrono::seconds(10);
inline constexpr auto kJobTimeout = std::chrono::seconds(20);

// A job as the server reports it: its IPP job-state (3 pending .. 9
// completed) and every job attribute as text (ippAttributeString).
struct JobStatus
{
    int state = 0;
    QMap<QString, QString> attributes;

    bool completed() const { return state == 9; }
    bool finished() const { return state >= 7; } // canceled, aborted or completed
};

class CupsServer
{
public:
    // The cupsd binary, or an empty string when the machine has none.
    static QString daemonPath();

    // Starts a server and points this process's CUPS clients at it
    // (CUPS_SERVER and libcups' own server setting). nullptr with the reason,
    // which includes the server's error log, when it does not answer within
    // kServerStartTimeout after a few port choices.
    static std::unique_ptr<CupsServer> start(QString* error);
    // Stops the server (SIGTERM, then SIGKILL after a bound) and restores the
    // process's former CUPS_SERVER.
    ~CupsServer();
    CupsServer(const CupsServer&) = delete;
    CupsServer& operator=(const CupsServer&) = delete;

    int port() const { return m_port; }
    QString address() const; // "127.0.0.1:PORT"
    QString folder() const { return m_root.path(); }
    QString errorLog() const;

    // Adds an enabled queue that accepts jobs and writes their output to
    // outputFile(name). The output is the last filter's, so the queue needs a
    // PPD: a raw queue on a file device writes nothing.
    bool addFileQueue(const QString& name, const QString& ppd, QString* error);
    // Adds a queue on any device URI; enabled says whether it is started and
    // accepts jobs, or is left stopped and rejecting as lpadmin makes it.
    bool addQueue(const QString& name, const QString& deviceUri, const QString& ppd, bool enabled,
                  QString* error);
    QString outputFile(const QString& queue) const;

    // The job's status and attributes; nullopt when the server does not know it.
    std::optional<JobStatus> job(int jobId) const;
    // Polls the job until it finishes or the timeout passes; the last status seen.
    std::optional<JobStatus> waitForJob(int jobId,
                                        std::chrono::milliseconds timeout = kJobTimeout) const;

private:
    CupsServer() = default;
    bool writeConfiguration(QString* error) const;
    bool launch(QString* error);
    bool answers() const;
    void stop();

    QTemporaryDir m_root;
    QProcess m_daemon;
    int m_port = 0;
    QByteArray m_previousServer;
    bool m_hadPreviousServer = false;
};

// ippeveprinter on a free port of this machine, keeping the documents it
// receives in its spool folder. It will not start without a DNS-SD client,
// even when told not to announce itself, and that client needs a message bus:
// the printer gets a private bus of its own, on which no DNS-SD daemon runs.
class IppEveryWherePrinter
{
public:
    // The program, or an empty string when the machine lacks it or the
    // message-bus daemon.
    static QString programPath();
    static std::unique_ptr<IppEveryWherePrinter> start(const QString& name, QString* error);
    ~IppEveryWherePrinter();
    IppEveryWherePrinter(const IppEveryWherePrinter&) = delete;
    IppEveryWherePrinter& operator=(const IppEveryWherePrinter&) = delete;

    int port() const { return m_port; }
    QString uri() const; // ipp://127.0.0.1:PORT/ipp/print
    // The documents received so far (files in the spool folder).
    QStringList receivedDocuments() const;
    // A job as the printer saw it; its ids count from 1.
    std::optional<JobStatus> job(int jobId) const;
    QString output() const;

private:
    IppEveryWherePrinter() = default;
    bool startBus(QString* error);

    QTemporaryDir m_root;
    QProcess m_bus;
    QString m_busAddress;
    QProcess m_process;
    int m_port = 0;
    mutable QByteArray m_output;
};

// Get-Job-Attributes on a server of this machine: by job URI when jobId is
// 0, else by printer URI and job id.
std::optional<JobStatus> QueryJob(int port, const QString& uri, int jobId);
// A loopback port that nothing listens on at the moment of the call.
int FreeLoopbackPort();
// Runs a program with a bound; its exit status, or -1 when it did not run or
// finish (the reason in error, with its standard error).
int RunProgram(const QString& program, const QStringList& arguments, QString* error,
               std::chrono::milliseconds timeout = std::chrono::seconds(20));

} // namespace orvan::testing
