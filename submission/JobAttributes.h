// A print session's tickets as a job description: the options of a CUPS
// queue and the standard IPP operation and job-template attributes.
//
// Where each setting goes ("PPD" = the PPD choice, sent as a CUPS option by
// its main keyword; "-" = no standard attribute: the setting stays in the
// ticket and, where it has one, its PPD choice):
//
//   setting (ticket)                          IPP attribute (type)
//   copies, page range                        copies (integer), page-ranges (rangeOfInteger)
//   job-level stock: size, custom size        media-col/media-size/x-dimension, y-dimension
//            type, colour, tray, weight       media-col/media-type, media-color, media-source
//                                             (keyword, or name for the user's own),
//                                             media-weight-metric (integer, g/m2)
//            description or stock name        media-col/media-info (text)
//            punched, coating, finish, grain  -
//   front / back cover                        cover-front / cover-back: cover-type, media-col
//   inserts                                   insert-sheet (1setOf collection):
//                                             insert-after-page-number, insert-count, media-col
//   exception pages                           overrides (1setOf collection): pages, media-col,
//                                             sides; image shift, tone, halftone: -
//   two-sided printing                        sides (keyword) + PPD "Duplex"
//   staple, punch, fold, booklet fold, offset finishings (1setOf enum) and finishings-col
//                                             (finishing-template) + PPD "StapleLocation",
//                                             "QVPunch", "QVFold", "Jog"
//   output destination                        output-bin (keyword, or name) + PPD "OutputBin"
//   secure print passcode                     job-password (octetString, operation) with
//                                             job-password-encryption "none"
//   delayed print                             job-hold-until-time (dateTime); a CUPS queue
//                                             gets job-hold-until "HH:MM:SS" (UTC)
//   saved job: disposition, folder, passcode  job-storage: job-storage-disposition,
//                                             job-storage-group, job-storage-access;
//                                             job-name from the saved-job name; job-password
//   sample set                                proof-print: proof-print-copies 1
//   fax recipients, dialing prefix            destination-uris: destination-uri (tel:),
//                                             pre-dial-string
//   fax confirmation sheet, cover sheet notes confirmation-sheet-print (boolean),
//                                             cover-sheet-info: message, from-name
//   fax send time                             job-hold-until-time
//   fax resolution                            printer-resolution (200x100, 200x200, 400x400)
//   fax speed, credit card, prompts           -
//   job name (job notes, else the document)   job-name (name, operation)
//   banner message, job start message         job-sheet-message, job-message-to-operator (text)
//   sender, recipient                         - (CUPS options "job-notes-sender",
//                                             "job-notes-recipient")
//   resolution, print quality, toner saver    printer-resolution (resolution), print-quality
//                                             (enum: draft for toner saving) + their PPD choices
//   negative / mirror image                   - (the panel writes both flags whenever its
//                                             controls exist, so the ticket cannot tell the
//                                             user's choice: no "mirror" option is derived)
//   face up, banner sheet, booklet order      - (PPD choices only)
//   page setup: orientation, pages per sheet  orientation-requested (enum), number-up (integer)
//   page setup: paper (when no stock size)    media-col/media-size
#pragma once

#include "settings/PrintSession.h"
#include "submission/IppOwners.h"

#include <QString>

#include <utility>
#include <vector>

namespace orvan::submission {

using JobOptions = std::vector<std::pair<QString, QString>>;

struct JobDescription
{
    // Every PPD choice of the print-settings ticket, then the options that
    // only CUPS takes.
    JobOptions cupsOptions;
    // Operation attributes (job-name, job-password, ...) first, then the
    // job-template attributes.
    IppPtr attributes;
};

// The job of a session. documentName names the job when the tickets do not.
JobDescription DescribeJob(const PrintSession& session, const QString& documentName);

} // namespace orvan::submission
