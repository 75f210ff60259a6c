// Draws the Paper/Output panel's pictures: the job types, two-sided printing
// and office finishing, each a sheet (or a small stack) of paper with what
// the setting does to it; the booklet creation previews, the saved-job
// formats and the printer-default colour. Usage: orvan_draw_paper_output_pictures OUTDIR
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>
#include <functional>

namespace {

constexpr int kSize = 64;
const QColor kInk(0x2b, 0x2f, 0x36);
const QColor kEdge(0x8a, 0x92, 0x9c);
const QColor kLine(0xc3, 0xc9, 0xd1);
const QColor kAccent(0x2f, 0x6f, 0xb5);
const QColor kMetal(0x5d, 0x66, 0x72);

using Draw = std::function<void(QPainter&)>;

bool Save(const QString& folder, const QString& name, const Draw& draw)
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
    if (!image.save(path, "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

// A sheet with a soft shadow and grey text lines.
void Sheet(QPainter& p, const QRectF& r, bool lines = true)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 30));
    p.drawRoundedRect(r.translated(1.2, 1.2), 1.5, 1.5);
    p.setPen(QPen(kEdge, 1));
    p.setBrush(Qt::white);
    p.drawRoundedRect(r, 1.5, 1.5);
    if (!lines)
        return;
    p.setPen(QPen(kLine, 1.6, Qt::SolidLine, Qt::RoundCap));
    const double left = r.left() + r.width() * 0.2, right = r.right() - r.width() * 0.18;
    for (double y = r.top() + r.height() * 0.22; y < r.bottom() - r.height() * 0.12;
         y += r.height() * 0.13)
        p.drawLine(QPointF(left, y),
                   QPointF(y > r.bottom() - r.height() * 0.3 ? (left + right) / 2 : right, y));
}

const QRectF kPortrait(13.5, 5.5, 37, 52);

