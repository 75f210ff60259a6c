#include "settings/PropertyValue.h"

#include <QDebug>

#include <cmath>
#include <limits>
#include <ostream>

namespace orvan {

namespace {

// Width in bits of an integer number type; 0 for floating types.
int integerBits(NumberType type)
{
    switch (type) {
    case NumberType::SInt8:
    case NumberType::Char:
        return 8;
    case NumberType::SInt16:
    case NumberType::Short:
        return 16;
    case NumberType::SInt32:
    case NumberType::Int:
    case NumberType::CFIndex:
        return 32;
    case NumberType::SInt64:
    case NumberType::Long:
    case NumberType::LongLong:
        return 64;
    case NumberType::Float32:
    case NumberType::Float64:
    case NumberType::Float:
    case NumberType::Double:
        return 0;
    }
    return 0;
}

bool fitsBits(std::int64_t value, int bits)
{
    if (bits >= 64)
        return true;
    const std::int64_t limit = std::int64_t{1} << (bits - 1);
    return value >= -limit && value < limit;
}

void describe(const PropertyValue& value, int indent, QString& out);

} // namespace

bool isFloatingNumberType(NumberType type)
{
    return integerBits(type) == 0;
}

const char* numberTypeName(NumberType type)
{
    switch (type) {
    case NumberType::SInt8:
        return "SInt8";
    case NumberType::SInt16:
        return "SInt16";
    case NumberType::SInt32:
        return "SInt32";
    case NumberType::SInt64:
        return "SInt64";
    case NumberType::Float32:
        return "Float32";
    case NumberType::Float64:
        return "Float64";
    case NumberType::Char:
        return "Char";
    case NumberType::Short:
        return "Short";
    case NumberType::Int:
        return "Int";
    case NumberType::Long:
        return "Long";
    case NumberType::LongLong:
        return "LongLong";
    case NumberType::Float:
        return "Float";
    case NumberType::Double:
        return "Double";
    case NumberType::CFIndex:
        return "CFIndex";
    }
    return "?";
}

std::optional<NumberType> numberTypeFromName(QStringView name)
{
    for (int code = static_cast<int>(NumberType::SInt8);
         code <= static_cast<int>(NumberType::CFIndex); ++code) {
        const auto type = static_cast<NumberType>(code);
        if (name == QLatin1String(numberTypeName(type)))
            return type;
    }
    return std::nullopt;
}

PropertyValue::PropertyValue(QString string) : m_value(std::move(string)) {}
PropertyValue::PropertyValue(const char* utf8) : m_value(QString::fromUtf8(utf8)) {}
PropertyValue::PropertyValue(PropertyDictionary dictionary) : m_value(std::move(dictionary)) {}
PropertyValue::PropertyValue(PropertyArray array) : m_value(std::move(array)) {}

PropertyValue PropertyValue::integer(std::int64_t value, NumberType type)
{
    // An integer made with a floating type is a real, as the platform does it.
    if (isFloatingNumberType(type))
        return PropertyValue(Storage(Real{static_cast<double>(value), type}));
    return PropertyValue(Storage(Integer{value, type}));
}

PropertyValue PropertyValue::real(double value, NumberType type)
{
    if (!isFloatingNumberType(type))
        type = NumberType::Float64;
    if (type == NumberType::Float32 || type == NumberType::Float)
        value = static_cast<double>(static_cast<float>(value));
    return PropertyValue(Storage(Real{value, type}));
}

PropertyValue PropertyValue::boolean(bool value)
{
    return PropertyValue(Storage(value));
}

PropertyValue PropertyValue::data(QByteArray bytes)
{
    return PropertyValue(Storage(std::move(bytes)));
}

PropertyValue PropertyValue::date(QDateTime when)
{
    return PropertyValue(Storage(std::move(when)));
}

std::optional<NumberType> PropertyValue::numberType() const
{
    if (const auto* i = std::get_if<Integer>(&m_value))
        return i->type;
    if (const auto* r = std::get_if<Real>(&m_value))
        return r->type;
    return std::nullopt;
}

std::optional<std::int64_t> PropertyValue::integerAs(NumberType type) const
{
    const int bits = integerBits(type);
    if (bits == 0)
        return std::nullopt;
    std::int64_t whole = 0;
    if (const auto* i = std::get_if<Integer>(&m_value)) {
        whole = i->value;
    } else if (const auto* r = std::get_if<Real>(&m_value)) {
        // 2^63 itself does not fit; everything below it with no fraction does.
        if (!std::isfinite(r->value) || std::trunc(r->value) != r->value ||
            r->value < -9223372036854775808.0 || r->value >= 9223372036854775808.0)
            return std::nullopt;
        whole = static_cast<std::int64_t>(r->value);
    } else {
        return std::nullopt;
    }
    if (!fitsBits(whole, bits))
        return std::nullopt;
    return whole;
}

std::optional<double> PropertyValue::realAs(NumberType type) const
{
    if (!isFloatingNumberType(type))
        return std::nullopt;
    const bool single = type == NumberType::Float32 || type == NumberType::Float;
    double value = 0;
    if (const auto* i = std::get_if<Integer>(&m_value)) {
        value = static_cast<double>(i->value);
        // 2^63 is out of range for the cast back; it is never exact anyway.
        if (value >= 9223372036854775808.0 || static_cast<std::int64_t>(value) != i->value)
            return std::nullopt;
    } else if (const auto* r = std::get_if<Real>(&m_value)) {
        value = r->value;
    } else {
        return std::nullopt;
    }
    if (single) {
        const float narrowed = static_cast<float>(value);
        if (!std::isnan(value) && static_cast<double>(narrowed) != value)
            return std::nullopt;
    }
    return value;
}

QString PropertyValue::toString(const QString& fallback) const
{
    if (const auto* s = std::get_if<QString>(&m_value))
        return *s;
    return fallback;
}

std::optional<std::int64_t> PropertyValue::toInteger() const
{
    return integerAs(NumberType::SInt64);
}

std::optional<double> PropertyValue::toReal() const
{
    if (const auto* i = std::get_if<Integer>(&m_value))
        return static_cast<double>(i->value);
    if (const auto* r = std::get_if<Real>(&m_value))
        return r->value;
    return std::nullopt;
}

std::optional<bool> PropertyValue::toBool() const
{
    if (const auto* b = std::get_if<bool>(&m_value))
        return *b;
    return std::nullopt;
}

QByteArray PropertyValue::toData() const
{
    if (const auto* d = std::get_if<QByteArray>(&m_value))
        return *d;
    return {};
}

QDateTime PropertyValue::toDate() const
{
    if (const auto* d = std::get_if<QDateTime>(&m_value))
        return *d;
    return {};
}

const PropertyDictionary& PropertyValue::asDictionary() const
{
    static const PropertyDictionary empty;
    if (const auto* d = std::get_if<PropertyDictionary>(&m_value))
        return *d;
    return empty;
}

PropertyDictionary& PropertyValue::asDictionary()
{
    if (isNull())
        m_value = PropertyDictionary{};
    Q_ASSERT(isDictionary());
    return std::get<PropertyDictionary>(m_value);
}

const PropertyArray& PropertyValue::asArray() const
{
    static const PropertyArray empty;
    if (const auto* a = std::get_if<PropertyArray>(&m_value))
        return *a;
    return empty;
}

PropertyArray& PropertyValue::asArray()
{
    if (isNull())
        m_value = PropertyArray{};
    Q_ASSERT(isArray());
    return std::get<PropertyArray>(m_value);
}

const PropertyValue* PropertyValue::find(const QString& key) const
{
    const auto* d = std::get_if<PropertyDictionary>(&m_value);
    if (!d)
        return nullptr;
    const auto it = d->find(key);
    return it == d->end() ? nullptr : &it->second;
}

PropertyValue* PropertyValue::find(const QString& key)
{
    auto* d = std::get_if<PropertyDictionary>(&m_value);
    if (!d)
        return nullptr;
    const auto it = d->find(key);
    return it == d->end() ? nullptr : &it->second;
}

void PropertyValue::insert(const QString& key, PropertyValue value)
{
    if (isNull())
        m_value = PropertyDictionary{};
    if (auto* d = std::get_if<PropertyDictionary>(&m_value))
        d->insert_or_assign(key, std::move(value));
}

bool PropertyValue::remove(const QString& key)
{
    auto* d = std::get_if<PropertyDictionary>(&m_value);
    return d && d->erase(key) > 0;
}

void PropertyValue::append(PropertyValue value)
{
    if (isNull())
        m_value = PropertyArray{};
    if (auto* a = std::get_if<PropertyArray>(&m_value))
        a->push_back(std::move(value));
}

std::size_t PropertyValue::size() const
{
    if (const auto* d = std::get_if<PropertyDictionary>(&m_value))
        return d->size();
    if (const auto* a = std::get_if<PropertyArray>(&m_value))
        return a->size();
    return 0;
}

bool operator==(const PropertyValue& a, const PropertyValue& b)
{
    if (a.isNumber() && b.isNumber()) {
        const auto* ai = std::get_if<PropertyValue::Integer>(&a.m_value);
        const auto* bi = std::get_if<PropertyValue::Integer>(&b.m_value);
        if (ai && bi)
            return ai->value == bi->value;
        return *a.toReal() == *b.toReal();
    }
    if (a.kind() != b.kind())
        return false;
    switch (a.kind()) {
    case PropertyValue::Kind::Null:
        return true;
    case PropertyValue::Kind::Dictionary:
        return std::get<PropertyDictionary>(a.m_value) == std::get<PropertyDictionary>(b.m_value);
    case PropertyValue::Kind::Array:
        return std::get<PropertyArray>(a.m_value) == std::get<PropertyArray>(b.m_value);
    case PropertyValue::Kind::String:
        return std::get<QString>(a.m_value) == std::get<QString>(b.m_value);
    case PropertyValue::Kind::Boolean:
        return std::get<bool>(a.m_value) == std::get<bool>(b.m_value);
    case PropertyValue::Kind::Data:
        return std::get<QByteArray>(a.m_value) == std::get<QByteArray>(b.m_value);
    case PropertyValue::Kind::Date:
        return std::get<QDateTime>(a.m_value) == std::get<QDateTime>(b.m_value);
    case PropertyValue::Kind::Integer:
    case PropertyValue::Kind::Real:
        return false; // handled above
    }
    return false;
}

namespace {

void describe(const PropertyValue& value, int indent, QString& out)
{
    const QString pad(indent * 2, QLatin1Char(' '));
    switch (value.kind()) {
    case PropertyValue::Kind::Null:
        out += QStringLiteral("null");
        break;
    case PropertyValue::Kind::Dictionary:
        out += QStringLiteral("{\n");
        for (const auto& [key, child] : value.asDictionary()) {
            out += pad + QStringLiteral("  \"") + key + QStringLiteral("\" = ");
            describe(child, indent + 1, out);
            out += QLatin1Char('\n');
        }
        out += pad + QLatin1Char('}');
        break;
    case PropertyValue::Kind::Array:
        out += QStringLiteral("(\n");
        for (const auto& child : value.asArray()) {
            out += pad + QStringLiteral("  ");
            describe(child, indent + 1, out);
            out += QLatin1Char('\n');
        }
        out += pad + QLatin1Char(')');
        break;
    case PropertyValue::Kind::String:
        out += QLatin1Char('"') + value.toString() + QLatin1Char('"');
        break;
    case PropertyValue::Kind::Integer:
        out += QString::number(*value.toInteger()) + QStringLiteral(" (") +
               QLatin1String(numberTypeName(*value.numberType())) + QLatin1Char(')');
        break;
    case PropertyValue::Kind::Real:
        out += QString::number(*value.toReal(), 'g', 17) + QStringLiteral(" (") +
               QLatin1String(numberTypeName(*value.numberType())) + QLatin1Char(')');
        break;
    case PropertyValue::Kind::Boolean:
        out += *value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
        break;
    case PropertyValue::Kind::Data: {
        const QByteArray bytes = value.toData();
        out += QStringLiteral("<%1 bytes: %2%3>")
                   .arg(bytes.size())
                   .arg(QString::fromLatin1(bytes.left(16).toHex(' ')))
                   .arg(bytes.size() > 16 ? QStringLiteral(" ...") : QString());
        break;
    }
    case PropertyValue::Kind::Date:
        out += value.toDate().toString(Qt::ISODate);
        break;
    }
}

} // namespace

QString PropertyValue::debugString() const
{
    QString out;
    describe(*this, 0, out);
    return out;
}

QDebug operator<<(QDebug debug, const PropertyValue& value)
{
    QDebugStateSaver saver(debug);
    debug.noquote() << value.debugString();
    return debug;
}

void PrintTo(const PropertyValue& value, std::ostream* os)
{
    *os << value.debugString().toStdString();
}

} // namespace orvan
