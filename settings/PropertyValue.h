// Property values: the value tree that tickets and preference files hold.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <variant>
#include <vector>

class QDebug;

namespace orvan {

// Number type codes. A number remembers the type it was made with, so a value
// written as SInt32 reads back as SInt32; conversions report whether they are
// exact. "CFIndex" is the ticket integer: 32-bit signed, the type every
// integer of this system is written and read with unless stated otherwise.
enum class NumberType : std::int8_t
{
    SInt8 = 1,
    SInt16 = 2,
    SInt32 = 3,
    SInt64 = 4,
    Float32 = 5,
    Float64 = 6,
    Char = 7,
    Short = 8,
    Int = 9,
    Long = 10,
    LongLong = 11,
    Float = 12,
    Double = 13,
    CFIndex = 14,
};

bool isFloatingNumberType(NumberType type);
const char* numberTypeName(NumberType type);
// The type whose numberTypeName is name; nullopt for any other text.
std::optional<NumberType> numberTypeFromName(QStringView name);

class PropertyValue;
using PropertyDictionary = std::map<QString, PropertyValue>;
using PropertyArray = std::vector<PropertyValue>;

// One value of seven kinds (dictionary, array, string, integer, real, boolean,
// data), plus date for property-list files and Null for "no value". Value
// semantics: copies are deep (strings and data share storage until written).
// Equality compares kind and value; like the platform's numbers, an integer
// equals a real of the same value and the number type does not take part.
class PropertyValue
{
public:
    enum class Kind : std::uint8_t
    {
        Null,
        Dictionary,
        Array,
        String,
        Integer,
        Real,
        Boolean,
        Data,
        Date
    };

    PropertyValue() = default;
    PropertyValue(QString string); // NOLINT: implicit, strings are the common case
    PropertyValue(const char* utf8);
    PropertyValue(PropertyDictionary dictionary);
    PropertyValue(PropertyArray array);

    static PropertyValue dictionary() { return PropertyValue(PropertyDictionary{}); }
    static PropertyValue array() { return PropertyValue(PropertyArray{}); }
    static PropertyValue integer(std::int64_t value, NumberType type = NumberType::CFIndex);
    static PropertyValue real(double value, NumberType type = NumberType::Float64);
    static PropertyValue boolean(bool value);
    static PropertyValue data(QByteArray bytes);
    static PropertyValue date(QDateTime when);

    Kind kind() const { return static_cast<Kind>(m_value.index()); }
    bool isNull() const { return kind() == Kind::Null; }
    bool isDictionary() const { return kind() == Kind::Dictionary; }
    bool isArray() const { return kind() == Kind::Array; }
    bool isString() const { return kind() == Kind::String; }
    bool isNumber() const { return kind() == Kind::Integer || kind() == Kind::Real; }
    bool isBoolean() const { return kind() == Kind::Boolean; }
    bool isData() const { return kind() == Kind::Data; }
    bool isDate() const { return kind() == Kind::Date; }

    // The number type of a number; nullopt for other kinds.
    std::optional<NumberType> numberType() const;
    // The number converted to the requested type; nullopt unless the value is
    // a number and the conversion is exact (no truncation, no overflow).
    std::optional<std::int64_t> integerAs(NumberType type) const;
    std::optional<double> realAs(NumberType type) const;

    // Plain readers: the value when it is of that kind, else the fallback.
    QString toString(const QString& fallback = {}) const;
    std::optional<std::int64_t> toInteger() const; // integers, and reals that are whole
    std::optional<double> toReal() const;          // any number
    std::optional<bool> toBool() const;
    QByteArray toData() const;
    QDateTime toDate() const;

    // Containers. The const accessors give an empty container for other kinds;
    // the mutable ones require the kind (checked with Q_ASSERT).
    const PropertyDictionary& asDictionary() const;
    PropertyDictionary& asDictionary();
    const PropertyArray& asArray() const;
    PropertyArray& asArray();

    // Dictionary helpers; all tolerate a value that is not a dictionary.
    const PropertyValue* find(const QString& key) const;
    PropertyValue* find(const QString& key);
    bool contains(const QString& key) const { return find(key) != nullptr; }
    void insert(const QString& key, PropertyValue value); // turns Null into a dictionary
    bool remove(const QString& key);

    // Array helper; turns Null into an array.
    void append(PropertyValue value);
    // Element count of a dictionary or array, 0 otherwise.
    std::size_t size() const;

    friend bool operator==(const PropertyValue& a, const PropertyValue& b);
    friend bool operator!=(const PropertyValue& a, const PropertyValue& b) { return !(a == b); }

    // Readable multi-line description, for diagnostics and test failures.
    QString debugString() const;

private:
    struct Integer
    {
        std::int64_t value;
        NumberType type;
    };
    struct Real
    {
        double value;
        NumberType type;
    };
    using Storage = std::variant<std::monostate, PropertyDictionary, PropertyArray, QString,
                                 Integer, Real, bool, QByteArray, QDateTime>;
    explicit PropertyValue(Storage value) : m_value(std::move(value)) {}

    Storage m_value;
};

QDebug operator<<(QDebug debug, const PropertyValue& value);
// GoogleTest prints values through this.
void PrintTo(const PropertyValue& value, std::ostream* os);

} // namespace orvan
