#include "watermark/WatermarkFont.h"

#include <cairo-ft.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include <QFile>

#include <list>
#include <utility>

namespace orvan {
namespace {

using FtLibrary = std::unique_ptr<FT_LibraryRec_, HandleRelease<FT_Done_FreeType>>;

FT_Library freeType()
{
    static const FtLibrary library = [] {
        FT_Library handle = nullptr;
        return FtLibrary(FT_Init_FreeType(&handle) == 0 ? handle : nullptr);
    }();
    return library.get();
}

const cairo_user_data_key_t kFreeTypeFaceKey{};

void releaseFreeTypeFace(void* face)
{
    FT_Done_Face(static_cast<FT_Face>(face));
}

// A cairo font face drawing `location`'s face; it owns the FreeType face and
// releases it when cairo releases the font face.
CairoFontFace openCairoFace(const FontLocation& location)
{
    FT_Library library = freeType();
    FT_Face face = nullptr;
    if (!library || FT_New_Face(library, QFile::encodeName(location.file).constData(),
                                location.index, &face) != 0)
        return nullptr;
    CairoFontFace cairoFace(cairo_ft_font_face_create_for_ft_face(face, 0));
    if (cairo_font_face_status(cairoFace.get()) != CAIRO_STATUS_SUCCESS ||
        cairo_font_face_set_user_data(cairoFace.get(), &kFreeTypeFaceKey, face,
                                      releaseFreeTypeFace) != CAIRO_STATUS_SUCCESS) {
        cairoFace.reset();
        FT_Done_Face(face);
        return nullptr;
    }
    return cairoFace;
}

std::shared_ptr<const WatermarkFont> openFont(const FontLocation& location)
{
    auto font = std::make_shared<WatermarkFont>();
    font->location = location;
    const HbBlob blob(
        hb_blob_create_from_file_or_fail(QFile::encodeName(location.file).constData()));
    if (!blob)
        return nullptr;
    font->face.reset(hb_face_create(blob.get(), unsigned(location.index)));
    font->unitsPerEm = hb_face_get_upem(font->face.get());
    if (hb_face_get_glyph_count(font->face.get()) == 0 || font->unitsPerEm == 0)
        return nullptr;
    font->font.reset(hb_font_create(font->face.get()));
    font->cairoFace = openCairoFace(location);
    if (!font->cairoFace)
        return nullptr;
    return font;
}

} // namespace

std::shared_ptr<const WatermarkFont> OpenWatermarkFont(const QString& postScriptName)
{
    // Most recently used first. A handful covers the watermarks a user flips
    // between; fonts that aren't found are looked up again next time, so a
    // font installed meanwhile is seen.
    constexpr std::size_t kCachedFonts = 4;
    // The FreeType library is made first so that it outlives the cache.
    freeType();
    static std::list<std::pair<QString, std::shared_ptr<const WatermarkFont>>> cache;
    for (auto it = cache.begin(); it != cache.end(); ++it) {
        if (it->first == postScriptName) {
            cache.splice(cache.begin(), cache, it);
            return cache.front().second;
        }
    }
    const std::optional<FontLocation> location = FindFontByPostScriptName(postScriptName);
    std::shared_ptr<const WatermarkFont> font = location ? openFont(*location) : nullptr;
    if (font) {
        cache.emplace_front(postScriptName, font);
        if (cache.size() > kCachedFonts)
            cache.pop_back();
    }
    return font;
}

} // namespace orvan
