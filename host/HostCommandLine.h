// The command line of orvan-print.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace orvan {

struct HostCommandLine
{
    QString printerQueue;    // --printer: a queue, or an IPP printer's ipp:// address
    QString ppdFile;         // --ppd
    QString ticketIn;        // --ticket
    QString ticketOut;       // --save-ticket
    bool dumpTicket = false; // --dump-ticket
    bool print = false;      // --print: no dialog
    QString preset;          // --preset
    QString screenshotPath;  // --screenshot
    int tab = 0;             // --tab, 0 = the shell's choice
    int pane = 0;            // --pane, 0 = the shell's pane
    bool help = false;
    QStringList files;
};

// Parses the arguments (without the program name); nullopt with a one-line
// reason on a usage error.
std::optional<HostCommandLine> ParseHostCommandLine(const QStringList& arguments, QString* error);
QString HostUsage();

} // namespace orvan
