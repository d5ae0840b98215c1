#include "arx/ed/HostServices.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace
{

// Collects what the test modules and the loader print.
class Loader : public testing::Test, public arxhost::IPrintSink
{
protected:
    void SetUp() override { arxhost::SetPrintSink(this); }
    void TearDown() override
    {
        arxhost::UnloadAllModules();
        arxhost::Reset();
    }
    void Print(const wchar_t* text) override { printed += text; }

    // What was printed since the last call.
    std::wstring Take()
    {
        std::wstring taken;
        taken.swap(printed);
        return taken;
    }

    std::wstring printed;
};

class LinkerEvents : public AcRxDLinkerReactor
{
public:
    void rxAppWillBeLoaded(const ACHAR*) override { text += L"will load,"; }
    void rxAppLoaded(const ACHAR*) override { text += L"loaded,"; }
    void rxAppLoadAborted(const ACHAR*) override { text += L"load aborted,"; }
    void rxAppWillBeUnloaded(const ACHAR*) override { text += L"will unload,"; }
    void rxAppUnloaded(const ACHAR*) override { text += L"unloaded,"; }
    void rxAppUnloadAborted(const ACHAR*) override { text += L"unload aborted,"; }

    std::wstring text;
};

TEST_F(Loader, StartsAModuleWithTheInitMessage)
{
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderGood.arx"));
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    EXPECT_EQ(Take(), L"Good:1 ");
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderGood.arx"));
    EXPECT_TRUE(acrxAppIsLoaded(L"LOADERGOOD.ARX"));
}

TEST_F(Loader, AddsTheExtensionWhereItIsMissing)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood", true));
    EXPECT_TRUE(acrxUnloadModule(L"LoaderGood"));
}

TEST_F(Loader, CountsLoadsAndUnloadsAtTheLast)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    Take();
    EXPECT_TRUE(acrxUnloadModule(L"LoaderGood.arx"));
    EXPECT_EQ(Take(), L"");
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderGood.arx"));
    EXPECT_TRUE(acrxUnloadModule(L"LoaderGood.arx"));
    EXPECT_EQ(Take(), L"Good:2 ");
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderGood.arx"));
    EXPECT_FALSE(acrxUnloadModule(L"LoaderGood.arx"));
}

TEST_F(Loader, AsCommandLoadsOnceOnly)
{
    EXPECT_TRUE(acrxLoadModule(L"LoaderGood.arx", true, true));
    EXPECT_FALSE(acrxLoadModule(L"LoaderGood.arx", true, true));
    EXPECT_TRUE(acrxUnloadModule(L"LoaderGood.arx", true));
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderGood.arx"));
}

TEST_F(Loader, AsCommandKeepsWhatOthersCountOn)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    EXPECT_FALSE(acrxUnloadModule(L"LoaderGood.arx", true));
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderGood.arx"));
}

TEST_F(Loader, ModuleCanBeLoadedAgain)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    ASSERT_TRUE(acrxUnloadModule(L"LoaderGood.arx"));
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    EXPECT_EQ(Take(), L"Good:1 Good:2 Good:1 ");
}

TEST_F(Loader, ModuleLoadsAndUnloadsAnother)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderParent.arx", true));
    EXPECT_EQ(Take(), L"Good:1 Parent:registers Parent:1 ");
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderGood.arx"));
    ASSERT_TRUE(acrxUnloadModule(L"LoaderParent.arx"));
    EXPECT_EQ(Take(), L"Parent:2 Good:2 ");
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderGood.arx"));
}

TEST_F(Loader, SharedModuleStaysForTheOther)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    ASSERT_TRUE(acrxLoadModule(L"LoaderParent.arx", true));
    ASSERT_TRUE(acrxUnloadModule(L"LoaderParent.arx"));
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderGood.arx"));
}

TEST_F(Loader, MissingFileIsReported)
{
    EXPECT_FALSE(acrxLoadModule(L"NoSuchModule.arx", true));
    const std::wstring text = Take();
    EXPECT_EQ(text.find(L"\n无法加载模块 NoSuchModule.arx：找不到文件，找过的文件夹："), 0u)
        << "it says where it looked";
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    *(wcsrchr(program, L'\\') + 1) = L'\0';
    EXPECT_NE(text.find(program), std::wstring::npos);
    EXPECT_FALSE(acrxLoadModule(L"C:\\no such folder\\a.arx", true));
    EXPECT_EQ(Take(), L"\n无法加载模块 C:\\no such folder\\a.arx：找不到文件。\n");
}

