// The exported functions through which the shell finds the Image Options and
// Advanced panels by name.
#include "imagequality/AdvancedPanel.h"
#include "imagequality/ImageOptionsPanel.h"

using namespace orvan;

extern "C" {

__attribute__((visibility("default"))) Status
GetImageOptionsPanelInterface(PDEInterfaceObject** panel)
{
    return GetPanelInterface<ImageOptionsPanel>(panel);
}

__attribute__((visibility("default"))) Status GetAdvancedPanelInterface(PDEInterfaceObject** panel)
{
    return GetPanelInterface<AdvancedPanel>(panel);
}

} // extern "C"
