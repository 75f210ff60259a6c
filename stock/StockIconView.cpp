#include "stock/StockIconView.h"

#include "settings/Bundle.h"
#include "stock/StockIcon.h"

#include <QPainter>

#include <cstdio>

namespace orvan {

QImage RenderStockIcon(const Bundle* bundle, const QStringList& imageNames, QSize size)
{
    QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const QString& name : imageNames) {
        const QString path = bundle ? bundle->resourcePath(StockIconImagePath(name)) : QString();
        const QImage image = path.isEmpty() ? QImage() : QImage(path);
        if (image.isNull()) {
            std::fprintf(stderr, "DEBUG: stock image %s not found\n", qPrintable(name));
            continue;
        }
        const QSize scaled = image.size().scaled(size, Qt::KeepAspectRatio);
        const QRect target(
            QPoint((size.width() - scaled.width()) / 2, (size.height() - scaled.height()) / 2),
            scaled);
        painter.drawImage(target, image);
    }
    return canvas;
}

StockIconView::StockIconView(const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_bundle(bundle)
{
    setObjectName(QStringLiteral("StockIcon"));
}

void StockIconView::setStock(const Stock* stock)
{
    m_stock = stock;
    update();
}

QStringList StockIconView::imageNames() const
{
    return m_stock ? StockIconImageNames(*m_stock) : QStringList();
}

QSize StockIconView::sizeHint() const
{
    return {48, 48};
}

void StockIconView::paintEvent(QPaintEvent*)
{
    const QStringList names = imageNames();
    if (names.isEmpty())
        return;
    QPainter painter(this);
    painter.drawImage(0, 0, RenderStockIcon(m_bundle, names, size()));
}

} // namespace orvan
