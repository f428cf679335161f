// The built library loaded exactly as a host loads it.
#include "Source/IDlgStat2.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

TEST(HostLoad, DlopenFindsTheUnmangledFactoryAndBuildsTheModule)
{
    kaltest::FakeHost host;
    void* library = dlopen(KAL_MODULE_PATH, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    auto factory = reinterpret_cast<GetModuleFactoryFn>(dlsym(library, "GetModuleFactory"));
    ASSERT_NE(factory, nullptr) << dlerror();
    IModule* module = factory(&host);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(module->GetGlobal(), &host);
    auto* dialogs = dynamic_cast<IDlgStat2*>(module);
    ASSERT_NE(dialogs, nullptr);
    EXPECT_NE(dialogs->GetAnalysisofVarianceMsg(), nullptr);
    EXPECT_NE(dialogs->GetStat2SingleMenuItemsMsg(), nullptr);
    module->Release();
    EXPECT_EQ(dlclose(library), 0);
}
