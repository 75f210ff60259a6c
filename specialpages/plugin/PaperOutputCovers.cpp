// The Paper/Output panel's covers command opens the Special Pages covers
// dialog: the plug-in sets the panel's hook when it is loaded.
#include "paperoutput/DialogHooks.h"
#include "specialpages/SpecialPagesDialogs.h"

namespace orvan {

namespace {

bool RunCoversDialogFromPaperOutput(const Bundle* bundle, std::unique_ptr<Cover>& frontCover,
                                    std::unique_ptr<Cover>& backCover, const Stock& jobLevelStock,
                                    QWidget* parent)
{
    return RunModalCoversDialog(bundle, DialogMode::Add, &jobLevelStock, frontCover, backCover,
                                parent);
}

const bool kCoversHookSet = [] {
    PaperOutputHooks().runCoversDialog = RunCoversDialogFromPaperOutput;
    return true;
}();

} // namespace

} // namespace orvan
