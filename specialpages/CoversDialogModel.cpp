#include "specialpages/CoversDialogModel.h"

#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"

namespace orvan {

const std::array<CoverOptionEntry, 3> kCoverOptions{{
    {CoverOption::None, "No Covers", "SpclPgs_CoversOptions_None.gif"},
    {CoverOption::FrontOnly, "Front Cover Only", "SpclPgs_CoversOptions_FrontOnly.gif"},
    {CoverOption::Same, "Same Covers", "SpclPgs_CoversOptions_Same.gif"},
}};

namespace {

std::unique_ptr<Cover> NewBlankCover()
{
    auto cover = std::make_unique<Cover>();
    cover->setSidesImaged(kCoverBlankOrPreprinted);
    DefaultStock(cover->stock(), JobContext::Covers);
    return cover;
}

} // namespace

CoversDialogModel::CoversDialogModel(const Bundle* bundle, DialogMode mode, const Cover* frontCover,
                                     const Cover* backCover)
{
    PopulatePopupMenuFromMap(bundle, m_sidesMenu, _CoverSidesImagedMap,
                             static_cast<int>(JobContext::Covers), 0);
    if (frontCover) {
        m_cover = frontCover->clone();
        m_option = backCover ? CoverOption::Same : CoverOption::FrontOnly;
    } else if (backCover) {
        m_cover = backCover->clone();
        m_option = CoverOption::Same;
    } else if (mode == DialogMode::Add) {
        setOption(CoverOption::FrontOnly);
    }
}

void CoversDialogModel::setOption(CoverOption option)
{
    m_option = option;
    if (option != CoverOption::None && !m_cover)
        m_cover = NewBlankCover();
}

int CoversDialogModel::sidesItem() const
{
    if (m_option == CoverOption::None)
        return 0;
    return std::max(0, TicketToUI(_CoverSidesImagedMap, m_cover->sidesImaged()));
}

void CoversDialogModel::setSidesItem(int item)
{
    if (m_option == CoverOption::None || item < 1 || item > m_sidesMenu.count())
        return;
    m_cover->setSidesImaged(UIToTicket(_CoverSidesImagedMap, item));
}

void CoversDialogModel::accept(std::unique_ptr<Cover>& frontCover,
                               std::unique_ptr<Cover>& backCover) const
{
    frontCover.reset();
    backCover.reset();
    if (m_option == CoverOption::None)
        return;
    frontCover = m_cover->clone();
    if (m_option == CoverOption::Same)
        backCover = m_cover->clone();
}

} // namespace orvan
