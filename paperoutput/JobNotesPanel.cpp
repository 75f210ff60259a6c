#include "paperoutput/JobNotesPanel.h"

#include "imagequality/PanelPane.h"
#include "imagequality/PanelText.h"

namespace orvan {

JobNotesPanel::JobNotesPanel() : JobNotesPanel(ShellBundle()) {}

JobNotesPanel::JobNotesPanel(const Bundle* bundle) : m_bundle(bundle) {}

JobNotesPanel::~JobNotesPanel()
{
    delete m_view;
}

PanelBase::Description JobNotesPanel::describe() const
{
    Description description;
    description.kind = kJobNotesKind;
    description.title = PanelText(m_bundle, kJobNotesTitleKey);
    return description;
}

Status JobNotesPanel::initialize(QWidget* parent, PrintSession*)
{
    m_model.loadDefaults();
    if (parent)
        m_view = new JobNotesView(m_model, m_bundle, parent);
    return kNoError;
}

Status JobNotesPanel::sync(PrintSession* session, bool direction)
{
    const Status status = m_model.sync(session, direction);
    if (direction && m_view)
        m_view->showModel();
    if (m_view)
        m_writtenForPrint = !direction && m_view->printRequested();
    return status;
}

Status JobNotesPanel::summaryText(PropertyValue* titles, PropertyValue* values)
{
    if (!titles || !values)
        return kBadParameter;
    m_model.appendSummary(m_bundle, titles, values);
    return kNoError;
}

Status JobNotesPanel::close()
{
    if (m_view)
        m_view->finalize(m_writtenForPrint);
    return kNoError;
}

Status JobNotesPanel::terminate(Status)
{
    delete m_view;
    return kNoError;
}

} // namespace orvan
