#include "specialpages/SpecialPage.h"

#include "settings/DictionaryAccess.h"
#include "specialpages/SpecialPageKeys.h"

namespace orvan {

namespace {

const PropertyValue* stockDictionary(const PropertyValue* page)
{
    return page ? page->find(kSpecialPageStockKey) : nullptr;
}

} // namespace

SpecialPage::SpecialPage() = default;

SpecialPage::SpecialPage(const PropertyValue* dictionary) : m_stock(stockDictionary(dictionary))
{
    long startPage = 0;
    if (GetCFIndexFromCFDictionary(dictionary, kStartPageKey, &startPage))
        m_startPage = static_cast<std::int32_t>(startPage);
}

SpecialPage::~SpecialPage() = default;

PropertyValue SpecialPage::asTicket() const
{
    PropertyValue dictionary = PropertyValue::dictionary();
    WriteTicketValue(&dictionary, kStartPageKey, m_startPage);
    dictionary.insert(kSpecialPageStockKey, m_stock.asTicket());
    return dictionary;
}

} // namespace orvan
