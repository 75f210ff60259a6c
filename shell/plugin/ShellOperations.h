// The shell's ten-slot operations as the dialog calls them (slots 4 to 10).
#pragma once

#include "settings/Bundle.h"
#include "shell/PDEInterface.h"

extern "C" {
__attribute__((visibility("default"))) const orvan::Bundle* GetPDEBundle();
}

namespace orvan {

// Registers the bundle's help book: its pages are files in the bundle, so
// there is nothing to register; 0 when the bundle has a location, -43 when
// its help folder is missing.
Status RegisterMyHelpBook(const Bundle* bundle);

Status ShellPrologOperation(PDEContext* context, std::uint32_t* creator, QString* kind,
                            QString* title, std::uint32_t* maxWidth, std::uint32_t* maxHeight);
Status ShellInitializeOperation(PDEContext context, std::uint32_t* flags, void* hostReference,
                                QWidget* parent, PrintSession* session);
Status ShellSyncOperation(PDEContext context, PrintSession* session, bool direction);
Status ShellGetSummaryTextOperation(PDEContext context, PropertyValue* titles,
                                    PropertyValue* values);
Status ShellOpenOperation(PDEContext context);
Status ShellCloseOperation(PDEContext context);
Status ShellTerminateOperation(PDEContext context, Status status);

} // namespace orvan
