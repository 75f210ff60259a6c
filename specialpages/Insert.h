// An insert: blank or pre-printed sheets put in after a page of the job.
#pragma once

#include "specialpages/SpecialPage.h"

namespace orvan {

class Insert final : public SpecialPage
{
public:
    // One sheet, before the first page.
    Insert();
    explicit Insert(const PropertyValue* dictionary);
    Insert(const Insert&) = default;
    Insert& operator=(const Insert&) = default;
    ~Insert() override;

    std::int32_t quantity() const { return m_quantity; }
    void setQuantity(std::int32_t quantity) { m_quantity = quantity; }

    // The base keys, then "Quantity".
    PropertyValue asTicket() const override;
    std::unique_ptr<Insert> clone() const { return std::unique_ptr<Insert>(cloneImpl()); }

protected:
    Insert* cloneImpl() const override { return new Insert(*this); }

private:
    std::int32_t m_quantity = 1;
};

} // namespace orvan
