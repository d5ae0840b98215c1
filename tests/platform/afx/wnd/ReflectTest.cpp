// Messages that a control sends its parent come back to the control: WM_COMMAND and WM_NOTIFY before the parent's
// handlers, colours and owner-draw after them.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
const UINT IdControl = 7;
const UINT TestCode = static_cast<UINT>(-300);

std::string g_log;

class Control : public CWnd
{
public:
    BOOL answer = TRUE; // of the _EX handlers
    HBRUSH brush = nullptr;
    UINT colourKind = 0;

protected:
    afx_msg void OnDisable() { g_log += "control-disable "; }
    afx_msg BOOL OnClicked()
    {
        g_log += "control-clicked ";
        return answer;
    }
    afx_msg BOOL OnNotifyTest(NMHDR*, LRESULT* result)
    {
        g_log += "control-notify ";
        *result = 11;
        return answer;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT kind)
    {
        g_log += "control-colour ";
        colourKind = kind;
        return brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT) { g_log += "control-draw "; }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT measure) { measure->itemHeight = 33; }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT) { return -1; }
    afx_msg void HScroll(UINT code, UINT) { g_log += code == SB_LINELEFT ? "control-hscroll " : "? "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Control, CWnd)
    ON_CONTROL_REFLECT(BN_DISABLE, &Control::OnDisable)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &Control::OnClicked)
    ON_NOTIFY_REFLECT_EX(TestCode, &Control::OnNotifyTest)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

class Parent : public CWnd
{
protected:
    afx_msg void OnDisable() { g_log += "parent-disable "; }
    afx_msg void OnClicked() { g_log += "parent-clicked "; }
    afx_msg void OnNotifyTest(NMHDR*, LRESULT* result)
    {
        g_log += "parent-notify ";
        *result = 22;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_CONTROL(BN_DISABLE, IdControl, &Parent::OnDisable)
    ON_BN_CLICKED(IdControl, &Parent::OnClicked)
    ON_NOTIFY(TestCode, IdControl, &Parent::OnNotifyTest)
END_MESSAGE_MAP()

// A parent with an opinion on colours, which it may keep to itself or hand to the base class.
class ColouringParent : public Parent
{
public:
    bool askBase = true;

protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        g_log += "parent-colour ";
        return askBase ? CWnd::OnCtlColor(dc, control, kind) : static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouringParent, Parent)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

// Sees what comes to its OnCmdMsg, where its own notifications and those of its children meet.
class ListeningControl : public Control
{
public:
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override
    {
        lastId = id;
        lastCode = static_cast<UINT>(code);
        return Control::OnCmdMsg(id, code, extra, handlerInfo);
    }

    UINT lastId = 99;
    UINT lastCode = 0;
};

template<class PARENT, class CONTROL = Control>
struct Pair
{
    Pair()
    {
        g_log.clear();
        EXPECT_TRUE(parent.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
        EXPECT_TRUE(control.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, IdControl));
    }
    ~Pair() { parent.DestroyWindow(); }

    LRESULT Command(WORD code)
    {
        return parent.SendMessage(WM_COMMAND, MAKEWPARAM(IdControl, code), LPARAM(control.m_hWnd));
    }
    LRESULT Notify()
    {
        NMHDR header = {control.m_hWnd, IdControl, TestCode};
        return parent.SendMessage(WM_NOTIFY, IdControl, LPARAM(&header));
    }
    HBRUSH Colour(UINT message = WM_CTLCOLOREDIT)
    {
        const HDC dc = ::GetDC(control.m_hWnd);
        const LRESULT brush = parent.SendMessage(message, WPARAM(dc), LPARAM(control.m_hWnd));
        ::ReleaseDC(control.m_hWnd, dc);
        return reinterpret_cast<HBRUSH>(brush);
    }

    PARENT parent;
    CONTROL control;
};
} // namespace

TEST(Reflect, APlainHandlerHidesTheCommandFromTheParent)
{
    Pair<Parent> pair;
    EXPECT_NE(0, pair.Command(BN_DISABLE));
    EXPECT_EQ("control-disable ", g_log);
}

TEST(Reflect, AnExtendedHandlerThatTakesTheCommandHidesIt)
{
    Pair<Parent> pair;
    pair.Command(BN_CLICKED);
    EXPECT_EQ("control-clicked ", g_log);
}

TEST(Reflect, AnExtendedHandlerThatDeclinesLetsTheParentHaveIt)
{
    Pair<Parent> pair;
    pair.control.answer = FALSE;
    pair.Command(BN_CLICKED);
    EXPECT_EQ("control-clicked parent-clicked ", g_log);
}

TEST(Reflect, NotifyGoesToTheControlFirst)
{
    Pair<Parent> pair;
    EXPECT_EQ(11, pair.Notify());
    EXPECT_EQ("control-notify ", g_log);
}

TEST(Reflect, ANotifyThatTheControlDeclinesGetsTheParentsResult)
{
    Pair<Parent> pair;
    pair.control.answer = FALSE;
    EXPECT_EQ(22, pair.Notify());
    EXPECT_EQ("control-notify parent-notify ", g_log);
}

TEST(Reflect, TheControlsOwnNotificationsHaveNoIdAndAMarkedMessage)
{
    Pair<Parent, ListeningControl> pair;
    pair.Command(BN_CLICKED);
    EXPECT_EQ(0u, pair.control.lastId);
    EXPECT_EQ(BN_CLICKED, LOWORD(pair.control.lastCode));
    EXPECT_EQ(WM_REFLECT_BASE + WM_COMMAND, HIWORD(pair.control.lastCode));
    pair.Notify();
    EXPECT_EQ(0u, pair.control.lastId);
    EXPECT_EQ(LOWORD(TestCode), LOWORD(pair.control.lastCode));
    EXPECT_EQ(WM_REFLECT_BASE + WM_NOTIFY, HIWORD(pair.control.lastCode));
}

TEST(Reflect, ColoursAreAskedOfTheControl)
{
    Pair<Parent> pair;
    pair.control.brush = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    EXPECT_EQ(pair.control.brush, pair.Colour());
    EXPECT_EQ("control-colour ", g_log);
    EXPECT_EQ(UINT(CTLCOLOR_EDIT), pair.control.colourKind);
    pair.Colour(WM_CTLCOLORSTATIC);
    EXPECT_EQ(UINT(CTLCOLOR_STATIC), pair.control.colourKind);
}

TEST(Reflect, ANullBrushLeavesTheColourToTheSystem)
{
    Pair<Parent> pair;
    const HDC dc = ::GetDC(pair.control.m_hWnd);
    const LRESULT expected = ::DefWindowProc(pair.parent.m_hWnd, WM_CTLCOLOREDIT, WPARAM(dc), 0);
    ::ReleaseDC(pair.control.m_hWnd, dc);
    EXPECT_NE(0, expected);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(expected), pair.Colour());
}

