// The base of this plug-in's panels and the table of operations that drives
// them. A panel's context is the panel object itself: Prolog creates it,
// Terminate deletes it, the other operations dispatch to it. Every operation
// runs behind the exception guard, so no exception leaves a panel.
#pragma once

#include "shell/ExceptionGuard.h"
#include "shell/PDEShell.h"

#include <QString>

#include <new>

class QWidget;

namespace orvan {

class PanelBase : public PanelContextBase
{
public:
    struct Description
    {
        QString kind;
        QString title;
        std::uint32_t creator = kPaneKindCreator;
        std::uint32_t maxWidth = 540;
        std::uint32_t maxHeight = 491;
    };

    virtual Description describe() const = 0;
    // parent is the panel's pane inside the shell, or null when the dialog
    // runs headless: the panel then keeps its values in its model only.
    virtual Status initialize(QWidget* parent, PrintSession* session) = 0;
    virtual Status sync(PrintSession* session, bool direction) = 0;
    // Appends title/value pairs of the panel's settings to the two arrays.
    virtual Status summaryText(PropertyValue* titles, PropertyValue* values) = 0;
    virtual Status open() { return kNoError; }
    virtual Status close() { return kNoError; }
    virtual Status terminate(Status) { return kNoError; }
};

namespace panel_table {

inline PanelBase* panelOf(PDEContext context)
{
    return static_cast<PanelBase*>(static_cast<PanelContextBase*>(context));
}

inline Status retain(PDEInterfaceObject*)
{
    return kNoError;
}
inline Status release(PDEInterfaceObject** self)
{
    if (self)
        *self = nullptr;
    return kNoError;
}
inline Status apiVersion(PDEInterfaceObject*, PDEAPIVersion* version)
{
    if (!version)
        return kBadParameter;
    *version = PDEAPIVersion{1, 0, 1, 0};
    return kNoError;
}

template <class Panel>
Status prolog(PDEContext* context, std::uint32_t* creator, QString* kind, QString* title,
              std::uint32_t* maxWidth, std::uint32_t* maxHeight)
{
    return GuardedStatus("panel Prolog", [&] {
        if (!context)
            return kBadParameter;
        auto* panel = new (std::nothrow) Panel;
        if (!panel)
            return kMissingContext;
        const PanelBase::Description description = panel->describe();
        *context = static_cast<PanelContextBase*>(static_cast<PanelBase*>(panel));
        if (creator)
            *creator = description.creator;
        if (kind)
            *kind = description.kind;
        if (title)
            *title = description.title;
        if (maxWidth)
            *maxWidth = description.maxWidth;
        if (maxHeight)
            *maxHeight = description.maxHeight;
        return kNoError;
    });
}

inline Status initialize(PDEContext context, std::uint32_t* flags, void*, QWidget* parent,
                         PrintSession* session)
{
    if (!context)
        return kMissingContext;
    if (flags)
        *flags = 0;
    return GuardedStatus("panel Initialize",
                         [&] { return panelOf(context)->initialize(parent, session); });
}
inline Status sync(PDEContext context, PrintSession* session, bool direction)
{
    if (!context || !session)
        return kSyncMissingContext;
    return GuardedStatus("panel Sync", [&] { return panelOf(context)->sync(session, direction); });
}
inline Status summaryText(PDEContext context, PropertyValue* titles, PropertyValue* values)
{
    if (!context)
        return kMissingContext;
    return GuardedStatus("panel GetSummaryText",
                         [&] { return panelOf(context)->summaryText(titles, values); });
}
inline Status open(PDEContext context)
{
    return context ? GuardedStatus("panel Open", [&] { return panelOf(context)->open(); })
                   : kMissingContext;
}
inline Status close(PDEContext context)
{
    return context ? GuardedStatus("panel Close", [&] { return panelOf(context)->close(); })
                   : kMissingContext;
}
// The panel is deleted even when its own terminate throws.
inline Status terminate(PDEContext context, Status status)
{
    if (!context)
        return kMissingContext;
    PanelBase* panel = panelOf(context);
    const Status result =
        GuardedStatus("panel Terminate", [&] { return panel->terminate(status); });
    delete panel;
    return result;
}

} // namespace panel_table

// The ten-slot table of a panel class, one per class.
template <class Panel> const PDEInterfaceTable* PanelInterfaceTable()
{
    static const PDEInterfaceTable table{
        panel_table::retain,        panel_table::release,    panel_table::apiVersion,
        panel_table::prolog<Panel>, panel_table::initialize, panel_table::sync,
        panel_table::summaryText,   panel_table::open,       panel_table::close,
        panel_table::terminate,
    };
    return &table;
}

// The interface object a Get...PanelInterface function hands out: one static
// object per panel class, whose retain and release do nothing.
template <class Panel> Status GetPanelInterface(PDEInterfaceObject** panel)
{
    if (!panel)
        return kBadParameter;
    static PDEInterfaceObject object{PanelInterfaceTable<Panel>()};
    *panel = &object;
    return kNoError;
}

} // namespace orvan
