#include "submission/Submission.h"

#include "submission/PrinterSupport.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include <cerrno>
#include <cstring>

namespace orvan::submission {

namespace {

constexpr int kConnectTimeoutMs = 10000;

SubmissionResult Failure(const QString& why, QStringList notices = {})
{
    return {{}, std::move(notices), why};
}

QString LastError()
{
    return QString::fromUtf8(cupsLastErrorString());
}

bool Succeeded(const IppPtr& response)
{
    return response && ippGetStatusCode(response.get()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

// The request's first operation attributes, then the job's operation
// attributes; the job attributes are added by the caller.
IppPtr NewRequest(ipp_op_t operation, const QByteArray& printerUri, const JobDescription& job)
{
    IppPtr request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printerUri.constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    for (ipp_attribute_t* attribute = ippFirstAttribute(job.attributes.get()); attribute;
         attribute = ippNextAttribute(job.attributes.get()))
        if (ippGetGroupTag(attribute) == IPP_TAG_OPERATION)
            ippCopyAttribute(request.get(), attribute, 0);
    return request;
}

void AddDocumentFormat(ipp_t* request, const QByteArray& format)
{
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 format.constData());
}

// A value as CUPS option text: strings that hold a separator are quoted
// (with the quote they do not hold), so that a collection's text parses back
// into the same members.
QByteArray OptionText(ipp_attribute_t* attribute)
{
    QByteArrayList values;
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        switch (ippGetValueTag(attribute)) {
        case IPP_TAG_BEGIN_COLLECTION: {
            ipp_t* collection = ippGetCollection(attribute, i);
            QByteArrayList members;
            for (ipp_attribute_t* member = ippFirstAttribute(collection); member;
                 member = ippNextAttribute(collection))
                members << ippGetName(member) + QByteArray("=") + OptionText(member);
            values << '{' + members.join(' ') + '}';
            break;
        }
        case IPP_TAG_INTEGER:
        case IPP_TAG_ENUM:
            values << QByteArray::number(ippGetInteger(attribute, i));
            break;
        case IPP_TAG_BOOLEAN:
            values << (ippGetBoolean(attribute, i) ? "true" : "false");
            break;
        case IPP_TAG_RANGE: {
            int upper = 0;
            const int lower = ippGetRange(attribute, i, &upper);
            values << QByteArray::number(lower) + '-' + QByteArray::number(upper);
            break;
        }
        case IPP_TAG_RESOLUTION: {
            int y = 0;
            ipp_res_t units;
            const int x = ippGetResolution(attribute, i, &y, &units);
            values << QByteArray::number(x) + 'x' + QByteArray::number(y) +
                          (units == IPP_RES_PER_INCH ? "dpi" : "dpcm");
            break;
        }
        default: {
            QByteArray text = ippGetString(attribute, i, nullptr);
            const bool plain =
                !text.isEmpty() && std::none_of(text.begin(), text.end(), [](char c) {
                    return std::strchr(" ,{}\"'\\", c) != nullptr;
                });
            if (!plain) {
                const char quote = text.contains('"') && !text.contains('\'') ? '\'' : '"';
                text.replace("\\", "\\\\").replace(QByteArray(1, quote), QByteArray("\\") + quote);
                text = quote + text + quote;
            }
            values << text;
        }
        }
    }
    return values.join(',');
}

// The attributes a queue takes, in the form the server hands on (see the
// header): collections as text, the hold time as a time of day.
void AddQueueAttributes(ipp_t* request, const JobDescription& job)
{
    for (ipp_attribute_t* attribute = ippFirstAttribute(job.attributes.get()); attribute;
         attribute = ippNextAttribute(job.attributes.get())) {
        if (ippGetGroupTag(attribute) != IPP_TAG_JOB)
            continue;
        const char* name = ippGetName(attribute);
        const bool jobAttribute = qstrncmp(name, "job-", 4) == 0;
        if (ippGetValueTag(attribute) == IPP_TAG_BEGIN_COLLECTION && !jobAttribute) {
            ippAddString(request, IPP_TAG_JOB, IPP_TAG_TEXT, name, nullptr,
                         OptionText(attribute).constData());
        } else if (qstrcmp(name, "job-hold-until-time") == 0) {
            const QDateTime when =
                QDateTime::fromSecsSinceEpoch(ippDateToTime(ippGetDate(attribute, 0)), Qt::UTC);
            ippAddString(request, IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-hold-until", nullptr,
                         when.toString(QStringLiteral("HH:mm:ss")).toLatin1().constData());
        } else {
            ippCopyAttribute(request, attribute, 0);
        }
    }
    CupsOptions options;
    for (const auto& [name, value] : job.cupsOptions)
        options.add(name.toUtf8().constData(), value.toUtf8().constData());
    cupsEncodeOptions2(request, options.count(), options.options(), IPP_TAG_JOB);
}

// What the server or printer says it ignored or changed.
QStringList IgnoredAttributes(const IppPtr& response)
{
    QStringList notices;
    for (ipp_attribute_t* attribute = ippFirstAttribute(response.get()); attribute;
         attribute = ippNextAttribute(response.get()))
        if (ippGetGroupTag(attribute) == IPP_TAG_UNSUPPORTED_GROUP && ippGetName(attribute))
            notices << QStringLiteral("the printer ignored %1")
                           .arg(QString::fromUtf8(ippGetName(attribute)));
    return notices;
}

int JobId(const IppPtr& response)
{
    ipp_attribute_t* id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id ? ippGetInteger(id, 0) : 0;
}

// Checks every file first, so that nothing is sent when one of them cannot be.
std::optional<std::vector<QByteArray>> DocumentFormats(const QStringList& files, QString* error)
{
    if (files.isEmpty()) {
        *error = QStringLiteral("there is no file to print");
        return std::nullopt;
    }
    std::vector<QByteArray> formats;
    for (const QString& file : files) {
        const auto format = DocumentFormat(file, error);
        if (!format)
            return std::nullopt;
        formats.push_back(*format);
    }
    return formats;
}

} // namespace

bool IsPrinterUri(const QString& destination)
{
    return destination.startsWith(QLatin1String("ipp://")) ||
           destination.startsWith(QLatin1String("ipps://"));
}

std::optional<QByteArray> DocumentFormat(const QString& path, QString* error)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.isDir() || !file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1").arg(path);
        return std::nullopt;
    }
    const QByteArray head = file.read(4096);
    if (head.isEmpty()) {
        *error = QStringLiteral("%1 is empty").arg(path);
        return std::nullopt;
    }
    if (head.startsWith("%PDF-"))
        return QByteArray("application/pdf");
    if (head.startsWith("%!"))
        return QByteArray("application/postscript");
    if (head.startsWith("\x89PNG\r\n\x1a\n"))
        return QByteArray("image/png");
    if (head.startsWith("\xff\xd8\xff"))
        return QByteArray("image/jpeg");
    const bool text = std::all_of(head.begin(), head.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x20 || byte == '\n' || byte == '\r' || byte == '\t' || byte == '\f';
    });
    if (text)
        return QByteArray("text/plain");
    *error = QStringLiteral("%1 is not a document that can be printed "
                            "(not PDF, PostScript, PNG, JPEG or text)")
                 .arg(path);
    return std::nullopt;
}

