// Hooks for build-time customisation: each is called at the start of the
// shell operation of the same name and returns 0. Exported by name.
#pragma once

#include "settings/PrintSession.h"
#include "settings/Status.h"

namespace orvan {
class Bundle;
}

extern "C" {
orvan::Status OrvanPDEProlog();
// Stores the session as the process-wide current print session.
orvan::Status OrvanPDEInitialize(orvan::PrintSession* session);
orvan::Status OrvanPDEGetSummaryText();
orvan::Status OrvanPDESync();
orvan::Status OrvanPDEOpen();
orvan::Status OrvanPDEClose();
// Clears the process-wide current print session.
orvan::Status OrvanPDETerminate();
}
