#include "host/DocumentSource.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace orvan {

DocumentKind SniffDocumentKind(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return DocumentKind::Unsupported;
    const QByteArray head = file.read(1024);
    if (head.contains("%PDF-"))
        return DocumentKind::Pdf;
    if (head.startsWith("%!") || head.startsWith("\xC5\xD0\xD3\xC6") ||
        (head.startsWith("\x1B%-12345X") && head.contains("%!")))
        return DocumentKind::PostScript;
    return DocumentKind::Unsupported;
}

QString DocumentProblemText(DocumentProblem problem, const QString& path, const QString& detail)
{
    const QString name = QFileInfo(path).fileName();
    const auto tr = [](const char* text) {
        return QCoreApplication::translate("DocumentSource", text);
    };
    switch (problem) {
    case DocumentProblem::None:
        return {};
    case DocumentProblem::Unsupported:
        return tr("\u201C%1\u201D is neither a PDF nor a PostScript file, so it cannot be printed "
                  "from here. "
                  "Print it from the application that made it.")
            .arg(name);
    case DocumentProblem::Unreadable:
        return detail.isEmpty()
                   ? tr("\u201C%1\u201D could not be read as a PDF file.").arg(name)
                   : tr("\u201C%1\u201D could not be read as a PDF file (%2).").arg(name, detail);
    case DocumentProblem::PasswordProtected:
        return tr("\u201C%1\u201D is protected by a password. Open it with its password in a PDF "
                  "viewer and "
                  "print it from there.")
            .arg(name);
    case DocumentProblem::NoPages:
        return tr("\u201C%1\u201D has no pages to print.").arg(name);
    case DocumentProblem::OutputFailed:
        return tr("The PDF file for \u201C%1\u201D could not be written (%2).").arg(name, detail);
    case DocumentProblem::ConversionFailed:
        return tr("\u201C%1\u201D could not be read as PostScript (%2).").arg(name, detail);
    }
    return {};
}

bool ConvertPostScriptToPdf(const QString& input, const QString& output, QString* error)
{
    QProcess gs;
    gs.setProcessChannelMode(QProcess::MergedChannels);
    gs.start(QStringLiteral("gs"),
             {QStringLiteral("-q"), QStringLiteral("-dNOPAUSE"), QStringLiteral("-dBATCH"),
              QStringLiteral("-dSAFER"), QStringLiteral("-sDEVICE=pdfwrite"),
              QStringLiteral("-sOutputFile=") + output, QStringLiteral("--"), input});
    if (!gs.waitForStarted()) {
        if (error)
            *error = QStringLiteral("Ghostscript (gs) could not be started");
        return false;
    }
    gs.closeWriteChannel();
    if (!gs.waitForFinished(120000) || gs.exitStatus() != QProcess::NormalExit ||
        gs.exitCode() != 0 || QFileInfo(output).size() == 0) {
        if (error) {
            const QString said =
                QString::fromLocal8Bit(gs.readAll()).trimmed().section(QLatin1Char('\n'), 0, 0);
            *error = said.isEmpty() ? QStringLiteral("Ghostscript failed") : said;
        }
        QFile::remove(output);
        return false;
    }
    return true;
}

} // namespace orvan
