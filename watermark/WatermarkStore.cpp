#include "watermark/WatermarkStore.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/PropertyList.h"

#include <QFile>
#include <QFileDevice>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace orvan {
namespace {

// A number as int32, saturating; NaN reads as 0.
std::int32_t toInt32(const PropertyValue& value)
{
    if (const auto integer = value.toInteger())
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(*integer, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()));
    const double real = value.toReal().value_or(0.0);
    if (std::isnan(real))
        return 0;
    return static_cast<std::int32_t>(std::clamp<double>(std::trunc(real),
                                                        std::numeric_limits<std::int32_t>::min(),
                                                        std::numeric_limits<std::int32_t>::max()));
}

template <std::size_t N>
void readText(const PropertyValue& dictionary, const char* key, FixedText<N>& field)
{
    if (const PropertyValue* value = dictionary.find(QLatin1String(key));
        value && value->isString())
        field.assignIfFits(value->toString());
}

void readFloat(const PropertyValue& dictionary, const char* key, float& field)
{
    if (const PropertyValue* value = dictionary.find(QLatin1String(key));
        value && value->isNumber())
        field = static_cast<float>(*value->toReal());
}

void readDouble(const PropertyValue& dictionary, const char* key, double& field)
{
    if (const PropertyValue* value = dictionary.find(QLatin1String(key));
        value && value->isNumber())
        field = *value->toReal();
}

void readInt(const PropertyValue& dictionary, const char* key, std::int32_t& field)
{
    if (const PropertyValue* value = dictionary.find(QLatin1String(key));
        value && value->isNumber())
        field = toInt32(*value);
}

QByteArray glyphBytes(const std::vector<std::uint16_t>& glyphs)
{
    QByteArray bytes(qsizetype(glyphs.size() * 2), '\0');
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        bytes[qsizetype(2 * i)] = char(glyphs[i] >> 8);
        bytes[qsizetype(2 * i + 1)] = char(glyphs[i] & 0xFF);
    }
    return bytes;
}

std::vector<std::uint16_t> glyphIds(const QByteArray& bytes)
{
    std::vector<std::uint16_t> glyphs(std::size_t(bytes.size() / 2));
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        glyphs[i] = std::uint16_t(std::uint8_t(bytes[qsizetype(2 * i)]) << 8 |
                                  std::uint8_t(bytes[qsizetype(2 * i + 1)]));
    return glyphs;
}

// The file as found on disk.
struct WatermarkFileContent
{
    QString path;
    bool exists = false;
    std::optional<PropertyValue> dictionary; // nullopt: missing or unreadable
};

WatermarkFileContent readContent(const QString& file)
{
    WatermarkFileContent content;
    content.path = WatermarkFilePath(file);
    if (content.path.isEmpty())
        return content;
    QFile input(content.path);
    content.exists = input.exists();
    if (!content.exists)
        return content;
    if (input.size() > kMaxWatermarkFileSize) {
        std::fprintf(stderr, "Watermark file %s is too large (%lld bytes); not read\n",
                     qPrintable(content.path), static_cast<long long>(input.size()));
        return content;
    }
    if (!input.open(QIODevice::ReadOnly))
        return content;
    PropertyListError error;
    content.dictionary = readPropertyList(input.readAll(), &error);
    if (!content.dictionary)
        std::fprintf(stderr, "Watermark file %s unreadable: %s\n", qPrintable(content.path),
                     qPrintable(error.toString()));
    else if (!content.dictionary->isDictionary())
        content.dictionary.reset();
    return content;
}

// Before a new dictionary replaces a file that exists but can't be read, it
// is set aside beside itself. False when it is still in the way.
bool setAsideUnreadable(const WatermarkFileContent& content)
{
    if (!content.exists || content.dictionary)
        return true;
    SetAsideUnreadableFile(content.path, QStringLiteral("not a watermark dictionary"));
    return !QFileInfo::exists(content.path);
}

// The dictionary to change and write back: the file's, or an empty one when
// the file is missing or unreadable (the unreadable file kept aside first).
std::optional<PropertyValue> dictionaryForUpdate(const WatermarkFileContent& content,
                                                 int* errorCode)
{
    if (content.path.isEmpty()) {
        *errorCode = QFileDevice::OpenError;
        return std::nullopt;
    }
    if (content.dictionary)
        return content.dictionary;
    if (!setAsideUnreadable(content)) {
        *errorCode = QFileDevice::RenameError;
        return std::nullopt;
    }
    return PropertyValue::dictionary();
}

} // namespace

