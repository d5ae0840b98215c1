// The module as the host loads, asks and unloads it.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "GdiCount.h"
#include "LoadedModule.h"
#include "TraceCapture.h"
#include "WindowCount.h"
#include "app/ZNKTControlsApp.h"
#include "arx/rx/ApiVersion.h"
#include "msg/HostFrame.h"
#include "msg/KTMsgWnd.h"
#include "msg/MsgViewWnd.h"
#include "msg/ZNMsgManager.h"

#include <rxdlinkr.h>
#include <commctrl.h>
#include <psapi.h>

#include <set>
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

struct ClassesOfLibrary
{
    HMODULE library;
    std::set<std::wstring> names;
};

BOOL CALLBACK NoteClass(HWND window, LPARAM parameter)
{
    ClassesOfLibrary& classes = *reinterpret_cast<ClassesOfLibrary*>(parameter);
    wchar_t name[256] = L"";
    ::GetClassNameW(window, name, 256);
    if (::GetClassLongPtrW(window, GCLP_HMODULE) == reinterpret_cast<ULONG_PTR>(classes.library))
        classes.names.insert(name);
    return TRUE;
}

BOOL CALLBACK NoteClasses(HWND window, LPARAM parameter)
{
    NoteClass(window, parameter);
    ::EnumChildWindows(window, &NoteClass, parameter);
    return TRUE;
}

// The classes of this thread's windows that the library registered.
std::set<std::wstring> ClassesOf(HMODULE library)
{
    ClassesOfLibrary classes = {library, {}};
    ::EnumThreadWindows(::GetCurrentThreadId(), &NoteClasses, reinterpret_cast<LPARAM>(&classes));
    return classes.names;
}

// What is still there when the window of the message palette goes.
class PaletteEnd
{
public:
    explicit PaletteEnd(HWND palette) : m_palette(palette)
    {
        s_current = this;
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &OnHook, NULL, ::GetCurrentThreadId());
    }

    ~PaletteEnd()
    {
        ::UnhookWindowsHookEx(m_hook);
        s_current = NULL;
    }

    PaletteEnd(const PaletteEnd&) = delete;
    PaletteEnd& operator=(const PaletteEnd&) = delete;

    bool IsSeen() const { return m_seen; }
    int Messages() const { return m_messages; }
    bool HadCompanion() const { return m_hadCompanion; }

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        const CWPSTRUCT& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && call.message == WM_DESTROY && call.hwnd == s_current->m_palette)
        {
            s_current->m_seen = true;
            s_current->m_messages = KTMsgWnd::GetMsgCount(L"g");
            s_current->m_hadCompanion = acrxAppIsLoaded(kCompanion);
        }
        return ::CallNextHookEx(NULL, code, wParam, lParam);
    }

    static PaletteEnd* s_current;

    HWND m_palette;
    HHOOK m_hook;
    bool m_seen = false;
    int m_messages = 0;
    bool m_hadCompanion = false;
};

PaletteEnd* PaletteEnd::s_current = NULL;

// Notes when the common part of the start-up comes.
class NotingApp : public CZNKTControlsApp
{
public:
    explicit NotingApp(const wchar_t* companion) : CZNKTControlsApp(companion) {}

    void RegisterServerComponents() override
    {
        ++m_starts;
        m_hadCompanion = acrxAppIsLoaded(kCompanion);
    }

    int Starts() const { return m_starts; }
    bool HadCompanion() const { return m_hadCompanion; }

private:
    int m_starts = 0;
    bool m_hadCompanion = false;
};

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
    NotingApp app(L"no such companion.arx");
    EXPECT_EQ(AcRx::kRetError, app.acrxEntryPoint(AcRx::kInitAppMsg, NULL));
    EXPECT_EQ(3, AcRx::kRetError);
    EXPECT_EQ(0, app.Starts()) << "nothing else is initialised";
}

TEST_F(ModuleEntry, LoadsItsCompanionBeforeAnythingElse)
{
    NotingApp app(kCompanion);
    EXPECT_EQ(AcRx::kRetOK, app.acrxEntryPoint(AcRx::kInitAppMsg, NULL));
    EXPECT_EQ(1, app.Starts());
    EXPECT_TRUE(app.HadCompanion());
    EXPECT_EQ(AcRx::kRetOK, app.acrxEntryPoint(AcRx::kUnloadAppMsg, NULL));
    EXPECT_FALSE(acrxAppIsLoaded(kCompanion));
}

TEST_F(ModuleEntry, CanBeUnloadedAtAnyTime)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_FALSE(acrxApplicationIsLocked(LoadedModule::Name()));
}

TEST_F(ModuleEntry, WorksWithSeveralOpenDrawings)
{
    const LoadedModule module;
    ASSERT_TRUE(module.IsLoaded());
    EXPECT_TRUE(acrxDynamicLinker->isAppMDIAware(LoadedModule::Name()));
}

TEST_F(ModuleEntry, PaletteGoesBeforeTheStoreAndBothBeforeTheCompanion)
{
    HostFrame frame;
    CZNKTControlsApp app;
    ASSERT_EQ(AcRx::kRetOK, app.On_kInitAppMsg(NULL));
    ASSERT_TRUE(KTMsgWnd::AddMsg(KTMsgWnd::eInfo, L"g", L"text", false, NULL, NULL));
    ASSERT_TRUE(KTMsgWnd::ShowMsgWnd(true));
    const PaletteEnd end(CMsgViewWnd::Instance(false)->m_hWnd);
    EXPECT_EQ(AcRx::kRetOK, app.On_kUnloadAppMsg(NULL));
    EXPECT_TRUE(end.IsSeen());
    EXPECT_EQ(1, end.Messages());
    EXPECT_TRUE(end.HadCompanion());
    EXPECT_TRUE(CMsgViewWnd::Instance(false) == NULL);
    EXPECT_EQ(0, KTMsgWnd::GetMsgCount(L"g"));
    EXPECT_FALSE(acrxAppIsLoaded(kCompanion));
    CZNMsgManager::DestroyInstance();
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

// A class or a hook whose procedure is in the module would take the next window down with it after the unload.
TEST_F(ModuleEntry, UnloadLeavesNoWindowClassAndNoHook)
{
    HostFrame frame;
    {
        LoadedModule module;
        ASSERT_TRUE(module.IsLoaded());
        ASSERT_TRUE(module.Show(true));
        EXPECT_EQ(std::set<std::wstring>(), ClassesOf(LoadedModule::Handle()));
    }
    ASSERT_TRUE(LoadedModule::Handle() == NULL);
    // Any hook of this thread would be called now.
    CWnd window;
    ASSERT_TRUE(window.Create(NULL, L"after", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &frame.Wnd(), 1));
    window.PostMessage(WM_NULL);
    MSG message;
    while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
    EXPECT_TRUE(window.DestroyWindow());
}

TEST_F(ModuleEntry, UnloadFreesTheStore)
{
    const auto cycle = [] {
        LoadedModule module;
        ASSERT_TRUE(module.IsLoaded());
        ASSERT_TRUE(module.Add(L"g", L"a text of some length, kept for every message of its own", 50000));
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
