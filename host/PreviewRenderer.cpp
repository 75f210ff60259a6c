#include "host/PreviewRenderer.h"

#include "host/DocumentSource.h"

#include <QPainter>

#include <poppler-qt6.h>

#include <algorithm>
#include <cmath>

namespace orvan {

namespace {

// Room between the two sides of a sheet, in parts of the sheet's width.
constexpr double kSideGap = 0.06;

void preparePoppler(Poppler::Document& document)
{
    document.setRenderHint(Poppler::Document::Antialiasing);
    document.setRenderHint(Poppler::Document::TextAntialiasing);
    // Pages come out on a transparent sheet, so a watermark can lie under them.
    document.setRenderHint(Poppler::Document::IgnorePaperColor);
}

} // namespace

PreviewRenderer::PreviewRenderer()
{
    // Damaged files are reported in the preview area, not on the terminal.
    Poppler::setDebugErrorFunction([](const QString&, const QVariant&) {}, QVariant());
}

PreviewRenderer::~PreviewRenderer() = default;

DocumentProblem PreviewRenderer::open(const QString& path, QString* message)
{
    m_document.reset();
    m_pageSizes.clear();
    const auto fail = [&](DocumentProblem problem, const QString& detail = {}) {
        if (message)
            *message = DocumentProblemText(problem, path, detail);
        return problem;
    };
    QString pdfPath = path;
    switch (SniffDocumentKind(path)) {
    case DocumentKind::Unsupported:
        return fail(DocumentProblem::Unsupported);
    case DocumentKind::PostScript: {
        m_converted = std::make_unique<QTemporaryDir>();
        pdfPath = m_converted->filePath(QStringLiteral("preview.pdf"));
        QString why;
        if (!m_converted->isValid() || !ConvertPostScriptToPdf(path, pdfPath, &why))
            return fail(DocumentProblem::ConversionFailed, why);
        break;
    }
    case DocumentKind::Pdf:
        break;
    }
    std::unique_ptr<Poppler::Document> document = Poppler::Document::load(pdfPath);
    if (!document)
        return fail(DocumentProblem::Unreadable);
    if (document->isLocked())
        return fail(DocumentProblem::PasswordProtected);
    if (document->numPages() <= 0)
        return fail(DocumentProblem::NoPages);
    preparePoppler(*document);
    for (int i = 0; i < document->numPages(); ++i) {
        const std::unique_ptr<Poppler::Page> page = document->page(i);
        m_pageSizes.push_back(page ? page->pageSizeF() : QSizeF());
    }
    m_document = std::move(document);
    if (message)
        message->clear();
    return DocumentProblem::None;
}

std::vector<std::vector<PagePlacement>>
PreviewRenderer::sheets(const PreviewSettings& settings) const
{
    const std::vector<int> pages =
        SelectedPages(pageCount(), settings.firstPage, settings.lastPage);
    return LayOutSheets(pages, settings.setup,
                        [this](int page) { return m_pageSizes[static_cast<std::size_t>(page)]; });
}

int PreviewRenderer::spreadCount(const PreviewSettings& settings) const
{
    const int count = static_cast<int>(sheets(settings).size());
    return settings.twoSided ? (count + 1) / 2 : count;
}

void PreviewRenderer::loadWatermark(const PreviewSettings& settings)
{
    const QByteArray bytes = settings.watermark ? settings.watermark->pdf : QByteArray();
    if (bytes == m_watermarkBytes && (m_watermark || bytes.isEmpty()))
        return;
    m_watermarkBytes = bytes;
    m_watermark = bytes.isEmpty() ? nullptr : Poppler::Document::loadFromData(bytes);
    if (m_watermark && (m_watermark->isLocked() || m_watermark->numPages() < 1))
        m_watermark.reset();
    if (m_watermark)
        preparePoppler(*m_watermark);
}

QImage PreviewRenderer::renderSpread(const PreviewSettings& settings, int index, QSize box)
{
    if (!m_document || box.isEmpty())
        return {};
    const auto all = sheets(settings);
    const int perSpread = settings.twoSided ? 2 : 1;
    const auto first = static_cast<std::size_t>(index * perSpread);
    if (index < 0 || first >= all.size())
        return {};
    loadWatermark(settings);
    const std::vector<int> pages =
        SelectedPages(pageCount(), settings.firstPage, settings.lastPage);
    const QSizeF sheet = settings.setup.sheetSize();
    const double spreadWidth = sheet.width() * (perSpread + (settings.twoSided ? kSideGap : 0));
    const double pixelsPerPoint =
        std::min(box.width() / spreadWidth, box.height() / sheet.height());
    const int height = std::max(1, static_cast<int>(sheet.height() * pixelsPerPoint));
    const double sheetWidth = sheet.width() * pixelsPerPoint;
    const double gap = settings.twoSided ? sheetWidth * kSideGap : 0;
    QImage image(static_cast<int>(std::ceil(perSpread * sheetWidth + gap)), height,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (std::size_t side = 0;
         side < static_cast<std::size_t>(perSpread) && first + side < all.size(); ++side) {
        const QRectF area(side * (sheetWidth + gap), 0, sheetWidth, height);
        drawSheet(image, area, all[first + side], settings, pixelsPerPoint, pages.front());
    }
    return image;
}

void PreviewRenderer::drawSheet(QImage& image, const QRectF& area,
                                const std::vector<PagePlacement>& sheet,
                                const PreviewSettings& settings, double pixelsPerPoint,
                                int firstPageOfJob)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(area, Qt::white);
    for (const PagePlacement& placement : sheet) {
        const std::unique_ptr<Poppler::Page> page = m_document->page(placement.page);
        if (!page)
            continue;
        const double pagePixels = placement.scale * pixelsPerPoint;
        const QImage content = page->renderToImage(72 * pagePixels, 72 * pagePixels);
        QImage composed(content.size(), QImage::Format_ARGB32_Premultiplied);
        composed.fill(Qt::white);
        QPainter pagePainter(&composed);
        const bool stamped =
            m_watermark && settings.watermark &&
            (!settings.watermark->firstPageOnly || placement.page == firstPageOfJob);
        const auto drawWatermark = [&] {
            const std::unique_ptr<Poppler::Page> mark = m_watermark->page(0);
            const QSizeF markSize = mark ? mark->pageSizeF() : QSizeF();
            if (markSize.isEmpty())
                return;
            const QSizeF pageSize = m_pageSizes[static_cast<std::size_t>(placement.page)];
            const double fit = std::min(pageSize.width() / markSize.width(),
                                        pageSize.height() / markSize.height());
            const QImage drawn = mark->renderToImage(72 * fit * pagePixels, 72 * fit * pagePixels);
            pagePainter.drawImage(QPointF((composed.width() - drawn.width()) / 2.0,
                                          (composed.height() - drawn.height()) / 2.0),
                                  drawn);
        };
        if (stamped && settings.watermark->layer == WatermarkLayer::Background)
            drawWatermark();
        pagePainter.drawImage(0, 0, content);
        if (stamped && settings.watermark->layer != WatermarkLayer::Background) {
            if (settings.watermark->layer == WatermarkLayer::Blend)
                pagePainter.setCompositionMode(QPainter::CompositionMode_Multiply);
            drawWatermark();
        }
        pagePainter.end();
        const QRectF target(area.x() + placement.target.x() * pixelsPerPoint,
                            area.y() + placement.target.y() * pixelsPerPoint,
                            placement.target.width() * pixelsPerPoint,
                            placement.target.height() * pixelsPerPoint);
        painter.drawImage(target, placement.quarterTurn
                                      ? composed.transformed(QTransform().rotate(-90))
                                      : composed);
    }
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace orvan
