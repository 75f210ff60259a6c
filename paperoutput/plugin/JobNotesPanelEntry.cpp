// The exported function through which the host finds the Job Notes panel by
// name. The panel shows beside the shell rather than in its tabs, so it takes
// the plug-in's own bundle instead of the shell's.
#include "paperoutput/JobNotesPanel.h"
#include "shell/plugin/ShellOperations.h"

using namespace orvan;

namespace {

class PluginJobNotesPanel : public JobNotesPanel
{
public:
    PluginJobNotesPanel() : JobNotesPanel(GetPDEBundle()) {}
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) Status GetJobNotesPanelInterface(PDEInterfaceObject** panel)
{
    return GetPanelInterface<PluginJobNotesPanel>(panel);
}

} // extern "C"
