// The exported function through which the shell finds the Paper/Output panel
// by name.
#include "paperoutput/PaperOutputPanel.h"

using namespace orvan;

extern "C" {

__attribute__((visibility("default"))) Status
GetPaperOutputPanelInterface(PDEInterfaceObject** panel)
{
    return GetPanelInterface<PaperOutputPanel>(panel);
}

} // extern "C"
