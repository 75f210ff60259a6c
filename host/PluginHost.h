// Loads the plug-in folder and drives its dialog-extension interface, as the
// system's printing manager would: factory, query-interface, then the ten
// operations. Owns the library handle and the interface references.
#pragma once

#include "shell/PDEInterface.h"

#include <QString>

#include <memory>

namespace orvan {

class PluginHost
{
public:
    // Finds the plug-in folder: $ORVAN_PLUGIN_PATH when set, else the build
    // tree's folder when this program runs from the build tree, else the
    // installed folder beside the program (<prefix>/lib/orvan/...).
    static QString locatePluginFolder();

    // Loads the library named by the folder's Info.plist and asks its factory
    // for the dialog-extension interface. nullptr with a message naming the
    // path on any failure.
    static std::unique_ptr<PluginHost> load(const QString& folder, QString* error);
    ~PluginHost();

    QString folder() const { return m_folder; }
    const PDEAPIVersion& apiVersion() const { return m_version; }

    Status prolog();
    Status initialize(QWidget* parent, PrintSession* session);
    Status sync(PrintSession* session, bool direction);
    Status summaryText(PropertyValue* titles, PropertyValue* values);
    Status open();
    Status close();
    Status terminate(Status status);

    QString title() const { return m_title; }
    QString kind() const { return m_kind; }
    std::uint32_t maxWidth() const { return m_maxWidth; }
    std::uint32_t maxHeight() const { return m_maxHeight; }
    bool terminated() const { return m_terminated; }

private:
    PluginHost() = default;

    QString m_folder;
    void* m_library = nullptr;
    PlugInInstance* m_factory = nullptr;
    PDEInterfaceObject* m_interface = nullptr;
    PDEAPIVersion m_version{};
    PDEContext m_context = nullptr;
    QString m_title;
    QString m_kind;
    std::uint32_t m_creator = 0;
    std::uint32_t m_maxWidth = 0;
    std::uint32_t m_maxHeight = 0;
    bool m_prologDone = false;
    bool m_terminated = false;
};

} // namespace orvan
