#include "host/JobSubmission.h"

#include <QFileInfo>

namespace orvan {

submission::SubmissionResult SubmitSession(const PrintSession& session, const PrinterEntry& printer,
                                           const QStringList& files)
{
    const QString title = files.isEmpty() ? QString() : QFileInfo(files.first()).fileName();
    const submission::JobDescription job = submission::DescribeJob(session, title);
    if (!printer.printerUri.isEmpty())
        return submission::SubmitToPrinter(printer.printerUri, files, job);
    if (!printer.queueName.isEmpty())
        return submission::SubmitToQueue(printer.queueName, files, job);
    return {
        {}, {}, QStringLiteral("%1 is not connected to a print queue").arg(printer.displayName)};
}

} // namespace orvan
