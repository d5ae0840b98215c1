#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
const UINT ID_UPDATED = 0x8201;
const UINT ID_HANDLED = 0x8202;
const UINT ID_UNKNOWN = 0x8203;
const UINT ID_RECENT_FIRST = 0x8210;
const UINT ID_RECENT_LAST = 0x8213;
const UINT ID_SUB = 0x8220;

class UpdateTarget : public CCmdTarget
{
public:
    BOOL m_enable = TRUE;
    int m_check = 0;
    bool m_radio = false;
    CString m_text;
    int m_recentUpdates = 0;
    UINT m_recentsToKeep = 0;
    int m_subUpdates = 0;
    bool m_endsMenu = false;

protected:
    afx_msg void OnHandled() {}
    afx_msg void OnUpdateUpdated(CCmdUI* state)
    {
        state->Enable(m_enable);
        if (m_radio)
            state->SetRadio(TRUE);
        else
            state->SetCheck(m_check);
        if (!m_text.IsEmpty())
            state->SetText(m_text);
        if (m_endsMenu)
            state->m_pMenu->DestroyMenu();
    }
    // As a list of recent files does: the first item's handler makes the whole list.
    afx_msg void OnUpdateRecent(CCmdUI* state)
    {
        ++m_recentUpdates;
        for (UINT id = ID_RECENT_FIRST; id <= ID_RECENT_LAST; ++id)
            state->m_pMenu->DeleteMenu(id, MF_BYCOMMAND);
        if (m_recentsToKeep == 0)
            return;
        for (UINT added = 0; added < m_recentsToKeep; ++added)
            state->m_pMenu->InsertMenu(state->m_nIndex++, MF_BYPOSITION | MF_STRING, ID_RECENT_FIRST + added, L"file");
        --state->m_nIndex; // the last one it made
        state->m_nIndexMax = state->m_pMenu->GetMenuItemCount();
        state->m_bEnableChanged = TRUE;
    }
    afx_msg void OnUpdateSub(CCmdUI* state)
    {
        ++m_subUpdates;
        state->Enable(FALSE);
        state->SetCheck(1);
        state->SetText(L"lost");
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(UpdateTarget, CCmdTarget)
    ON_COMMAND(ID_HANDLED, &UpdateTarget::OnHandled)
    ON_UPDATE_COMMAND_UI(ID_UPDATED, &UpdateTarget::OnUpdateUpdated)
    ON_UPDATE_COMMAND_UI(ID_RECENT_FIRST, &UpdateTarget::OnUpdateRecent)
    ON_UPDATE_COMMAND_UI(ID_SUB, &UpdateTarget::OnUpdateSub)
END_MESSAGE_MAP()
} // namespace

class CmdUI : public testing::Test
{
protected:
    void SetUp() override
    {
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, ID_UPDATED, L"Updated");
        m_menu.AppendMenu(MF_STRING, ID_HANDLED, L"Handled");
        m_menu.AppendMenu(MF_SEPARATOR);
        m_menu.AppendMenu(MF_STRING, ID_UNKNOWN, L"Unknown");
        m_menu.AppendMenu(MF_STRING, SC_CLOSE, L"System");
    }

    void Update(BOOL disable = TRUE) { AfxUpdateMenuItems(&m_menu, nullptr, &m_target, disable); }
    bool IsGrey(UINT id) { return (m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_GRAYED) != 0; }
    bool IsChecked(UINT id) { return (m_menu.GetMenuState(id, MF_BYCOMMAND) & MF_CHECKED) != 0; }

    CMenu m_menu;
    UpdateTarget m_target;
};

// Items without a handler are disabled on request, commands of the system never.

TEST_F(CmdUI, ItemsWithoutAHandlerBecomeGrey)
{
    Update();
    EXPECT_FALSE(IsGrey(ID_UPDATED));
    EXPECT_FALSE(IsGrey(ID_HANDLED));
    EXPECT_TRUE(IsGrey(ID_UNKNOWN));
    EXPECT_FALSE(IsGrey(SC_CLOSE));
}

TEST_F(CmdUI, NothingIsDisabledUnasked)
{
    Update(FALSE);
    EXPECT_FALSE(IsGrey(ID_UNKNOWN));
}

TEST_F(CmdUI, AGreyItemWithACommandHandlerIsEnabledAgain)
{
    m_menu.EnableMenuItem(ID_HANDLED, MF_GRAYED);
    Update();
    EXPECT_FALSE(IsGrey(ID_HANDLED));
}

