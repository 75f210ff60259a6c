// Draws the stock pictures: one base sheet per paper family and colour and
// one transparent overlay per surface or use, 48 x 48 pixels, into the
// folder given as the only argument. The set of files is every name the
// icon logic can ask for. The logic names them ".gif"; they are written as
// PNG files of the same stem, since Qt has no GIF writer.
//
//   orvan_make_stock_images resources/bundle/images/stock
#include "stock/StockIcon.h"

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSet>

#include <cstdio>

using namespace orvan;

namespace {

constexpr int kSize = 48;
// The sheet every family but the envelope draws, and the envelope.
const QRectF kSheet(11.5, 4.5, 26, 38);
const QRectF kEnvelope(4.5, 12.5, 39, 25);
const QColor kOutline(90, 90, 90);

QColor paperColor(const QString& name)
{
    static const QHash<QString, QColor> colors = {
        {"White", QColor(255, 255, 255)},  {"Blue", QColor(158, 201, 240)},
        {"Yellow", QColor(255, 243, 138)}, {"Green", QColor(168, 224, 160)},
        {"Pink", QColor(248, 192, 216)},   {"Clear", QColor(215, 232, 250, 90)},
        {"Buff", QColor(240, 220, 180)},   {"Goldenrod", QColor(232, 181, 48)},
        {"Red", QColor(232, 96, 96)},      {"Ivory", QColor(255, 251, 230)},
        {"Gray", QColor(196, 196, 196)},   {"Orange", QColor(248, 176, 96)},
    };
    return colors.value(name, Qt::white);
}

QPainterPath sheetWithFold(const QRectF& sheet)
{
    constexpr double fold = 7;
    QPainterPath path;
    path.moveTo(sheet.topLeft());
    path.lineTo(sheet.right() - fold, sheet.top());
    path.lineTo(sheet.right(), sheet.top() + fold);
    path.lineTo(sheet.bottomRight());
    path.lineTo(sheet.bottomLeft());
    path.closeSubpath();
    return path;
}

void drawSheet(QPainter& p, const QRectF& sheet, const QColor& color)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(color);
    p.drawPath(sheetWithFold(sheet));
    p.setBrush(color.darker(115));
    QPainterPath fold;
    fold.moveTo(sheet.right() - 7, sheet.top());
    fold.lineTo(sheet.right() - 7, sheet.top() + 7);
    fold.lineTo(sheet.right(), sheet.top() + 7);
    fold.closeSubpath();
    p.drawPath(fold);
}

void drawTab(QPainter& p, const QRectF& tab, const QColor& color)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(color);
    p.drawRoundedRect(tab, 1.5, 1.5);
}