TEST_F(Loader, FileThatIsNoModuleIsToldFromOneOf32Bit)
{
    struct Row
    {
        const char* name;
        std::string bytes;
        const wchar_t* words;
    };
    // The headers of a 32-bit program: mark, offset of the second header, machine.
    std::string small(0x100, '\0');
    small.replace(0, 2, "MZ");
    small[0x3C] = '\x40';
    small.replace(0x40, 6, std::string("PE\0\0\x4C\x01", 6));
    const Row rows[] = {
        {"a text", "hello, this is no module", L"不是程序模块"},
        {"an empty file", "", L"不是程序模块"},
        {"a module of 32 bit", small, L"不是 64 位模块"},
    };
    for (const Row& row : rows)
    {
        wchar_t path[MAX_PATH] = L"";
        GetTempPathW(MAX_PATH, path);
        wcscat(path, L"loader_test.arx");
        std::ofstream(std::filesystem::path(path), std::ios::binary) << row.bytes;
        EXPECT_FALSE(acrxLoadModule(path, true)) << row.name;
        EXPECT_NE(Take().find(row.words), std::wstring::npos) << row.name;
        DeleteFileW(path);
    }
}

TEST_F(Loader, MissingDllIsNamed)
{
    EXPECT_FALSE(acrxLoadModule(L"LoaderNeedy.arx", true));
    const std::wstring text = Take();
    EXPECT_NE(text.find(L"缺少它所依赖的文件 LoaderGone.dll"), std::wstring::npos);
    EXPECT_NE(text.find(L"请把该文件放到"), std::wstring::npos) << "it says what to do";
}

TEST_F(Loader, FailureIsSilentUnlessPrintingIsAskedFor)
{
    EXPECT_FALSE(acrxLoadModule(L"NoSuchModule.arx", false));
    EXPECT_EQ(Take(), L"");
    EXPECT_FALSE(acrxLoadModule(nullptr, false));
    EXPECT_FALSE(acrxLoadModule(L"", false));
}

TEST_F(Loader, ModuleWithoutEntryPointIsRefused)
{
    EXPECT_FALSE(acrxLoadModule(L"LoaderNoEntry.arx", true));
    EXPECT_NE(Take().find(L"没有入口点 acrxEntryPoint"), std::wstring::npos);
    EXPECT_EQ(GetModuleHandleW(L"LoaderNoEntry.arx"), nullptr);
}

TEST_F(Loader, ModuleWithoutVersionIsRefusedBeforeItStarts)
{
    EXPECT_FALSE(acrxLoadModule(L"LoaderNoVersion.arx", true));
    const std::wstring text = Take();
    EXPECT_NE(text.find(L"acrxGetApiVersion"), std::wstring::npos);
    EXPECT_EQ(text.find(L"NoVersion:1"), std::wstring::npos);
}

TEST_F(Loader, ModuleOfAnotherGenerationIsRefusedBeforeItStarts)
{
    EXPECT_FALSE(acrxLoadModule(L"LoaderOldVersion.arx", true));
    const std::wstring text = Take();
    EXPECT_NE(text.find(L"接口版本 17"), std::wstring::npos);
    EXPECT_EQ(text.find(L"OldVersion:1"), std::wstring::npos);
}

TEST_F(Loader, ModuleThatRefusesToStartIsUnloadedWithItsCommands)
{
    EXPECT_FALSE(acrxLoadModule(L"LoaderRefusing.arx", true));
    EXPECT_EQ(Take(), L"Refusing:1 \n无法加载模块 LoaderRefusing.arx：它拒绝启动（对初始化消息答复了错误）。\n");
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderRefusing.arx"));
    EXPECT_EQ(GetModuleHandleW(L"LoaderRefusing.arx"), nullptr);
    EXPECT_FALSE(arxhost::ExecuteCommand(L"REFUSINGCMD"));
}

TEST_F(Loader, ModuleMayRefuseToEnd)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderClinging.arx", true));
    EXPECT_FALSE(acrxUnloadModule(L"LoaderClinging.arx"));
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderClinging.arx"));
    EXPECT_TRUE(acrxUnloadModule(L"LoaderClinging.arx"));
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderClinging.arx"));
}

TEST_F(Loader, ModuleThatIsStartingIsNotUnloaded)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderImpatient.arx", true));
    EXPECT_EQ(Take(), L"Impatient:1 refused ");
    EXPECT_TRUE(acrxUnloadModule(L"LoaderImpatient.arx"));
    EXPECT_EQ(Take(), L"Impatient:2 ");
}

