// Fixtures shared by the host's tests: the sample printer's PPD, a private
// cupsd with a queue on it, PostScript documents whose pages can be told
// apart in a job's output, and a watermark selected for the job.
#pragma once

#include "tests/support/TestData.h"

#include "host/WatermarkStampSource.h"
#include "host/tests/CupsServer.h"
#include "settings/PrintSession.h"
#include "watermark/WatermarkStore.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <ostream>

namespace orvan::testing {

inline QString SamplePpdPath()
{
    return QStringLiteral(ORVAN_PLUGIN_DIR "/Resources/ppd/Orvan-Meridian-5000.ppd");
}

// A private cupsd with the file queue "Meridian" on the sample PPD. Skips the
// test when the machine has no cupsd: callers return when server is null.
inline void StartCupsWithSampleQueue(std::unique_ptr<CupsServer>& server)
{
    if (CupsServer::daemonPath().isEmpty())
        GTEST_SKIP() << "cupsd is not installed";
    QString why;
    server = CupsServer::start(&why);
    ASSERT_TRUE(server) << why.toStdString();
    ASSERT_TRUE(server->addQueue("Meridian", "file://" + server->outputFile("Meridian"),
                                 SamplePpdPath(), &why))
        << why.toStdString();
}

// The environment of a script: no display, and no print server unless the
// caller names one.
inline QProcessEnvironment HeadlessEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    environment.insert("CUPS_SERVER", QStringLiteral("127.0.0.1:%1").arg(FreeLoopbackPort()));
    return environment;
}

struct RunResult
{
    int exitCode = -1; // -1 when it crashed or did not finish in time
    QByteArray out;
    QString err;
    std::string why() const
    {
        return QStringLiteral("exit %1: %2").arg(exitCode).arg(err).toStdString();
    }
};

// A run of the built orvan-print.
inline RunResult RunOrvanPrint(const QStringList& arguments,
                               const QProcessEnvironment& environment = HeadlessEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(ORVAN_BINARY_DIR "/bin/orvan-print", arguments);
    RunResult result;
    if (!process.waitForFinished(30000))
        process.kill();
    else if (process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    result.out = process.readAllStandardOutput();
    result.err = QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

// Page n shows "orvan test page n".
inline bool WritePostScriptDocument(const QString& path, int pages)
{
    QByteArray text = "%!PS-Adobe-3.0\n%%Pages: " + QByteArray::number(pages) +
                      "\n%%BoundingBox: 0 0 612 792\n%%EndComments\n%%EndProlog\n";
    for (int page = 1; page <= pages; ++page)
        text += "%%Page: " + QByteArray::number(page) + ' ' + QByteArray::number(page) +
                "\n/Helvetica findfont 20 scalefont setfont 72 700 moveto (orvan test page " +
                QByteArray::number(page) + ") show showpage\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text + "%%Trailer\n%%EOF\n") > 0;
}

// The user's watermark "CONFIDENTIAL", red text, written to the watermark
// file under ORVAN_SHARED_DATA_DIR and selected in the ticket as the
// Booklet/Watermark panel writes it: in the foreground, on all pages.
inline void SelectConfidentialWatermark(Ticket& ticket)
{
    ASSERT_TRUE(QDir().mkpath(qEnvironmentVariable("ORVAN_SHARED_DATA_DIR")));
    _WatermarkData record;
    record.isText = 1;
    record.textString.assignIfFits(std::string_view("CONFIDENTIAL"));
    record.fontName.assignIfFits(std::string_view("DejaVuSans"));
    record.fontSize = 60;
    record.density = 40;
    record.wellColorRed = 1;
    record.wellColorAlpha = 1;
    ASSERT_TRUE(saveWatermarkData(kWatermarkFile, record));
    saveWatermarkList(kWatermarkFile, {"CONFIDENTIAL"});
    ticket.setItem(kPanelClient, kJobWatermarkKey, "confidential");
    ticket.setItem(kPanelClient, kJobWatermarkOptionKey,
                   PropertyValue::integer(3, NumberType::SInt32));
    ticket.setItem(kPanelClient, kJobWatermarkFirstPageOnlyKey,
                   PropertyValue::integer(0, NumberType::SInt32));
}

// The description of an IPP printer with a finisher, for ippeveprinter's -a:
// trays, paper types and colours, staples and punches, bins, covers, inserts,
// exception pages, passcodes, job notes and fax.
inline bool WriteFinisherPrinterAttributes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(R"(
ATTR mimeMediaType document-format-supported application/pdf,application/postscript,text/plain
ATTR rangeOfInteger copies-supported 1-99
ATTR boolean page-ranges-supported true
ATTR keyword sides-supported one-sided,two-sided-long-edge,two-sided-short-edge
ATTR keyword output-bin-supported auto,top,stacker
ATTR enum finishings-supported 3,20,28,74,78
ATTR keyword finishings-col-supported finishing-template
ATTR keyword media-col-supported media-size,media-type,media-color,media-source,media-weight-metric,media-info
ATTR keyword media-type-supported stationery,tab-stock,cardstock
ATTR keyword media-color-supported white,blue,yellow,pink,green
ATTR keyword media-source-supported auto,tray-1,tray-2
ATTR keyword media-supported na_letter_8.5x11in,iso_a4_210x297mm
ATTR collection media-size-supported {MEMBER integer x-dimension 21590 MEMBER integer y-dimension 27940},{MEMBER integer x-dimension 21000 MEMBER integer y-dimension 29700}
ATTR keyword cover-front-supported cover-type,media-col
ATTR keyword cover-back-supported cover-type,media-col
ATTR keyword insert-sheet-supported insert-after-page-number,insert-count,media-col
ATTR keyword overrides-supported pages,media-col,sides
ATTR integer job-password-supported 10
ATTR keyword job-password-encryption-supported none
ATTR boolean job-sheet-message-supported true
ATTR boolean job-message-to-operator-supported true
ATTR enum print-quality-supported 3,4,5
ATTR resolution printer-resolution-supported 600dpi,1200dpi,200x100dpi,200dpi
ATTR enum orientation-requested-supported 3,4
ATTR rangeOfInteger number-up-supported 1-16
ATTR rangeOfInteger job-hold-until-time-supported 0-2147483647
ATTR keyword destination-uris-supported destination-uri,pre-dial-string
ATTR keyword cover-sheet-info-supported message,from-name
ATTR boolean confirmation-sheet-print-supported true
)") > 0;
}

} // namespace orvan::testing
