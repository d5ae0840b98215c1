// Names and arguments of the host's commands.
#include <afxwin.h>

#include "host/HostCommands.h"

#include <gtest/gtest.h>

using namespace arxhost;

TEST(HostCommands, NameMatchesWholeInAnyLetterCase)
{
    EXPECT_TRUE(HasName(L"ZOOM,Z,缩放", L"zoom"));
    EXPECT_TRUE(HasName(L"ZOOM,Z,缩放", L"Z"));
    EXPECT_TRUE(HasName(L"ZOOM,Z,缩放", L"缩放"));
    EXPECT_FALSE(HasName(L"ZOOM,Z,缩放", L"ZOO"));
    EXPECT_FALSE(HasName(L"ZOOM,Z,缩放", L""));
    EXPECT_FALSE(HasName(L"ZOOM,Z,缩放", L"ZOOM,Z"));
}

TEST(HostCommands, EveryNameBelongsToOneCommand)
{
    std::vector<std::wstring> firstNames;
    for (const auto& family : {DrawingCommands(), PaletteCommands(), ProgramCommands()})
    {
        for (const HostCommand& command : family)
        {
            const std::wstring names = command.names;
            firstNames.push_back(names.substr(0, names.find(L',')));
        }
    }
    for (const std::wstring& name : firstNames)
    {
        int owners = 0;
        for (const auto& family : {DrawingCommands(), PaletteCommands(), ProgramCommands()})
        {
            for (const HostCommand& command : family)
                owners += HasName(command.names, name) ? 1 : 0;
        }
        EXPECT_EQ(1, owners) << std::string(name.begin(), name.end());
    }
}

TEST(HostCommands, MissingWordIsToldWithTheUsage)
{
    try
    {
        NeedWord({L"a"}, 1, L"OPEN 文件");
        FAIL() << "no failure";
    }
    catch (const CommandFailure& failure)
    {
        EXPECT_NE(std::wstring::npos, failure.message.find(L"OPEN 文件"));
    }
}

TEST(HostCommands, OnlyWholeNumbersAreNumbers)
{
    EXPECT_EQ(-12, NeedNumber(L"-12"));
    for (const wchar_t* text : {L"", L"12x", L"1.5", L"99999999999999"})
        EXPECT_THROW(NeedNumber(text), CommandFailure);
}
