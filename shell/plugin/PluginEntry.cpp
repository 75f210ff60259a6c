// The plug-in's entry points: the factory, its query-interface and reference
// counts, the shell's dialog-extension interface objects, GetPDEBundle and
// PDESync. Everything here is exported by name.
#include "settings/Bundle.h"
#include "shell/ExceptionGuard.h"
#include "shell/PDEInterface.h"
#include "shell/PDEShell.h"
#include "shell/PlugInRegistry.h"
#include "shell/plugin/ShellOperations.h"

#include <QFileInfo>

#include <dlfcn.h>

#include <memory>
#include <new>

using namespace orvan;

namespace {

struct FactoryInstance
{
    const PlugInInstanceTable* table;
    PlugInInstanceTable inlineTable;
    Uuid factoryID;
    std::uint32_t refCount;
};

struct ShellInterfaceObject
{
    const PDEInterfaceTable* table;
    std::int32_t refCount;
};

Status shellRetain(PDEInterfaceObject* self)
{
    if (self)
        ++reinterpret_cast<ShellInterfaceObject*>(self)->refCount;
    return kNoError;
}

Status shellRelease(PDEInterfaceObject** selfPointer)
{
    if (!selfPointer || !*selfPointer)
        return kNoError;
    auto* object = reinterpret_cast<ShellInterfaceObject*>(*selfPointer);
    *selfPointer = nullptr;
    if (--object->refCount == 0) {
        delete object->table;
        delete object;
    }
    return kNoError;
}

Status shellAPIVersion(PDEInterfaceObject*, PDEAPIVersion* version)
{
    if (!version)
        return kBadParameter;
    *version = PDEAPIVersion{1, 0, 1, 0};
    return kNoError;
}

std::uint32_t factoryAddRef(PlugInInstance* self)
{
    if (!self)
        return 0;
    return ++reinterpret_cast<FactoryInstance*>(self)->refCount;
}

std::uint32_t factoryRelease(PlugInInstance* self)
{
    auto* instance = reinterpret_cast<FactoryInstance*>(self);
    if (!instance || instance->refCount == 0)
        return 0;
    if (--instance->refCount == 0) {
        RemoveInstanceForFactory(instance->factoryID);
        delete instance;
        return 0;
    }
    return instance->refCount;
}

Status queryInterface(PlugInInstance* self, Uuid interfaceID, void** object)
{
    if (!object)
        return kBadParameter;
    if (interfaceID == kBaseInterfaceID) {
        factoryAddRef(self);
        *object = self;
        return kNoError;
    }
    if (interfaceID == kDialogExtensionInterfaceID) {
        auto* table = new (std::nothrow) PDEInterfaceTable{
            shellRetain,
            shellRelease,
            shellAPIVersion,
            ShellPrologOperation,
            ShellInitializeOperation,
            ShellSyncOperation,
            ShellGetSummaryTextOperation,
            ShellOpenOperation,
            ShellCloseOperation,
            ShellTerminateOperation,
        };
        auto* shell = table ? new (std::nothrow) ShellInterfaceObject{table, 1} : nullptr;
        if (!shell) {
            delete table;
            *object = nullptr;
            return kMissingContext;
        }
        *object = shell;
        return kNoError;
    }
    *object = nullptr;
    return kNoSuchInterface;
}

Status factoryQueryInterface(PlugInInstance* self, Uuid interfaceID, void** object)
{
    return GuardedStatus("QueryInterface",
                         [&] { return queryInterface(self, interfaceID, object); });
}

// The folder that holds this library.
QString pluginFolder()
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&pluginFolder), &info) || !info.dli_fname)
        return {};
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) PlugInInstance*
OrvanPDEPluginFactory(void*, const Uuid* requestedType)
{
    return GuardedCall<PlugInInstance*>("the plug-in factory", nullptr, [&]() -> PlugInInstance* {
        if (!requestedType || *requestedType != kPDEPlugInType)
            return nullptr;
        auto* instance = new (std::nothrow) FactoryInstance;
        if (!instance)
            return nullptr;
        instance->inlineTable =
            PlugInInstanceTable{nullptr, factoryQueryInterface, factoryAddRef, factoryRelease};
        instance->table = &instance->inlineTable;
        instance->factoryID = kOrvanFactoryID;
        instance->refCount = 1;
        AddInstanceForFactory(instance->factoryID);
        return reinterpret_cast<PlugInInstance*>(instance);
    });
}

// The plug-in's bundle: the folder this library lives in, opened once.
__attribute__((visibility("default"))) const Bundle* GetPDEBundle()
{
    return GuardedCall<const Bundle*>("GetPDEBundle", nullptr, [] {
        static const std::unique_ptr<Bundle> bundle = [] {
            auto opened = std::make_unique<Bundle>(pluginFolder());
            return opened->identifier() == kBundleIdentifier ? std::move(opened)
                                                             : std::unique_ptr<Bundle>();
        }();
        return static_cast<const Bundle*>(bundle.get());
    });
}

// Runs the shell's Sync on the shell context and the current print session
// (the session argument is not used), so a panel can force a full sync.
__attribute__((visibility("default"))) Status PDESync(PrintSession*, bool direction)
{
    return GuardedStatus("PDESync", [&] {
        return ShellSync(CurrentShellContext(), GetCurrentPrintSession(), direction);
    });
}

} // extern "C"
