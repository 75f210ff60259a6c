#include "watermark/FontProgram.h"

#include "watermark/WatermarkFont.h"
#include "watermark/WatermarkStore.h"
#include "watermark/type42/Type42Converter.h"

#include "settings/SystemVersion.h"

#include <hb-subset.h>

#include <QFile>

#include <map>
#include <string>

namespace orvan {
namespace {

using HbSubsetInput = std::unique_ptr<hb_subset_input_t, HandleRelease<hb_subset_input_destroy>>;

// The font reduced to `glyphs` (and what composite glyphs use), every glyph
// keeping its id.
QByteArray subsetFont(hb_face_t* face, std::span<const std::uint16_t> glyphs)
{
    const HbSubsetInput input(hb_subset_input_create_or_fail());
    if (!input)
        return {};
    hb_set_t* glyphSet = hb_subset_input_glyph_set(input.get());
    hb_set_add(glyphSet, 0);
    for (std::uint16_t glyph : glyphs)
        hb_set_add(glyphSet, glyph);
    hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_RETAIN_GIDS);
    const HbFace subset(hb_subset_or_fail(face, input.get()));
    if (!subset)
        return {};
    const HbBlob blob(hb_face_reference_blob(subset.get()));
    unsigned length = 0;
    const char* data = hb_blob_get_data(blob.get(), &length);
    return QByteArray(data, qsizetype(length));
}

// Names for the subset's glyphs: "uniXXXX" (or "uXXXXXX") after the first
// character of `text` that maps to the glyph, else "g<id>"; glyph 0 is
// ".notdef".
std::map<std::uint16_t, std::string>
glyphNames(const WatermarkFont& font, std::span<const std::uint16_t> glyphs, const QString& text)
{
    std::map<std::uint16_t, std::string> names{{0, ".notdef"}};
    for (const char32_t character : text.toUcs4()) {
        hb_codepoint_t glyph = 0;
        if (!hb_font_get_nominal_glyph(font.font.get(), character, &glyph) || glyph == 0 ||
            glyph > 0xFFFF)
            continue;
        const QString digits = QString::number(uint(character), 16).toUpper();
        const QString name = character > 0xFFFF
                                 ? QLatin1String("u") + digits.rightJustified(6, u'0')
                                 : QLatin1String("uni") + digits.rightJustified(4, u'0');
        names.emplace(std::uint16_t(glyph), name.toStdString());
    }
    for (std::uint16_t glyph : glyphs)
        names.emplace(glyph, "g" + std::to_string(glyph));
    return names;
}

} // namespace

QString SubsetFontName(const QString& postScriptName)
{
    return QStringLiteral("QV-%1-QV").arg(postScriptName);
}

QByteArray MakeSubsetFontProgram(const QString& postScriptName, const QString& subsetName,
                                 std::span<const std::uint16_t> glyphs, const QString& text)
{
    const std::shared_ptr<const WatermarkFont> font = OpenWatermarkFont(postScriptName);
    if (!font)
        return {};
    // Ids the font doesn't have draw as glyph 0.
    const unsigned glyphCount = hb_face_get_glyph_count(font->face.get());
    std::vector<std::uint16_t> known(glyphs.begin(), glyphs.end());
    for (std::uint16_t& glyph : known)
        glyph = glyph < glyphCount ? glyph : 0;
    glyphs = known;
    const QByteArray subset = subsetFont(font->face.get(), glyphs);
    if (subset.isEmpty())
        return {};
    const std::map<std::uint16_t, std::string> names = glyphNames(*font, glyphs, text);
    Type42Encoding encoding;
    encoding.fill(".notdef");
    for (std::size_t code = 0; code < glyphs.size() && code < encoding.size(); ++code)
        encoding[code] = names.at(glyphs[code]);
    std::vector<Type42Glyph> charStrings;
    for (const auto& [glyph, name] : names)
        charStrings.push_back({name, glyph});
    std::string program;
    const QByteArray name = subsetName.toUtf8();
    const Type42Result result =
        convertTTFtoPS42(FontBytes(reinterpret_cast<const std::uint8_t*>(subset.constData()),
                                   std::size_t(subset.size())),
                         std::string_view(name.constData(), std::size_t(name.size())), encoding,
                         charStrings, program, Type42Diagnostics::Silent);
    if (result != Type42Result::Converted)
        return {};
    return QByteArray(program.data(), qsizetype(program.size()));
}

std::optional<QString> convertFont(const QString& watermarkFile, const QString& name)
{
    _WatermarkData record;
    if (!loadWatermarkData(watermarkFile, name, record) || record.textString.empty())
        return std::nullopt;
    const QString postScriptName = record.fontName.toString();
    if (!RunningOn104OrLater()) {
        // Older systems send the whole font.
        const std::optional<FontLocation> location = FindFontByPostScriptName(postScriptName);
        QFile file(location ? location->file : QString());
        if (!location || location->index != 0 || !file.open(QIODevice::ReadOnly))
            return std::nullopt;
        const QByteArray bytes = file.readAll();
        std::string program;
        convertTTFtoPS42(FontBytes(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   std::size_t(bytes.size())),
                         postScriptName.toStdString(), program);
        if (!program.empty())
            storeFontData(watermarkFile, postScriptName,
                          QByteArray(program.data(), qsizetype(program.size())));
        return std::nullopt;
    }
    const QString subsetName = SubsetFontName(postScriptName);
    const std::vector<std::uint16_t> glyphs = record.validGlyphs();
    const QByteArray program =
        MakeSubsetFontProgram(postScriptName, subsetName, glyphs, record.textString.toString());
    if (program.isEmpty())
        return std::nullopt;
    storeFontData(watermarkFile, subsetName, program);
    return subsetName;
}

} // namespace orvan
