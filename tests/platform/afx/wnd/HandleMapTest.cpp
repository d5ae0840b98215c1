// Which object stands for a window, and how a window's procedure is taken over and given back.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
const UINT WM_PING = WM_APP + 9;
const LRESULT PingAnswer = 99;

// A window made without the framework.
class ForeignWindow
{
public:
    explicit ForeignWindow(const wchar_t* className = L"EDIT", HWND parent = nullptr, UINT id = 0)
        : m_window(::CreateWindow(className, L"", parent == nullptr ? WS_POPUP : WS_CHILD, 0, 0, 50, 20, parent,
                                  HMENU(UINT_PTR(id)), nullptr, nullptr))
    {
    }
    ~ForeignWindow()
    {
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
    }
    HWND Get() const { return m_window; }
    WNDPROC Procedure() const { return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(m_window, GWLP_WNDPROC)); }

private:
    HWND m_window;
};

class Pinged : public CWnd
{
public:
    int preSubclassed = 0;
    HWND windowAtPreSubclass = nullptr;

    void PreSubclassWindow() override
    {
        ++preSubclassed;
        windowAtPreSubclass = m_hWnd;
    }

protected:
    afx_msg LRESULT OnPing(WPARAM, LPARAM) { return PingAnswer; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Pinged, CWnd)
    ON_MESSAGE(WM_PING, &Pinged::OnPing)
END_MESSAGE_MAP()

// Does what a nested loop does in idle time while it holds a temporary object; answers with the object's window.
class IdleInside : public CWnd
{
protected:
    afx_msg LRESULT OnPing(WPARAM window, LPARAM)
    {
        const CWnd* const object = FromHandle(reinterpret_cast<HWND>(window));
        AfxGetApp()->OnIdle(1);
        return object == FromHandle(reinterpret_cast<HWND>(window)) ? LRESULT(object->m_hWnd) : 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(IdleInside, CWnd)
    ON_MESSAGE(WM_PING, &IdleInside::OnPing)
END_MESSAGE_MAP()

WNDPROC g_below = nullptr;
int g_plainCalls = 0;

LRESULT CALLBACK PlainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_plainCalls += message == WM_PING;
    return ::CallWindowProc(g_below, window, message, wParam, lParam);
}
} // namespace

TEST(HandleMap, AForeignWindowHasATemporaryObject)
{
    const ForeignWindow window;
    CWnd* const object = CWnd::FromHandle(window.Get());
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(window.Get(), object->m_hWnd);
    EXPECT_EQ(object, CWnd::FromHandle(window.Get()));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window.Get()));
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(window.Get()));
}

TEST(HandleMap, NullHasNoObject)
{
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    CWnd* volatile none = nullptr; // volatile: the compiler would see through the null
    EXPECT_EQ(nullptr, none->GetSafeHwnd());
}

TEST(HandleMap, AttachMakesTheObjectPermanent)
{
    const ForeignWindow window;
    CWnd object;
    EXPECT_FALSE(object.Attach(nullptr));
    EXPECT_TRUE(object.Attach(window.Get()));
    EXPECT_EQ(&object, CWnd::FromHandlePermanent(window.Get()));
    EXPECT_EQ(&object, CWnd::FromHandle(window.Get()));
    EXPECT_EQ(window.Get(), object.Detach());
    EXPECT_EQ(nullptr, object.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window.Get()));
}

TEST(HandleMap, TheMapsOfThreadsAreApart)
{
    const ForeignWindow window;
    CWnd object;
    object.Attach(window.Get());
    CWnd* seen = &object;
    struct Question
    {
        HWND window;
        CWnd** answer;
    } question = {window.Get(), &seen};
    const HANDLE thread = ::CreateThread(
        nullptr, 0,
        [](void* parameter) -> DWORD {
            const Question* const asked = static_cast<Question*>(parameter);
            *asked->answer = CWnd::FromHandlePermanent(asked->window);
            return 0;
        },
        &question, 0, nullptr);
    ::WaitForSingleObject(thread, INFINITE);
    ::CloseHandle(thread);
    EXPECT_EQ(nullptr, seen);
    object.Detach();
}

