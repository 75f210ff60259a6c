// The paper stock record: what a job, a cover, an insert or an exception page
// is printed on. It travels through the print-settings ticket as a dictionary,
// alone (the job-level stock) or nested in a special page under "Stock".
#pragma once

#include "settings/PropertyValue.h"
#include "settings/SettingMap.h"

#include <QString>

#include <cstdint>
#include <limits>

namespace orvan {

// Size value of a custom size (width and length then count).
inline constexpr std::int32_t kCustomPageSize = 75;
inline constexpr std::int32_t kLetterPageSize = 1;
inline constexpr std::int32_t kStandardMediaType = 1;
inline constexpr std::int32_t kTransparencyMediaType = 2;
// Pre-cut tab stock and user-named tab stock: the only types whose tab count
// ("Modulus") is read back from a dictionary.
inline constexpr std::int32_t kPrecutTabMediaType = 4;
inline constexpr std::int32_t kNamedTabMediaType = 6;
inline constexpr std::int32_t kNamedMediaType = 7;
inline constexpr std::int32_t kWhiteMediaColor = 1;
inline constexpr std::int32_t kClearMediaColor = 6;
// Colour value that selects the customColor string.
inline constexpr std::int32_t kCustomMediaColor = 10;
// Source value meaning the paper comes from an installed feature (the
// post-print inserter).
inline constexpr std::int32_t kInstalledFeatureSource = 10;

// For which use a stock is being set up. Every context but Job belongs to a
// special page, whose stock may leave attributes unset.
enum class JobContext : std::int32_t
{
    Job = 0,
    ImageShift = 1,
    Covers = 2,
    Inserts = 3,
    ExceptionPages = 4,
};

class Stock
{
public:
    // White paper, everything else unset or empty; coatingType 1.
    Stock();
    // Built from a stock dictionary; a null dictionary (or one without
    // "Color") leaves the colour unset, unlike the default constructor.
    // Reading stores the fields directly: the coupled setter rules do not
    // apply ("Type" 2 without "Color" keeps the colour unset).
    explicit Stock(const PropertyValue* dictionary);
    // Copies through the setters, as operator= does.
    Stock(const Stock& other);
    // Copies through the setters in a fixed order, so the coupled rules apply
    // to the copy: a source of type 2 always gives a Clear copy.
    Stock& operator=(const Stock& other);
    virtual ~Stock();

    std::int32_t size() const { return m_size; }
    // Any size but Custom clears width and length.
    void setSize(std::int32_t size);
    std::int32_t width() const { return m_width; }
    // A set width or length turns the size into Custom.
    void setWidth(std::int32_t width);
    std::int32_t length() const { return m_length; }
    void setLength(std::int32_t length);
    std::int32_t type() const { return m_type; }
    // Transparency (2) also makes the colour Clear (6).
    void setType(std::int32_t type);
    const QString& customType() const { return m_customType; }
    void setCustomType(const QString& customType);
    std::int32_t color() const { return m_color; }
    void setColor(std::int32_t color) { m_color = color; }
    const QString& customColor() const { return m_customColor; }
    void setCustomColor(const QString& customColor);
    std::int32_t modulus() const { return m_modulus; }
    void setModulus(std::int32_t modulus) { m_modulus = modulus; }
    std::int32_t punched() const { return m_punched; }
    void setPunched(std::int32_t punched) { m_punched = punched; }
    std::int32_t weight() const { return m_weight; }
    void setWeight(std::int32_t weight) { m_weight = weight; }
    const QString& description() const { return m_description; }
    void setDescription(const QString& description);
    std::int32_t sidesCoated() const { return m_sidesCoated; }
    void setSidesCoated(std::int32_t sidesCoated) { m_sidesCoated = sidesCoated; }
    std::int32_t coatingType() const { return m_coatingType; }
    void setCoatingType(std::int32_t coatingType) { m_coatingType = coatingType; }
    std::int32_t finish() const { return m_finish; }
    void setFinish(std::int32_t finish) { m_finish = finish; }
    std::int32_t grain() const { return m_grain; }
    void setGrain(std::int32_t grain) { m_grain = grain; }
    const QString& customName() const { return m_customName; }
    void setCustomName(const QString& customName);
    bool customNameOnly() const { return m_customNameOnly; }
    void setCustomNameOnly(bool customNameOnly) { m_customNameOnly = customNameOnly; }
    const QString& comment() const { return m_comment; }
    void setComment(const QString& comment);
    std::int32_t source() const { return m_source; }
    void setSource(std::int32_t source) { m_source = source; }

    // The stock dictionary: unset numbers and empty strings are left out,
    // "Width"/"Length" only for a custom size, "kCoatingType" only together
    // with "SidesCoated", "CustomNameOnly" only when true.
    PropertyValue asTicket() const;

    // Every number must match (unset only equals unset), the strings match
    // ignoring case.
    friend bool operator==(const Stock& a, const Stock& b);

private:
    std::int32_t m_size = kUnset;
    std::int32_t m_width = kUnset;
    std::int32_t m_length = kUnset;
    std::int32_t m_type = kUnset;
    QString m_customType;
    std::int32_t m_color = kUnset;
    QString m_customColor;
    std::int32_t m_modulus = kUnset;
    std::int32_t m_punched = kUnset;
    std::int32_t m_weight = kUnset;
    QString m_description;
    std::int32_t m_sidesCoated = kUnset;
    std::int32_t m_coatingType = 1;
    std::int32_t m_finish = kUnset;
    std::int32_t m_grain = kUnset;
    QString m_customName;
    bool m_customNameOnly = false;
    QString m_comment;
    std::int32_t m_source = kUnset;
};

// Resets a stock for a context: Letter, White, Standard for the job; size,
// colour and type unset (inherited) for a special page. Punching, weight,
// the names, modulus and sidesCoated are cleared in every context; coating
// type, finish, grain, comment and source are left as they were.
void DefaultStock(Stock& stock, JobContext context);

} // namespace orvan
