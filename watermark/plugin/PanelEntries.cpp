// The exported function through which the shell finds the Booklet/Watermark
// panel by name.
#include "watermark/BookletWatermarkPanel.h"

using namespace orvan;

extern "C" {

__attribute__((visibility("default"))) Status
GetBookletWatermarkPanelInterface(PDEInterfaceObject** panel)
{
    return GetPanelInterface<BookletWatermarkPanel>(panel);
}

} // extern "C"
