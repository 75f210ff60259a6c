// The exported function through which the host finds the Special Pages
// panel by name; the shell does not load this panel itself.
#include "specialpages/SpecialPagesPanel.h"

using namespace orvan;

extern "C" {

__attribute__((visibility("default"))) Status
GetSpecialPagesPanelInterface(PDEInterfaceObject** panel)
{
    return GetPanelInterface<SpecialPagesPanel>(panel);
}

} // extern "C"