SubmissionResult SubmitToQueue(const QString& queueName, const QStringList& files,
                               const JobDescription& job)
{
    QString why;
    const auto formats = DocumentFormats(files, &why);
    if (!formats)
        return Failure(why);
    const HttpPtr http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                    1, kConnectTimeoutMs, nullptr));
    if (!http)
        return Failure(QStringLiteral("cannot reach the print server %1: %2")
                           .arg(QString::fromUtf8(cupsServer()),
                                QString::fromLocal8Bit(std::strerror(errno))));
    const QByteArray queue = queueName.toUtf8();
    const DestsPtr destination(cupsGetNamedDest(http.get(), queue.constData(), nullptr));
    if (!destination)
        return Failure(QStringLiteral("there is no printer queue named %1").arg(queueName));
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", queue.constData());
    const QByteArray resource = "/printers/" + queue;

    // One file is a Print-Job; several are documents of one job.
    const bool single = files.size() == 1;
    IppPtr request = NewRequest(single ? IPP_OP_PRINT_JOB : IPP_OP_CREATE_JOB, uri, job);
    if (single)
        AddDocumentFormat(request.get(), formats->front());
    AddQueueAttributes(request.get(), job);
    // The library releases the request it is given.
    IppPtr response(single ? cupsDoFileRequest(http.get(), request.release(), resource.constData(),
                                               QFile::encodeName(files.front()).constData())
                           : cupsDoRequest(http.get(), request.release(), resource.constData()));
    if (!Succeeded(response))
        return Failure(QStringLiteral("%1 refused the job: %2").arg(queueName, LastError()));
    const int jobId = JobId(response);
    SubmissionResult result{{jobId}, IgnoredAttributes(response), {}};
    for (qsizetype i = 0; !single && i < files.size(); ++i) {
        IppPtr send(ippNewRequest(IPP_OP_SEND_DOCUMENT));
        ippAddString(send.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
        ippAddInteger(send.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
        ippAddString(send.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                     cupsUser());
        AddDocumentFormat(send.get(), (*formats)[static_cast<std::size_t>(i)]);
        ippAddBoolean(send.get(), IPP_TAG_OPERATION, "last-document", i + 1 == files.size());
        const IppPtr sent(cupsDoFileRequest(http.get(), send.release(), resource.constData(),
                                            QFile::encodeName(files[i]).constData()));
        if (!Succeeded(sent))
            return Failure(
                QStringLiteral("%1 refused %2: %3").arg(queueName, files[i], LastError()),
                result.notices);
    }
    return result;
}

SubmissionResult SubmitToPrinter(const QString& printerUri, const QStringList& files,
                                 const JobDescription& job)
{
    QString why;
    const auto formats = DocumentFormats(files, &why);
    if (!formats)
        return Failure(why);
    const QByteArray uri = printerUri.toUtf8();
    char scheme[32], userpass[256], host[256], resource[1024];
    int port = 0;
    if (httpSeparateURI(HTTP_URI_CODING_ALL, uri.constData(), scheme, sizeof scheme, userpass,
                        sizeof userpass, host, sizeof host, &port, resource,
                        sizeof resource) < HTTP_URI_STATUS_OK ||
        !IsPrinterUri(printerUri))
        return Failure(
            QStringLiteral("%1 is not an ipp:// or ipps:// printer address").arg(printerUri));
    const HttpPtr http(httpConnect2(host, port, nullptr, AF_UNSPEC,
                                    qstrcmp(scheme, "ipps") == 0 ? HTTP_ENCRYPTION_ALWAYS
                                                                 : HTTP_ENCRYPTION_IF_REQUESTED,
                                    1, kConnectTimeoutMs, nullptr));
    if (!http)
        return Failure(QStringLiteral("cannot reach the printer at %1:%2: %3")
                           .arg(QString::fromUtf8(host))
                           .arg(port)
                           .arg(QString::fromLocal8Bit(std::strerror(errno))));

    IppPtr query(ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES));
    ippAddString(query.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 uri.constData());
    ippAddString(query.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    const IppPtr printer(cupsDoRequest(http.get(), query.release(), resource));
    if (!Succeeded(printer))
        return Failure(QStringLiteral("the printer at %1 did not describe itself: %2")
                           .arg(printerUri, LastError()));

    // The job as this printer takes it.
    const IppPtr fitted(ippNew());
    ippCopyAttributes(fitted.get(), job.attributes.get(), 0, nullptr, nullptr);
    SubmissionResult result{{}, DropUnsupported(fitted.get(), printer.get()), {}};
    ipp_attribute_t* accepted =
        ippFindAttribute(printer.get(), "document-format-supported", IPP_TAG_MIMETYPE);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QByteArray& format = (*formats)[static_cast<std::size_t>(i)];
        if (accepted && !ippContainsString(accepted, format.constData()) &&
            !ippContainsString(accepted, "application/octet-stream"))
            return Failure(QStringLiteral("the printer does not print %1 documents (%2)")
                               .arg(QString::fromLatin1(format), files[i]),
                           result.notices);
        IppPtr request = NewRequest(IPP_OP_PRINT_JOB, uri, JobDescription{{}, nullptr});
        AddDocumentFormat(request.get(), format);
        for (ipp_attribute_t* attribute = ippFirstAttribute(fitted.get()); attribute;
             attribute = ippNextAttribute(fitted.get()))
            ippCopyAttribute(request.get(), attribute, 0);
        const IppPtr response(cupsDoFileRequest(http.get(), request.release(), resource,
                                                QFile::encodeName(files[i]).constData()));
        if (!Succeeded(response))
            return Failure(QStringLiteral("the printer refused the job: %1").arg(LastError()),
                           result.notices);
        result.notices += IgnoredAttributes(response);
        result.jobIds.push_back(JobId(response));
    }
    return result;
}

} // namespace orvan::submission
