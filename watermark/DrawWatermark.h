// Drawing a watermark onto a page of a cairo context.
#pragma once

#include "watermark/WatermarkData.h"

#include <QSizeF>
#include <QString>

#include <cairo.h>

namespace orvan {

enum class WatermarkDrawn
{
    Drawn,
    // No text and no picture name: nothing to draw.
    Nothing,
    // The font is not installed or can't be opened or shaped.
    FontMissing,
    // The picture file is missing or can't be decoded.
    PictureUnreadable,
};

// Draws `record` on the page of `pageSize` points that `context` is drawing
// (y axis down, origin at the top left of the page). `alpha` (0 to 1)
// multiplies the text's opacity.
//
// A text watermark is one line in `fontName` at `fontSize` points in the
// well colour, turned `angle` degrees counter-clockwise, the centre of its
// ink bounds on the page centre moved by the offsets (inches). Its glyph ids
// and drawing origin (points, y up) are written into the record and, when
// `saveToFile` is not empty, the record is saved there.
//
// A picture watermark is the file at `filePath`, `scale` percent of its pixel
// size in points, centred on the page; angle, offsets, colours and `alpha`
// don't apply to it. Nothing is drawn for a scale that gives no area.
WatermarkDrawn DrawWatermark(cairo_t* context, QSizeF pageSize, _WatermarkData& record,
                             double alpha = 1.0, const QString& saveToFile = {});

// The opacity a page draws `record` at: density / 100 for a text watermark
// (isText 1), else 1.0 (pictures, and pages without a watermark, are opaque).
inline double WatermarkAlpha(const _WatermarkData& record)
{
    return record.isText == 1 ? record.density / 100.0 : 1.0;
}

} // namespace orvan