void Staple(QPainter& p, QPointF from, QPointF to)
{
    p.setPen(QPen(kMetal, 2.4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
}

void Holes(QPainter& p, const QRectF& r, int count)
{
    p.setPen(QPen(kEdge, 0.8));
    p.setBrush(QColor(0x4a, 0x52, 0x5c));
    const double step = r.height() / (count + 1);
    for (int i = 1; i <= count; ++i)
        p.drawEllipse(QPointF(r.left() + 5, r.top() + step * i), 2.2, 2.2);
}

// A finished sheet: staples (0 none, 1 corner, 2 on the left edge, 4 along
// the left edge) and punch holes.
Draw Finished(int staples, int holes)
{
    return [=](QPainter& p) {
        Sheet(p, kPortrait);
        const QRectF& r = kPortrait;
        if (holes)
            Holes(p, r, holes);
        const double x = r.left() + (holes ? 11 : 5);
        if (staples == 1)
            Staple(p, QPointF(r.left() + 3, r.top() + 9), QPointF(r.left() + 9, r.top() + 3));
        for (int i = 0; i < (staples == 1 ? 0 : staples); ++i) {
            const double y = r.top() + r.height() * (i + 1) / (staples + 1);
            const double half = staples == 4 ? 2.8 : 4;
            Staple(p, QPointF(x, y - half), QPointF(x, y + half));
        }
    };
}

// A sheet folded into panels, seen from its edge: the zigzag of the folds.
Draw Folded(const QList<QPointF>& path, bool halfSheet = false)
{
    return [=](QPainter& p) {
        if (halfSheet)
            Sheet(p, QRectF(30.5, 8.5, 26, 36), false);
        QPainterPath edge;
        edge.moveTo(path.first());
        for (const QPointF& point : path.mid(1))
            edge.lineTo(point);
        p.setPen(QPen(QColor(0, 0, 0, 30), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(edge.translated(1, 1));
        p.setPen(QPen(kEdge, 4.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(edge);
        p.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(edge);
    };
}

// An open booklet: two pages meeting at the spine, with staples on it and
// page outlines or the imposed pages when asked.
Draw Booklet(bool staples, bool layout, bool folded)
{
    return [=](QPainter& p) {
        if (folded) {
            // A closed booklet leaning open, from above.
            QPolygonF left({QPointF(32, 14), QPointF(8, 20), QPointF(8, 54), QPointF(32, 50)});
            QPolygonF right({QPointF(32, 14), QPointF(56, 20), QPointF(56, 54), QPointF(32, 50)});
            p.setPen(QPen(kEdge, 1));
            p.setBrush(QColor(0xf3, 0xf5, 0xf8));
            p.drawPolygon(left);
            p.setBrush(Qt::white);
            p.drawPolygon(right);
        } else {
            Sheet(p, QRectF(6.5, 14.5, 25.5, 36), layout);
            Sheet(p, QRectF(32, 14.5, 25.5, 36), layout);
        }
        if (layout && folded) {
            p.setPen(QPen(kLine, 1.5, Qt::SolidLine, Qt::RoundCap));
            for (int i = 0; i < 4; ++i) {
                p.drawLine(QPointF(13, 27 + i * 6), QPointF(28, 24 + i * 6));
                p.drawLine(QPointF(36, 24 + i * 6), QPointF(51, 27 + i * 6));
            }
        }
        p.setPen(QPen(kAccent, 1.4, Qt::DashLine));
        p.drawLine(QPointF(32, 12), QPointF(32, 52));
        if (staples) {
            Staple(p, QPointF(32, 21), QPointF(32, 27));
            Staple(p, QPointF(32, 37), QPointF(32, 43));
        }
    };
}

// A job type: a sheet with an emblem in the lower right corner.
Draw JobType(const std::function<void(QPainter&, QRectF)>& emblem, int stack = 0)
{
    return [=](QPainter& p) {
        for (int i = stack; i > 0; --i)
            Sheet(p, QRectF(7.5 + i * 4, 3.5 + i * 3, 36, 48), false);
        Sheet(p, QRectF(7.5, 3.5, 36, 48));
        if (emblem) {
            const QRectF badge(34, 34, 26, 26);
            p.setPen(QPen(Qt::white, 1.5));
            p.setBrush(kAccent);
            p.drawEllipse(badge);
            emblem(p, badge.adjusted(6, 6, -6, -6));
        }
    };
}

void Lock(QPainter& p, QRectF r)
{
    p.setPen(QPen(Qt::white, 2));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(r.left() + 3, r.top(), r.width() - 6, r.height() * 0.8), 0, 180 * 16);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRoundedRect(
        QRectF(r.left() + 1, r.top() + r.height() * 0.42, r.width() - 2, r.height() * 0.58), 1.5,
        1.5);
}

void Clock(QPainter& p, QRectF r)
{
    p.setPen(QPen(Qt::white, 1.8));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(r);
    p.drawLine(r.center(), r.center() + QPointF(0, -r.height() * 0.36));
    p.drawLine(r.center(), r.center() + QPointF(r.width() * 0.28, 0));
}

void Disk(QPainter& p, QRectF r)
{
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRoundedRect(r, 1.5, 1.5);
    p.setBrush(kAccent);
    p.drawRect(QRectF(r.left() + 3, r.top(), r.width() - 6, r.height() * 0.35));
    p.drawRect(
        QRectF(r.left() + 3, r.top() + r.height() * 0.55, r.width() - 6, r.height() * 0.45 - 2));
}

void Pause(QPainter& p, QRectF r)
{
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(r.left() + 2, r.top(), 4, r.height()));
    p.drawRect(QRectF(r.right() - 6, r.top(), 4, r.height()));
}

void Phone(QPainter& p, QRectF r)
{
    // A fax: paper leaving a slot, with a signal bolt.
    p.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF(
        {QPointF(r.left() + 5, r.top()), QPointF(r.left() + 1, r.center().y() + 1),
         QPointF(r.right() - 1, r.center().y() - 1), QPointF(r.right() - 5, r.bottom())}));
}

void Sample(QPainter& p, QRectF r)
{
    p.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(
        QPolygonF({QPointF(r.left(), r.center().y()), QPointF(r.center().x() - 1, r.bottom() - 1),
                   QPointF(r.right(), r.top() + 1)}));
}

void Form(QPainter& p, QRectF r)
{
    p.setPen(QPen(Qt::white, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(0, 0, 0, -r.height() / 2 - 1));
    p.drawRect(r.adjusted(0, r.height() / 2 + 1, 0, 0));
}

void Check(QPainter&, QRectF) {}

// Two-sided: the front sheet and the back peeking out, with the flip arrow
// along the binding edge.
Draw Sides(int sides, bool shortEdge)
{
    return [=](QPainter& p) {
        if (sides == 1) {
            Sheet(p, kPortrait);
            return;
        }
        Sheet(p, QRectF(20.5, 10.5, 34, 48), false);
        Sheet(p, QRectF(9.5, 4.5, 34, 48));
        p.setPen(QPen(kAccent, 2.2, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        QPainterPath arrow;
        if (shortEdge) {
            arrow.moveTo(14, 58);
            arrow.cubicTo(22, 64, 40, 64, 50, 59);
            p.drawPath(arrow);
            p.drawLine(QPointF(50, 59), QPointF(44, 58));
            p.drawLine(QPointF(50, 59), QPointF(47, 54));
        } else {
            arrow.moveTo(58, 12);
            arrow.cubicTo(63, 22, 63, 42, 58, 52);
            p.drawPath(arrow);
            p.drawLine(QPointF(58, 52), QPointF(57, 46));
            p.drawLine(QPointF(58, 52), QPointF(53, 49));
        }
    };
}

} // namespace

// The booklet creation preview: a plain sheet, a sheet imposed two-up, or a
// folded booklet (stapled on the spine for fold and staple); page outlines
// drawn round each imposed page.
Draw BookletPreview(bool layout, int fold, bool outlines)
{
    return [=](QPainter& p) {
        if (!layout && fold == 0) {
            Sheet(p, kPortrait);
            return;
        }
        const auto pageText = [&p, outlines](const QPolygonF& page) {
            // Text lines inside a page given as its four corners (top left,
            // top right, bottom right, bottom left).
            p.setPen(QPen(kLine, 1.4, Qt::SolidLine, Qt::RoundCap));
            for (int i = 1; i < 6; ++i) {
                const double t = 0.12 + i * 0.13;
                const QPointF left = page[0] + (page[3] - page[0]) * t;
                const QPointF right = page[1] + (page[2] - page[1]) * t;
                p.drawLine(left + (right - left) * 0.18, left + (right - left) * 0.82);
            }
            if (outlines) {
                p.setPen(QPen(kAccent, 1.2));
                p.setBrush(Qt::NoBrush);
                const QPointF c = (page[0] + page[2]) / 2;
                QPolygonF inner;
                for (const QPointF& corner : page)
                    inner << c + (corner - c) * 0.84;
                p.drawPolygon(inner);
            }
        };
        QPolygonF left, right;
        if (fold == 0) {
            // One landscape sheet holding two pages.
            const QRectF sheet(4.5, 14.5, 55, 37);
            Sheet(p, sheet, false);
            left = QPolygonF(
                {sheet.topLeft(), QPointF(32, 14.5), QPointF(32, 51.5), sheet.bottomLeft()});
            right = QPolygonF(
                {QPointF(32, 14.5), sheet.topRight(), sheet.bottomRight(), QPointF(32, 51.5)});
        } else {
            // A booklet lying open, from above.
            left = QPolygonF({QPointF(8, 18), QPointF(32, 13), QPointF(32, 50), QPointF(8, 54)});
            right = QPolygonF({QPointF(32, 13), QPointF(56, 18), QPointF(56, 54), QPointF(32, 50)});
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(0, 0, 0, 30));
            p.drawPolygon(left.translated(1.2, 1.2));
            p.drawPolygon(right.translated(1.2, 1.2));
            p.setPen(QPen(kEdge, 1));
            p.setBrush(QColor(0xf3, 0xf5, 0xf8));
            p.drawPolygon(left);
            p.setBrush(Qt::white);
            p.drawPolygon(right);
        }
        if (layout) {
            pageText(left);
            pageText(right);
        }
        p.setPen(QPen(kAccent, 1.4, Qt::DashLine));
        p.drawLine(QPointF(32, fold ? 11 : 12), QPointF(32, fold ? 52 : 54));
        if (fold == 2) {
            Staple(p, QPointF(32, 20), QPointF(32, 26));
            Staple(p, QPointF(32, 37), QPointF(32, 43));
        }
    };
}

// A stored job's format: a page with the format's name on a band.
Draw JobFormat(const char* format, QColor band)
{
    return [=](QPainter& p) {
        Sheet(p, QRectF(12.5, 4.5, 39, 52));
        const QRectF label(6, 30, 52, 18);
        p.setPen(Qt::NoPen);
        p.setBrush(band);
        p.drawRoundedRect(label, 3, 3);
        QFont font = p.font();
        font.setBold(true);
        font.setPixelSize(QString::fromLatin1(format).size() > 4 ? 10 : 12);
        p.setFont(font);
        p.setPen(Qt::white);
        p.drawText(label, Qt::AlignCenter, QString::fromLatin1(format));
    };
}

// The printer's default colour: a sheet with colour and grey dots.
Draw PrinterDefaultColor()
{
    return [](QPainter& p) {
        Sheet(p, kPortrait, false);
        const struct
        {
            QPointF centre;
            QColor color;
        } dots[] = {{{27, 24}, QColor(0, 174, 239, 170)},
                    {{37, 24}, QColor(236, 0, 140, 170)},
                    {{32, 33}, QColor(255, 220, 0, 190)},
                    {{32, 45}, QColor(0x70, 0x76, 0x7e, 200)}};
        p.setPen(Qt::NoPen);
        for (const auto& dot : dots) {
            p.setBrush(dot.color);
            p.drawEllipse(dot.centre, 7, 7);
        }
    };
}

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTDIR\n", argv[0]);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    const std::pair<const char*, Draw> pictures[] = {
        {"JobType_NormalPrint", JobType(nullptr)},
        {"JobType_HoldJob", JobType(Pause)},
        {"JobType_SavedJob", JobType(Disk)},
        {"JobType_Fax", JobType(Phone)},
        {"JobType_SecurePrint", JobType(Lock)},
        {"JobType_DelayPrint", JobType(Clock)},
        {"JobType_SampleSet", JobType(Sample, 2)},
        {"JobType_BackgroundForm", JobType(Form)},
        {"2SidedPrinting_1Sided", Sides(1, false)},
        {"2SidedPrinting_2Sided", Sides(2, false)},
        {"2SidedPrinting_2SidedFlip", Sides(2, true)},
        {"OfficeFinishing_None", Finished(0, 0)},
        {"OfficeFinishing_1St", Finished(1, 0)},
        {"OfficeFinishing_2St", Finished(2, 0)},
        {"OfficeFinishing_4St", Finished(4, 0)},
        {"OfficeFinishing_2Hp", Finished(0, 2)},
        {"OfficeFinishing_3Hp", Finished(0, 3)},
        {"OfficeFinishing_4Hp", Finished(0, 4)},
        {"OfficeFinishing_1St&2Hp", Finished(1, 2)},
        {"OfficeFinishing_1St&3Hp", Finished(1, 3)},
        {"OfficeFinishing_1St&4Hp", Finished(1, 4)},
        {"OfficeFinishing_2St&2Hp", Finished(2, 2)},
        {"OfficeFinishing_2St&3Hp", Finished(2, 3)},
        {"OfficeFinishing_2St&4Hp", Finished(2, 4)},
        {"OfficeFinishing_4St&2Hp", Finished(4, 2)},
        {"OfficeFinishing_4St&3Hp", Finished(4, 3)},
        {"OfficeFinishing_4St&4Hp", Finished(4, 4)},
        {"OfficeFinishing_CFold",
         Folded({{12, 18}, {52, 18}, {52, 44}, {14, 44}, {14, 30}, {46, 30}})},
        {"OfficeFinishing_ZFold", Folded({{10, 16}, {54, 24}, {10, 34}, {54, 46}})},
        {"ProductionFinishing_ZFold_Half_Left",
         Folded({{8, 20}, {30, 26}, {8, 34}, {30, 42}}, true)},
        {"OfficeFinishing_Bklt_Layout", Booklet(false, true, false)},
        {"OfficeFinishing_Bklt_Fold", Booklet(false, false, true)},
        {"OfficeFinishing_Bklt_Fold_Layout", Booklet(false, true, true)},
        {"OfficeFinishing_BKlt_Fold&Stple", Booklet(true, false, true)},
        {"OfficeFinishing_Bklt_Fold&Stpl_Layout", Booklet(true, true, true)},
        {"BookletCreation_None", BookletPreview(false, 0, false)},
        {"BookletCreation_Booklet", BookletPreview(true, 0, false)},
        {"BookletCreation_Booklet-Outlines", BookletPreview(true, 0, true)},
        {"BookletCreation_Fold", BookletPreview(false, 1, false)},
        {"BookletCreation_Booklet-Fold", BookletPreview(true, 1, false)},
        {"BookletCreation_Booklet-Fold-Outlines", BookletPreview(true, 1, true)},
        {"BookletCreation_Fold-Staple", BookletPreview(false, 2, false)},
        {"BookletCreation_Booklet-Fold-Staple", BookletPreview(true, 2, false)},
        {"BookletCreation_Booklet-Fold-Staple-Outlines", BookletPreview(true, 2, true)},
        {"JobType_JobFormat_PDF", JobFormat("PDF", QColor(0xc0, 0x39, 0x2b))},
        {"JobType_JobFormat_TIFF", JobFormat("TIFF", QColor(0x27, 0x7d, 0x4f))},
        {"JobType_JobFormat_MTIFF", JobFormat("M-TIFF", QColor(0x1f, 0x6a, 0x5a))},
        {"JobType_JobFormat_FRF", JobFormat("FRF", kAccent)},
        {"JobType_JobFormat_FRFDRI", JobFormat("FRF-DRI", QColor(0x3b, 0x4f, 0x9a))},
        {"OutputColor_PrnDef", PrinterDefaultColor()},
    };
    bool ok = true;
    for (const auto& [name, draw] : pictures)
        ok = Save(folder, QString::fromLatin1(name), draw) && ok;
    return ok ? 0 : 1;
}
