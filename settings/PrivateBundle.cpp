#include "settings/PrivateBundle.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include <dlfcn.h>

namespace orvan {

PrivateBundle::PrivateBundle(const QString& folder, void* library)
    : m_bundle(folder), m_library(library)
{
}

PrivateBundle::~PrivateBundle()
{
    dlclose(m_library);
}

void* PrivateBundle::function(const char* name) const
{
    return name ? dlsym(m_library, name) : nullptr;
}

bool LoadPrivateBundle(const Bundle* host, const QString& name, std::unique_ptr<PrivateBundle>* out)
{
    if (!out)
        return false;
    out->reset();
    if (!host || name.isEmpty() || name.contains(QLatin1Char('/')))
        return false;
    const QString folder = host->path() + QStringLiteral("/PlugIns/") + name;
    const Bundle candidate(folder);
    const QString executable =
        candidate.infoDictionary().find(QStringLiteral("CFBundleExecutable"))
            ? candidate.infoDictionary().find(QStringLiteral("CFBundleExecutable"))->toString()
            : QString();
    if (executable.isEmpty() || executable.contains(QLatin1Char('/')))
        return false;
    const QString library = folder + QLatin1Char('/') + executable;
    if (!QFileInfo(library).isFile())
        return false;
    void* handle = dlopen(QFile::encodeName(library).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        std::fprintf(stderr, "LoadPrivateBundle(): %s\n", dlerror());
        return false;
    }
    out->reset(new PrivateBundle(folder, handle));
    return true;
}

} // namespace orvan
