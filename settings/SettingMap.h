// The table types that tie menu items to ticket values. The tables
// themselves live in SettingMaps.h; the functions that read them in
// SettingMapAccess.h.
#pragma once

#include <cstdint>

namespace orvan {

// A four-character code ('Qujn', 'Ssiz', ...) as the 32-bit value it packs to.
constexpr std::uint32_t FourCharCode(const char (&code)[5])
{
    return (static_cast<std::uint32_t>(static_cast<unsigned char>(code[0])) << 24) |
           (static_cast<std::uint32_t>(static_cast<unsigned char>(code[1])) << 16) |
           (static_cast<std::uint32_t>(static_cast<unsigned char>(code[2])) << 8) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(code[3]));
}

// The "no value" marker of 32-bit setting fields. Fields that hold it are
// left out of dictionaries (in a special page's stock they mean "inherit from
// the job"); a menu row carrying it is a default row ("PrinterDefault" /
// "UseJobSetting").
inline constexpr std::int32_t kUnset = INT32_MIN;

// One row of a setting map. A map is an array of rows ended by a terminator
// row whose key is null and whose ticket value is 0. Menu items are numbered
// from 1 in row order.
struct _SettingMap
{
    const char* key; // localisation key (also the PPD choice keyword where a menu mirrors one); "-"
                     // = separator
    std::int32_t ticketValue;   // what the ticket stores; also the item's reference value
    std::uint32_t commandId;    // the item's menu command, 0 for none
    const char* featureKey;     // installed-option feature that gates the row, or null
    std::uint8_t requiredState; // the row shows only when the feature's state equals this
};

// One row of a PPD choice map; ended by a row whose choice is null.
struct PPDChoiceMap
{
    const char* choice;
    std::int32_t ticketValue;
};

// One row of the main keyword map; ended by a row whose keyword is null.
struct MainKeywordMap
{
    const char* mainKeyword;
    const PPDChoiceMap* choices;
};

} // namespace orvan