PropertyValue WatermarkDictionary(const _WatermarkData& r)
{
    PropertyValue d = PropertyValue::dictionary();
    const auto float32 = [](float v) { return PropertyValue::real(v, NumberType::Float32); };
    const auto integer = [](std::int32_t v) { return PropertyValue::integer(v, NumberType::Int); };
    d.insert(QStringLiteral("textString"), r.textString.toString());
    d.insert(QStringLiteral("filename"), r.filename.toString());
    d.insert(QStringLiteral("filePath"), r.filePath.toString());
    d.insert(QStringLiteral("fontName"), r.fontName.toString());
    d.insert(QStringLiteral("xOffset"), float32(r.xOffset));
    d.insert(QStringLiteral("yOffset"), float32(r.yOffset));
    d.insert(QStringLiteral("xPos"), PropertyValue::real(r.xPos, NumberType::Float64));
    d.insert(QStringLiteral("yPos"), PropertyValue::real(r.yPos, NumberType::Float64));
    d.insert(QStringLiteral("angle"), integer(r.angle));
    d.insert(QStringLiteral("density"), integer(r.density));
    d.insert(QStringLiteral("scale"), integer(r.scale));
    d.insert(QStringLiteral("units"), integer(r.units));
    d.insert(QStringLiteral("fontSize"), integer(r.fontSize));
    d.insert(QStringLiteral("wellColorRed"), float32(r.wellColorRed));
    d.insert(QStringLiteral("wellColorGreen"), float32(r.wellColorGreen));
    d.insert(QStringLiteral("wellColorBlue"), float32(r.wellColorBlue));
    d.insert(QStringLiteral("wellColorAlpha"), float32(r.wellColorAlpha));
    d.insert(QStringLiteral("fontColorRed"), float32(r.fontColorRed));
    d.insert(QStringLiteral("fontColorGreen"), float32(r.fontColorGreen));
    d.insert(QStringLiteral("fontColorBlue"), float32(r.fontColorBlue));
    d.insert(QStringLiteral("fontColorAlpha"), float32(r.fontColorAlpha));
    if (r.glyphs) {
        d.insert(QStringLiteral("glyphCount"),
                 PropertyValue::integer(r.glyphCount, NumberType::SInt32));
        d.insert(QStringLiteral("glyphs"), PropertyValue::data(glyphBytes(r.validGlyphs())));
    }
    return d;
}

void ReadWatermarkDictionary(const PropertyValue& d, _WatermarkData& r)
{
    readText(d, "textString", r.textString);
    readText(d, "filename", r.filename);
    readText(d, "filePath", r.filePath);
    readText(d, "fontName", r.fontName);
    readFloat(d, "xOffset", r.xOffset);
    readFloat(d, "yOffset", r.yOffset);
    readDouble(d, "xPos", r.xPos);
    readDouble(d, "yPos", r.yPos);
    readInt(d, "angle", r.angle);
    readInt(d, "density", r.density);
    readInt(d, "scale", r.scale);
    readInt(d, "units", r.units);
    readInt(d, "fontSize", r.fontSize);
    readFloat(d, "wellColorRed", r.wellColorRed);
    readFloat(d, "wellColorGreen", r.wellColorGreen);
    readFloat(d, "wellColorBlue", r.wellColorBlue);
    readFloat(d, "wellColorAlpha", r.wellColorAlpha);
    readFloat(d, "fontColorRed", r.fontColorRed);
    readFloat(d, "fontColorGreen", r.fontColorGreen);
    readFloat(d, "fontColorBlue", r.fontColorBlue);
    readFloat(d, "fontColorAlpha", r.fontColorAlpha);
    if (const PropertyValue* glyphs = d.find(QStringLiteral("glyphs")); glyphs && glyphs->isData())
        r.glyphs = glyphIds(glyphs->toData());
    readInt(d, "glyphCount", r.glyphCount);
}

std::optional<PropertyValue> ParseWatermarkFile(const QByteArray& bytes)
{
    if (bytes.size() > kMaxWatermarkFileSize)
        return std::nullopt;
    std::optional<PropertyValue> value = readPropertyList(bytes);
    if (!value || !value->isDictionary())
        return std::nullopt;
    return value;
}

QString WatermarkFilePath(const QString& file)
{
    return CopyPreferenceFileURL(file);
}

std::optional<PropertyValue> ReadWatermarkFile(const QString& file)
{
    return readContent(file).dictionary;
}

bool loadWatermarkData(const QString& file, const QString& name, _WatermarkData& record)
{
    const std::optional<PropertyValue> dictionary = ReadWatermarkFile(file);
    const PropertyValue* entry = dictionary ? dictionary->find(name) : nullptr;
    if (!entry || !entry->isDictionary()) {
        record.clear();
        return false;
    }
    ReadWatermarkDictionary(*entry, record);
    return true;
}

