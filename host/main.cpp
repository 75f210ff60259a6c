// orvan-print: the Print dialog for Orvan printers, and its headless forms.
#include "host/HeadlessPrint.h"
#include "host/HostCommandLine.h"
#include "host/JobSubmission.h"
#include "host/PluginHost.h"
#include "host/Presets.h"
#include "host/PrintDialog.h"
#include "host/PrinterList.h"
#include "host/TemporaryFile.h"
#include "printerdesc/PPDAccess.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "submission/Submission.h"
#include "ui/AlertBox.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QTabBar>
#include <QTimer>

#include <cstdio>
#include <memory>

using namespace orvan;

namespace {

int usageError(const QString& why)
{
    std::fprintf(stderr, "orvan-print: %s\n", why.toLocal8Bit().constData());
    return 2;
}

int runtimeError(const QString& why)
{
    std::fprintf(stderr, "orvan-print: %s\n", why.toLocal8Bit().constData());
    return 1;
}

// The printer the run starts on: --ppd, --printer, the ticket's printer, or
// the default of the printer list. Returns the index into printers, or -1
// when the session's printer was set from --ppd (not in the list).
std::optional<int> choosePrinter(const HostCommandLine& line, std::vector<PrinterEntry>& printers,
                                 PrintSession& session, QString* error)
{
    if (!line.ppdFile.isEmpty()) {
        if (!QFileInfo(line.ppdFile).isReadable()) {
            *error = QStringLiteral("cannot read the PPD file %1").arg(line.ppdFile);
            return std::nullopt;
        }
        QString why = QStringLiteral("it is a folder");
        if (QFileInfo(line.ppdFile).isDir() || !OpenPPDFile(line.ppdFile, &why)) {
            *error = QStringLiteral("cannot open the PPD file %1: %2").arg(line.ppdFile, why);
            return std::nullopt;
        }
        PrinterEntry entry;
        entry.displayName = QFileInfo(line.ppdFile).completeBaseName();
        entry.isSample = true; // no queue behind it
        entry.ppdFile = QFileInfo(line.ppdFile).absoluteFilePath();
        printers.insert(printers.begin(), entry);
        session.setCurrentPrinter(Printer{QString(), QFileInfo(line.ppdFile).absoluteFilePath()});
        return 0;
    }
    if (submission::IsPrinterUri(line.printerQueue)) {
        printers.insert(printers.begin(), PrinterAtUri(line.printerQueue));
        return 0;
    }
    if (!line.printerQueue.isEmpty()) {
        for (std::size_t i = 0; i < printers.size(); ++i)
            if (printers[i].queueName == line.printerQueue)
                return static_cast<int>(i);
        *error = QStringLiteral("no printer queue named %1").arg(line.printerQueue);
        return std::nullopt;
    }
    for (std::size_t i = 0; i < printers.size(); ++i)
        if (printers[i].isDefault)
            return static_cast<int>(i);
    return static_cast<int>(printers.size()) - 1;
}

// The pane order of this run, as the dump's first comment names it.
QByteArray paneOrderComment(const PluginHost& plugin)
{
    QStringList titles;
    for (const auto& pane : plugin.panes())
        if (pane->running())
            titles << pane->title();
    return "<!-- panes: " + titles.join(QStringLiteral(", ")).toUtf8().replace("--", "- -") +
           " -->\n";
}

// The headless dialog: every pane goes through the operations the Print
// dialog runs (Prolog, Initialize without a pane widget, Sync from the
// tickets, Open, then, as Print does, Sync to the tickets, Close and
// Terminate), in the dialog's pane order; then the tickets on standard
// output, after a comment naming the panes in that order.
int dumpTicket(PluginHost& plugin, PrintSession& session, const QString& saveTo)
{
    plugin.prolog();
    plugin.initialize({}, &session);
    plugin.sync(&session, true);
    plugin.open();
    plugin.sync(&session, false);
    const QByteArray panes = paneOrderComment(plugin);
    plugin.close();
    plugin.terminate(kNoError);
    QString why;
    PropertyValue tickets = sessionToPropertyList(session);
    HideTicketSecrets(tickets); // the passcode stays in the saved ticket only
    auto xml = writePropertyList(tickets, &why);
    if (!xml)
        return runtimeError(QStringLiteral("cannot write the tickets: %1").arg(why));
    const qsizetype root = xml->indexOf("<plist");
    xml->insert(root < 0 ? 0 : root, panes);
    std::fwrite(xml->constData(), 1, static_cast<size_t>(xml->size()), stdout);
    if (!saveTo.isEmpty() && !saveTicketFile(saveTo, session, &why))
        return runtimeError(why);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QString why;
    const auto line = ParseHostCommandLine(arguments, &why);
    if (!line)
        return usageError(why + QStringLiteral(" (see --help)"));
    if (line->help) {
        std::fputs(HostUsage().toLocal8Bit().constData(), stdout);
        return 0;
    }
    const bool headless = line->dumpTicket || line->print;
    const bool screenshot = !line->screenshotPath.isEmpty();
    if (screenshot)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!headless && qEnvironmentVariableIsEmpty("DISPLAY") &&
             qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
             qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return usageError(QStringLiteral(
            "no display to show the dialog on; use --print, --dump-ticket or --screenshot"));

    std::unique_ptr<QCoreApplication> app(headless ? new QCoreApplication(argc, argv)
                                                   : new QApplication(argc, argv));
    QCoreApplication::setApplicationName(QStringLiteral("orvan-print"));

    for (const QString& file : line->files)
        if (!QFileInfo(file).isReadable())
            return usageError(QStringLiteral("cannot read %1").arg(file));

    PrintSession session;
    if (!line->ticketIn.isEmpty() && !loadTicketFile(line->ticketIn, session, &why))
        return usageError(why);
    // The dialog reports a preset it cannot apply and stays open.
    if (headless && !line->preset.isEmpty() && !ApplyPreset(line->preset, session, &why))
        return usageError(why);

    // The job takes its first document's name before the panels first read
    // the ticket, in the dialog and headless alike.
    if (!line->files.isEmpty())
        session.printSettings().setItem(kPrintingManagerClient, kJobNameKey,
                                        QFileInfo(line->files.first()).fileName());

    const QString pluginFolder = PluginHost::locatePluginFolder();
    std::unique_ptr<PluginHost> plugin = PluginHost::load(pluginFolder, &why);
    if (!plugin)
        return runtimeError(why);

    std::vector<PrinterEntry> printers = ListPrinters();
    const auto chosen = choosePrinter(*line, printers, session, &why);
    if (!chosen)
        return usageError(why);
    const PrinterEntry& printer = printers[static_cast<std::size_t>(*chosen)];
    TemporaryFile fetchedPpd; // a queue's PPD, fetched for this run
    // The dialog attaches its printer itself; only the headless run needs the
    // PPD located here.
    if (headless && line->ppdFile.isEmpty()) {
        QString ppdWhy;
        const auto ppd = PpdPathForPrinter(printer, plugin->folder(), &ppdWhy);
        if (ppd && !printer.queueName.isEmpty())
            fetchedPpd = TemporaryFile(*ppd);
        session.setCurrentPrinter(Printer{printer.queueName, ppd.value_or(QString())});
        if (!ppd)
            std::fprintf(stderr, "orvan-print: %s; the printer's defaults are used\n",
                         ppdWhy.toLocal8Bit().constData());
    }

    // What the printer would not know is not carried on.
    if (const auto& current = session.currentPrinter();
        headless && current && !current->ppdPath.isEmpty())
        PPDDropChoicesNotOffered(OpenPPDFile(current->ppdPath).get(), &session.printSettings());
    if (line->print)
        return RunHeadlessPrint(*plugin, session, printer, line->files, line->ticketOut);
    if (headless)
        return dumpTicket(*plugin, session, line->ticketOut);

    InstallMessageBoxAlertPresenter();
    InstallMessageBoxQuestionPresenter();
    PrintDialog::Options options;
    options.files = line->files;
    options.saveTicketPath = line->ticketOut;
    options.initialPrinter = *chosen;
    options.initialPreset = line->preset;
    PrintDialog dialog(session, *plugin, printers, options);
    if (screenshot) {
        dialog.adjustSize();
        dialog.show();
        if (line->pane > 0) {
            if (line->pane > static_cast<int>(plugin->panes().size()))
                return usageError(QStringLiteral("there is no pane %1").arg(line->pane));
            dialog.showPane(line->pane - 1);
        }
        if (line->tab > 0) {
            auto* tabs = dialog.findChild<QTabBar*>(QStringLiteral("ShellTabs"));
            if (!tabs || line->tab > tabs->count())
                return usageError(QStringLiteral("there is no panel %1").arg(line->tab));
            emit tabs->tabBarClicked(line->tab - 1);
            tabs->setCurrentIndex(line->tab - 1);
        }
        if (!line->files.isEmpty())
            dialog.waitForPreview(5000);
        QCoreApplication::processEvents();
        if (!dialog.grab().save(line->screenshotPath, "PNG"))
            return runtimeError(QStringLiteral("cannot write %1").arg(line->screenshotPath));
        return 0;
    }
    return dialog.exec() == QDialog::Accepted ? 0 : 1;
}