// "Paper_<family>-<colour>"
void drawBase(QPainter& p, const QString& family, const QColor& color)
{
    if (family == "Envelope") {
        p.setPen(QPen(kOutline, 1));
        p.setBrush(color);
        p.drawRect(kEnvelope);
        p.setBrush(Qt::NoBrush);
        p.drawPolyline(QPolygonF{kEnvelope.topLeft(),
                                 QPointF(kEnvelope.center().x(), kEnvelope.top() + 14),
                                 kEnvelope.topRight()});
        return;
    }
    if (family == "FullCutTab") {
        drawTab(p, QRectF(kSheet.right() - 2, 15.5, 7, 12), color);
        drawSheet(p, kSheet, color);
        return;
    }
    if (family == "Pre-CutTab") {
        for (int i = 0; i < 3; ++i)
            drawTab(p, QRectF(kSheet.right() - 2, 12.5 + i * 10, 6, 7), color);
        drawSheet(p, kSheet, color);
        return;
    }
    drawSheet(p, kSheet, color);
    if (family == "Reloaded") {
        // A turning arrow: the sheet goes through again for its second side.
        p.setPen(QPen(QColor(60, 110, 170), 2.5, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        const QRectF arc(kSheet.center().x() - 8, kSheet.center().y() - 8, 16, 16);
        p.drawArc(arc, 60 * 16, 280 * 16);
        p.setBrush(QColor(60, 110, 170));
        p.setPen(Qt::NoPen);
        const QPointF tip(arc.center().x() + 4, arc.top() - 0.5);
        p.drawPolygon(QPolygonF{tip + QPointF(-4, -4), tip + QPointF(3, 0), tip + QPointF(-4, 4)});
    }
}

void drawHeavyEdges(QPainter& p)
{
    p.setPen(QPen(kOutline, 1));
    p.setBrush(Qt::NoBrush);
    for (int i = 1; i <= 2; ++i) {
        const double d = i * 2.0;
        p.drawLine(QPointF(kSheet.left() + d, kSheet.bottom() + d),
                   QPointF(kSheet.right() + d, kSheet.bottom() + d));
        p.drawLine(QPointF(kSheet.right() + d, kSheet.top() + 7 + d),
                   QPointF(kSheet.right() + d, kSheet.bottom() + d));
    }
}

void drawGloss(QPainter& p)
{
    p.save();
    p.setClipPath(sheetWithFold(kSheet));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 170));
    p.drawPolygon(QPolygonF{QPointF(kSheet.left(), 30), QPointF(kSheet.left() + 22, 8),
                            QPointF(kSheet.left() + 28, 8), QPointF(kSheet.left(), 38)});
    p.setPen(QPen(QColor(120, 170, 220, 200), 1));
    p.drawLine(QPointF(kSheet.left() + 4, 40), QPointF(kSheet.right() - 2, 18));
    p.restore();
}

void drawBadge(QPainter& p, const QString& text, const QColor& color)
{
    const QRectF badge(kSheet.left() + 1, kSheet.bottom() - 15, 14, 14);
    p.setPen(QPen(color.darker(140), 1));
    p.setBrush(color);
    p.drawEllipse(badge);
    QFont font = p.font();
    font.setPixelSize(10);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(badge, Qt::AlignCenter, text);
}

void drawSecondSideMark(QPainter& p)
{
    drawBadge(p, QStringLiteral("2"), QColor(60, 110, 170));
}

void drawLabels(QPainter& p)
{
    p.setPen(QPen(QColor(130, 130, 130), 1));
    p.setBrush(QColor(255, 255, 255, 200));
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 2; ++column)
            p.drawRoundedRect(
                QRectF(kSheet.left() + 3 + column * 11, kSheet.top() + 10 + row * 7, 9, 5), 1.5,
                1.5);
}

