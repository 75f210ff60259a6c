// The output-destination pop-up: where the printed job goes. Each item's
// value is the ticket value of the PPD "OutputBin" choice it stands for.
#pragma once

#include "settings/MenuModel.h"

namespace orvan {

class Bundle;

// Fixed top-tray values of the two-finisher configuration.
inline constexpr std::int32_t kFirstTopTrayValue = 20;
inline constexpr std::int32_t kSecondTopTrayValue = 22;

// Empties the menu and fills it: "Printer Default" (unset value), "Auto" (1),
// the auto-switch tray, the three stacker trays (named "Finisher B/C/D: Main
// Stacker" when the post-print inserter is installed, which shifts every
// finisher one letter on), then the catch tray's top-tray items chosen by
// the finisher configuration in installable option "Option1". Feature items
// carry their installable-option ticket values.
void PopulateOutputDestination(const Bundle* bundle, MenuModel& menu);

} // namespace orvan
