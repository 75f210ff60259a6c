// The Job Notes panel as the host drives it: a pane of its own beside the
// shell, found through GetJobNotesPanelInterface. Works with or without its
// view (headless runs keep the values in the model only).
#pragma once

#include "paperoutput/JobNotesModel.h"
#include "paperoutput/JobNotesView.h"
#include "shell/PanelBase.h"

#include <QPointer>

namespace orvan {

class JobNotesPanel : public PanelBase
{
public:
    // The bundle is the shell's unless given.
    JobNotesPanel();
    explicit JobNotesPanel(const Bundle* bundle);
    ~JobNotesPanel() override;

    // Title "JobNotes".
    Description describe() const override;
    // Loads the user's defaults; builds the view when there is a parent.
    Status initialize(QWidget* parent, PrintSession* session) override;
    Status sync(PrintSession* session, bool direction) override;
    Status summaryText(PropertyValue* titles, PropertyValue* values) override;
    // The names typed go into the input history only when the user printed:
    // the dialog was sent the OK command and the panel then wrote the job to
    // the ticket. A cancelled dialog, a printer change or a look at another
    // pane leaves the history alone.
    Status close() override;
    Status terminate(Status status) override;

    JobNotesModel& model() { return m_model; }
    JobNotesView* view() const { return m_view; }

private:
    const Bundle* m_bundle;
    JobNotesModel m_model;
    QPointer<JobNotesView> m_view;
    bool m_writtenForPrint = false;
};

} // namespace orvan
