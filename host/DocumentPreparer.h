// The document as it goes to the printer or into a saved PDF: the selected
// watermark stamped on its pages and, for a saved PDF, its pages laid out on
// sheets. Works on a copy; the user's file is never changed.
//
// The watermark is a one-page PDF of the page's size with a transparent
// background. Background puts it under each page's content, foreground over
// it, blend over it with the "multiply" blend mode so that the page shows
// through; the watermark's own density is in the drawing already.
#pragma once

#include "host/DocumentSource.h"
#include "host/PageSetup.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace orvan {

enum class WatermarkLayer
{
    Background = 1,
    Blend = 2,
    Foreground = 3
};

struct WatermarkStamp
{
    QByteArray pdf; // page 1 is drawn, fitted to each stamped page
    WatermarkLayer layer = WatermarkLayer::Blend;
    bool firstPageOnly = false;
};

struct DocumentPreparation
{
    // First and last page to print, 1-based; the first of them is the
    // "first page" of a first-page-only watermark.
    int firstPage = 1;
    int lastPage = 2147483647;
    std::optional<WatermarkStamp> watermark;
    // Lays the pages out on the setup's sheets and keeps only the range
    // (a saved PDF). Without it every page stays as it is and the printer
    // applies range, paper and pages per sheet (a job).
    std::optional<PageSetup> sheets;
};

struct PreparationResult
{
    DocumentProblem problem = DocumentProblem::None;
    QString detail;
    bool ok() const { return problem == DocumentProblem::None; }
};

// Checks that `pdfPath` opens without a password and has pages.
PreparationResult CheckPdf(const QString& pdfPath, int* pageCount = nullptr);
// The problem of a file the dialog is to print, with its message: PDFs are
// opened, PostScript is taken as it is, anything else is refused.
DocumentProblem CheckDocument(const QString& path, QString* message);

// Writes the prepared document as a PDF to `outputPath` (atomically).
// PostScript input is first turned into PDF with Ghostscript.
PreparationResult PrepareDocument(const QString& inputPath, const DocumentPreparation& preparation,
                                  const QString& outputPath);

} // namespace orvan
