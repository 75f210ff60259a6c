#include "specialpages/Insert.h"

#include "settings/DictionaryAccess.h"
#include "specialpages/SpecialPageKeys.h"

namespace orvan {

Insert::Insert() = default;

Insert::Insert(const PropertyValue* dictionary) : SpecialPage(dictionary)
{
    long quantity = 0;
    if (GetCFIndexFromCFDictionary(dictionary, kQuantityKey, &quantity))
        m_quantity = static_cast<std::int32_t>(quantity);
}

Insert::~Insert() = default;

PropertyValue Insert::asTicket() const
{
    PropertyValue dictionary = SpecialPage::asTicket();
    WriteTicketValue(&dictionary, kQuantityKey, m_quantity);
    return dictionary;
}

} // namespace orvan