TEST(Reflect, TheParentsOwnHandlerComesBeforeTheControl)
{
    Pair<ColouringParent> pair;
    pair.Colour();
    EXPECT_EQ("parent-colour control-colour ", g_log);
}

TEST(Reflect, AParentThatKeepsTheColourSuppressesTheControl)
{
    Pair<ColouringParent> pair;
    pair.parent.askBase = false;
    EXPECT_EQ(static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)), pair.Colour());
    EXPECT_EQ("parent-colour ", g_log);
}

TEST(Reflect, OwnerDrawReachesTheControl)
{
    Pair<Parent> pair;
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_STATIC;
    draw.hwndItem = pair.control.m_hWnd;
    pair.parent.SendMessage(WM_DRAWITEM, IdControl, LPARAM(&draw));
    EXPECT_EQ("control-draw ", g_log);

    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_STATIC;
    measure.CtlID = IdControl;
    pair.parent.SendMessage(WM_MEASUREITEM, IdControl, LPARAM(&measure));
    EXPECT_EQ(33u, measure.itemHeight);

    COMPAREITEMSTRUCT compare = {};
    compare.hwndItem = pair.control.m_hWnd;
    EXPECT_EQ(-1, pair.parent.SendMessage(WM_COMPAREITEM, IdControl, LPARAM(&compare)));
}

TEST(Reflect, ScrollMessagesReachTheControl)
{
    Pair<Parent> pair;
    pair.parent.SendMessage(WM_HSCROLL, SB_LINELEFT, LPARAM(pair.control.m_hWnd));
    EXPECT_EQ("control-hscroll ", g_log);
}

TEST(Reflect, AControlThatIsNoObjectIsLeftAlone)
{
    Pair<Parent> pair;
    const HWND stranger =
        ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, pair.parent.m_hWnd, HMENU(UINT_PTR(8)), nullptr, nullptr);
    EXPECT_EQ(0, pair.parent.SendMessage(WM_COMMAND, MAKEWPARAM(8, BN_CLICKED), LPARAM(stranger)));
    EXPECT_EQ("", g_log);
}
