// The module as the host loads, asks and unloads it.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "GdiCount.h"
#include "LoadedModule.h"
#include "app/ZNKTControlsApp.h"
#include "arx/rx/ApiVersion.h"
#include "msg/HostFrame.h"

#include <ZnQFCBaseU.h>
#include <commctrl.h>
#include <psapi.h>

#include <fstream>
#include <iterator>
#include <string>

namespace
{

constexpr const wchar_t* kCompanion = L"ZNKTPub.arx";
constexpr int kListId = 103;

class ModuleEntry : public ::testing::Test
{
protected:
    ModuleEntry() { arxhost::Reset(); }
    ~ModuleEntry() override { arxhost::Reset(); }
};

// Lines that the base library traced while this lived.
class TraceCapture
{
public:
    TraceCapture()
    {
        wchar_t folder[MAX_PATH] = L"";
        wchar_t file[MAX_PATH] = L"";
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"trc", 0, file);
        m_path = file;
        Tevrin::SetTraceFile(file);
    }

    ~TraceCapture()
    {
        Tevrin::SetTraceFile(NULL);
        ::DeleteFileW(m_path);
    }

    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;

    std::string Text() const
    {
        std::ifstream stream(CStringA(m_path).GetString(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }

private:
    CString m_path;
};

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count)
{
    CountWindow(window, count);
    ::EnumChildWindows(window, &CountWindow, count);
    return TRUE;
}

int CountWindows()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CountWithChildren, reinterpret_cast<LPARAM>(&count));
    return count;
}

BOOL CALLBACK FindList(HWND window, LPARAM found)
{
    wchar_t name[32] = L"";
    ::GetClassNameW(window, name, 32);
    if (::GetDlgCtrlID(window) == kListId && std::wstring(name) == WC_LISTVIEWW)
        *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

int FirstRowId(const CWnd& frame)
{
    HWND list = NULL;
    ::EnumChildWindows(frame.m_hWnd, &FindList, reinterpret_cast<LPARAM>(&list));
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    ::SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<int>(item.lParam);
}

SIZE_T PrivateBytes()
{
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                           sizeof(counters));
    return counters.PrivateUsage;
}

} // namespace

TEST_F(ModuleEntry, LoadsTheCompanionAndLetsItGoAgain)
{
    ASSERT_FALSE(acrxAppIsLoaded(kCompanion));
    LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_TRUE(acrxAppIsLoaded(kCompanion));
    module.Unload();
    EXPECT_FALSE(acrxAppIsLoaded(kCompanion));
    EXPECT_FALSE(acrxAppIsLoaded(LoadedModule::Name()));
    EXPECT_TRUE(LoadedModule::Handle() == NULL);
}

TEST_F(ModuleEntry, RefusesToStartWithoutItsCompanion)
{
    CZNKTControlsApp app(L"no such companion.arx");
    EXPECT_EQ(AcRx::kRetError, app.acrxEntryPoint(AcRx::kInitAppMsg, NULL));
    EXPECT_EQ(3, AcRx::kRetError);
}

TEST_F(ModuleEntry, CanBeUnloadedAtAnyTime)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_FALSE(acrxApplicationIsLocked(LoadedModule::Name()));
}

TEST_F(ModuleEntry, ReportsTheInterfaceVersionItWasBuiltFor)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_EQ(arxrx::kApiVersion, module.ApiVersion());
}

TEST_F(ModuleEntry, AnswersEveryOtherMessageWithOk)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_EQ(AcRx::kRetOK, module.Send(AcRx::kNullMsg));
    for (int message = AcRx::kLoadDwgMsg; message <= AcRx::kEndDialogMsg; ++message)
        EXPECT_EQ(AcRx::kRetOK, module.Send(message)) << message;
}

TEST_F(ModuleEntry, UnknownMessagesReturnOkAndChangeNothing)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    ASSERT_TRUE(module.Add(L"g", L"kept"));
    for (const int message : {16, 17, 18, 1000})
        EXPECT_EQ(AcRx::kRetOK, module.Send(message)) << message;
    EXPECT_EQ(1, module.Count(L"g"));
    EXPECT_TRUE(acrxAppIsLoaded(kCompanion));
}

TEST_F(ModuleEntry, UnloadingWithoutAnythingMadeOnlyTraces)
{
    LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    const int windows = CountWindows();
    const TraceCapture trace;
    module.Unload();
    EXPECT_NE(std::string::npos, trace.Text().find("CZNKTControlsApp::On_kUnloadAppMsg-41"));
    EXPECT_EQ(windows, CountWindows());
}

TEST_F(ModuleEntry, ReloadStartsWithAnEmptyStoreAndIdentifierOne)
{
    HostFrame frame;
    {
        LoadedModule module;
        ASSERT_TRUE(module.IsLoaded());
        ASSERT_TRUE(module.Add(L"g", L"first"));
        ASSERT_TRUE(module.Add(L"g", L"second"));
        EXPECT_EQ(2, module.Count(L"g"));
    }
    LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_EQ(0, module.Count(L"g"));
    ASSERT_TRUE(module.Add(L"g", L"again"));
    ASSERT_TRUE(module.Show(true));
    EXPECT_EQ(1, FirstRowId(frame.Wnd()));
}

TEST_F(ModuleEntry, RegistersNoCommands)
{
    const std::vector<std::wstring> before = arxhost::CommandNames();
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_EQ(before, arxhost::CommandNames());
}

TEST_F(ModuleEntry, ShowsNothingWhenItIsLoaded)
{
    const HostFrame frame;
    const int windows = CountWindows();
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_EQ(windows, CountWindows());
    EXPECT_FALSE(module.Show(false));
}

// Unloading while the palette is shown takes down its windows and everything drawn with them.
TEST_F(ModuleEntry, UnloadLeavesNoWindowAndNoGdiObject)
{
    HostFrame frame;
    const auto cycle = [] {
        LoadedModule module;
        ASSERT_TRUE(module.IsLoaded());
        ASSERT_TRUE(module.Add(L"g", L"text"));
        ASSERT_TRUE(module.Show(true));
    };
    cycle();
    const int windows = CountWindows();
    const size_t objects = CountGdiObjects();
    // The system keeps a few objects of its own from time to time; one that the module leaves is left by every cycle.
    const size_t cycles = 10;
    for (size_t i = 0; i < cycles; ++i)
        cycle();
    EXPECT_EQ(windows, CountWindows());
    EXPECT_LT(CountGdiObjects(), objects + cycles);
    EXPECT_TRUE(LoadedModule::Handle() == NULL);
}

TEST_F(ModuleEntry, UnloadFreesTheStore)
{
    const auto cycle = [] {
        LoadedModule module;
        ASSERT_TRUE(module.IsLoaded());
        for (int i = 0; i < 50000; ++i)
            ASSERT_TRUE(module.Add(L"g", L"a text of some length, kept for every message of its own"));
    };
    // The first rounds let the heap take its shape.
    cycle();
    cycle();
    const SIZE_T before = PrivateBytes();
    for (int i = 0; i < 4; ++i)
        cycle();
    // One store that stays would be 15 MB.
    const SIZE_T allowed = 4 << 20;
    EXPECT_LT(PrivateBytes(), before + allowed);
}
