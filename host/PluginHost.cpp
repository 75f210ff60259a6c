#include "host/PluginHost.h"

#include "settings/PropertyList.h"
#include "shell/PanelNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

#include <cstdio>

#ifndef ORVAN_PLUGIN_BUILD_FOLDER
#define ORVAN_PLUGIN_BUILD_FOLDER ""
#endif
#ifndef ORVAN_PLUGIN_INSTALL_SUBDIR
#define ORVAN_PLUGIN_INSTALL_SUBDIR "lib/orvan/OrvanFeatures.plugin"
#endif

namespace orvan {

QString PluginHost::locatePluginFolder()
{
    const QString overridden = qEnvironmentVariable("ORVAN_PLUGIN_PATH");
    if (!overridden.isEmpty())
        return overridden;
    const QString programFolder = QCoreApplication::applicationDirPath();
    const QString buildFolder = QStringLiteral(ORVAN_PLUGIN_BUILD_FOLDER);
    // A program in the build tree uses the build tree's plug-in.
    if (!buildFolder.isEmpty() && !programFolder.isEmpty() &&
        QFileInfo(buildFolder).absolutePath() == QFileInfo(programFolder).absolutePath() &&
        QFileInfo(buildFolder).isDir())
        return buildFolder;
    const QString installed =
        QDir(programFolder)
            .absoluteFilePath(QStringLiteral("../") + QLatin1String(ORVAN_PLUGIN_INSTALL_SUBDIR));
    if (QFileInfo(installed).isDir())
        return QDir::cleanPath(installed);
    return buildFolder.isEmpty() ? QDir::cleanPath(installed) : buildFolder;
}

std::unique_ptr<PluginHost> PluginHost::load(const QString& folder, QString* error)
{
    auto fail = [error](const QString& why) {
        if (error)
            *error = why;
        return std::unique_ptr<PluginHost>();
    };
    QFile infoFile(folder + QStringLiteral("/Info.plist"));
    if (!infoFile.open(QIODevice::ReadOnly))
        return fail(
            QStringLiteral("no plug-in at %1 (cannot read %2)").arg(folder, infoFile.fileName()));
    PropertyListError parseError;
    const auto info = readPropertyList(infoFile.readAll(), &parseError);
    if (!info)
        return fail(QStringLiteral("the plug-in's %1 is broken: %2")
                        .arg(infoFile.fileName(), parseError.toString()));
    const PropertyValue* executable = info->find(QStringLiteral("CFBundleExecutable"));
    if (!executable || executable->toString().isEmpty())
        return fail(
            QStringLiteral("%1 names no library (CFBundleExecutable)").arg(infoFile.fileName()));
    const QString libraryPath = folder + QLatin1Char('/') + executable->toString();

    std::unique_ptr<PluginHost> host(new PluginHost);
    host->m_folder = folder;
    host->m_library.reset(
        dlopen(QFile::encodeName(libraryPath).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
    if (!host->m_library)
        return fail(QStringLiteral("cannot load the plug-in %1: %2")
                        .arg(libraryPath, QString::fromLocal8Bit(dlerror())));
    auto factory =
        reinterpret_cast<PlugInFactoryFunction>(dlsym(host->m_library.get(), kPlugInFactoryName));
    if (!factory)
        return fail(QStringLiteral("the plug-in %1 has no %2")
                        .arg(libraryPath, QLatin1String(kPlugInFactoryName)));
    host->m_factory.reset(factory(nullptr, &kPDEPlugInType));
    if (!host->m_factory)
        return fail(QStringLiteral("the plug-in %1 refused to make an instance").arg(libraryPath));
    void* object = nullptr;
    if (host->m_factory->table->QueryInterface(host->m_factory.get(), kDialogExtensionInterfaceID,
                                               &object) != kNoError ||
        !object)
        return fail(QStringLiteral("the plug-in %1 answers no dialog-extension interface")
                        .arg(libraryPath));
    host->m_panes.push_back(
        std::make_unique<PaneDriver>(static_cast<PDEInterfaceObject*>(object), QString()));
    for (const char* const* name = kStandalonePaneInterfaces; *name; ++name) {
        auto function =
            reinterpret_cast<PanelInterfaceFunction>(dlsym(host->m_library.get(), *name));
        PDEInterfaceObject* pane = nullptr;
        if (!function || function(&pane) != kNoError || !pane) {
            std::fprintf(stderr,
                         "orvan-print: the plug-in has no pane %s; the dialog goes on without it\n",
                         *name);
            continue;
        }
        host->m_panes.push_back(std::make_unique<PaneDriver>(pane, QLatin1String(*name)));
    }
    return host;
}

PluginHost::~PluginHost()
{
    // Panes terminate in order before the factory and the library go.
    for (auto& pane : m_panes)
        pane.reset();
}

template <class Operation> Status PluginHost::forEachRunningPane(Operation&& operation)
{
    Status first = kNoError;
    for (std::size_t i = 0; i < m_panes.size(); ++i) {
        if (!m_panes[i]->running())
            continue;
        const Status status = operation(*m_panes[i], i);
        if (first == kNoError)
            first = status;
    }
    return first;
}

Status PluginHost::prolog()
{
    Status first = kNoError;
    for (auto& pane : m_panes) {
        const Status status = pane->prolog();
        if (first == kNoError)
            first = status;
    }
    return first;
}

Status PluginHost::initialize(const std::vector<QWidget*>& parents, PrintSession* session)
{
    return forEachRunningPane([&](PaneDriver& pane, std::size_t i) {
        return pane.initialize(i < parents.size() ? parents[i] : nullptr, session, this);
    });
}

Status PluginHost::sync(PrintSession* session, bool direction)
{
    return forEachRunningPane(
        [&](PaneDriver& pane, std::size_t) { return pane.sync(session, direction); });
}

Status PluginHost::summaryText(PropertyValue* titles, PropertyValue* values)
{
    return forEachRunningPane(
        [&](PaneDriver& pane, std::size_t) { return pane.summaryText(titles, values); });
}

Status PluginHost::open()
{
    return forEachRunningPane([](PaneDriver& pane, std::size_t) { return pane.open(); });
}

Status PluginHost::close()
{
    return forEachRunningPane([](PaneDriver& pane, std::size_t) { return pane.close(); });
}

Status PluginHost::terminate(Status status)
{
    return forEachRunningPane(
        [&](PaneDriver& pane, std::size_t) { return pane.terminate(status); });
}

} // namespace orvan
