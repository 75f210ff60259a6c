#include "host/JobSubmission.h"

#include "host/DocumentPreparer.h"
#include "host/PageSetup.h"
#include "host/WatermarkStampSource.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace orvan {

namespace {

// The files with the session's watermark stamped on them, as copies in
// `folder`; the files themselves when none is selected. nullopt with the
// reason when a copy cannot be made.
std::optional<QStringList> stampedCopies(const PrintSession& session, const QStringList& files,
                                         const QTemporaryDir& folder, QString* error)
{
    const std::optional<WatermarkStamp> watermark =
        WatermarkStampForSession(session, ReadPageSetup(session, {}).paper.points);
    if (!watermark)
        return files;
    if (!folder.isValid()) {
        *error = QStringLiteral("no temporary folder for the stamped pages: %1")
                     .arg(folder.errorString());
        return std::nullopt;
    }
    QStringList copies;
    for (const QString& file : files) {
        DocumentPreparation preparation;
        preparation.watermark = watermark;
        std::tie(preparation.firstPage, preparation.lastPage) =
            PageRangeFromTicket(session.printSettings());
        // The copy keeps the file's name, which names the job.
        const QString copy = folder.filePath(
            QStringLiteral("%1/%2").arg(copies.size()).arg(QFileInfo(file).fileName()));
        QDir().mkpath(QFileInfo(copy).path());
        const PreparationResult result = PrepareDocument(file, preparation, copy);
        if (!result.ok()) {
            *error = DocumentProblemText(result.problem, file, result.detail);
            return std::nullopt;
        }
        copies << copy;
    }
    return copies;
}

} // namespace

submission::SubmissionResult SubmitSession(const PrintSession& session, const PrinterEntry& printer,
                                           const QStringList& files)
{
    if (printer.printerUri.isEmpty() && printer.queueName.isEmpty())
        return {{},
                {},
                QStringLiteral("%1 is not connected to a print queue").arg(printer.displayName)};
    const QTemporaryDir folder;
    QString why;
    const std::optional<QStringList> sent = stampedCopies(session, files, folder, &why);
    if (!sent)
        return {{}, {}, why};
    const QString title = files.isEmpty() ? QString() : QFileInfo(files.first()).fileName();
    const submission::JobDescription job = submission::DescribeJob(session, title);
    if (!printer.printerUri.isEmpty())
        return submission::SubmitToPrinter(printer.printerUri, *sent, job);
    return submission::SubmitToQueue(printer.queueName, *sent, job);
}

} // namespace orvan
