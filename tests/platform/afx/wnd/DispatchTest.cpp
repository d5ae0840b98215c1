// One message on its way: window procedure, message map of the class and of the classes above it, default processing.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
const UINT WM_FIRST = WM_APP + 1;
const UINT WM_SECOND = WM_APP + 2;
const UINT WM_NESTED = WM_APP + 3;
const UINT WM_THROW = WM_APP + 4;
UINT g_registered = 0;

class Base : public CWnd
{
public:
    BOOL CreateHidden() { return CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 200, 100), nullptr, 0); }

    std::string log;
    UINT lastMessage = 0;

protected:
    afx_msg LRESULT OnFirst(WPARAM, LPARAM)
    {
        log += "base1 ";
        return 1;
    }
    afx_msg LRESULT OnSecond(WPARAM wParam, LPARAM lParam)
    {
        log += "base2 ";
        return static_cast<LRESULT>(wParam) + lParam;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CWnd)
    ON_MESSAGE(WM_FIRST, &Base::OnFirst)
    ON_MESSAGE(WM_SECOND, &Base::OnSecond)
END_MESSAGE_MAP()

class Derived : public Base
{
protected:
    afx_msg LRESULT OnFirst(WPARAM wParam, LPARAM lParam)
    {
        log += "derived1 ";
        return 10 + Base::OnFirst(wParam, lParam);
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) * 2; }
    afx_msg LRESULT OnNested(WPARAM depth, LPARAM)
    {
        if (depth > 0)
            SendMessage(WM_FIRST);
        lastMessage = GetCurrentMessage()->message;
        return static_cast<LRESULT>(GetCurrentMessage()->wParam);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Base)
    ON_MESSAGE(WM_FIRST, &Derived::OnFirst)
    ON_MESSAGE(WM_NESTED, &Derived::OnNested)
    ON_REGISTERED_MESSAGE(g_registered, &Derived::OnRegistered)
END_MESSAGE_MAP()

// Changes the argument on its way to the base class.
class ShoutingEdit : public CWnd
{
protected:
    afx_msg void OnChar(UINT, UINT repeat, UINT flags) { CWnd::OnChar(L'X', repeat, flags); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ShoutingEdit, CWnd)
    ON_WM_CHAR()
END_MESSAGE_MAP()

class ThrowingWnd : public CWnd
{
public:
    bool throwInCreate = false;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (throwInCreate)
            AfxThrowUserException();
        return CWnd::OnCreate(create);
    }
    afx_msg LRESULT OnThrow(WPARAM, LPARAM)
    {
        AfxThrowUserException();
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThrowingWnd, CWnd)
    ON_WM_CREATE()
    ON_MESSAGE(WM_THROW, &ThrowingWnd::OnThrow)
END_MESSAGE_MAP()
} // namespace

TEST(Dispatch, TheDerivedClassComesBeforeItsBase)
{
    Derived window;
    ASSERT_TRUE(window.CreateHidden());
    EXPECT_EQ(11, window.SendMessage(WM_FIRST));
    EXPECT_EQ("derived1 base1 ", window.log);
}

TEST(Dispatch, AHandlerOfTheBaseClassServesTheDerivedOne)
{
    Derived window;
    ASSERT_TRUE(window.CreateHidden());
    EXPECT_EQ(7, window.SendMessage(WM_SECOND, 3, 4));
    EXPECT_EQ("base2 ", window.log);
}

TEST(Dispatch, ARegisteredMessageIsFoundByItsVariable)
{
    g_registered = ::RegisterWindowMessage(L"framework test message");
    Derived window;
    ASSERT_TRUE(window.CreateHidden());
    EXPECT_EQ(42, window.SendMessage(g_registered, 21));
    EXPECT_EQ(0, window.SendMessage(g_registered + 1, 21));
}

TEST(Dispatch, AMessageWithoutHandlerGetsTheDefaultProcessing)
{
    Derived window;
    ASSERT_TRUE(window.CreateHidden());
    window.SendMessage(WM_SETTEXT, 0, LPARAM(L"title"));
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(L"title", text);
}

TEST(Dispatch, TheCurrentMessageComesBackAfterANestedOne)
{
    Derived window;
    ASSERT_TRUE(window.CreateHidden());
    EXPECT_EQ(5, window.SendMessage(WM_NESTED, 5));
    EXPECT_EQ(WM_NESTED, window.lastMessage);
    EXPECT_EQ("derived1 base1 ", window.log);
}

TEST(Dispatch, DefaultHandlersUseTheMessageNotTheirArguments)
{
    Derived parent;
    ASSERT_TRUE(parent.CreateHidden());
    ShoutingEdit edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_CHILD, CRect(0, 0, 80, 20), &parent, 1));
    edit.SendMessage(WM_CHAR, L'a', 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(L"a", text);
}

TEST(Dispatch, AnExceptionEndsTheMessageNotTheProgram)
{
    ThrowingWnd window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    const MSG before = *CWnd::GetCurrentMessage();
    EXPECT_EQ(0, window.SendMessage(WM_THROW));
    EXPECT_EQ(before.message, CWnd::GetCurrentMessage()->message);
    EXPECT_TRUE(::IsWindow(window.m_hWnd));
}

TEST(Dispatch, AnExceptionDuringCreationLeavesNoWindow)
{
    ThrowingWnd window;
    window.throwInCreate = true;
    EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_EQ(nullptr, window.m_hWnd);
}

TEST(Dispatch, TheProcedureAnswersThatItIsTheFrameworks)
{
    const UINT queryProcedure = 0x0360;
    Derived window;
    ASSERT_TRUE(window.CreateHidden());
    EXPECT_EQ(1, window.SendMessage(queryProcedure));
    EXPECT_EQ(0, ::SendMessage(::GetDesktopWindow(), queryProcedure, 0, 0));
}
