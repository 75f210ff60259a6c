// Draws the sheets of a document as they will come out: the page range
// applied, the pages laid out per sheet, the watermark on its pages, the two
// sides of a sheet next to each other when printing two-sided. Synchronous;
// the preview pane runs it on its own thread, one document at a time.
#pragma once

#include "host/DocumentPreparer.h"
#include "host/PageSetup.h"
#include "host/SheetLayout.h"

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <vector>

namespace Poppler {
class Document;
}

namespace orvan {

struct PreviewSettings
{
    PageSetup setup;
    int firstPage = 1;
    int lastPage = 2147483647;
    bool twoSided = false;
    std::optional<WatermarkStamp> watermark;
};

class PreviewRenderer
{
public:
    PreviewRenderer();
    ~PreviewRenderer();

    // Opens a PDF or PostScript file (PostScript through Ghostscript); keeps
    // the document open until the next open. The problem, with its message.
    DocumentProblem open(const QString& path, QString* message);
    bool isOpen() const { return m_document != nullptr; }
    int pageCount() const { return static_cast<int>(m_pageSizes.size()); }

    // Spreads: one sheet each, or the two sides of each sheet of paper.
    int spreadCount(const PreviewSettings& settings) const;
    // Spread `index` drawn as large as fits in `box` pixels; a null image
    // when there is no such spread.
    QImage renderSpread(const PreviewSettings& settings, int index, QSize box);

private:
    std::vector<std::vector<PagePlacement>> sheets(const PreviewSettings& settings) const;
    void drawSheet(QImage& image, const QRectF& area, const std::vector<PagePlacement>& sheet,
                   const PreviewSettings& settings, double pixelsPerPoint, int firstPageOfJob);
    void loadWatermark(const PreviewSettings& settings);

    std::unique_ptr<Poppler::Document> m_document;
    std::vector<QSizeF> m_pageSizes;
    std::unique_ptr<QTemporaryDir> m_converted; // PostScript turned into PDF
    QByteArray m_watermarkBytes;
    std::unique_ptr<Poppler::Document> m_watermark;
};

} // namespace orvan
