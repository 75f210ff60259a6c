// The plug-in's factory and reference counts, through the built plug-in as
// the Print dialog loads it. The plug-in and this test share the core
// library, so the factory registry seen here is the plug-in's own.
#include "shell/PDEInterface.h"
#include "shell/PDEShell.h"
#include "shell/PanelNames.h"
#include "shell/PlugInRegistry.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

using namespace orvan;

namespace {

class PluginFactory : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // Never closed: Qt keeps metadata of the plug-in's classes.
        m_library = dlopen(ORVAN_PLUGIN_DIR "/OrvanFeatures.so", RTLD_NOW | RTLD_LOCAL);
        ASSERT_TRUE(m_library) << dlerror();
        m_factory = reinterpret_cast<PlugInFactoryFunction>(dlsym(m_library, kPlugInFactoryName));
        ASSERT_TRUE(m_factory);
        m_baseline = InstanceCountForFactory(kOrvanFactoryID);
    }

    // How many instances hold the factory beyond those before the test.
    int registered() const { return InstanceCountForFactory(kOrvanFactoryID) - m_baseline; }

    void* m_library = nullptr;
    PlugInFactoryFunction m_factory = nullptr;
    int m_baseline = 0;
};

// Every name the shell's table and the host's pane list give is exported,
// and hands out a panel whose table has all ten operations.
TEST_F(PluginFactory, EveryListedPanelFunctionIsExported)
{
    std::vector<const char*> names;
    for (const char* const* name = _PanelInterfaces; *name; ++name)
        names.push_back(*name);
    for (const char* const* name = kStandalonePaneInterfaces; *name; ++name)
        names.push_back(*name);
    ASSERT_GE(names.size(), 2u);
    for (const char* name : names) {
        SCOPED_TRACE(name);
        auto function = reinterpret_cast<PanelInterfaceFunction>(dlsym(m_library, name));
        ASSERT_TRUE(function) << "not exported";
        PDEInterfaceObject* panel = nullptr;
        ASSERT_EQ(function(&panel), kNoError);
        ASSERT_TRUE(panel && panel->table);
        const PDEInterfaceTable& t = *panel->table;
        for (const void* slot :
             {(const void*)t.Retain, (const void*)t.Release, (const void*)t.GetAPIVersion,
              (const void*)t.Prolog, (const void*)t.Initialize, (const void*)t.Sync,
              (const void*)t.GetSummaryText, (const void*)t.Open, (const void*)t.Close,
              (const void*)t.Terminate})
            EXPECT_TRUE(slot);
    }
}

// Only the plug-in type makes an instance, and each holds the factory until
// its last release.
TEST_F(PluginFactory, InstancesOfThePlugInTypeHoldTheFactoryUntilTheirLastRelease)
{
    constexpr Uuid others[] = {kOrvanFactoryID, kDialogExtensionInterfaceID, kBaseInterfaceID,
                               Uuid{}, *Uuid::parse("BDB091F4-E57F-11D3-B5CC-0050E4603278")};
    for (const Uuid& type : others)
        EXPECT_EQ(m_factory(nullptr, &type), nullptr);
    EXPECT_EQ(m_factory(nullptr, nullptr), nullptr);
    EXPECT_EQ(registered(), 0);
    PlugInInstance* one = m_factory(nullptr, &kPDEPlugInType);
    PlugInInstance* two = m_factory(nullptr, &kPDEPlugInType);
    ASSERT_TRUE(one && two);
    EXPECT_NE(one, two);
    EXPECT_EQ(registered(), 2);

    // The base interface is the instance itself, with one more reference.
    void* object = nullptr;
    ASSERT_EQ(one->table->QueryInterface(one, kBaseInterfaceID, &object), kNoError);
    EXPECT_EQ(object, one);
    EXPECT_EQ(one->table->AddRef(one), 3u);
    EXPECT_EQ(one->table->Release(one), 2u);
    EXPECT_EQ(one->table->Release(one), 1u);
    EXPECT_EQ(registered(), 2);

    // An unknown interface: its error code and a null object.
    object = &object;
    const Uuid unknown = *Uuid::parse("A996FD7E-B738-11D3-8519-0050E4603278");
    EXPECT_EQ(static_cast<std::uint32_t>(one->table->QueryInterface(one, unknown, &object)),
              0x80000004u);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(one->table->QueryInterface(one, kBaseInterfaceID, nullptr), kBadParameter);

    const auto release = one->table->Release;
    const auto addRef = one->table->AddRef;
    EXPECT_EQ(release(one), 0u);
    EXPECT_EQ(registered(), 1);
    EXPECT_EQ(release(two), 0u);
    EXPECT_EQ(registered(), 0);
    EXPECT_EQ(release(nullptr), 0u);
    EXPECT_EQ(addRef(nullptr), 0u);
}

TEST_F(PluginFactory, EachDialogExtensionQueryMakesItsOwnCountedObject)
{
    PlugInInstance* instance = m_factory(nullptr, &kPDEPlugInType);
    ASSERT_TRUE(instance);
    PDEInterfaceObject* a = nullptr;
    PDEInterfaceObject* b = nullptr;
    ASSERT_EQ(instance->table->QueryInterface(instance, kDialogExtensionInterfaceID,
                                              reinterpret_cast<void**>(&a)),
              kNoError);
    ASSERT_EQ(instance->table->QueryInterface(instance, kDialogExtensionInterfaceID,
                                              reinterpret_cast<void**>(&b)),
              kNoError);
    ASSERT_TRUE(a && b);
    EXPECT_NE(a, b);
    EXPECT_NE(a->table, b->table);

    // Releasing one clears the caller's pointer and leaves the other whole.
    ASSERT_EQ(a->table->Release(&a), kNoError);
    EXPECT_EQ(a, nullptr);
    PDEAPIVersion version{};
    EXPECT_EQ(b->table->GetAPIVersion(b, &version), kNoError);
    EXPECT_EQ(b->table->GetAPIVersion(b, nullptr), kBadParameter);

    // A retained object outlives one release.
    PDEInterfaceObject* kept = b;
    ASSERT_EQ(b->table->Retain(b), kNoError);
    ASSERT_EQ(b->table->Release(&b), kNoError);
    EXPECT_EQ(b, nullptr);
    EXPECT_EQ(kept->table->GetAPIVersion(kept, &version), kNoError);
    const auto releaseObject = kept->table->Release;
    ASSERT_EQ(releaseObject(&kept), kNoError);
    EXPECT_EQ(kept, nullptr);
    EXPECT_EQ(releaseObject(&kept), kNoError); // a null object is no error

    // Interface objects do not hold the factory: the instance does.
    EXPECT_EQ(registered(), 1);
    EXPECT_EQ(instance->table->Release(instance), 0u);
    EXPECT_EQ(registered(), 0);
}

} // namespace
