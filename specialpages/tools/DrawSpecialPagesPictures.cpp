// Draws the Special Pages pictures: the nine command buttons' graphics and
// the covers dialog's option pictures. Usage:
//   orvan_draw_special_pages_pictures OUTDIR
// Buttons are 48 pixels square (shown at 24); the option pictures show the
// job as a stack of pages, seen from the side, 96 by 64.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>
#include <functional>

namespace {

const QColor kInk(0x2b, 0x2f, 0x36);
const QColor kEdge(0x8a, 0x90, 0x98);
const QColor kCover(0x2f, 0x6f, 0xb5);
const QColor kInsert(0xe0, 0x9a, 0x2a);
const QColor kException(0x3f, 0x9a, 0x5b);
const QColor kAdd(0x2e, 0x8b, 0x3e);
const QColor kRemove(0xc6, 0x36, 0x2f);

using Draw = std::function<void(QPainter&)>;

bool Save(const QString& folder, const char* name, QSize size, const Draw& draw)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    const QString path = QDir(folder).filePath(QString::fromLatin1(name));
    if (!image.save(path, "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

// A sheet with a folded corner, filled with the colour.
void Sheet(QPainter& p, const QRectF& r, const QColor& fill)
{
    const double fold = r.width() * 0.28;
    QPainterPath path;
    path.moveTo(r.topLeft());
    path.lineTo(r.right() - fold, r.top());
    path.lineTo(r.right(), r.top() + fold);
    path.lineTo(r.bottomRight());
    path.lineTo(r.bottomLeft());
    path.closeSubpath();
    p.setPen(QPen(kEdge, 1.2));
    p.setBrush(fill);
    p.drawPath(path);
    QPainterPath corner;
    corner.moveTo(r.right() - fold, r.top());
    corner.lineTo(r.right() - fold, r.top() + fold);
    corner.lineTo(r.right(), r.top() + fold);
    p.setBrush(fill.lighter(125));
    p.drawPath(corner);
}

// Text lines on a white sheet.
void Lines(QPainter& p, const QRectF& r, int count)
{
    p.setPen(QPen(QColor(0xb0, 0xb5, 0xbc), 1.6));
    for (int i = 0; i < count; ++i) {
        const double y = r.top() + r.height() * (0.38 + 0.14 * i);
        p.drawLine(QPointF(r.left() + 4, y), QPointF(r.right() - 4, y));
    }
}

// A round badge in the lower right: a plus or a cross.
void Badge(QPainter& p, const QColor& colour, bool plus)
{
    const QPointF c(36, 36);
    p.setPen(QPen(Qt::white, 2));
    p.setBrush(colour);
    p.drawEllipse(c, 10, 10);
    p.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap));
    const double d = plus ? 5.5 : 4.2;
    if (plus) {
        p.drawLine(c + QPointF(-d, 0), c + QPointF(d, 0));
        p.drawLine(c + QPointF(0, -d), c + QPointF(0, d));
    } else {
        p.drawLine(c + QPointF(-d, -d), c + QPointF(d, d));
        p.drawLine(c + QPointF(-d, d), c + QPointF(d, -d));
    }
}

const QRectF kPage(8, 4, 26, 34);

void AddCovers(QPainter& p)
{
    Sheet(p, kPage.translated(4, 3), Qt::white);
    Sheet(p, kPage, kCover);
    Badge(p, kAdd, true);
}

void AddInserts(QPainter& p)
{
    Sheet(p, kPage.translated(6, 5), Qt::white);
    Sheet(p, kPage.translated(3, 2.5), kInsert);
    Sheet(p, kPage, Qt::white);
    Lines(p, kPage, 3);
    Badge(p, kAdd, true);
}

void AddExceptions(QPainter& p)
{
    Sheet(p, kPage, Qt::white);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(kException.red(), kException.green(), kException.blue(), 70));
    p.drawRect(QRectF(kPage.left() + 2, kPage.top() + 15, kPage.width() - 4, 11));
    Lines(p, kPage, 4);
    Badge(p, kAdd, true);
}

void Edit(QPainter& p)
{
    Sheet(p, kPage, Qt::white);
    Lines(p, kPage, 4);
    // A pencil across the sheet.
    p.save();
    p.translate(30, 22);
    p.rotate(45);
    p.setPen(QPen(kInk, 1.2));
    p.setBrush(QColor(0xf2, 0xc1, 0x4e));
    p.drawRect(QRectF(-3.5, -16, 7, 22));
    p.setBrush(QColor(0xe8, 0x8a, 0x8a));
    p.drawRect(QRectF(-3.5, -20, 7, 4));
    QPainterPath tip;
    tip.moveTo(-3.5, 6);
    tip.lineTo(3.5, 6);
    tip.lineTo(0, 13);
    tip.closeSubpath();
    p.setBrush(QColor(0xf3, 0xdc, 0xb5));
    p.drawPath(tip);
    p.restore();
}

