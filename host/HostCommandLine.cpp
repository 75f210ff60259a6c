#include "host/HostCommandLine.h"

namespace orvan {

QString HostUsage()
{
    return QStringLiteral(
        "usage: orvan-print [--printer QUEUE|URI | --ppd FILE] [--ticket IN.plist] [--preset "
        "NAME]\n"
        "                   [--save-ticket OUT.plist]\n"
        "                   [--print | --dump-ticket | --screenshot OUT.png [--pane N] [--tab N]] "
        "[FILE...]\n"
        "\n"
        "Opens the Print dialog for the Orvan printer features and prints FILE to the chosen "
        "queue.\n"
        "  --printer QUEUE|URI   start on this CUPS queue, or print straight to the IPP printer\n"
        "                        at this address (ipp://host:port/ipp/print)\n"
        "  --ppd FILE            start on a printer described by this PPD file (no queue)\n"
        "  --ticket IN.plist     start from the settings saved in this ticket file\n"
        "  --preset NAME         start from the settings of this preset\n"
        "  --print               print FILE with the settings, without the dialog; prints the job "
        "id\n"
        "  --save-ticket OUT     save the job's settings when Print is chosen (or after "
        "--dump-ticket)\n"
        "  --dump-ticket         run the dialog headless and print its tickets as a property list\n"
        "                        (passcodes hidden; --save-ticket keeps them)\n"
        "  --screenshot OUT.png  render the dialog offscreen to a PNG file\n"
        "  --pane N              with --screenshot, show pane N: 1 the printer features (the\n"
        "                        tabs), 2 Special Pages, 3 Job Notes (the pane pop-up's order)\n"
        "  --tab N               with --screenshot, show the features' tab N (1 = the first)\n");
}

std::optional<HostCommandLine> ParseHostCommandLine(const QStringList& arguments, QString* error)
{
    HostCommandLine line;
    auto fail = [error](const QString& why) {
        if (error)
            *error = why;
        return std::optional<HostCommandLine>();
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& arg = arguments[i];
        auto value = [&](QString* target) {
            if (i + 1 >= arguments.size() || arguments[i + 1].isEmpty())
                return false;
            *target = arguments[++i];
            return true;
        };
        if (arg == QLatin1String("--printer")) {
            if (!value(&line.printerQueue))
                return fail(QStringLiteral("--printer needs a queue name"));
        } else if (arg == QLatin1String("--ppd")) {
            if (!value(&line.ppdFile))
                return fail(QStringLiteral("--ppd needs a file"));
        } else if (arg == QLatin1String("--ticket")) {
            if (!value(&line.ticketIn))
                return fail(QStringLiteral("--ticket needs a file"));
        } else if (arg == QLatin1String("--save-ticket")) {
            if (!value(&line.ticketOut))
                return fail(QStringLiteral("--save-ticket needs a file"));
        } else if (arg == QLatin1String("--screenshot")) {
            if (!value(&line.screenshotPath))
                return fail(QStringLiteral("--screenshot needs a PNG file"));
        } else if (arg == QLatin1String("--tab")) {
            QString text;
            bool ok = false;
            if (!value(&text) || (line.tab = text.toInt(&ok), !ok) || line.tab < 1)
                return fail(QStringLiteral("--tab needs a panel number from 1"));
        } else if (arg == QLatin1String("--preset")) {
            if (!value(&line.preset))
                return fail(QStringLiteral("--preset needs a preset name"));
        } else if (arg == QLatin1String("--print")) {
            line.print = true;
        } else if (arg == QLatin1String("--pane")) {
            QString text;
            bool ok = false;
            if (!value(&text) || (line.pane = text.toInt(&ok), !ok) || line.pane < 1)
                return fail(QStringLiteral("--pane needs a pane number from 1"));
        } else if (arg == QLatin1String("--dump-ticket")) {
            line.dumpTicket = true;
        } else if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            line.help = true;
        } else if (arg == QLatin1String("--")) {
            line.files += arguments.mid(i + 1);
            break;
        } else if (arg.startsWith(QLatin1Char('-')) && arg.size() > 1) {
            return fail(QStringLiteral("unknown option %1").arg(arg));
        } else {
            line.files << arg;
        }
    }
    if (!line.printerQueue.isEmpty() && !line.ppdFile.isEmpty())
        return fail(QStringLiteral("--printer and --ppd cannot be used together"));
    if (line.dumpTicket && !line.screenshotPath.isEmpty())
        return fail(QStringLiteral("--dump-ticket and --screenshot cannot be used together"));
    if (line.print && (line.dumpTicket || !line.screenshotPath.isEmpty()))
        return fail(QStringLiteral("--print cannot be used with --dump-ticket or --screenshot"));
    if (line.print && line.files.isEmpty())
        return fail(QStringLiteral("--print needs a file to print"));
    if (line.pane > 0 && line.screenshotPath.isEmpty())
        return fail(QStringLiteral("--pane goes with --screenshot"));
    if (line.tab > 0 && line.screenshotPath.isEmpty())
        return fail(QStringLiteral("--tab goes with --screenshot"));
    return line;
}

} // namespace orvan
