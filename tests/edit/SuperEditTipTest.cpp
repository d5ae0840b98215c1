// The hover tip: its text, its tool, and what it does when it cannot be made.
#include "EditFixture.h"

#include "MessageBoxAnswer.h"
#include "MessageSpy.h"

namespace
{

const UINT_PTR kTool = 1;

BOOL CALLBACK CollectTip(HWND window, LPARAM tips)
{
    wchar_t name[32] = L"";
    ::GetClassNameW(window, name, 32);
    if (std::wstring(name) == TOOLTIPS_CLASSW)
        reinterpret_cast<std::vector<HWND>*>(tips)->push_back(window);
    return TRUE;
}

std::vector<HWND> AllTips()
{
    std::vector<HWND> tips;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CollectTip, reinterpret_cast<LPARAM>(&tips));
    return tips;
}

TTTOOLINFOW ToolOf(const CWnd& edit)
{
    TTTOOLINFOW info = {};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    info.hwnd = edit.m_hWnd;
    info.uId = kTool;
    return info;
}

std::wstring TextInTip(HWND tip, const CWnd& edit)
{
    TTTOOLINFOW info = ToolOf(edit);
    wchar_t text[300] = L"";
    info.lpszText = text;
    ::SendMessageW(tip, TTM_GETTEXTW, 300, reinterpret_cast<LPARAM>(&info));
    return text;
}

class SuperEditTip : public EditFixture
{
protected:
    SuperEditTip()
    {
        EXPECT_TRUE(AllTips().empty());
        // An edit that is asked for a tip brings one tip window, and there is one edit.
        m_edit.SetEableTip(1);
        m_edit.SetEableTip(0);
        const std::vector<HWND> tips = AllTips();
        EXPECT_EQ(1u, tips.size());
        m_tip = tips.empty() ? NULL : tips.front();
    }

    int Tools() const { return static_cast<int>(::SendMessageW(m_tip, TTM_GETTOOLCOUNT, 0, 0)); }

    std::wstring Shown() { return TextInTip(m_tip, m_edit); }

    HWND m_tip;
};

} // namespace

TEST_F(SuperEditTip, FocusAddsOneToolForTheWholeClientArea)
{
    m_edit.SetTipText(L"first");
    EXPECT_EQ(0, Tools());
    Enter();
    ASSERT_EQ(1, Tools());
    EXPECT_EQ(L"first", Shown());
    TTTOOLINFOW info = ToolOf(m_edit);
    wchar_t text[300] = L"";
    info.lpszText = text;
    ::SendMessageW(m_tip, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&info));
    CRect client;
    m_edit.GetClientRect(&client);
    EXPECT_TRUE(client == CRect(info.rect));
    Leave();
    Enter();
    EXPECT_EQ(1, Tools());
}

TEST(SuperEditTipInPlace, TipThatIsAskedForWhileTheEditHasTheFocusIsThereAtOnce)
{
    CWnd parent;
    ASSERT_TRUE(
        parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 100), NULL, 0));
    for (const bool byText : {false, true})
    {
        CSuperEdit edit;
        ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &parent, 1));
        edit.SetFocus();
        EXPECT_TRUE(AllTips().empty()); // nobody asked for one
        if (byText)
            edit.SetTipText(L"tip");
        else
            edit.SetEableTip(1);
        const std::vector<HWND> tips = AllTips();
        ASSERT_EQ(1u, tips.size());
        EXPECT_EQ(1, ::SendMessageW(tips[0], TTM_GETTOOLCOUNT, 0, 0));
        edit.DestroyWindow();
    }
    parent.DestroyWindow();
}

TEST(SuperEditTipAgain, EditOfADialogThatIsShownAgainHasItsTipAgain)
{
    for (const bool beforeTheWindow : {false, true})
    {
        CSuperEdit edit;
        if (beforeTheWindow)
            edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, L"own");
        for (int round = 0; round < 2; ++round)
        {
            SCOPED_TRACE(round);
            MessageBoxAnswer answer(IDOK);
            CWnd parent;
            ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP | WS_VISIBLE,
                                        CRect(0, 0, 200, 100), NULL, 0));
            ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &parent, 1));
            if (!beforeTheWindow)
                edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, L"own");
            edit.SetFocus();
            const std::vector<HWND> tips = AllTips();
            EXPECT_EQ(1u, tips.size());
            if (!tips.empty())
            {
                EXPECT_EQ(1, ::SendMessageW(tips[0], TTM_GETTOOLCOUNT, 0, 0));
                EXPECT_EQ(L"own", TextInTip(tips[0], edit));
            }
            parent.DestroyWindow();
            EXPECT_TRUE(AllTips().empty());
            EXPECT_TRUE(answer.Boxes().empty());
        }
    }
}

