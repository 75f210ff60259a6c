// The Job Notes panel as the host drives it: a pane of its own beside the
// shell, found through GetJobNotesPanelInterface. Works with or without its
// view (headless runs keep the values in the model only).
#pragma once

#include "paperoutput/JobNotesModel.h"
#include "paperoutput/JobNotesView.h"
#include "shell/ModelPanel.h"

namespace orvan {

class JobNotesPanel : public ModelPanel<JobNotesModel, JobNotesView>
{
public:
    using ModelPanel::ModelPanel;

    // Title "JobNotes".
    Description describe() const override { return describeAs(kJobNotesTitleKey); }
    // The names typed go into the input history only when the user printed:
    // the dialog was sent the OK command and the panel then wrote the job to
    // the ticket. A cancelled dialog, a printer change or a look at another
    // pane leaves the history alone.
    Status close() override;

protected:
    // The user's defaults choose the automatic names before the ticket is read.
    Status loadModel(PrintSession* session) override;
    Status syncModel(PrintSession* session, bool direction) override;

private:
    bool m_writtenForPrint = false;
};

} // namespace orvan