TEST_F(Loader, LockedModuleStaysUntilTheHostEnds)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderLocked.arx", true));
    EXPECT_TRUE(acrxApplicationIsLocked(L"LoaderLocked.arx"));
    EXPECT_FALSE(acrxUnloadModule(L"LoaderLocked.arx"));
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderLocked.arx"));
    Take();
    arxhost::UnloadAllModules();
    EXPECT_EQ(Take(), L"Locked:8 Locked:2 ");
    EXPECT_FALSE(acrxAppIsLoaded(L"LoaderLocked.arx"));
}

TEST_F(Loader, UnlockingByModuleIsSeen)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    EXPECT_FALSE(acrxApplicationIsLocked(L"LoaderGood.arx"));
    EXPECT_TRUE(acrxDynamicLinker->isAppMDIAware(L"LoaderGood.arx"));
}

TEST_F(Loader, OnlyTheInitPacketIsAnApplicationId)
{
    int something = 0;
    EXPECT_FALSE(acrxUnlockApplication(&something));
    EXPECT_FALSE(acrxLockApplication(nullptr));
    EXPECT_FALSE(acrxRegisterAppMDIAware(&something));
}

TEST_F(Loader, DrawingsAreAnnouncedToModules)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    AcApDocument* document = arxhost::NewDocument();
    ASSERT_TRUE(arxhost::CloseDocument(document));
    EXPECT_EQ(Take(), L"Good:1 Good:3 Good:4 ");
}

TEST_F(Loader, OpenDrawingsAreAnnouncedToANewModule)
{
    arxhost::NewDocument();
    AcApDocument* second = arxhost::NewDocument();
    ASSERT_TRUE(acrxLoadModule(L"LoaderGood.arx", true));
    EXPECT_EQ(Take(), L"Good:1 Good:3 Good:3 ");
    EXPECT_EQ(acDocManager->curDocument(), second);
    ASSERT_TRUE(acrxUnloadModule(L"LoaderGood.arx"));
    EXPECT_EQ(Take(), L"Good:4 Good:4 Good:2 ");
}

TEST_F(Loader, DeclaredCommandsAreRegisteredAndRemoved)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderCommands.arx", true));
    EXPECT_TRUE(arxhost::ExecuteCommand(L"LOADERLOCAL"));
    EXPECT_TRUE(arxhost::ExecuteCommand(L"_loaderdeclared"));
    EXPECT_EQ(Take(), L"declared declared ");
    ASSERT_TRUE(acrxUnloadModule(L"LoaderCommands.arx"));
    EXPECT_FALSE(arxhost::ExecuteCommand(L"LOADERLOCAL"));
}

TEST_F(Loader, ForgottenCommandsGoWithTheirModule)
{
    ASSERT_TRUE(acrxLoadModule(L"LoaderCommands.arx", true));
    EXPECT_TRUE(arxhost::ExecuteCommand(L"LOADERFORGOTTEN"));
    ASSERT_TRUE(acrxUnloadModule(L"LoaderCommands.arx"));
    EXPECT_FALSE(arxhost::ExecuteCommand(L"LOADERFORGOTTEN"));
}

TEST_F(Loader, ReactorsHearOfEveryStep)
{
    LinkerEvents events;
    acrxDynamicLinker->addReactor(&events);
    acrxLoadModule(L"LoaderGood.arx", false);
    acrxUnloadModule(L"LoaderGood.arx");
    acrxLoadModule(L"LoaderRefusing.arx", false);
    acrxLoadModule(L"LoaderClinging.arx", false);
    acrxUnloadModule(L"LoaderClinging.arx");
    acrxDynamicLinker->removeReactor(&events);
    acrxUnloadModule(L"LoaderClinging.arx");
    EXPECT_EQ(events.text, L"will load,loaded,will unload,unloaded,will load,load aborted,will load,loaded,will "
                           L"unload,unload aborted,");
}

TEST_F(Loader, PathWithFolderNamesTheFileItself)
{
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path = std::wstring(program).substr(0, std::wstring(program).rfind(L'\\')) + L"\\LoaderGood.arx";
    ASSERT_TRUE(acrxLoadModule(path.c_str(), true));
    EXPECT_TRUE(acrxAppIsLoaded(L"LoaderGood.arx"));
    ASSERT_EQ(arxhost::LoadedModules().size(), 1u);
    EXPECT_STREQ(arxhost::LoadedModules()[0].c_str(), path.c_str());
    EXPECT_FALSE(acrxLoadModule(L"C:\\NoSuchFolder\\LoaderParent.arx", false));
}

} // namespace