TEST_F(SuperEditTip, FocusActivatesAndRefreshesTheTip)
{
    m_edit.SetTipText(L"first");
    const MessageSpy activated(m_tip, TTM_ACTIVATE);
    const MessageSpy refreshed(m_tip, TTM_UPDATE);
    Enter();
    EXPECT_EQ((std::vector<MessageSpy::Parameters>{{TRUE, 0}}), activated.Seen());
    EXPECT_EQ(1u, refreshed.Seen().size());
}

TEST_F(SuperEditTip, IsNotBroughtBackByTheTipBeingEnabledAfterItsTextWasRemoved)
{
    m_edit.SetTipText(L"first");
    Enter();
    m_edit.SetTipText(NULL);
    m_edit.SetEableTip(1);
    EXPECT_EQ(0, Tools());
}

TEST(SuperEditTipInPlace, TextThatIsRemovedBeforeTheTipIsMadeBringsNoTool)
{
    CWnd parent;
    ASSERT_TRUE(
        parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 100), NULL, 0));
    CSuperEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &parent, 1));
    edit.SetFocus();
    edit.SetTipText(NULL);
    edit.SetEableTip(1);
    const std::vector<HWND> tips = AllTips();
    ASSERT_EQ(1u, tips.size());
    EXPECT_EQ(0, ::SendMessageW(tips[0], TTM_GETTOOLCOUNT, 0, 0));
    parent.DestroyWindow();
}

TEST_F(SuperEditTip, BreaksLinesAt400Pixels)
{
    EXPECT_EQ(400, ::SendMessageW(m_tip, TTM_GETMAXTIPWIDTH, 0, 0));
}

TEST_F(SuperEditTip, NewTextReplacesTheOldOne)
{
    m_edit.SetTipText(L"first");
    Enter();
    m_edit.SetTipText(L"second");
    EXPECT_EQ(L"second", Shown());
    EXPECT_STREQ(L"second", m_edit.GetTipText());
}

TEST_F(SuperEditTip, NullTextRemovesTheTool)
{
    m_edit.SetTipText(L"first");
    Enter();
    m_edit.SetTipText(NULL);
    EXPECT_EQ(0, Tools());
    EXPECT_TRUE(m_edit.GetTipText().IsEmpty());
}

TEST_F(SuperEditTip, WithoutATextOfTheOwnerItShowsTheLimits)
{
    m_edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, NULL);
    Enter();
    EXPECT_EQ(L"最小值:0\n最大值:10\n默认值:2.5", Shown());
    m_edit.SetAllValue(3, 1, 4);
    Leave();
    Enter();
    EXPECT_EQ(L"最小值:1\n最大值:4\n默认值:3", Shown());
    EXPECT_EQ(1, Tools());
}

TEST_F(SuperEditTip, EmptyTextOfTheOwnerCountsAsNone)
{
    m_edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, L"");
    Enter();
    EXPECT_EQ(L"最小值:0\n最大值:10\n默认值:2.5", Shown());
}

TEST_F(SuperEditTip, TextOfTheOwnerWins)
{
    m_edit.SetInputFloat(2.5, 0, 10, FALSE, TRUE, L"own");
    Enter();
    EXPECT_EQ(L"own", Shown());
}

TEST_F(SuperEditTip, LimitsAreShownOnlyWhereTipAndValueCheckAreOn)
{
    m_edit.SetInputFloat(2.5, 0, 10, FALSE, FALSE, NULL);
    Enter();
    EXPECT_TRUE(m_edit.GetTipText().IsEmpty());
    m_edit.SetEableTip(1);
    m_edit.SetEableValueCheck(0);
    Leave();
    Enter();
    EXPECT_TRUE(m_edit.GetTipText().IsEmpty());
}

TEST_F(SuperEditTip, TextsOfAnyLengthDoNoHarm)
{
    const std::wstring text(70000, L'\xD83D');
    m_edit.SetTipText(text.c_str());
    Enter();
    EXPECT_EQ(1, Tools());
    m_edit.SetTipText((text + L"x").c_str());
    EXPECT_EQ(70001, m_edit.GetTipText().GetLength());
    m_edit.SetTipText(NULL);
    EXPECT_EQ(0, Tools());
}

TEST_F(SuperEditTip, MessagesAreRelayedWhileTheTipIsEnabled)
{
    const MessageSpy relayed(m_tip, TTM_RELAYEVENT);
    MSG message = {};
    message.hwnd = m_edit.m_hWnd;
    message.message = WM_MOUSEMOVE;
    m_edit.PreTranslateMessage(&message);
    EXPECT_EQ(0u, relayed.Seen().size());
    m_edit.SetEableTip(1);
    m_edit.PreTranslateMessage(&message);
    EXPECT_EQ(1u, relayed.Seen().size());
}

TEST_F(SuperEditTip, FailureToAddTheToolIsShown)
{
    ::DestroyWindow(m_tip);
    MessageBoxAnswer answer(IDOK);
    Enter();
    ASSERT_FALSE(answer.Boxes().empty());
    EXPECT_EQ(L"Create ToolTip Error!", answer.Boxes()[0].text);
}