bool saveWatermarkData(const QString& file, const _WatermarkData& record)
{
    int code = 0;
    std::optional<PropertyValue> dictionary = dictionaryForUpdate(readContent(file), &code);
    if (dictionary) {
        PropertyValue entry = WatermarkDictionary(record);
        // A redraw that changed nothing needs no write (and no wait for the disk).
        if (const PropertyValue* stored = dictionary->find(WatermarkKey(record));
            stored && *stored == entry)
            return true;
        dictionary->insert(WatermarkKey(record), std::move(entry));
        if (WritePropertyListFile(WatermarkFilePath(file), *dictionary, &code))
            return true;
    }
    std::fprintf(stderr, "saveWatermarkData: Error %ld writing data to file\n", long{code});
    return false;
}

std::optional<QStringList> loadWatermarkList(const QString& file)
{
    const std::optional<PropertyValue> dictionary = ReadWatermarkFile(file);
    const PropertyValue* entries = dictionary ? dictionary->find(kWatermarkListKey) : nullptr;
    if (!entries || !entries->isArray())
        return std::nullopt;
    QStringList names;
    for (const PropertyValue& entry : entries->asArray()) {
        if (entry.isString())
            names.append(entry.toString());
    }
    return names;
}

void saveWatermarkList(const QString& file, const QStringList& list)
{
    int code = 0;
    std::optional<PropertyValue> dictionary = dictionaryForUpdate(readContent(file), &code);
    if (!dictionary)
        return;
    PropertyValue entries = PropertyValue::array();
    for (const QString& name : list)
        entries.append(name);
    dictionary->insert(kWatermarkListKey, std::move(entries));
    WritePropertyListFile(WatermarkFilePath(file), *dictionary);
}

void removeWatermarkData(const QString& file, const QString& name)
{
    std::optional<PropertyValue> dictionary = ReadWatermarkFile(file);
    if (!dictionary)
        return;
    dictionary->remove(name);
    if (PropertyValue* entries = dictionary->find(kWatermarkListKey);
        entries && entries->isArray()) {
        PropertyArray& names = entries->asArray();
        const auto first =
            std::find_if(names.begin(), names.end(), [&name](const PropertyValue& v) {
                return v.isString() && v.toString() == name;
            });
        if (first != names.end())
            names.erase(first);
    }
    WritePropertyListFile(WatermarkFilePath(file), *dictionary);
}

void storeFontData(const QString& file, const QString& key, const QByteArray& data)
{
    std::optional<PropertyValue> dictionary = ReadWatermarkFile(file);
    if (!dictionary)
        return;
    dictionary->insert(key, PropertyValue::data(data));
    WritePropertyListFile(WatermarkFilePath(file), *dictionary);
}

void loadFontData(const QString& file, const QString& key, QByteArray& out)
{
    const std::optional<PropertyValue> dictionary = ReadWatermarkFile(file);
    if (const PropertyValue* data = dictionary ? dictionary->find(key) : nullptr;
        data && data->isData())
        out.append(data->toData());
}

void CreateDefaultWatermarks(const QString& file, const Bundle& bundle)
{
    struct DefaultWatermark
    {
        const char* key;
        double xPos;
        double yPos;
    };
    // Origins of the texts as first drawn; the first drawing replaces them.
    static constexpr DefaultWatermark kDefaults[] = {
        {"DraftWatermark", 280.627441, 311.049927},
        {"ConfidentialWatermark", 201.350601, 231.773102},
        {"CopyWatermark", 276.36319, 306.785675},
    };
    QStringList names;
    _WatermarkData record;
    record.isText = 1;
    record.angle = 45;
    record.density = 25;
    record.scale = 100;
    record.fontName.assignIfFits(std::string_view("ArialMT"));
    record.fontSize = 72;
    record.fontColorRed = 0.75f;
    record.fontColorGreen = 0.75f;
    record.fontColorBlue = 1.0f;
    record.fontColorAlpha = 1.0f;
    record.wellColorBlue = 1.0f;
    record.wellColorAlpha = 1.0f;
    for (const DefaultWatermark& watermark : kDefaults) {
        const QString text = bundle.localizedString(QLatin1String(watermark.key), kStringNotFound,
                                                    kDefaultStringTable);
        names.append(text);
        record.textString.assignTruncated(text);
        record.xPos = watermark.xPos;
        record.yPos = watermark.yPos;
        saveWatermarkData(file, record);
    }
    saveWatermarkList(file, names);
}

} // namespace orvan
