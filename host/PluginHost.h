// Loads the plug-in folder and drives its panes as the system's printing
// manager would drive a dialog extension: factory, query-interface, then the
// ten operations. The dialog has the shell's pane first, then each pane the
// plug-in exports for itself (Special Pages, Job Notes), in the order of
// kStandalonePaneInterfaces; every operation below runs on every pane in that
// order, the headless runs included. Owns the library handle, the factory
// instance and the panes' interface references.
#pragma once

#include "host/PaneDriver.h"
#include "settings/OwnedHandle.h"

#include <QString>

#include <dlfcn.h>

#include <memory>
#include <vector>

namespace orvan {

class PluginHost
{
public:
    // Finds the plug-in folder: $ORVAN_PLUGIN_PATH when set, else the build
    // tree's folder when this program runs from the build tree, else the
    // installed folder beside the program (<prefix>/lib/orvan/...).
    static QString locatePluginFolder();

    // Loads the library named by the folder's Info.plist, asks its factory
    // for the dialog-extension interface and finds the standalone panes'
    // functions. nullptr with a message naming the path on any failure.
    static std::unique_ptr<PluginHost> load(const QString& folder, QString* error);
    ~PluginHost();

    QString folder() const { return m_folder; }

    const std::vector<std::unique_ptr<PaneDriver>>& panes() const { return m_panes; }
    PaneDriver& shell() const { return *m_panes.front(); }
    const PDEAPIVersion& apiVersion() const { return shell().apiVersion(); }

    // Each returns the first failure among the panes, having still run the
    // others. A pane whose Prolog fails takes no part until the next Prolog.
    Status prolog();
    // parents holds one pane widget per pane, in order; empty for a headless
    // run (the panes then keep their values in their models).
    Status initialize(const std::vector<QWidget*>& parents, PrintSession* session);
    Status sync(PrintSession* session, bool direction);
    Status summaryText(PropertyValue* titles, PropertyValue* values);
    Status open();
    Status close();
    Status terminate(Status status);

    // The shell pane's Prolog results.
    QString title() const { return shell().title(); }
    QString kind() const { return shell().kind(); }
    std::uint32_t maxWidth() const { return shell().maxWidth(); }
    std::uint32_t maxHeight() const { return shell().maxHeight(); }
    bool terminated() const { return !shell().running(); }

private:
    struct FactoryReleaser
    {
        void operator()(PlugInInstance* instance) const { instance->table->Release(instance); }
    };

    PluginHost() = default;
    template <class Operation> Status forEachRunningPane(Operation&& operation);

    QString m_folder;
    // Declared first, destroyed last: the panes and the factory run its code.
    // Opened with RTLD_NODELETE: Qt keeps metadata of the plug-in's widget
    // classes for the life of the process, so the code stays mapped.
    OwnedHandle<void, dlclose> m_library;
    std::unique_ptr<PlugInInstance, FactoryReleaser> m_factory;
    std::vector<std::unique_ptr<PaneDriver>> m_panes;
};

} // namespace orvan
