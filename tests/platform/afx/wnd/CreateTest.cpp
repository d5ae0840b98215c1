// From Create to the last message: the object is there before the window's first message and is let go after its last.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{
class Recorder : public CWnd
{
public:
    std::vector<UINT> messages;
    int preSubclassed = 0;
    size_t messagesBeforePreSubclass = 0;
    int ended = 0;
    bool refuse = false;
    LPCTSTR usedClass = nullptr;
    bool createChild = false;
    CWnd child;

    BOOL CreatePopup(LPCTSTR className = nullptr)
    {
        return CreateEx(0, className, L"", WS_POPUP, CRect(10, 10, 60, 40), nullptr, 0);
    }

    void PreSubclassWindow() override
    {
        ++preSubclassed;
        messagesBeforePreSubclass = messages.size();
    }
    BOOL PreCreateWindow(CREATESTRUCT& create) override
    {
        const BOOL good = CWnd::PreCreateWindow(create);
        usedClass = create.lpszClass;
        return good && !refuse;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        messages.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { ++ended; }
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (createChild)
            child.Create(L"EDIT", L"", WS_CHILD, CRect(0, 0, 5, 5), this, 1);
        return CWnd::OnCreate(create);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

class SelfDeleting : public CWnd
{
public:
    explicit SelfDeleting(bool* gone) : m_gone(gone) {}
    ~SelfDeleting() override { *m_gone = true; }

protected:
    void PostNcDestroy() override { delete this; }

private:
    bool* m_gone;
};
} // namespace

TEST(Create, TheObjectSeesTheFirstMessages)
{
    Recorder window;
    ASSERT_TRUE(window.CreatePopup());
    ASSERT_FALSE(window.messages.empty());
    const std::vector<UINT>& seen = window.messages;
    const auto nccreate = std::find(seen.begin(), seen.end(), UINT(WM_NCCREATE));
    const auto create = std::find(seen.begin(), seen.end(), UINT(WM_CREATE));
    EXPECT_NE(seen.end(), nccreate);
    EXPECT_NE(seen.end(), create);
    EXPECT_LT(nccreate, create);
    window.DestroyWindow();
}

TEST(Create, PreSubclassWindowRunsBeforeEveryMessage)
{
    Recorder window;
    ASSERT_TRUE(window.CreatePopup());
    EXPECT_EQ(1, window.preSubclassed);
    EXPECT_EQ(0u, window.messagesBeforePreSubclass);
    window.DestroyWindow();
}

TEST(Create, TheObjectIsPermanentUntilTheWindowEnds)
{
    Recorder window;
    ASSERT_TRUE(window.CreatePopup());
    const HWND handle = window.m_hWnd;
    EXPECT_EQ(&window, CWnd::FromHandlePermanent(handle));
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
    EXPECT_EQ(1, window.ended);
    EXPECT_EQ(UINT(WM_NCDESTROY), window.messages.back());
}

TEST(Create, ARefusedWindowEndsTheObject)
{
    Recorder window;
    window.refuse = true;
    EXPECT_FALSE(window.CreatePopup());
    EXPECT_EQ(1, window.ended);
    EXPECT_TRUE(window.messages.empty());
}

TEST(Create, AnUnknownClassEndsTheObject)
{
    Recorder window;
    EXPECT_FALSE(window.CreatePopup(L"no such class"));
    EXPECT_EQ(1, window.ended);
    EXPECT_EQ(nullptr, window.m_hWnd);

    // The next window isn't taken for the one that never came.
    const HWND stranger = ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(stranger));
    ::DestroyWindow(stranger);
}

TEST(Create, AWindowMayCreateOthersMeanwhile)
{
    Recorder window;
    window.createChild = true;
    ASSERT_TRUE(window.CreatePopup());
    ASSERT_NE(nullptr, window.child.m_hWnd);
    EXPECT_EQ(window.m_hWnd, ::GetParent(window.child.m_hWnd));
    EXPECT_EQ(&window.child, window.GetDlgItem(1));
    window.DestroyWindow();
    EXPECT_EQ(nullptr, window.child.m_hWnd);
}

TEST(Create, ASystemControlKeepsItsOwnBehaviour)
{
    Recorder window;
    ASSERT_TRUE(window.CreatePopup(L"EDIT"));
    window.SetWindowText(L"abc");
    EXPECT_EQ(3, window.SendMessage(EM_LINELENGTH, 0));
    window.DestroyWindow();
}

TEST(Create, AnObjectMayDeleteItselfWithItsWindow)
{
    bool gone = false;
    SelfDeleting* const window = new SelfDeleting(&gone);
    ASSERT_TRUE(window->CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    window->DestroyWindow();
    EXPECT_TRUE(gone);
}

TEST(Create, AnObjectTakesItsWindowAlong)
{
    HWND handle = nullptr;
    {
        CWnd window;
        ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(Create, APopupWithAControlIdIsRejectedBySystem)
{
    Recorder window;
    EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 10001));
}

TEST(WindowClass, TheSameWishesGiveTheSameClass)
{
    const LPCTSTR first = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(first, AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW)));
    EXPECT_NE(first, AfxRegisterWndClass(CS_DBLCLKS | CS_SAVEBITS, ::LoadCursor(nullptr, IDC_ARROW)));
}

TEST(WindowClass, IsUnregisteredByItsNameOrItsAtom)
{
    WNDCLASS windowClass = {};
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = ::GetModuleHandle(nullptr);
    windowClass.lpszClassName = L"framework test class of a number";
    const ATOM atom = ::RegisterClass(&windowClass);
    ASSERT_NE(0, atom);
    EXPECT_TRUE(AfxUnregisterClass(MAKEINTATOM(atom), windowClass.hInstance));
    ASSERT_TRUE(AfxRegisterClass(&windowClass));
    EXPECT_TRUE(AfxUnregisterClass(windowClass.lpszClassName, windowClass.hInstance));
    EXPECT_FALSE(AfxUnregisterClass(windowClass.lpszClassName, windowClass.hInstance));
}

TEST(WindowClass, RegisteringTwiceIsNoError)
{
    WNDCLASS windowClass = {};
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = ::GetModuleHandle(nullptr);
    windowClass.lpszClassName = L"framework test class";
    EXPECT_TRUE(AfxRegisterClass(&windowClass));
    EXPECT_TRUE(AfxRegisterClass(&windowClass));

    AfxUnregisterModuleClasses(windowClass.hInstance);
    WNDCLASS existing = {};
    EXPECT_FALSE(::GetClassInfo(windowClass.hInstance, windowClass.lpszClassName, &existing));
}
