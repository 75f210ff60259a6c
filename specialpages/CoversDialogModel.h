// The covers dialog without its widgets: which covers the job has (none, a
// front cover only, or the same cover front and back), the printed sides and
// the stock of the cover being edited.
#pragma once

#include "settings/MenuModel.h"
#include "specialpages/Cover.h"
#include "specialpages/DialogMode.h"

#include <array>
#include <memory>

namespace orvan {

class Bundle;

// Items of the options menu, numbered from 1.
enum class CoverOption : int
{
    None = 1,
    FrontOnly = 2,
    Same = 3,
};

struct CoverOptionEntry
{
    CoverOption option;
    const char* labelKey;
    const char* imageName; // a picture of the bundle, see SpecialPagesImagePath
};

extern const std::array<CoverOptionEntry, 3> kCoverOptions;

class CoversDialogModel
{
public:
    // Starts from the covers the job has: none, the front only, or both (a
    // job with a back cover only shows it as the same cover on both sides).
    // Adding covers to a job without any starts with a front cover.
    CoversDialogModel(const Bundle* bundle, DialogMode mode, const Cover* frontCover,
                      const Cover* backCover);

    CoverOption option() const { return m_option; }
    // Switching covers on makes a new blank cover (sides 1, the stock reset
    // for covers) unless one is being edited already; switching them off
    // keeps it, so switching back brings the settings back.
    void setOption(CoverOption option);

    // The cover the controls edit; null while the option is None.
    Cover* cover() { return m_option == CoverOption::None ? nullptr : m_cover.get(); }

    // The printed-sides menu and the item the cover shows (0 without a cover
    // or for a value the menu lacks).
    const MenuModel& sidesMenu() const { return m_sidesMenu; }
    int sidesItem() const;
    void setSidesItem(int item);

    // OK: replaces both covers by what the dialog shows.
    void accept(std::unique_ptr<Cover>& frontCover, std::unique_ptr<Cover>& backCover) const;

private:
    CoverOption m_option = CoverOption::None;
    std::unique_ptr<Cover> m_cover;
    MenuModel m_sidesMenu;
};

} // namespace orvan
