// The Paper/Output panel's fax setup (its setup button and the shell's OK
// guard for a fax job without recipients) opens the LAN fax setup dialog:
// the plug-in sets the panel's hook when it is loaded.
#include "fax/LANFaxSetupDialog.h"
#include "paperoutput/DialogHooks.h"

namespace orvan {

namespace {

const bool kFaxSetupHookSet = [] {
    PaperOutputHooks().runLANFaxSetup = RunModalLANFaxSetupOnTicketForm;
    return true;
}();

} // namespace

} // namespace orvan
