// Special pages: a cover, an insert or a range of exception pages, each on a
// stock of its own. The base holds what every kind has (the page it applies
// to and the stock) and the common part of the dictionary form.
#pragma once

#include "settings/PropertyValue.h"
#include "stock/Stock.h"

#include <cstdint>
#include <memory>

namespace orvan {

class SpecialPage
{
public:
    virtual ~SpecialPage();

    // First page of the range, or the page after which an insert goes (0:
    // before the first page).
    std::int32_t startPage() const { return m_startPage; }
    void setStartPage(std::int32_t startPage) { m_startPage = startPage; }
    Stock& stock() { return m_stock; }
    const Stock& stock() const { return m_stock; }

    // "StartPage" and "Stock" (the stock's dictionary, possibly empty); the
    // kinds append their own keys.
    virtual PropertyValue asTicket() const;

    // A copy of the same kind, owned by the caller.
    std::unique_ptr<SpecialPage> clone() const { return std::unique_ptr<SpecialPage>(cloneImpl()); }

protected:
    // Start page 0 on a default (White) stock.
    SpecialPage();
    // Takes "Stock" (absent: a stock read from no dictionary, so with its
    // colour unset) and "StartPage" when present.
    explicit SpecialPage(const PropertyValue* dictionary);
    SpecialPage(const SpecialPage&) = default;
    SpecialPage& operator=(const SpecialPage&) = default;

    virtual SpecialPage* cloneImpl() const = 0;

private:
    std::int32_t m_startPage = 0;
    Stock m_stock;
};

} // namespace orvan
