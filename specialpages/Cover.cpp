#include "specialpages/Cover.h"

#include "settings/DictionaryAccess.h"
#include "specialpages/SpecialPageKeys.h"

namespace orvan {

Cover::Cover() = default;

Cover::Cover(const PropertyValue* dictionary) : SpecialPage(dictionary)
{
    long sides = 0;
    if (GetCFIndexFromCFDictionary(dictionary, kSidesImagedKey, &sides))
        m_sidesImaged = static_cast<std::int32_t>(sides);
}

Cover::~Cover() = default;

PropertyValue Cover::asTicket() const
{
    PropertyValue dictionary = SpecialPage::asTicket();
    WriteTicketValue(&dictionary, kSidesImagedKey, m_sidesImaged);
    return dictionary;
}

bool operator==(const Cover& a, const Cover& b)
{
    return a.m_sidesImaged == b.m_sidesImaged && a.stock() == b.stock();
}

} // namespace orvan
