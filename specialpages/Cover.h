// A front or back cover: a special page whose printed sides are chosen.
#pragma once

#include "specialpages/SpecialPage.h"

namespace orvan {

// sidesImaged values.
inline constexpr std::int32_t kCoverBlankOrPreprinted = 1;
inline constexpr std::int32_t kCoverPrintedSimplex = 2;
inline constexpr std::int32_t kCoverPrintedDuplex = 4;

class Cover final : public SpecialPage
{
public:
    // Blank or pre-printed (1).
    Cover();
    explicit Cover(const PropertyValue* dictionary);
    Cover(const Cover&) = default;
    Cover& operator=(const Cover&) = default;
    ~Cover() override;

    std::int32_t sidesImaged() const { return m_sidesImaged; }
    void setSidesImaged(std::int32_t sidesImaged) { m_sidesImaged = sidesImaged; }

    // The base keys, then "SidesImaged".
    PropertyValue asTicket() const override;
    std::unique_ptr<Cover> clone() const { return std::unique_ptr<Cover>(cloneImpl()); }

    // Same printed sides on an equal stock; the start page does not count.
    friend bool operator==(const Cover& a, const Cover& b);

protected:
    Cover* cloneImpl() const override { return new Cover(*this); }

private:
    std::int32_t m_sidesImaged = kCoverBlankOrPreprinted;
};

} // namespace orvan
