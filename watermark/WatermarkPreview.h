// Drawing a preview document into a preview area: the page fitted to the
// area without keeping its aspect ratio, clipped to the page, framed by a
// black line 5.0 page units wide centred on the page's edge (so the inner
// half of it shows). Needs Qt Gui (QImage); no display.
#pragma once

#include "watermark/MemoryDocument.h"

#include <QImage>
#include <QSize>

namespace orvan {

// The preview of the PDF in `document` (its first page) at `area` pixels;
// a null image when the document can't be opened or `area` is empty.
QImage DrawWatermarkPreview(const MemoryDocument& document, QSize area);

} // namespace orvan
