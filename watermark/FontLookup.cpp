#include "watermark/FontLookup.h"

#include <fontconfig/fontconfig.h>

#include <QMap>

#include <algorithm>
#include <memory>
#include <string_view>

namespace orvan {
namespace {

template <auto Release> struct FcRelease
{
    template <typename T> void operator()(T* handle) const { Release(handle); }
};
using FcPatternOwner = std::unique_ptr<FcPattern, FcRelease<FcPatternDestroy>>;
using FcFontSetOwner = std::unique_ptr<FcFontSet, FcRelease<FcFontSetDestroy>>;
using FcObjectSetOwner = std::unique_ptr<FcObjectSet, FcRelease<FcObjectSetDestroy>>;

// PostScript names of fonts that documents and printers commonly name, and
// the installed families drawn with the same metrics.
struct FamilySubstitute
{
    std::string_view postScriptName;
    const char* family;
    int weight; // FC_WEIGHT_*
    int slant;  // FC_SLANT_*
};

constexpr FamilySubstitute kFamilySubstitutes[] = {
    {"ArialMT", "Liberation Sans", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"Arial-BoldMT", "Liberation Sans", FC_WEIGHT_BOLD, FC_SLANT_ROMAN},
    {"Arial-ItalicMT", "Liberation Sans", FC_WEIGHT_REGULAR, FC_SLANT_ITALIC},
    {"Arial-BoldItalicMT", "Liberation Sans", FC_WEIGHT_BOLD, FC_SLANT_ITALIC},
    {"Helvetica", "Liberation Sans", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"Helvetica-Bold", "Liberation Sans", FC_WEIGHT_BOLD, FC_SLANT_ROMAN},
    {"ArialNarrow", "Liberation Sans Narrow", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"TimesNewRomanPSMT", "Liberation Serif", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"TimesNewRomanPS-BoldMT", "Liberation Serif", FC_WEIGHT_BOLD, FC_SLANT_ROMAN},
    {"TimesNewRomanPS-ItalicMT", "Liberation Serif", FC_WEIGHT_REGULAR, FC_SLANT_ITALIC},
    {"Times-Roman", "Liberation Serif", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"Times-Bold", "Liberation Serif", FC_WEIGHT_BOLD, FC_SLANT_ROMAN},
    {"CourierNewPSMT", "Liberation Mono", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"CourierNewPS-BoldMT", "Liberation Mono", FC_WEIGHT_BOLD, FC_SLANT_ROMAN},
    {"Courier", "Liberation Mono", FC_WEIGHT_REGULAR, FC_SLANT_ROMAN},
    {"Courier-Bold", "Liberation Mono", FC_WEIGHT_BOLD, FC_SLANT_ROMAN},
};

const FcChar8* fcText(const QByteArray& utf8)
{
    return reinterpret_cast<const FcChar8*>(utf8.constData());
}

std::optional<FontLocation> locationOf(const FcPattern* font)
{
    FcChar8* file = nullptr;
    if (FcPatternGetString(font, FC_FILE, 0, &file) != FcResultMatch || !file)
        return std::nullopt;
    int index = 0;
    FcPatternGetInteger(font, FC_INDEX, 0, &index);
    return FontLocation{QString::fromUtf8(reinterpret_cast<const char*>(file)), index};
}

std::optional<FontLocation> findExact(const QByteArray& postScriptName)
{
    const FcPatternOwner pattern(FcPatternCreate());
    const FcObjectSetOwner objects(
        FcObjectSetBuild(FC_FILE, FC_INDEX, FC_POSTSCRIPT_NAME, nullptr));
    if (!pattern || !objects ||
        !FcPatternAddString(pattern.get(), FC_POSTSCRIPT_NAME, fcText(postScriptName)))
        return std::nullopt;
    const FcFontSetOwner fonts(FcFontList(nullptr, pattern.get(), objects.get()));
    if (!fonts)
        return std::nullopt;
    for (int i = 0; i < fonts->nfont; ++i) {
        FcChar8* name = nullptr;
        // fontconfig compares names ignoring case; PostScript names don't.
        if (FcPatternGetString(fonts->fonts[i], FC_POSTSCRIPT_NAME, 0, &name) == FcResultMatch &&
            postScriptName == reinterpret_cast<const char*>(name))
            if (auto location = locationOf(fonts->fonts[i]))
                return location;
    }
    return std::nullopt;
}

// The best installed face of `family` in the given style, only when the
// family is installed (fontconfig would otherwise answer its default font).
std::optional<FontLocation> findFamily(const QByteArray& family, int weight, int slant)
{
    const FcPatternOwner pattern(FcPatternCreate());
    if (!pattern || !FcPatternAddString(pattern.get(), FC_FAMILY, fcText(family)) ||
        !FcPatternAddInteger(pattern.get(), FC_WEIGHT, weight) ||
        !FcPatternAddInteger(pattern.get(), FC_SLANT, slant))
        return std::nullopt;
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    const FcPatternOwner match(FcFontMatch(nullptr, pattern.get(), &result));
    if (!match || result != FcResultMatch)
        return std::nullopt;
    FcChar8* matched = nullptr;
    for (int i = 0; FcPatternGetString(match.get(), FC_FAMILY, i, &matched) == FcResultMatch; ++i) {
        if (FcStrCmpIgnoreCase(matched, fcText(family)) == 0)
            return locationOf(match.get());
    }
    return std::nullopt;
}

QString stringOf(const FcPattern* font, const char* object)
{
    FcChar8* text = nullptr;
    if (FcPatternGetString(font, object, 0, &text) != FcResultMatch || !text)
        return {};
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

} // namespace

std::vector<InstalledFont> InstalledFonts()
{
    std::vector<InstalledFont> fonts;
    if (!FcInit())
        return fonts;
    const FcPatternOwner pattern(FcPatternCreate());
    const FcObjectSetOwner objects(
        FcObjectSetBuild(FC_POSTSCRIPT_NAME, FC_FAMILY, FC_STYLE, FC_SCALABLE, nullptr));
    if (!pattern || !objects || !FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue))
        return fonts;
    const FcFontSetOwner set(FcFontList(nullptr, pattern.get(), objects.get()));
    if (!set)
        return fonts;
    QMap<QString, InstalledFont> byName; // folds names that differ only in case
    for (int i = 0; i < set->nfont; ++i) {
        InstalledFont font{stringOf(set->fonts[i], FC_POSTSCRIPT_NAME),
                           stringOf(set->fonts[i], FC_FAMILY), stringOf(set->fonts[i], FC_STYLE)};
        if (!font.postScriptName.isEmpty())
            byName.insert(font.postScriptName.toCaseFolded(), font);
    }
    for (const InstalledFont& font : byName)
        fonts.push_back(font);
    return fonts;
}

std::optional<FontLocation> FindFontByPostScriptName(const QString& postScriptName)
{
    if (postScriptName.isEmpty() || !FcInit())
        return std::nullopt;
    const QByteArray name = postScriptName.toUtf8();
    if (auto exact = findExact(name))
        return exact;
    for (const FamilySubstitute& substitute : kFamilySubstitutes) {
        if (substitute.postScriptName == name.constData())
            if (auto found = findFamily(substitute.family, substitute.weight, substitute.slant))
                return found;
    }
    return findFamily(name, FC_WEIGHT_REGULAR, FC_SLANT_ROMAN);
}

} // namespace orvan
