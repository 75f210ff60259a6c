#include "specialpages/ExceptionPage.h"

#include "settings/DictionaryAccess.h"
#include "specialpages/SpecialPageKeys.h"

namespace orvan {

namespace {

void readNumber(const PropertyValue* dictionary, const QString& key, std::int32_t& field)
{
    long value = 0;
    if (GetCFIndexFromCFDictionary(dictionary, key, &value))
        field = static_cast<std::int32_t>(value);
}

void writeNumber(PropertyValue& dictionary, const QString& key, std::int32_t value)
{
    if (value != kUnset)
        WriteTicketValue(&dictionary, key, value);
}

} // namespace

ExceptionPage::ExceptionPage() = default;

ExceptionPage::ExceptionPage(const PropertyValue* dictionary) : SpecialPage(dictionary)
{
    if (dictionary)
        m_imageShift.readFromTicket(dictionary->find(kImageShiftOptionsPageKey));
    readNumber(dictionary, kEndPageKey, m_endPage);
    readNumber(dictionary, kSidesImagedKey, m_plex);
    readNumber(dictionary, kLightenDarkenKey, m_lightenDarken);
}

ExceptionPage::~ExceptionPage() = default;

PropertyValue ExceptionPage::asTicket() const
{
    PropertyValue dictionary = SpecialPage::asTicket();
    WriteTicketValue(&dictionary, kEndPageKey, m_endPage);
    if (auto imageShift = m_imageShift.asTicket(JobContext::ImageShift))
        dictionary.insert(kImageShiftOptionsPageKey, std::move(*imageShift));
    writeNumber(dictionary, kSidesImagedKey, m_plex);
    writeNumber(dictionary, kHalftoneScreenKey, m_halftoneScreen);
    writeNumber(dictionary, kLightenDarkenKey, m_lightenDarken);
    return dictionary;
}

} // namespace orvan
