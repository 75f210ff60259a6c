// Dialogs of other subsystems that the Paper/Output panel opens: the covers
// dialog of the special pages and the LAN fax setup. The plug-in sets them
// when it loads (the subsystem that provides a dialog sets its hook); while one is not set
// the panel's button for it is disabled and the OK guard's fax setup does
// nothing.
#pragma once

#include "settings/PropertyValue.h"
#include "specialpages/Cover.h"
#include "stock/Stock.h"

#include <memory>

class QWidget;

namespace orvan {

class Bundle;

// Edits the covers in place; the back cover may be edited only when a front
// or back cover exists. True on OK.
using CoversDialogFunction = bool (*)(const Bundle* bundle, std::unique_ptr<Cover>& frontCover,
                                      std::unique_ptr<Cover>& backCover, const Stock& jobLevelStock,
                                      QWidget* parent);
// Edits the fax options dictionary and the recipient list in place. True on OK.
using LANFaxSetupFunction = bool (*)(const Bundle* bundle, PropertyValue& faxOptions,
                                     PropertyValue& faxRecipientList, QWidget* parent);

struct PaperOutputDialogHooks
{
    CoversDialogFunction runCoversDialog = nullptr;
    LANFaxSetupFunction runLANFaxSetup = nullptr;
};

// The process-wide hooks (one instance, in the widgets library).
PaperOutputDialogHooks& PaperOutputHooks();

} // namespace orvan
