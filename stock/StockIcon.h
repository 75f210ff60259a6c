// The picture of a stock: a sheet of the stock's kind and colour with
// overlays for its surface, punching and use, drawn one over the other.
#pragma once

#include "stock/Stock.h"

#include <QString>
#include <QStringList>

namespace orvan {

// The image file names to draw, bottom first: the base sheet
// ("Paper_<family>-<colour>.gif"), then the type's overlay (recycled,
// labels), the punch overlay, and the surface overlay(s). The names are the
// bundle's image names; see StockIconImagePath for the files.
QStringList StockIconImageNames(const Stock& stock);

// The bundle-relative path of an image name: the stock images live in
// "images/stock/", and the ".gif" names are held as PNG files of the same
// stem (Qt reads GIF but cannot write it, and the pictures are generated).
QString StockIconImagePath(const QString& imageName);

} // namespace orvan
