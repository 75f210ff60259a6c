// Draws the Job Notes panel's icons. Usage: orvan_draw_job_notes_pictures OUTDIR
//
// Banner message: a banner sheet, a bold band of text across its top.
// Job start message: a note pinned to a sheet, the instructions for the
// operator when the job starts.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>
#include <functional>

namespace {

constexpr int kSize = 64; // drawn at twice the size the pane shows
const QColor kInk(0x2b, 0x2f, 0x36);
const QColor kAccent(0x2f, 0x6f, 0xb5);
const QColor kNote(0xf2, 0xc9, 0x4c);
const QColor kEdge(0x9a, 0xa0, 0xa8);

using Draw = std::function<void(QPainter&)>;

void drawSheet(QPainter& p, const QRectF& sheet)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 30));
    p.drawRoundedRect(sheet.translated(1.5, 1.5), 2, 2);
    p.setPen(QPen(kEdge, 1.5));
    p.setBrush(Qt::white);
    p.drawRoundedRect(sheet, 2, 2);
}

void drawLines(QPainter& p, double left, double right, double top, int count)
{
    p.setPen(QPen(QColor(0xb8, 0xbe, 0xc6), 3, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < count; ++i) {
        const double end = i == count - 1 ? left + (right - left) * 0.6 : right;
        p.drawLine(QPointF(left, top + i * 7), QPointF(end, top + i * 7));
    }
}

bool save(const QString& folder, const char* name, const Draw& draw)
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    const QImage shown =
        image.scaled(kSize / 2, kSize / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QString path = QDir(folder).filePath(QString::fromLatin1(name));
    if (!shown.save(path, "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

void bannerMessage(QPainter& p)
{
    const QRectF sheet(10.5, 4.5, 43, 55);
    drawSheet(p, sheet);
    // The banner band with three bold letters of the message.
    const QRectF band(14, 10, 36, 14);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRoundedRect(band, 2, 2);
    p.setBrush(Qt::white);
    for (int i = 0; i < 3; ++i)
        p.drawRoundedRect(QRectF(18 + i * 10.5, 14, 7, 6), 1, 1);
    drawLines(p, 16, 48, 33, 3);
}

void jobStartMessage(QPainter& p)
{
    const QRectF sheet(6.5, 10.5, 40, 49);
    drawSheet(p, sheet);
    drawLines(p, 12, 41, 20, 5);
    // A note pinned over the sheet's corner.
    QPainterPath note;
    note.moveTo(30, 4);
    note.lineTo(58, 4);
    note.lineTo(58, 26);
    note.lineTo(52, 32);
    note.lineTo(30, 32);
    note.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 35));
    p.drawPath(note.translated(1.5, 1.5));
    p.setPen(QPen(QColor(0xc9, 0x9a, 0x1c), 1.2));
    p.setBrush(kNote);
    p.drawPath(note);
    p.setPen(QPen(kInk, 2.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(44, 11), QPointF(44, 21));
    p.drawPoint(QPointF(44, 26));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xc0, 0x39, 0x2b));
    p.drawEllipse(QPointF(34, 8), 2.6, 2.6);
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTDIR\n", argv[0]);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const bool ok = save(folder, "JobNotes_BannerMessage.png", bannerMessage) &&
                    save(folder, "JobNotes_SpecialInstructions.png", jobStartMessage);
    return ok ? 0 : 1;
}
