// The arguments of the host program.
#include "host/CommandLine.h"

#include <gtest/gtest.h>

using arxhost::HostArguments;
using arxhost::ReadArguments;

TEST(CommandLine, DrawingsModulesAndScriptAreTold)
{
    const HostArguments read =
        ReadArguments({L"a.dxf", L"/ld", L"m.arx", L"b.dxf", L"-LD", L"n.arx", L"/B", L"tour.scr"});
    EXPECT_EQ(L"", read.error);
    EXPECT_EQ((std::vector<std::wstring>{L"a.dxf", L"b.dxf"}), read.drawings);
    EXPECT_EQ((std::vector<std::wstring>{L"m.arx", L"n.arx"}), read.modules);
    EXPECT_EQ(L"tour.scr", read.script);
}

TEST(CommandLine, NoArgumentsMeanAnInteractiveStart)
{
    const HostArguments read = ReadArguments({});
    EXPECT_EQ(L"", read.error);
    EXPECT_TRUE(read.drawings.empty());
    EXPECT_TRUE(read.script.empty());
}

TEST(CommandLine, UnknownSwitchIsAnError)
{
    EXPECT_NE(L"", ReadArguments({L"/x"}).error);
}

TEST(CommandLine, SwitchWithoutItsFileIsAnError)
{
    EXPECT_NE(L"", ReadArguments({L"/ld"}).error);
    EXPECT_NE(L"", ReadArguments({L"/ld", L"/b", L"a.scr"}).error);
}

TEST(CommandLine, CommandIsTold)
{
    const HostArguments read = ReadArguments({L"/c", L"ZOOM E", L"a.dxf"});
    EXPECT_EQ(L"", read.error);
    EXPECT_EQ(L"ZOOM E", read.command);
    EXPECT_EQ((std::vector<std::wstring>{L"a.dxf"}), read.drawings);
}

TEST(CommandLine, SecondCommandIsAnError)
{
    EXPECT_NE(L"", ReadArguments({L"/c", L"ZOOM", L"/c", L"NEW"}).error);
}

TEST(CommandLine, SecondScriptIsAnError)
{
    EXPECT_NE(L"", ReadArguments({L"/b", L"a.scr", L"/b", L"b.scr"}).error);
}