void Delete(QPainter& p)
{
    Sheet(p, kPage, Qt::white);
    Lines(p, kPage, 4);
    Badge(p, kRemove, false);
}

void DeleteAll(QPainter& p)
{
    Sheet(p, kPage.translated(6, 4), Qt::white);
    Sheet(p, kPage.translated(3, 2), Qt::white);
    Sheet(p, kPage, Qt::white);
    Lines(p, kPage, 4);
    Badge(p, kRemove, false);
}

void Undo(QPainter& p)
{
    QPainterPath arc;
    arc.moveTo(14, 20);
    arc.cubicTo(20, 10, 38, 10, 40, 24);
    arc.cubicTo(41, 34, 32, 40, 22, 38);
    p.setPen(QPen(kCover, 5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(arc);
    QPainterPath head;
    head.moveTo(5, 13);
    head.lineTo(19, 26);
    head.lineTo(21, 9);
    head.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(kCover);
    p.drawPath(head);
}

void Arrow(QPainter& p, bool up)
{
    p.save();
    if (!up) {
        p.translate(24, 24);
        p.rotate(180);
        p.translate(-24, -24);
    }
    QPainterPath arrow;
    arrow.moveTo(24, 6);
    arrow.lineTo(40, 24);
    arrow.lineTo(30, 24);
    arrow.lineTo(30, 42);
    arrow.lineTo(18, 42);
    arrow.lineTo(18, 24);
    arrow.lineTo(8, 24);
    arrow.closeSubpath();
    p.setPen(QPen(kCover.darker(130), 1.2));
    p.setBrush(kCover);
    p.drawPath(arrow);
    p.restore();
}

// The job seen from the side: the front cover (if any), five pages and the
// back cover (if any), fanned a little so each sheet shows.
Draw CoversOption(bool front, bool back)
{
    return [front, back](QPainter& p) {
        const int pages = 5;
        const int sheets = pages + (front ? 1 : 0) + (back ? 1 : 0);
        int index = sheets - 1;
        const auto sheet = [&](const QColor& fill) {
            const QRectF r(20 + index * 6, 6 + index * 2.5, 36, 44);
            Sheet(p, r, fill);
            if (fill == Qt::white)
                Lines(p, r, 3);
            --index;
        };
        if (back)
            sheet(kCover);
        for (int i = 0; i < pages; ++i)
            sheet(Qt::white);
        if (front)
            sheet(kCover);
    };
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTDIR\n", argv[0]);
        return 2;
    }
    const QString folder =
        QDir(QString::fromLocal8Bit(argv[1])).filePath(QStringLiteral("specialpages"));
    QDir().mkpath(folder);
    const QSize button(48, 48);
    const QSize option(96, 64);
    const auto arrowUp = [](QPainter& p) { Arrow(p, true); };
    const auto arrowDown = [](QPainter& p) { Arrow(p, false); };
    bool ok = true;
    ok &= Save(folder, "ButtonGraphic_AddCovers.png", button, AddCovers);
    ok &= Save(folder, "ButtonGraphic_AddInserts.png", button, AddInserts);
    ok &= Save(folder, "ButtonGraphic_AddExceptions.png", button, AddExceptions);
    ok &= Save(folder, "ButtonGraphic_Edit.png", button, Edit);
    ok &= Save(folder, "ButtonGraphic_Delete.png", button, Delete);
    ok &= Save(folder, "ButtonGraphic_DeleteAll.png", button, DeleteAll);
    ok &= Save(folder, "ButtonGraphic_Undo.png", button, Undo);
    ok &= Save(folder, "ButtonGraphic_Move_Up.png", button, arrowUp);
    ok &= Save(folder, "ButtonGraphic_Move_Down.png", button, arrowDown);
    ok &= Save(folder, "SpclPgs_CoversOptions_None.png", option, CoversOption(false, false));
    ok &= Save(folder, "SpclPgs_CoversOptions_FrontOnly.png", option, CoversOption(true, false));
    ok &= Save(folder, "SpclPgs_CoversOptions_BackOnly.png", option, CoversOption(false, true));
    ok &= Save(folder, "SpclPgs_CoversOptions_Same.png", option, CoversOption(true, true));
    return ok ? 0 : 1;
}
