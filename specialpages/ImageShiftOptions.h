// Image shift for pages printed on tab stock: how far the page image moves on
// each side of the sheet and how far it may reach onto the tab. An exception
// page embeds one record and forwards it to the ticket under its own key.
//
// Dictionary form (every number a ticket integer, tenths of a millimetre,
// measured on the printed side as the user sees it):
//   "FrontShiftX"      front side, positive to the right
//   "FrontShiftY"      front side, positive downwards
//   "BackShiftX"       back side, positive to the right
//   "BackShiftY"       back side, positive downwards
//   "TabExtension"     how far the image may extend past the sheet edge onto
//                      the tab; 0 keeps it inside the body of the sheet
//   "BackMirrorsFront" boolean; when true the back side takes the front
//                      shift mirrored and the two back keys are not written
#pragma once

#include "settings/PropertyValue.h"
#include "stock/Stock.h"

#include <cstdint>
#include <optional>

namespace orvan {

struct ImageShiftOptions
{
    // All unset: no shift of its own, the job's settings apply.
    std::int32_t frontShiftX = kUnset;
    std::int32_t frontShiftY = kUnset;
    std::int32_t backShiftX = kUnset;
    std::int32_t backShiftY = kUnset;
    std::int32_t tabExtension = kUnset;
    bool backMirrorsFront = false;

    // True when no field differs from a fresh record.
    bool isUnset() const;

    // Takes every key present with a value of the right kind; other fields
    // keep their values. A null or non-dictionary value reads nothing.
    void readFromTicket(const PropertyValue* dictionary);

    // The dictionary for a context. For the job (context 0) every field is
    // written, an unset distance as 0. For a special page only the set fields
    // are written, and nothing at all (nullopt) when the record is unset, so
    // the page inherits the job's image shift.
    std::optional<PropertyValue> asTicket(JobContext context) const;

    friend bool operator==(const ImageShiftOptions&, const ImageShiftOptions&) = default;
};

} // namespace orvan
