// One pane of the plug-in, driven through its ten-slot table as the system's
// printing manager drives a dialog extension: the shell's pane (from the
// factory) or a panel the plug-in exports for a pane of its own. Owns its
// interface reference; terminates the pane when destroyed after Prolog.
#pragma once

#include "shell/PDEInterface.h"

#include <QString>

namespace orvan {

class PaneDriver
{
public:
    // Takes over one reference to object. exportedName is the function the
    // pane came from; empty for the shell's pane.
    PaneDriver(PDEInterfaceObject* object, QString exportedName);
    ~PaneDriver();
    PaneDriver(const PaneDriver&) = delete;
    PaneDriver& operator=(const PaneDriver&) = delete;

    QString exportedName() const { return m_exportedName; }
    bool isShell() const { return m_exportedName.isEmpty(); }

    Status prolog();
    Status initialize(QWidget* parent, PrintSession* session, void* hostReference);
    Status sync(PrintSession* session, bool direction);
    Status summaryText(PropertyValue* titles, PropertyValue* values);
    Status open();
    Status close();
    Status terminate(Status status);

    // After a successful Prolog and before Terminate.
    bool running() const { return m_prologDone && !m_terminated; }
    QString title() const { return m_title; }
    QString kind() const { return m_kind; }
    std::uint32_t maxWidth() const { return m_maxWidth; }
    std::uint32_t maxHeight() const { return m_maxHeight; }
    const PDEAPIVersion& apiVersion() const { return m_version; }

private:
    PDEInterfaceObject* m_object;
    QString m_exportedName;
    PDEContext m_context = nullptr;
    PDEAPIVersion m_version{};
    QString m_title;
    QString m_kind;
    std::uint32_t m_creator = 0;
    std::uint32_t m_maxWidth = 0;
    std::uint32_t m_maxHeight = 0;
    bool m_prologDone = false;
    bool m_terminated = false;
};

} // namespace orvan
