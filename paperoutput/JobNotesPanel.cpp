#include "paperoutput/JobNotesPanel.h"

namespace orvan {

Status JobNotesPanel::loadModel(PrintSession*)
{
    model().loadDefaults();
    return kNoError;
}

Status JobNotesPanel::syncModel(PrintSession* session, bool direction)
{
    if (view())
        m_writtenForPrint = !direction && view()->printRequested();
    return model().sync(session, direction);
}

Status JobNotesPanel::close()
{
    if (view())
        view()->finalize(m_writtenForPrint);
    return kNoError;
}

} // namespace orvan
