// What the dialog is asked to print: a PDF, a PostScript file, or something
// it cannot print. PostScript is turned into PDF with Ghostscript before it
// is previewed or prepared. The problems here are the ones the preview shows
// and for which Print is refused.
#pragma once

#include <QString>

namespace orvan {

enum class DocumentKind
{
    Pdf,
    PostScript,
    Unsupported
};

enum class DocumentProblem
{
    None,
    Unsupported,       // neither PDF nor PostScript
    Unreadable,        // damaged, or not readable at all
    PasswordProtected, // needs a password to be opened
    NoPages,
    ConversionFailed, // PostScript that Ghostscript could not turn into PDF
    OutputFailed,     // the prepared file could not be written
};

// The kind of a file by its first bytes ("%PDF-" within the first kilobyte,
// "%!" at the start, also after a DOS EPS header or a PJL prologue).
DocumentKind SniffDocumentKind(const QString& path);

// The text the dialog shows for a problem of the file at `path` (the file's
// name in it); `detail` adds the library's reason where it helps.
QString DocumentProblemText(DocumentProblem problem, const QString& path,
                            const QString& detail = {});

// Converts a PostScript file to PDF with Ghostscript (gs); false with the
// reason when gs is missing, fails or gives no pages.
bool ConvertPostScriptToPdf(const QString& input, const QString& output, QString* error);

} // namespace orvan