TEST(HandleMap, TemporaryObjectsEndWithTheLastLock)
{
    const ForeignWindow window;
    AfxLockTempMaps();
    AfxLockTempMaps();
    CWnd* const object = CWnd::FromHandle(window.Get());
    EXPECT_TRUE(AfxUnlockTempMaps());
    EXPECT_EQ(object, CWnd::FromHandle(window.Get())); // still the same one
    EXPECT_EQ(window.Get(), object->m_hWnd);
    EXPECT_FALSE(AfxUnlockTempMaps());
}

// A handler that opens a message box gets its temporary objects back unharmed.
TEST(HandleMap, TemporaryObjectsSurviveAnIdleLoopInsideAHandler)
{
    const ForeignWindow foreign;
    IdleInside window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ(LRESULT(foreign.Get()), window.SendMessage(WM_PING, WPARAM(foreign.Get())));
}

TEST(Subclass, TakesTheProcedureOverAndGivesItBack)
{
    const ForeignWindow window;
    const WNDPROC before = window.Procedure();
    Pinged object;
    ASSERT_TRUE(object.SubclassWindow(window.Get()));
    EXPECT_EQ(1, object.preSubclassed);
    EXPECT_EQ(window.Get(), object.windowAtPreSubclass);
    EXPECT_EQ(PingAnswer, ::SendMessage(window.Get(), WM_PING, 0, 0));
    EXPECT_NE(before, window.Procedure());

    EXPECT_EQ(window.Get(), object.UnsubclassWindow());
    EXPECT_EQ(before, window.Procedure());
    EXPECT_EQ(0, ::SendMessage(window.Get(), WM_PING, 0, 0));
}

TEST(Subclass, UnhandledMessagesReachTheFormerProcedure)
{
    const ForeignWindow window(L"EDIT");
    CWnd object;
    ASSERT_TRUE(object.SubclassWindow(window.Get()));
    object.SendMessage(WM_CHAR, L'q', 1);
    CString text;
    object.GetWindowText(text);
    EXPECT_STREQ(L"q", text);
    object.UnsubclassWindow();
}

TEST(Subclass, ADialogItemMayBeMissing)
{
    const ForeignWindow parent(L"STATIC");
    const ForeignWindow child(L"EDIT", parent.Get(), 12);
    Pinged object;
    CWnd* const dialog = CWnd::FromHandle(parent.Get());
    EXPECT_FALSE(object.SubclassDlgItem(13, dialog));
    EXPECT_EQ(0, object.preSubclassed);
    EXPECT_TRUE(object.SubclassDlgItem(12, dialog));
    EXPECT_EQ(child.Get(), object.m_hWnd);
    object.UnsubclassWindow();
}

TEST(Subclass, APlainProcedureMayLieBelow)
{
    const ForeignWindow window;
    g_plainCalls = 0;
    g_below = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(window.Get(), GWLP_WNDPROC, LONG_PTR(&PlainProcedure)));
    CWnd object;
    ASSERT_TRUE(object.SubclassWindow(window.Get()));
    object.SendMessage(WM_PING);
    EXPECT_EQ(1, g_plainCalls);
    object.UnsubclassWindow();
    EXPECT_EQ(&PlainProcedure, window.Procedure());
}

TEST(Subclass, APlainProcedureMayLieAbove)
{
    const ForeignWindow window;
    Pinged object;
    ASSERT_TRUE(object.SubclassWindow(window.Get()));
    g_plainCalls = 0;
    g_below = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(window.Get(), GWLP_WNDPROC, LONG_PTR(&PlainProcedure)));
    EXPECT_EQ(PingAnswer, ::SendMessage(window.Get(), WM_PING, 0, 0));
    EXPECT_EQ(1, g_plainCalls);
    ::DestroyWindow(window.Get());
    EXPECT_EQ(nullptr, object.m_hWnd);
}

TEST(Subclass, TheObjectIsFreeWhenItsWindowEnds)
{
    Pinged object;
    {
        const ForeignWindow window;
        ASSERT_TRUE(object.SubclassWindow(window.Get()));
    }
    EXPECT_EQ(nullptr, object.m_hWnd);
    const ForeignWindow second;
    EXPECT_TRUE(object.SubclassWindow(second.Get()));
    EXPECT_EQ(PingAnswer, object.SendMessage(WM_PING));
    object.UnsubclassWindow();
}
