#include "watermark/WatermarkPreview.h"

#include <poppler-qt6.h>

#include <QPainter>

#include <memory>

namespace orvan {

QImage DrawWatermarkPreview(const MemoryDocument& document, QSize area)
{
    if (area.isEmpty())
        return {};
    const std::unique_ptr<Poppler::Document> pdf =
        Poppler::Document::loadFromData(document.written());
    if (!pdf || pdf->isLocked() || pdf->numPages() < 1)
        return {};
    const std::unique_ptr<Poppler::Page> page = pdf->page(0);
    const QSizeF media = page ? page->pageSizeF() : QSizeF();
    if (media.isEmpty())
        return {};
    pdf->setRenderHint(Poppler::Document::Antialiasing);
    pdf->setRenderHint(Poppler::Document::TextAntialiasing);
    // Fitted without keeping the aspect ratio: each axis scales on its own.
    const double scaleX = area.width() / media.width();
    const double scaleY = area.height() / media.height();
    const QImage rendered = page->renderToImage(72.0 * scaleX, 72.0 * scaleY);

    QImage preview(area, QImage::Format_ARGB32_Premultiplied);
    preview.fill(Qt::white);
    QPainter painter(&preview);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scaleX, scaleY);
    const QRectF mediaBox(QPointF(0, 0), media);
    painter.setClipRect(mediaBox);
    painter.drawImage(mediaBox, rendered);
    // The frame is stroked inside the clip, so only its inner half shows.
    painter.setPen(QPen(Qt::black, 5.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(mediaBox);
    painter.end();
    return preview;
}

} // namespace orvan
