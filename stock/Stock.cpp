#include "stock/Stock.h"

#include "settings/DictionaryAccess.h"

namespace orvan {

namespace {

// Dictionary keys. "kCoatingType" and "kGrain" carry a leading "k" and the
// comment lives under "CustomComment": the printer's filter reads these
// spellings, so they stay.
const QString kSizeKey = QStringLiteral("Size");
const QString kWidthKey = QStringLiteral("Width");
const QString kLengthKey = QStringLiteral("Length");
const QString kTypeKey = QStringLiteral("Type");
const QString kCustomTypeKey = QStringLiteral("CustomType");
const QString kModulusKey = QStringLiteral("Modulus");
const QString kColorKey = QStringLiteral("Color");
const QString kCustomColorKey = QStringLiteral("CustomColor");
const QString kWeightKey = QStringLiteral("Weight");
const QString kPunchedKey = QStringLiteral("Punched");
const QString kDescriptionKey = QStringLiteral("Description");
const QString kSidesCoatedKey = QStringLiteral("SidesCoated");
const QString kCoatingTypeKey = QStringLiteral("kCoatingType");
const QString kFinishKey = QStringLiteral("Finish");
const QString kGrainKey = QStringLiteral("kGrain");
const QString kCustomNameKey = QStringLiteral("CustomName");
const QString kCustomNameOnlyKey = QStringLiteral("CustomNameOnly");
const QString kCommentKey = QStringLiteral("CustomComment");
const QString kSourceKey = QStringLiteral("Source");

// Reads a ticket integer into a field; an absent or malformed key leaves the
// field as it was. Returns whether the key was read.
bool readNumber(const PropertyValue* dictionary, const QString& key, std::int32_t& field)
{
    long value = 0;
    if (!GetCFIndexFromCFDictionary(dictionary, key, &value))
        return false;
    field = static_cast<std::int32_t>(value);
    return true;
}

void readString(const PropertyValue* dictionary, const QString& key, QString& field)
{
    if (const PropertyValue* value = dictionary->find(key); value && value->isString())
        field = value->toString();
}

void writeNumber(PropertyValue& dictionary, const QString& key, std::int32_t value)
{
    if (value != kUnset)
        WriteTicketValue(&dictionary, key, value);
}

void writeString(PropertyValue& dictionary, const QString& key, const QString& value)
{
    if (!value.isEmpty())
        dictionary.insert(key, PropertyValue(value));
}

bool sameText(const QString& a, const QString& b)
{
    return QString::compare(a, b, Qt::CaseInsensitive) == 0;
}

} // namespace

Stock::Stock() : m_color(kWhiteMediaColor) {}

Stock::Stock(const PropertyValue* dictionary)
{
    if (!dictionary || !dictionary->isDictionary())
        return;
    std::int32_t size = kUnset;
    if (readNumber(dictionary, kSizeKey, size)) {
        m_size = size;
        if (size == kCustomPageSize) {
            readNumber(dictionary, kWidthKey, m_width);
            readNumber(dictionary, kLengthKey, m_length);
        }
    }
    readNumber(dictionary, kTypeKey, m_type);
    readString(dictionary, kCustomTypeKey, m_customType);
    // The tab count is always written but only tab-stock types take it back.
    if (m_type == kPrecutTabMediaType || m_type == kNamedTabMediaType)
        readNumber(dictionary, kModulusKey, m_modulus);
    readNumber(dictionary, kColorKey, m_color);
    readString(dictionary, kCustomColorKey, m_customColor);
    readNumber(dictionary, kWeightKey, m_weight);
    readNumber(dictionary, kPunchedKey, m_punched);
    readString(dictionary, kDescriptionKey, m_description);
    if (readNumber(dictionary, kSidesCoatedKey, m_sidesCoated))
        readNumber(dictionary, kCoatingTypeKey, m_coatingType);
    readNumber(dictionary, kFinishKey, m_finish);
    readNumber(dictionary, kGrainKey, m_grain);
    readString(dictionary, kCustomNameKey, m_customName);
    if (const PropertyValue* only = dictionary->find(kCustomNameOnlyKey))
        m_customNameOnly = only->toBool().value_or(m_customNameOnly);
    readString(dictionary, kCommentKey, m_comment);
    readNumber(dictionary, kSourceKey, m_source);
}

Stock::Stock(const Stock& other)
{
    *this = other;
}

Stock& Stock::operator=(const Stock& other)
{
    if (this == &other)
        return *this;
    // The order matters: width and length after size (so a custom size
    // survives), type after colour (so Transparency forces Clear).
    setSize(other.m_size);
    setWidth(other.m_width);
    setLength(other.m_length);
    setColor(other.m_color);
    setCustomColor(other.m_customColor);
    setType(other.m_type);
    setCustomType(other.m_customType);
    setModulus(other.m_modulus);
    setWeight(other.m_weight);
    setPunched(other.m_punched);
    setDescription(other.m_description);
    setSidesCoated(other.m_sidesCoated);
    setCoatingType(other.m_coatingType);
    setFinish(other.m_finish);
    setGrain(other.m_grain);
    setCustomName(other.m_customName);
    setCustomNameOnly(other.m_customNameOnly);
    setComment(other.m_comment);
    setSource(other.m_source);
    return *this;
}

Stock::~Stock() = default;

void Stock::setSize(std::int32_t size)
{
    m_size = size;
    if (size != kCustomPageSize) {
        m_width = kUnset;
        m_length = kUnset;
    }
}

void Stock::setWidth(std::int32_t width)
{
    m_width = width;
    if (width != kUnset)
        setSize(kCustomPageSize);
}

void Stock::setLength(std::int32_t length)
{
    m_length = length;
    if (length != kUnset)
        setSize(kCustomPageSize);
}

void Stock::setType(std::int32_t type)
{
    m_type = type;
    if (type == kTransparencyMediaType)
        m_color = kClearMediaColor;
}

void Stock::setCustomType(const QString& customType)
{
    m_customType = customType;
}

void Stock::setCustomColor(const QString& customColor)
{
    m_customColor = customColor;
}

void Stock::setDescription(const QString& description)
{
    m_description = description;
}

void Stock::setCustomName(const QString& customName)
{
    m_customName = customName;
}

void Stock::setComment(const QString& comment)
{
    m_comment = comment;
}

PropertyValue Stock::asTicket() const
{
    PropertyValue dictionary = PropertyValue::dictionary();
    writeNumber(dictionary, kSizeKey, m_size);
    if (m_size == kCustomPageSize) {
        writeNumber(dictionary, kWidthKey, m_width);
        writeNumber(dictionary, kLengthKey, m_length);
    }
    writeNumber(dictionary, kTypeKey, m_type);
    writeString(dictionary, kCustomTypeKey, m_customType);
    writeNumber(dictionary, kModulusKey, m_modulus);
    writeNumber(dictionary, kColorKey, m_color);
    writeString(dictionary, kCustomColorKey, m_customColor);
    writeNumber(dictionary, kWeightKey, m_weight);
    writeNumber(dictionary, kPunchedKey, m_punched);
    writeString(dictionary, kDescriptionKey, m_description);
    if (m_sidesCoated != kUnset) {
        writeNumber(dictionary, kSidesCoatedKey, m_sidesCoated);
        // Travels with "SidesCoated" whatever it holds, unset included.
        WriteTicketValue(&dictionary, kCoatingTypeKey, m_coatingType);
    }
    writeNumber(dictionary, kFinishKey, m_finish);
    writeNumber(dictionary, kGrainKey, m_grain);
    writeString(dictionary, kCustomNameKey, m_customName);
    if (m_customNameOnly)
        dictionary.insert(kCustomNameOnlyKey, PropertyValue::boolean(true));
    writeString(dictionary, kCommentKey, m_comment);
    writeNumber(dictionary, kSourceKey, m_source);
    return dictionary;
}

bool operator==(const Stock& a, const Stock& b)
{
    return a.m_size == b.m_size && a.m_width == b.m_width && a.m_length == b.m_length &&
           a.m_color == b.m_color && a.m_type == b.m_type && a.m_modulus == b.m_modulus &&
           a.m_weight == b.m_weight && a.m_punched == b.m_punched &&
           a.m_sidesCoated == b.m_sidesCoated && a.m_coatingType == b.m_coatingType &&
           a.m_finish == b.m_finish && a.m_grain == b.m_grain &&
           a.m_customNameOnly == b.m_customNameOnly && sameText(a.m_customColor, b.m_customColor) &&
           sameText(a.m_customType, b.m_customType) && sameText(a.m_description, b.m_description) &&
           sameText(a.m_customName, b.m_customName) && sameText(a.m_comment, b.m_comment) &&
           a.m_source == b.m_source;
}

void DefaultStock(Stock& stock, JobContext context)
{
    if (context == JobContext::Job) {
        stock.setSize(kLetterPageSize);
        stock.setColor(kWhiteMediaColor);
        stock.setType(kStandardMediaType);
    } else {
        stock.setSize(kUnset);
        stock.setColor(kUnset);
        stock.setType(kUnset);
    }
    stock.setPunched(kUnset);
    stock.setWeight(kUnset);
    stock.setCustomType(QString());
    stock.setCustomColor(QString());
    stock.setDescription(QString());
    stock.setCustomName(QString());
    stock.setModulus(kUnset);
    stock.setCustomNameOnly(false);
    stock.setSidesCoated(kUnset);
}

} // namespace orvan
