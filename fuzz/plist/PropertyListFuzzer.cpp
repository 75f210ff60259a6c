// Any bytes given to the property-list reader either parse or give an error
// with a position; whatever parses must write out and read back equal.
#include "settings/PropertyList.h"
#include "settings/PropertyListFastReader.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

bool containsNaN(const orvan::PropertyValue& value)
{
    if (value.kind() == orvan::PropertyValue::Kind::Real)
        return std::isnan(*value.toReal());
    for (const auto& [key, child] : value.asDictionary())
        if (containsNaN(child))
            return true;
    for (const auto& child : value.asArray())
        if (containsNaN(child))
            return true;
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    orvan::PropertyListError error;
    // The fast path may only accept what the full reader accepts, equal.
    const auto fast = orvan::plist::readFast(input);
    const auto value = orvan::plist::readWithFullReader(input, &error);
    if (fast && (!value || (!containsNaN(*fast) && !(*fast == *value))))
        std::abort();
    if (!value) {
        if (error.message.isEmpty() || error.line < 1)
            std::abort();
        return 0;
    }
    // Text the reader accepted may still hold characters the writer refuses
    // (the reader takes character references XML 1.0 forbids); what is written
    // must read back equal.
    const auto xml = orvan::writePropertyList(*value);
    if (!xml)
        return 0;
    const auto again = orvan::readPropertyList(*xml);
    if (!again)
        std::abort();
    if (!containsNaN(*value) && !(*again == *value))
        std::abort();
    return 0;
}
