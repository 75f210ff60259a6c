// The panel functions the plug-in exports by name besides those of the
// shell's table (_PanelInterfaces): panels the shell does not load, which the
// Print dialog shows as panes of their own beside the shell's pane, in this
// order. Null-terminated. A test resolves every name of both lists in the
// built plug-in, so a misspelt name cannot reach a user (for the shell's
// table it would keep the loader retrying for ever).
#pragma once

namespace orvan {

inline constexpr const char* kStandalonePaneInterfaces[] = {
    "GetSpecialPagesPanelInterface",
    nullptr,
};

} // namespace orvan
