// Bundles that ship inside the plug-in's own folder, under "PlugIns/": a
// folder with an Info.plist whose "CFBundleExecutable" names a shared
// library beside it. Loading one opens its library; the library stays loaded
// while the PrivateBundle lives.
#pragma once

#include "settings/Bundle.h"

#include <QString>

#include <memory>

namespace orvan {

class PrivateBundle
{
public:
    ~PrivateBundle();
    PrivateBundle(const PrivateBundle&) = delete;
    PrivateBundle& operator=(const PrivateBundle&) = delete;

    const Bundle& bundle() const { return m_bundle; }
    // The library's exported symbol of that name; null when it has none.
    void* function(const char* name) const;

private:
    friend bool LoadPrivateBundle(const Bundle*, const QString&, std::unique_ptr<PrivateBundle>*);
    PrivateBundle(const QString& folder, void* library);

    Bundle m_bundle;
    void* m_library;
};

// Clears *out, then loads "<host folder>/PlugIns/<name>" and its library.
// True only when the library was loaded; false with *out null when there is
// no host bundle, no such folder, no "CFBundleExecutable", or the library
// does not load (the reason goes to the standard error stream).
bool LoadPrivateBundle(const Bundle* host, const QString& name,
                       std::unique_ptr<PrivateBundle>* out);

} // namespace orvan
