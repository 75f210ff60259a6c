#include "shell/PDEHooks.h"

extern "C" {

orvan::Status OrvanPDEProlog()
{
    return orvan::kNoError;
}

orvan::Status OrvanPDEInitialize(orvan::PrintSession* session)
{
    orvan::SetCurrentPrintSession(session);
    return orvan::kNoError;
}

orvan::Status OrvanPDEGetSummaryText()
{
    return orvan::kNoError;
}

orvan::Status OrvanPDESync()
{
    return orvan::kNoError;
}

orvan::Status OrvanPDEOpen()
{
    return orvan::kNoError;
}

orvan::Status OrvanPDEClose()
{
    return orvan::kNoError;
}

orvan::Status OrvanPDETerminate()
{
    orvan::SetCurrentPrintSession(nullptr);
    return orvan::kNoError;
}
}
