// The sibling modules as the host's loader sees them.
#include <acdocman.h>
#include <rxregsvc.h>

#include "arx/ed/HostServices.h"

#include <gtest/gtest.h>

class SuiteModules : public testing::TestWithParam<const wchar_t*>
{
};

TEST_P(SuiteModules, LoadAndUnloadLeavingNothingBehind)
{
    const std::vector<std::wstring> commands = arxhost::CommandNames();
    const size_t modules = arxhost::LoadedModules().size();

    ASSERT_TRUE(acrxLoadModule(GetParam(), false));
    EXPECT_EQ(modules + 1, arxhost::LoadedModules().size());
    ASSERT_TRUE(acrxUnloadModule(GetParam()));

    EXPECT_EQ(modules, arxhost::LoadedModules().size());
    EXPECT_EQ(commands, arxhost::CommandNames());
}

TEST_P(SuiteModules, CanBeLoadedAgain)
{
    ASSERT_TRUE(acrxLoadModule(GetParam(), false));
    ASSERT_TRUE(acrxUnloadModule(GetParam()));
    ASSERT_TRUE(acrxLoadModule(GetParam(), false));
    EXPECT_TRUE(acrxUnloadModule(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Siblings, SuiteModules, testing::Values(L"ZNKTPub.arx", L"ZnAcadUiBase.arx"));
