#include "host/PluginHost.h"

#include "settings/PropertyList.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

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
    const QString installed = QDir(programFolder).absoluteFilePath(QStringLiteral("../") +
                                                                   QLatin1String(ORVAN_PLUGIN_INSTALL_SUBDIR));
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
        return fail(QStringLiteral("no plug-in at %1 (cannot read %2)").arg(folder, infoFile.fileName()));
    PropertyListError parseError;
    const auto info = readPropertyList(infoFile.readAll(), &parseError);
    if (!info)
        return fail(QStringLiteral("the plug-in's %1 is broken: %2").arg(infoFile.fileName(), parseError.toString()));
    const PropertyValue* executable = info->find(QStringLiteral("CFBundleExecutable"));
    if (!executable || executable->toString().isEmpty())
        return fail(QStringLiteral("%1 names no library (CFBundleExecutable)").arg(infoFile.fileName()));
    const QString libraryPath = folder + QLatin1Char('/') + executable->toString();

    std::unique_ptr<PluginHost> host(new PluginHost);
    host->m_folder = folder;
    host->m_library = dlopen(QFile::encodeName(libraryPath).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!host->m_library)
        return fail(QStringLiteral("cannot load the plug-in %1: %2").arg(libraryPath, QString::fromLocal8Bit(dlerror())));
    auto factory = reinterpret_cast<PlugInFactoryFunction>(dlsym(host->m_library, kPlugInFactoryName));
    if (!factory)
        return fail(QStringLiteral("the plug-in %1 has no %2").arg(libraryPath, QLatin1String(kPlugInFactoryName)));
    host->m_factory = factory(nullptr, &kPDEPlugInType);
    if (!host->m_factory)
        return fail(QStringLiteral("the plug-in %1 refused to make an instance").arg(libraryPath));
    void* object = nullptr;
    if (host->m_factory->table->QueryInterface(host->m_factory, kDialogExtensionInterfaceID, &object) != kNoError ||
        !object)
        return fail(QStringLiteral("the plug-in %1 answers no dialog-extension interface").arg(libraryPath));
    host->m_interface = static_cast<PDEInterfaceObject*>(object);
    host->m_interface->table->GetAPIVersion(host->m_interface, &host->m_version);
    return host;
}

PluginHost::~PluginHost()
{
    if (m_prologDone && !m_terminated)
        terminate(kNoError);
    if (m_interface)
        m_interface->table->Release(&m_interface);
    if (m_factory)
        m_factory->table->Release(m_factory);
    // The library stays loaded: Qt keeps metadata of the plug-in's widget
    // classes for the life of the process.
}

Status PluginHost::prolog()
{
    const Status status =
        m_interface->table->Prolog(&m_context, &m_creator, &m_kind, &m_title, &m_maxWidth, &m_maxHeight);
    m_prologDone = status == kNoError;
    m_terminated = false;
    return status;
}

Status PluginHost::initialize(QWidget* parent, PrintSession* session)
{
    std::uint32_t flags = 0;
    return m_interface->table->Initialize(m_context, &flags, this, parent, session);
}

Status PluginHost::sync(PrintSession* session, bool direction)
{
    return m_interface->table->Sync(m_context, session, direction);
}

Status PluginHost::summaryText(PropertyValue* titles, PropertyValue* values)
{
    return m_interface->table->GetSummaryText(m_context, titles, values);
}

Status PluginHost::open()
{
    return m_interface->table->Open(m_context);
}

Status PluginHost::close()
{
    return m_interface->table->Close(m_context);
}

Status PluginHost::terminate(Status status)
{
    const Status result = m_interface->table->Terminate(m_context, status);
    m_context = nullptr;
    m_terminated = true;
    return result;
}

} // namespace orvan
