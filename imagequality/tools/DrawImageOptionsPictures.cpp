// Draws the Image Options panel's pictures: a sheet of paper showing what a
// setting does to a print. Usage: orvan_draw_image_options_pictures OUTDIR
//
// Resolution: a disc rendered on a dot grid as fine as the resolution.
// Toner saver: a block of text printed solid (off) or light (on).
// Invert image: a letter as printed (off) and mirrored.
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>
#include <functional>

namespace {

constexpr int kSize = 64;
const QRectF kSheet(9.5, 3.5, 45, 57);
const QColor kInk(0x2b, 0x2f, 0x36);
const QColor kAccent(0x2f, 0x6f, 0xb5);

using Draw = std::function<void(QPainter&)>;

bool Save(const QString& folder, const char* name, const Draw& draw)
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // The sheet, with a soft shadow.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 28));
    painter.drawRoundedRect(kSheet.translated(1.5, 1.5), 2, 2);
    painter.setPen(QPen(QColor(0x9a, 0xa0, 0xa8), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(kSheet, 2, 2);
    painter.save();
    painter.setClipRect(kSheet.adjusted(1, 1, -1, -1));
    draw(painter);
    painter.restore();
    painter.end();
    const QString path = QDir(folder).filePath(QString::fromLatin1(name));
    if (!image.save(path, "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

// A disc sampled on a grid of `cell` pixels, as a printer of that
// resolution would place its dots.
Draw Resolution(int cell)
{
    return [cell](QPainter& p) {
        const QPointF centre = kSheet.center();
        const double radius = 16.5;
        p.setPen(Qt::NoPen);
        p.setBrush(kInk);
        p.setRenderHint(QPainter::Antialiasing, false);
        const int left = int(centre.x() - radius) - cell;
        const int top = int(centre.y() - radius) - cell;
        for (int y = top; y < centre.y() + radius + cell; y += cell)
            for (int x = left; x < centre.x() + radius + cell; x += cell) {
                const double dx = x + cell / 2.0 - centre.x();
                const double dy = y + cell / 2.0 - centre.y();
                if (std::hypot(dx, dy) <= radius)
                    p.drawRect(QRect(x, y, cell, cell));
            }
    };
}

// Lines of text on the sheet: solid, or light with a drop of toner saved.
Draw Text(bool saving)
{
    return [saving](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(saving ? QColor(0xb4, 0xba, 0xc2) : kInk);
        const int widths[] = {33, 27, 33, 30, 21, 33, 25};
        int y = 10;
        for (const int width : widths) {
            p.drawRect(QRect(15, y, width, 4));
            y += 7;
        }
        if (saving) {
            QPainterPath drop;
            drop.moveTo(46, 38);
            drop.cubicTo(44, 42, 39, 47, 39, 51);
            drop.arcTo(QRectF(39, 45, 14, 13), 180, 180);
            drop.cubicTo(53, 47, 48, 42, 46, 38);
            p.setPen(QPen(Qt::white, 1.5));
            p.setBrush(QColor(0x3a, 0x9a, 0x5b));
            p.drawPath(drop);
        }
    };
}

// The letter R as printed, or mirrored with an arrow under it.
Draw Letter(bool mirrored)
{
    return [mirrored](QPainter& p) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(34);
        font.setBold(true);
        p.setFont(font);
        p.setPen(kInk);
        const QRectF area = kSheet.adjusted(0, 0, 0, -12);
        p.save();
        if (mirrored) {
            p.translate(kSheet.center().x() * 2, 0);
            p.scale(-1, 1);
        }
        p.drawText(area, Qt::AlignCenter, QStringLiteral("R"));
        p.restore();
        if (mirrored) {
            const double y = kSheet.bottom() - 10;
            const double x0 = kSheet.left() + 11;
            const double x1 = kSheet.right() - 11;
            p.setPen(QPen(kAccent, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            p.drawLine(QPointF(x0, y), QPointF(x1, y));
            p.drawPolyline(
                QPolygonF({QPointF(x0 + 4, y - 4), QPointF(x0, y), QPointF(x0 + 4, y + 4)}));
            p.drawPolyline(
                QPolygonF({QPointF(x1 - 4, y - 4), QPointF(x1, y), QPointF(x1 - 4, y + 4)}));
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTDIR\n", argv[0]);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    bool ok = true;
    ok &= Save(folder, "ImageOptions_Resolution_600.png", Resolution(5));
    ok &= Save(folder, "ImageOptions_Resolution_1200.png", Resolution(3));
    ok &= Save(folder, "ImageOptions_Resolution_1800.png", Resolution(1));
    ok &= Save(folder, "ImageOptions_TonerSaver_Off.png", Text(false));
    ok &= Save(folder, "ImageOptions_TonerSaver_On.png", Text(true));
    ok &= Save(folder, "ImageOptions_InvertImage_Off.png", Letter(false));
    ok &= Save(folder, "ImageOptions_InvertImage_Mirror.png", Letter(true));
    return ok ? 0 : 1;
}
