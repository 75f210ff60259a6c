// The plug-in's factory and reference counts, through the built plug-in as
// the Print dialog loads it. The plug-in and this test share the core
// library, so the factory registry seen here is the plug-in's own.
#include "shell/PDEInterface.h"
#include "shell/PlugInRegistry.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

using namespace orvan;

namespace {

class PluginFactory : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        // Never closed: Qt keeps metadata of the plug-in's classes.
        s_library = dlopen(ORVAN_PLUGIN_DIR "/OrvanFeatures.so", RTLD_NOW | RTLD_LOCAL);
        if (s_library)
            s_factory =
                reinterpret_cast<PlugInFactoryFunction>(dlsym(s_library, kPlugInFactoryName));
    }

    void SetUp() override
    {
        ASSERT_TRUE(s_library) << dlerror();
        ASSERT_TRUE(s_factory);
        m_baseline = InstanceCountForFactory(kOrvanFactoryID);
    }

    PlugInInstance* newInstance() const
    {
        PlugInInstance* instance = s_factory(nullptr, &kPDEPlugInType);
        EXPECT_TRUE(instance);
        return instance;
    }

    static inline void* s_library = nullptr;
    static inline PlugInFactoryFunction s_factory = nullptr;
    int m_baseline = 0;
};

TEST_F(PluginFactory, MakesInstancesOnlyForThePlugInType)
{
    constexpr Uuid others[] = {kOrvanFactoryID, kDialogExtensionInterfaceID, kBaseInterfaceID,
                               Uuid{}, *Uuid::parse("BDB091F4-E57F-11D3-B5CC-0050E4603278")};
    for (const Uuid& type : others)
        EXPECT_EQ(s_factory(nullptr, &type), nullptr);
    EXPECT_EQ(s_factory(nullptr, nullptr), nullptr);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline);
}

TEST_F(PluginFactory, BaseInterfaceIsTheInstanceWithOneMoreReference)
{
    PlugInInstance* instance = newInstance();
    ASSERT_TRUE(instance);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline + 1);
    void* object = nullptr;
    ASSERT_EQ(instance->table->QueryInterface(instance, kBaseInterfaceID, &object), kNoError);
    EXPECT_EQ(object, instance);
    // Created with one reference, the query added the second.
    EXPECT_EQ(instance->table->AddRef(instance), 3u);
    EXPECT_EQ(instance->table->Release(instance), 2u);
    EXPECT_EQ(instance->table->Release(instance), 1u);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline + 1);

    const auto release = instance->table->Release;
    const auto addRef = instance->table->AddRef;
    EXPECT_EQ(release(instance), 0u);
    // The last reference unregistered the factory.
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline);
    EXPECT_EQ(release(nullptr), 0u);
    EXPECT_EQ(addRef(nullptr), 0u);
}

TEST_F(PluginFactory, UnknownInterfaceGivesNoSuchInterfaceAndNull)
{
    PlugInInstance* instance = newInstance();
    ASSERT_TRUE(instance);
    int sentinel = 0;
    void* object = &sentinel;
    const Uuid unknown = *Uuid::parse("A996FD7E-B738-11D3-8519-0050E4603278");
    EXPECT_EQ(
        static_cast<std::uint32_t>(instance->table->QueryInterface(instance, unknown, &object)),
        0x80000004u);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(instance->table->QueryInterface(instance, kBaseInterfaceID, nullptr), kBadParameter);
    EXPECT_EQ(instance->table->Release(instance), 0u);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline);
}

TEST_F(PluginFactory, EachDialogExtensionQueryMakesItsOwnCountedObject)
{
    PlugInInstance* instance = newInstance();
    ASSERT_TRUE(instance);
    void* first = nullptr;
    void* second = nullptr;
    ASSERT_EQ(instance->table->QueryInterface(instance, kDialogExtensionInterfaceID, &first),
              kNoError);
    ASSERT_EQ(instance->table->QueryInterface(instance, kDialogExtensionInterfaceID, &second),
              kNoError);
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_NE(first, second);
    auto* a = static_cast<PDEInterfaceObject*>(first);
    auto* b = static_cast<PDEInterfaceObject*>(second);
    EXPECT_NE(a->table, b->table);

    // Releasing one clears the caller's pointer and leaves the other whole.
    ASSERT_EQ(a->table->Release(&a), kNoError);
    EXPECT_EQ(a, nullptr);
    PDEAPIVersion version{};
    ASSERT_EQ(b->table->GetAPIVersion(b, &version), kNoError);
    EXPECT_EQ(version.buildMajor, 1u);
    EXPECT_EQ(version.buildMinor, 0u);
    EXPECT_EQ(version.baseMajor, 1u);
    EXPECT_EQ(version.baseMinor, 0u);
    EXPECT_EQ(b->table->GetAPIVersion(b, nullptr), kBadParameter);

    // A retained object outlives one release.
    PDEInterfaceObject* kept = b;
    ASSERT_EQ(b->table->Retain(b), kNoError);
    ASSERT_EQ(b->table->Release(&b), kNoError);
    EXPECT_EQ(b, nullptr);
    version = {};
    ASSERT_EQ(kept->table->GetAPIVersion(kept, &version), kNoError);
    EXPECT_EQ(version.buildMajor, 1u);
    const auto releaseObject = kept->table->Release;
    ASSERT_EQ(releaseObject(&kept), kNoError);
    EXPECT_EQ(kept, nullptr);
    PDEInterfaceObject* none = nullptr;
    EXPECT_EQ(releaseObject(&none), kNoError);

    // Interface objects do not hold the factory: its own count does.
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline + 1);
    EXPECT_EQ(instance->table->Release(instance), 0u);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline);
}

TEST_F(PluginFactory, EveryInstanceRegistersTheFactoryUntilItsLastRelease)
{
    PlugInInstance* one = newInstance();
    PlugInInstance* two = newInstance();
    ASSERT_TRUE(one && two);
    EXPECT_NE(one, two);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline + 2);
    EXPECT_EQ(one->table->Release(one), 0u);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline + 1);
    EXPECT_EQ(two->table->Release(two), 0u);
    EXPECT_EQ(InstanceCountForFactory(kOrvanFactoryID), m_baseline);
}

} // namespace
