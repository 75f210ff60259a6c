#include "host/PaneDriver.h"

namespace orvan {

PaneDriver::PaneDriver(PDEInterfaceObject* object, QString exportedName)
    : m_object(object), m_exportedName(std::move(exportedName))
{
    m_object->table->GetAPIVersion(m_object, &m_version);
}

PaneDriver::~PaneDriver()
{
    if (running())
        terminate(kNoError);
    m_object->table->Release(&m_object);
}

Status PaneDriver::prolog()
{
    const Status status = m_object->table->Prolog(&m_context, &m_creator, &m_kind, &m_title,
                                                  &m_maxWidth, &m_maxHeight);
    m_prologDone = status == kNoError;
    m_terminated = false;
    return status;
}

Status PaneDriver::initialize(QWidget* parent, PrintSession* session, void* hostReference)
{
    std::uint32_t flags = 0;
    return m_object->table->Initialize(m_context, &flags, hostReference, parent, session);
}

Status PaneDriver::sync(PrintSession* session, bool direction)
{
    return m_object->table->Sync(m_context, session, direction);
}

Status PaneDriver::summaryText(PropertyValue* titles, PropertyValue* values)
{
    return m_object->table->GetSummaryText(m_context, titles, values);
}

Status PaneDriver::open()
{
    return m_object->table->Open(m_context);
}

Status PaneDriver::close()
{
    return m_object->table->Close(m_context);
}

Status PaneDriver::terminate(Status status)
{
    const Status result = m_object->table->Terminate(m_context, status);
    m_context = nullptr;
    m_terminated = true;
    return result;
}

} // namespace orvan
