// Exception pages: a range of the job's pages printed with their own stock,
// plex, image shift and tone settings.
#pragma once

#include "specialpages/ImageShiftOptions.h"
#include "specialpages/SpecialPage.h"

namespace orvan {

// plex values.
inline constexpr std::int32_t kPlexSimplex = 1;
inline constexpr std::int32_t kPlexDuplex = 2;
inline constexpr std::int32_t kPlexDuplexShort = 3;

class ExceptionPage final : public SpecialPage
{
public:
    // The range 0-0 with every setting unset (inherited from the job).
    ExceptionPage();
    // Takes the image shift, "EndPage", the plex from "SidesImaged" and
    // "LightenDarken". "HalftoneScreen" is not read: it always comes from the
    // editing session, never back from a ticket.
    explicit ExceptionPage(const PropertyValue* dictionary);
    ExceptionPage(const ExceptionPage&) = default;
    ExceptionPage& operator=(const ExceptionPage&) = default;
    ~ExceptionPage() override;

    // Last page of the range, inclusive.
    std::int32_t endPage() const { return m_endPage; }
    void setEndPage(std::int32_t endPage) { m_endPage = endPage; }
    std::int32_t plex() const { return m_plex; }
    void setPlex(std::int32_t plex) { m_plex = plex; }
    ImageShiftOptions& imageShift() { return m_imageShift; }
    const ImageShiftOptions& imageShift() const { return m_imageShift; }
    std::int32_t halftoneScreen() const { return m_halftoneScreen; }
    void setHalftoneScreen(std::int32_t halftoneScreen) { m_halftoneScreen = halftoneScreen; }
    std::int32_t lightenDarken() const { return m_lightenDarken; }
    void setLightenDarken(std::int32_t lightenDarken) { m_lightenDarken = lightenDarken; }

    // The base keys, then "EndPage", the image shift (when it has anything
    // of its own), the plex under "SidesImaged", "HalftoneScreen" and
    // "LightenDarken" (each when set).
    PropertyValue asTicket() const override;
    std::unique_ptr<ExceptionPage> clone() const
    {
        return std::unique_ptr<ExceptionPage>(cloneImpl());
    }

protected:
    ExceptionPage* cloneImpl() const override { return new ExceptionPage(*this); }

private:
    std::int32_t m_endPage = 0;
    std::int32_t m_plex = kUnset;
    ImageShiftOptions m_imageShift;
    std::int32_t m_halftoneScreen = kUnset;
    std::int32_t m_lightenDarken = kUnset;
};

} // namespace orvan
