// Sending a job: to a CUPS queue, or straight to an IPP printer by its URI.
//
// A CUPS queue gets the PPD choices as job options and the standard
// attributes the way the server hands them on: the server passes a job's
// options to its backend as text and leaves collections out, so collection
// attributes (media-col, cover-front, insert-sheet, overrides, finishings-col,
// ...) go to a queue in their text form ("{media-size={x-dimension=21000
// y-dimension=29700} media-type=stationery}"), which the server keeps and an
// IPP backend turns back into collections. Attributes named "job-..." stay with
// the server (it keeps them with the job but hands none on but the passcode),
// and a delayed job is held by the server itself (job-hold-until "HH:MM:SS").
//
// An IPP printer gets every attribute typed, after the printer's description
// has been asked for and what it does not support has been left out
// (PrinterSupport.h). Each file is a job of its own.
#pragma once

#include "submission/JobAttributes.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace orvan::submission {

struct SubmissionResult
{
    std::vector<int> jobIds; // one a job; empty on failure
    QStringList notices;     // what was left out or changed, one line each
    QString error;           // one line; empty on success
};

// True for an ipp: or ipps: URI, which names a printer rather than a queue.
bool IsPrinterUri(const QString& destination);

// The MIME type a printer is told a file has: PDF, PostScript, PNG, JPEG or
// plain text; nullopt with a one-line reason for anything else (a folder, an
// empty or unreadable file, data of no known kind).
std::optional<QByteArray> DocumentFormat(const QString& path, QString* error);

// Sends the files as one job to a queue of the CUPS server this process uses.
SubmissionResult SubmitToQueue(const QString& queueName, const QStringList& files,
                               const JobDescription& job);
// Sends each file as a job to the IPP printer at the URI.
SubmissionResult SubmitToPrinter(const QString& uri, const QStringList& files,
                                 const JobDescription& job);

} // namespace orvan::submission
