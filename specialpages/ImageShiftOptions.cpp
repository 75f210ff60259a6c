#include "specialpages/ImageShiftOptions.h"

#include "settings/DictionaryAccess.h"

#include <array>

namespace orvan {

namespace {

const QString kFrontShiftXKey = QStringLiteral("FrontShiftX");
const QString kFrontShiftYKey = QStringLiteral("FrontShiftY");
const QString kBackShiftXKey = QStringLiteral("BackShiftX");
const QString kBackShiftYKey = QStringLiteral("BackShiftY");
const QString kTabExtensionKey = QStringLiteral("TabExtension");
const QString kBackMirrorsFrontKey = QStringLiteral("BackMirrorsFront");

struct Distance
{
    const QString& key;
    std::int32_t ImageShiftOptions::*field;
    bool backSide;
};

const std::array<Distance, 5>& distances()
{
    static const std::array<Distance, 5> table{{
        {kFrontShiftXKey, &ImageShiftOptions::frontShiftX, false},
        {kFrontShiftYKey, &ImageShiftOptions::frontShiftY, false},
        {kBackShiftXKey, &ImageShiftOptions::backShiftX, true},
        {kBackShiftYKey, &ImageShiftOptions::backShiftY, true},
        {kTabExtensionKey, &ImageShiftOptions::tabExtension, false},
    }};
    return table;
}

} // namespace

bool ImageShiftOptions::isUnset() const
{
    return *this == ImageShiftOptions{};
}

void ImageShiftOptions::readFromTicket(const PropertyValue* dictionary)
{
    if (!dictionary || !dictionary->isDictionary())
        return;
    for (const Distance& distance : distances()) {
        long value = 0;
        if (GetCFIndexFromCFDictionary(dictionary, distance.key, &value))
            this->*distance.field = static_cast<std::int32_t>(value);
    }
    if (const PropertyValue* mirrors = dictionary->find(kBackMirrorsFrontKey))
        backMirrorsFront = mirrors->toBool().value_or(backMirrorsFront);
}

std::optional<PropertyValue> ImageShiftOptions::asTicket(JobContext context) const
{
    const bool job = context == JobContext::Job;
    if (!job && isUnset())
        return std::nullopt;
    PropertyValue dictionary = PropertyValue::dictionary();
    for (const Distance& distance : distances()) {
        if (distance.backSide && backMirrorsFront)
            continue;
        const std::int32_t value = this->*distance.field;
        if (value != kUnset)
            WriteTicketValue(&dictionary, distance.key, value);
        else if (job)
            WriteTicketValue(&dictionary, distance.key, 0);
    }
    if (job || backMirrorsFront)
        dictionary.insert(kBackMirrorsFrontKey, PropertyValue::boolean(backMirrorsFront));
    return dictionary;
}

} // namespace orvan
