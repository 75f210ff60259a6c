// The one-page preview documents (PDF in memory) of the panel and the editor.
#pragma once

#include "watermark/MemoryDocument.h"
#include "watermark/WatermarkData.h"

#include <QByteArray>
#include <QSizeF>
#include <QString>

namespace orvan {

// Writes a one-page PDF of `pageSize` points into `document` (cursor reset
// first): a white page, then `record` drawn at opacity density / 100 when
// it is a text watermark (isText 1), else opaque. A text watermark's glyphs
// and origin are saved to `watermarkFile` when it is not empty. The
// record's glyph array is freed afterwards. False when no document could be
// made (the buffer then holds nothing usable).
bool RenderWatermarkDocument(_WatermarkData& record, QSizeF pageSize, MemoryDocument& document,
                             const QString& watermarkFile = {});

// The panel's preview: the saved watermark `selectedName` (empty for "No
// Watermark", which gives a blank white page) on a page of `paperSize`
// points, read from and saved back to `watermarkFile`.
bool renderWatermark(const QString& watermarkFile, const QString& selectedName, QSizeF paperSize,
                     MemoryDocument& document);

// The editor's control values, as the editor's fields hold them.
struct WatermarkEditorValues
{
    int angle = 0;
    int scale = 0;
    int density = 0;
    int xOffsetField = 0; // tenths of an inch (units 0) or millimetres (units 1)
    int yOffsetField = 0;
    QString text;        // the text field (text watermarks)
    QString pictureName; // the file field (picture watermarks)
};

// The editor's preview: takes `values` into `record` (offsets converted to
// inches by its `units`; text cut to 511 bytes) and, when one of them
// changed or `force` is set, writes the document for the page
// (paperWidth, paperHeight) of the record. True when a document was made.
bool renderWatermarkIfNecessary(_WatermarkData& record, const WatermarkEditorValues& values,
                                bool force, MemoryDocument& document,
                                const QString& watermarkFile = {});

// The bytes of a one-page PDF of `record` (used by the command-line tool and
// the printing side), isText taken from its text; nothing is saved. Empty
// when no document could be made.
QByteArray RenderWatermarkPdf(_WatermarkData record, QSizeF pageSize);

} // namespace orvan
