#include "shell/PlugInRegistry.h"

#include <map>

namespace orvan {

namespace {
std::map<Uuid, int>& registry()
{
    static std::map<Uuid, int> instances;
    return instances;
}
} // namespace

void AddInstanceForFactory(const Uuid& factoryID)
{
    ++registry()[factoryID];
}

void RemoveInstanceForFactory(const Uuid& factoryID)
{
    auto it = registry().find(factoryID);
    if (it != registry().end() && --it->second <= 0)
        registry().erase(it);
}

int InstanceCountForFactory(const Uuid& factoryID)
{
    const auto it = registry().find(factoryID);
    return it == registry().end() ? 0 : it->second;
}

} // namespace orvan
