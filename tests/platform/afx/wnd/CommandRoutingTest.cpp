// Commands and notifications of controls on their way to the handlers of the window.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
enum Ids
{
    IdPlain = 101,
    IdEx = 102,
    IdRangeFirst = 110,
    IdRangeLast = 119,
    IdDisabled = 130,
    IdControl = 201,
    IdList = 202
};

const UINT ListCode = static_cast<UINT>(-101);
const UINT OtherListCode = static_cast<UINT>(-102);

class Target : public CWnd
{
public:
    BOOL exAnswer = TRUE;
    BOOL notifyAnswer = TRUE;
    UINT lastId = 0;
    int lastOverrideCode = 0;
    std::string log;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (code != static_cast<int>(CN_UPDATE_COMMAND_UI))
            lastOverrideCode = code;
        return CWnd::OnCmdMsg(id, code, extra, info);
    }

protected:
    afx_msg void OnPlain() { log += "plain "; }
    afx_msg BOOL OnEx(UINT id)
    {
        lastId = id;
        log += "ex ";
        return exAnswer;
    }
    afx_msg void OnRange(UINT id)
    {
        lastId = id;
        log += "range ";
    }
    afx_msg void OnDisabled() { log += "disabled "; }
    afx_msg void OnUpdateDisabled(CCmdUI* state) { state->Enable(FALSE); }
    afx_msg void OnClicked() { log += "clicked "; }
    afx_msg void OnList(NMHDR*, LRESULT* result)
    {
        log += "list ";
        *result = 9;
    }
    afx_msg BOOL OnListRange(UINT id, NMHDR*, LRESULT* result)
    {
        lastId = id;
        log += "listrange ";
        *result = 5;
        return notifyAnswer;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
    ON_COMMAND(IdPlain, &Target::OnPlain)
    ON_COMMAND_EX(IdEx, &Target::OnEx)
    ON_COMMAND_RANGE(IdRangeFirst, IdRangeLast, &Target::OnRange)
    ON_COMMAND(IdDisabled, &Target::OnDisabled)
    ON_UPDATE_COMMAND_UI(IdDisabled, &Target::OnUpdateDisabled)
    ON_BN_CLICKED(IdControl, &Target::OnClicked)
    ON_NOTIFY(ListCode, IdList, &Target::OnList)
    ON_NOTIFY_EX_RANGE(OtherListCode, IdControl, IdList, &Target::OnListRange)
END_MESSAGE_MAP()

class CommandRouting : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_target.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
        ASSERT_TRUE(m_list.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &m_target, IdList));
        ASSERT_TRUE(m_control.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &m_target, IdControl));
    }
    void TearDown() override { m_target.DestroyWindow(); }

    LRESULT Command(UINT id) { return m_target.SendMessage(WM_COMMAND, id); }
    LRESULT Control(CWnd& control, WORD code)
    {
        const WPARAM packed = MAKEWPARAM(control.GetDlgCtrlID(), code);
        return m_target.SendMessage(WM_COMMAND, packed, LPARAM(control.m_hWnd));
    }
    LRESULT Notify(CWnd& control, UINT code, UINT_PTR id)
    {
        NMHDR header = {control.m_hWnd, id, code};
        return m_target.SendMessage(WM_NOTIFY, id, LPARAM(&header));
    }

    Target m_target;
    CWnd m_list;
    CWnd m_control;
};
} // namespace

TEST_F(CommandRouting, ACommandFindsItsHandler)
{
    EXPECT_NE(0, Command(IdPlain));
    EXPECT_EQ("plain ", m_target.log);
    EXPECT_EQ(0, Command(IdPlain + 50));
}

TEST_F(CommandRouting, AnExtendedHandlerKnowsItsIdAndMayDecline)
{
    EXPECT_NE(0, Command(IdEx));
    EXPECT_EQ(UINT(IdEx), m_target.lastId);
    m_target.exAnswer = FALSE;
    EXPECT_EQ(0, Command(IdEx));
    EXPECT_EQ("ex ex ", m_target.log);
}

TEST_F(CommandRouting, ARangeIncludesItsEnds)
{
    Command(IdRangeFirst - 1);
    Command(IdRangeFirst);
    EXPECT_EQ(UINT(IdRangeFirst), m_target.lastId);
    Command(IdRangeLast);
    EXPECT_EQ(UINT(IdRangeLast), m_target.lastId);
    Command(IdRangeLast + 1);
    EXPECT_EQ("range range ", m_target.log);
}

TEST_F(CommandRouting, ADisabledCommandIsUsedUpWithoutACall)
{
    EXPECT_NE(0, Command(IdDisabled));
    EXPECT_EQ("", m_target.log);
}

TEST_F(CommandRouting, NotificationsOfControlsComeWithTheirPlainCode)
{
    EXPECT_NE(0, Control(m_control, BN_CLICKED));
    EXPECT_EQ("clicked ", m_target.log);
    EXPECT_EQ(0, Control(m_control, EN_KILLFOCUS));
    EXPECT_EQ(EN_KILLFOCUS, m_target.lastOverrideCode);
}

TEST_F(CommandRouting, NotifyCodesTravelAsTheirLowWordBesideTheMessage)
{
    EXPECT_EQ(9, Notify(m_list, ListCode, IdList));
    EXPECT_EQ("list ", m_target.log);
    EXPECT_EQ(WM_NOTIFY, HIWORD(m_target.lastOverrideCode));
    EXPECT_EQ(static_cast<WORD>(ListCode), LOWORD(m_target.lastOverrideCode));
}

TEST_F(CommandRouting, TheHandlerOfANotificationGoesByTheWindowsOwnId)
{
    EXPECT_EQ(9, Notify(m_list, ListCode, 9999));
}

TEST_F(CommandRouting, AnExtendedNotifyHandlerMayDecline)
{
    EXPECT_EQ(5, Notify(m_control, OtherListCode, IdControl));
    EXPECT_EQ(UINT(IdControl), m_target.lastId);
    m_target.notifyAnswer = FALSE;
    EXPECT_EQ(0, Notify(m_control, OtherListCode, IdControl));
}

TEST_F(CommandRouting, AskingForTheHandlerDoesNotCallIt)
{
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(m_target.OnCmdMsg(IdPlain, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&m_target, info.pTarget);
    EXPECT_FALSE(m_target.OnCmdMsg(IdPlain + 50, CN_COMMAND, nullptr, &info));
    EXPECT_EQ("", m_target.log);
}

TEST_F(CommandRouting, NotificationsAreLockedOutDuringDataExchange)
{
    AfxGetThreadState()->m_hLockoutNotifyWindow = m_target.m_hWnd;
    EXPECT_NE(0, Control(m_control, BN_CLICKED));
    AfxGetThreadState()->m_hLockoutNotifyWindow = nullptr;
    EXPECT_EQ("", m_target.log);
}