void drawOverlay(QPainter& p, const QString& name)
{
    if (name == "Recycled") {
        p.setPen(QPen(QColor(40, 150, 60), 2.5, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        const QRectF ring(kSheet.center().x() - 8, kSheet.center().y() - 6, 16, 16);
        for (int i = 0; i < 3; ++i)
            p.drawArc(ring, (i * 120 + 20) * 16, 80 * 16);
    } else if (name == "Labels") {
        drawLabels(p);
    } else if (name == "HolePunched" || name == "HolePunchedEnvelope") {
        p.setPen(QPen(kOutline, 1));
        p.setBrush(QColor(70, 70, 70));
        const bool envelope = name == "HolePunchedEnvelope";
        const QRectF area = envelope ? kEnvelope : kSheet;
        const int holes = envelope ? 2 : 3;
        for (int i = 0; i < holes; ++i) {
            const double y = area.top() + area.height() * (i + 1) / (holes + 1);
            p.drawEllipse(QPointF(area.left() + 4, y), 2, 2);
        }
    } else if (name == "LightweightGloss") {
        drawGloss(p);
    } else if (name == "LightweightGlossReloaded") {
        drawGloss(p);
        drawSecondSideMark(p);
    } else if (name == "Pre-Printed") {
        p.setPen(QPen(QColor(110, 110, 110), 1.5));
        for (int i = 0; i < 6; ++i)
            p.drawLine(QPointF(kSheet.left() + 4, kSheet.top() + 12 + i * 4.5),
                       QPointF(kSheet.right() - 4 - (i % 3) * 3, kSheet.top() + 12 + i * 4.5));
    } else if (name == "OrderedStock") {
        drawBadge(p, QStringLiteral("#"), QColor(150, 100, 40));
    } else if (name == "Letterhead") {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(40, 80, 150));
        p.drawRect(QRectF(kSheet.left() + 3, kSheet.top() + 3, 12, 4));
        p.setBrush(QColor(40, 80, 150, 120));
        p.drawRect(QRectF(kSheet.left() + 3, kSheet.top() + 9, 18, 1.5));
    } else if (name.startsWith("Custom")) {
        drawBadge(p, name.mid(6), QColor(120, 70, 160));
    } else if (name == "Other") {
        drawBadge(p, QStringLiteral("?"), QColor(110, 110, 110));
    } else if (name == "LablesHeavyweight") {
        drawLabels(p);
        drawHeavyEdges(p);
    } else if (name == "Heavyweight") {
        drawHeavyEdges(p);
    } else if (name == "HeavyweightReloaded") {
        drawHeavyEdges(p);
        drawSecondSideMark(p);
    } else if (name == "HeavyweightGloss") {
        drawHeavyEdges(p);
        drawGloss(p);
    } else if (name == "HeavyweightGlossReloaded") {
        drawHeavyEdges(p);
        drawGloss(p);
        drawSecondSideMark(p);
    } else if (name == "RoughSurface") {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(90, 90, 90, 150));
        unsigned seed = 7;
        for (int i = 0; i < 60; ++i) {
            seed = seed * 1103515245u + 12345u;
            const double x = kSheet.left() + 2 + (seed >> 8) % 22;
            const double y = kSheet.top() + 9 + (seed >> 16) % 27;
            p.drawEllipse(QPointF(x, y), 0.7, 0.7);
        }
    } else if (name == "Archival") {
        p.setPen(QPen(QColor(150, 110, 20), 1));
        p.setBrush(QColor(220, 180, 60));
        const QPointF c(kSheet.right() - 7, kSheet.bottom() - 8);
        p.drawPolygon(QPolygonF{c + QPointF(-4, 3), c + QPointF(-6, 10), c + QPointF(-1, 7)});
        p.drawPolygon(QPolygonF{c + QPointF(4, 3), c + QPointF(6, 10), c + QPointF(1, 7)});
        p.drawEllipse(c, 5.5, 5.5);
    } else {
        std::fprintf(stderr, "no drawing for overlay %s\n", qPrintable(name));
    }
}

QSet<QString> everyImageName()
{
    QSet<QString> names;
    Stock stock;
    for (std::int32_t punched : {kUnset, 2})
        for (std::int32_t type = 0; type <= 50; ++type)
            for (std::int32_t color = 0; color <= 25; ++color) {
                stock.setType(type);
                stock.setColor(color);
                stock.setPunched(punched);
                for (const QString& name : StockIconImageNames(stock))
                    names.insert(name);
            }
    return names;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT-FOLDER\n", argv[0]);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    int written = 0;
    for (const QString& name : everyImageName()) {
        const QString stem = name.chopped(4); // ".gif"
        QImage image(kSize, kSize, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        {
            QPainter p(&image);
            p.setRenderHint(QPainter::Antialiasing);
            // "Plain-Blue", "Pre-CutTab-Blue", "Overlay-Pre-Printed"
            const QString kind = stem.section('_', 1);
            if (kind.startsWith("Overlay-")) {
                drawOverlay(p, kind.mid(8));
            } else {
                const QString color = kind.section('-', -1);
                drawBase(p, kind.chopped(color.size() + 1), paperColor(color));
            }
        }
        const QString path = folder.filePath(QFileInfo(StockIconImagePath(name)).fileName());
        if (!image.save(path, "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
        ++written;
    }
    std::printf("%d images\n", written);
    return 0;
}