TEST_F(CmdUI, TheUpdateHandlerDecides)
{
    m_target.m_enable = FALSE;
    m_target.m_check = 1;
    m_target.m_text = L"New text";
    Update();
    EXPECT_TRUE(IsGrey(ID_UPDATED));
    EXPECT_TRUE(IsChecked(ID_UPDATED));
    CString text;
    m_menu.GetMenuString(ID_UPDATED, text, MF_BYCOMMAND);
    EXPECT_STREQ(L"New text", text);
    m_target.m_enable = TRUE;
    m_target.m_check = 0;
    Update();
    EXPECT_FALSE(IsGrey(ID_UPDATED));
    EXPECT_FALSE(IsChecked(ID_UPDATED));
}

TEST_F(CmdUI, ARadioCheckIsARoundMark)
{
    m_target.m_radio = true;
    Update();
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    ASSERT_TRUE(m_menu.GetMenuItemInfo(ID_UPDATED, &info));
    EXPECT_TRUE(info.fType & MFT_RADIOCHECK);
    EXPECT_TRUE(info.fState & MFS_CHECKED);
}

// A handler may rebuild a part of the menu: every item is still visited once.

TEST_F(CmdUI, AListThatIsRebuiltIsFollowed)
{
    const UINT rows[] = {0, 1, 2, 6};
    for (const UINT kept : rows)
    {
        m_menu.EnableMenuItem(ID_UNKNOWN, MF_ENABLED);
        m_target.m_recentUpdates = 0;
        m_target.m_recentsToKeep = kept;
        const UINT others = m_menu.GetMenuItemCount();
        for (UINT index = 0; index <= ID_RECENT_LAST - ID_RECENT_FIRST; ++index)
            m_menu.InsertMenu(index, MF_BYPOSITION | MF_STRING, ID_RECENT_FIRST + index, L"old");
        Update();
        EXPECT_EQ(1, m_target.m_recentUpdates) << kept;
        EXPECT_FALSE(IsGrey(ID_HANDLED)) << kept;
        EXPECT_TRUE(IsGrey(ID_UNKNOWN)) << kept;
        EXPECT_EQ(others + kept, m_menu.GetMenuItemCount());
        for (UINT index = 0; index < kept; ++index)
            m_menu.DeleteMenu(0, MF_BYPOSITION);
    }
}

TEST_F(CmdUI, AMenuThatAHandlerDestroysEndsTheUpdate)
{
    m_target.m_endsMenu = true;
    Update();
    EXPECT_EQ(nullptr, m_menu.m_hMenu);
    Update(); // a menu that is gone from the start
}

TEST_F(CmdUI, ASubmenuIsRepresentedByItsFirstItemAndLeftAlone)
{
    CMenu inner;
    inner.CreatePopupMenu();
    inner.AppendMenu(MF_STRING, ID_SUB, L"Sub");
    m_menu.AppendMenu(MF_POPUP, UINT_PTR(inner.m_hMenu), L"More");
    Update();
    EXPECT_EQ(1, m_target.m_subUpdates);
    const UINT position = m_menu.GetMenuItemCount() - 1;
    CString text;
    m_menu.GetMenuString(position, text, MF_BYPOSITION);
    EXPECT_STREQ(L"More", text);
    EXPECT_FALSE(m_menu.GetMenuState(position, MF_BYPOSITION) & MF_GRAYED);
    EXPECT_FALSE(inner.GetMenuState(ID_SUB, MF_BYCOMMAND) & MF_GRAYED);
    m_menu.RemoveMenu(position, MF_BYPOSITION);
}

// The same handlers serve controls.

TEST_F(CmdUI, AControlIsUpdatedLikeAnItem)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0);
    CButton button;
    button.Create(L"Old", WS_CHILD | BS_AUTOCHECKBOX, CRect(0, 0, 50, 20), &parent, ID_UPDATED);
    m_target.m_enable = FALSE;
    m_target.m_check = 1;
    m_target.m_text = L"New";
    CCmdUI state;
    state.m_nID = ID_UPDATED;
    state.m_pOther = &button;
    EXPECT_TRUE(state.DoUpdate(&m_target, TRUE));
    EXPECT_FALSE(button.IsWindowEnabled());
    EXPECT_EQ(1, button.GetCheck());
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ(L"New", text);

    state.m_nID = ID_HANDLED;
    EXPECT_FALSE(state.DoUpdate(&m_target, TRUE)); // no update handler, but a command handler
    EXPECT_TRUE(button.IsWindowEnabled());
}
