// An installed font opened for drawing and shaping: the HarfBuzz face and
// font for shaping, outlines and subsetting, and the cairo font face that
// draws its glyphs. Fonts are kept in a small process-wide cache by
// PostScript name, so a preview redraw doesn't reopen the file.
#pragma once

#include "watermark/FontLookup.h"
#include "watermark/GraphicsHandles.h"

#include <hb.h>

#include <QString>

#include <memory>

namespace orvan {

using HbBlob = std::unique_ptr<hb_blob_t, HandleRelease<hb_blob_destroy>>;
using HbFace = std::unique_ptr<hb_face_t, HandleRelease<hb_face_destroy>>;
using HbFont = std::unique_ptr<hb_font_t, HandleRelease<hb_font_destroy>>;
using HbBuffer = std::unique_ptr<hb_buffer_t, HandleRelease<hb_buffer_destroy>>;

struct WatermarkFont
{
    FontLocation location;
    HbFace face;
    HbFont font; // scaled to font units (unitsPerEm)
    unsigned unitsPerEm = 0;
    CairoFontFace cairoFace; // owns its FreeType face
};

// The font found by FindFontByPostScriptName, opened; null when none is
// installed or the file can't be opened as a font.
std::shared_ptr<const WatermarkFont> OpenWatermarkFont(const QString& postScriptName);

} // namespace orvan
