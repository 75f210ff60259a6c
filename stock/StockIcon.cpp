#include "stock/StockIcon.h"

namespace orvan {

namespace {

QString colorSuffix(std::int32_t color)
{
    switch (color) {
    case 2:
        return QStringLiteral("Blue");
    case 3:
        return QStringLiteral("Yellow");
    case 4:
        return QStringLiteral("Green");
    case 5:
        return QStringLiteral("Pink");
    case 6:
        return QStringLiteral("Clear");
    case 7:
        return QStringLiteral("Buff");
    case 8:
        return QStringLiteral("Goldenrod");
    case 9:
        return QStringLiteral("Red");
    case 11:
        return QStringLiteral("Ivory");
    case 12:
        return QStringLiteral("Gray");
    case 13:
        return QStringLiteral("Orange");
    default: // White, unset, the custom colour and the rest
        return QStringLiteral("White");
    }
}

QString baseFamily(std::int32_t type)
{
    switch (type) {
    case 8: // Envelopes
        return QStringLiteral("Paper_Envelope-");
    case 5:
        return QStringLiteral("Paper_FullCutTab-");
    case 4:
    case 24:
    case 33:
        return QStringLiteral("Paper_Pre-CutTab-");
    case 26:
    case 28:
    case 30:
    case 32:
    case 36:
    case 38: // second-side stocks
        return QStringLiteral("Paper_Reloaded-");
    default:
        return QStringLiteral("Paper_Plain-");
    }
}

QString overlay(const char* name)
{
    return QStringLiteral("Paper_Overlay-") + QString::fromLatin1(name) + QStringLiteral(".gif");
}

void appendSurfaceOverlays(QStringList& names, const Stock& stock)
{
    const std::int32_t type = stock.type();
    switch (type) {
    case kTransparencyMediaType:
        if (stock.color() != kClearMediaColor)
            names << overlay("LightweightGloss");
        return;
    case 29:
        names << overlay("LightweightGloss");
        return;
    case 3:
        names << overlay("Pre-Printed");
        return;
    case 6:
        names << overlay("OrderedStock");
        return;
    case 14:
        names << overlay("Letterhead");
        return;
    case 15:
    case 16:
    case 17:
    case 18:
    case 19:
    case 20:
    case 21:
        names << QStringLiteral("Paper_Overlay-Custom%1.gif").arg(type - 14);
        return;
    case 22:
        names << overlay("Other");
        return;
    case 25:
    case 39:
        names << overlay("LablesHeavyweight"); // the file is spelt so
        return;
    case 26:
    case 28:
    case 36:
        names << overlay("HeavyweightReloaded");
        return;
    case 30:
        names << overlay("LightweightGlossReloaded");
        return;
    case 31:
    case 37:
        names << overlay("HeavyweightGloss");
        return;
    case 32:
    case 38:
        names << overlay("HeavyweightGlossReloaded");
        return;
    case 40:
        names << overlay("RoughSurface");
        return;
    case 45:
        names << overlay("Archival") << overlay("Heavyweight");
        return;
    case 12:
    case 27:
    case 35:
        names << overlay("Heavyweight");
        return;
    default:
        return;
    }
}

} // namespace

QStringList StockIconImageNames(const Stock& stock)
{
    const std::int32_t type = stock.type();
    QStringList names{baseFamily(type) + colorSuffix(stock.color()) + QStringLiteral(".gif")};
    if (type == 10)
        names << overlay("Recycled");
    else if (type == 9 || type == 25)
        names << overlay("Labels");
    if (stock.punched() == 2 || type == 11)
        names << overlay(type == 8 ? "HolePunchedEnvelope" : "HolePunched");
    appendSurfaceOverlays(names, stock);
    return names;
}

QString StockIconImagePath(const QString& imageName)
{
    QString file = imageName;
    if (file.endsWith(QLatin1String(".gif")))
        file.replace(file.size() - 4, 4, QStringLiteral(".png"));
    return QStringLiteral("images/stock/") + file;
}

} // namespace orvan
