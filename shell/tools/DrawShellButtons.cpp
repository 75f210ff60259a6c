// Draws the shell's previous/next button pictures into a folder:
//   orvan_draw_shell_buttons resources/bundle
// "ButtonGraphic_MacUp.png" shows the previous panel, "ButtonGraphic_MacDown.png"
// the next one; the tab bar runs left to right, so they point left and right.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

bool drawArrow(const QString& path, bool pointsRight)
{
    constexpr int kSize = 32; // drawn at twice the shown size for sharp edges
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(2.0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x2F, 0x5D, 0x8A), 1.0));
    painter.setBrush(QColor(0xE8, 0xF0, 0xF8));
    painter.drawEllipse(QRectF(0.5, 0.5, 15, 15));
    QPainterPath chevron;
    if (pointsRight) {
        chevron.moveTo(6.5, 4.5);
        chevron.lineTo(10.5, 8);
        chevron.lineTo(6.5, 11.5);
    } else {
        chevron.moveTo(9.5, 4.5);
        chevron.lineTo(5.5, 8);
        chevron.lineTo(9.5, 11.5);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x2F, 0x5D, 0x8A), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(chevron);
    painter.end();
    return image.save(path, "PNG");
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: orvan_draw_shell_buttons FOLDER\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const bool ok = drawArrow(folder + QStringLiteral("/ButtonGraphic_MacUp.png"), false) &&
                    drawArrow(folder + QStringLiteral("/ButtonGraphic_MacDown.png"), true);
    return ok ? 0 : 1;
}
