// Popup menus of a plain window, whose items its update handlers enable.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "dialog/PopupMenuInitHandler.h"

namespace
{

enum
{
    ID_UPDATED = 100,
    ID_HANDLED,
    ID_NOBODYS,
    ID_LAST
};

// A window that is no frame: without the handler nobody updates its menus.
class MenuWindow : public CWnd
{
public:
    MenuWindow() { CreateEx(0, AfxRegisterWndClass(0), L"menu", WS_POPUP, CRect(0, 0, 20, 20), NULL, 0); }
    ~MenuWindow() override { DestroyWindow(); }

    struct Asked
    {
        UINT id;
        UINT index;
        bool isSubmenu;
    };

    std::vector<Asked> asked;
    std::function<void(CCmdUI&)> onUpdate;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (code == static_cast<int>(CN_UPDATE_COMMAND_UI))
        {
            CCmdUI& item = *static_cast<CCmdUI*>(extra);
            asked.push_back({id, item.m_nIndex, item.m_pSubMenu != NULL});
            if (onUpdate)
                onUpdate(item);
            return id == ID_UPDATED;
        }
        // A query whether there is a command handler.
        return code == static_cast<int>(CN_COMMAND) && info != NULL && id == ID_HANDLED;
    }
};

class PopupMenuInit : public testing::Test
{
protected:
    PopupMenuInit()
    {
        m_handler.HookWindow(m_window.m_hWnd);
        m_menu.CreatePopupMenu();
    }

    void Open(BOOL isSystem = FALSE, HMENU menu = NULL)
    {
        m_window.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu == NULL ? m_menu.m_hMenu : menu),
                             MAKELPARAM(0, isSystem));
    }

    void Add(UINT id) { m_menu.AppendMenu(MF_STRING, id, L"item"); }

    bool IsGreyAt(int position)
    {
        return (m_menu.GetMenuState(static_cast<UINT>(position), MF_BYPOSITION) & MF_GRAYED) != 0;
    }

    std::vector<UINT> AskedIds()
    {
        std::vector<UINT> ids;
        for (const MenuWindow::Asked& asked : m_window.asked)
            ids.push_back(asked.id);
        return ids;
    }

    MenuWindow m_window;
    CPopupMenuInitHandler m_handler;
    CMenu m_menu;
};

typedef std::vector<UINT> Ids;

} // namespace

TEST_F(PopupMenuInit, ItemsAreAskedForInOrder)
{
    Add(ID_UPDATED);
    Add(ID_HANDLED);
    Add(ID_LAST);
    Open();
    EXPECT_EQ((Ids{ID_UPDATED, ID_HANDLED, ID_LAST}), AskedIds());
    EXPECT_EQ(2u, m_window.asked[2].index);
}

TEST_F(PopupMenuInit, ItemsWithoutAnyHandlerAreDisabled)
{
    Add(ID_HANDLED);
    Add(ID_NOBODYS);
    Open();
    EXPECT_FALSE(IsGreyAt(0)) << "a command handler enables";
    EXPECT_TRUE(IsGreyAt(1));
}

TEST_F(PopupMenuInit, TheUpdateHandlerHasTheLastWord)
{
    Add(ID_HANDLED);
    Add(ID_NOBODYS);
    m_window.onUpdate = [](CCmdUI& item) { item.Enable(item.m_nID == ID_NOBODYS); };
    Open();
    EXPECT_TRUE(IsGreyAt(0));
    EXPECT_FALSE(IsGreyAt(1));
}

TEST_F(PopupMenuInit, SystemCommandsAreNeverDisabledByThemselves)
{
    for (const UINT id : {0xEFFFu, 0xF000u, 0xF060u})
        Add(id);
    Open();
    EXPECT_EQ((Ids{0xEFFF, 0xF000, 0xF060}), AskedIds());
    EXPECT_TRUE(IsGreyAt(0));
    EXPECT_FALSE(IsGreyAt(1));
    EXPECT_FALSE(IsGreyAt(2));
}

TEST_F(PopupMenuInit, SeparatorsAreSkipped)
{
    Add(ID_UPDATED);
    m_menu.AppendMenu(MF_SEPARATOR);
    Add(ID_LAST);
    Open();
    EXPECT_EQ((Ids{ID_UPDATED, ID_LAST}), AskedIds());
}

TEST_F(PopupMenuInit, ASubmenuIsRepresentedByItsFirstItem)
{
    CMenu submenu;
    submenu.CreatePopupMenu();
    submenu.AppendMenu(MF_STRING, ID_NOBODYS, L"first");
    submenu.AppendMenu(MF_STRING, ID_LAST, L"second");
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(submenu.Detach()), L"sub");
    Open();
    EXPECT_EQ((Ids{ID_NOBODYS}), AskedIds());
    EXPECT_TRUE(m_window.asked[0].isSubmenu);
    EXPECT_FALSE(IsGreyAt(0)) << "it is not disabled by itself";
}

TEST_F(PopupMenuInit, SubmenusWithoutACommandInFrontAreSkipped)
{
    CMenu empty;
    empty.CreatePopupMenu();
    CMenu separatorFirst;
    separatorFirst.CreatePopupMenu();
    separatorFirst.AppendMenu(MF_SEPARATOR);
    CMenu nested;
    nested.CreatePopupMenu();
    CMenu inner;
    inner.CreatePopupMenu();
    nested.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.Detach()), L"inner");
    for (CMenu* submenu : {&empty, &separatorFirst, &nested})
        m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(submenu->Detach()), L"sub");
    Add(ID_LAST);
    Open();
    EXPECT_EQ((Ids{ID_LAST}), AskedIds());
}

TEST_F(PopupMenuInit, MenusOfTheSystemAreLeftAlone)
{
    Add(ID_NOBODYS);
    Open(TRUE);
    EXPECT_TRUE(m_window.asked.empty());
    EXPECT_FALSE(IsGreyAt(0));
}

TEST_F(PopupMenuInit, AnUpdateMayRemoveItsItem)
{
    for (const UINT id : {200u, 201u, 202u})
        Add(id);
    m_window.onUpdate = [](CCmdUI& item) {
        if (item.m_nID == 201)
            item.m_pMenu->DeleteMenu(item.m_nIndex, MF_BYPOSITION);
    };
    Open();
    EXPECT_EQ((Ids{200, 201, 202}), AskedIds()) << "the item behind it is not left out";
}

TEST_F(PopupMenuInit, AnUpdateMayRemoveSeveralItems)
{
    for (UINT id = 200; id < 206; ++id)
        Add(id);
    m_window.onUpdate = [](CCmdUI& item) {
        if (item.m_nID != 202)
            return;
        for (const UINT id : {200u, 201u, 202u})
            item.m_pMenu->DeleteMenu(id, MF_BYCOMMAND);
    };
    Open();
    EXPECT_EQ((Ids{200, 201, 202, 203, 204, 205}), AskedIds());
}

TEST_F(PopupMenuInit, AnUpdateMayRemoveMoreThanWasDone)
{
    for (UINT id = 200; id < 206; ++id)
        Add(id);
    m_window.onUpdate = [](CCmdUI& item) {
        for (const UINT id : {200u, 202u, 203u, 204u})
            item.m_pMenu->DeleteMenu(id, MF_BYCOMMAND);
    };
    Open();
    EXPECT_EQ((Ids{200, 201, 205}), AskedIds());
}

TEST_F(PopupMenuInit, AnUpdateMayReplaceItsItemBySeveralOfTheSameId)
{
    Add(200);
    Add(201);
    Add(202);
    m_window.onUpdate = [](CCmdUI& item) {
        if (item.m_nID == 200 && item.m_nIndexMax == 3)
            item.m_pMenu->InsertMenu(0, MF_BYPOSITION | MF_STRING, 200, L"another");
    };
    Open();
    EXPECT_EQ(202u, AskedIds().back());
    EXPECT_LE(m_window.asked.size(), 4u);
}

TEST_F(PopupMenuInit, AnUpdateMayEmptyTheMenu)
{
    for (UINT id = 200; id < 205; ++id)
        Add(id);
    m_window.onUpdate = [](CCmdUI& item) {
        while (item.m_pMenu->GetMenuItemCount() > 0)
            item.m_pMenu->DeleteMenu(0, MF_BYPOSITION);
    };
    Open();
    EXPECT_EQ((Ids{200}), AskedIds());
}

TEST_F(PopupMenuInit, AnUpdateMayDestroyTheMenu)
{
    CMenu gone;
    gone.CreatePopupMenu();
    gone.AppendMenu(MF_STRING, ID_UPDATED, L"item");
    gone.AppendMenu(MF_STRING, ID_LAST, L"item");
    const HMENU handle = gone.Detach();
    m_window.onUpdate = [handle](CCmdUI&) { ::DestroyMenu(handle); };
    Open(FALSE, handle);
    EXPECT_EQ((Ids{ID_UPDATED}), AskedIds());
}

TEST_F(PopupMenuInit, AnUpdateMayDestroyTheWindow)
{
    Add(ID_UPDATED);
    Add(ID_LAST);
    m_window.onUpdate = [this](CCmdUI&) { m_window.DestroyWindow(); };
    Open();
    EXPECT_EQ((Ids{ID_UPDATED}), AskedIds());
    EXPECT_TRUE(m_handler.GetHookedWindow() == NULL);
}

TEST_F(PopupMenuInit, AnUpdateMayThrow)
{
    Add(ID_UPDATED);
    m_window.onUpdate = [](CCmdUI&) { throw new CUserException; };
    Open();
    EXPECT_TRUE(::IsMenu(m_menu.m_hMenu)) << "the menu stays its owner's";
}

TEST_F(PopupMenuInit, HandlesThatAreNoMenusDoNothing)
{
    m_window.SendMessage(WM_INITMENUPOPUP, 0, 0);
    m_window.SendMessage(WM_INITMENUPOPUP, 0x1234567, 0);
    EXPECT_TRUE(m_window.asked.empty());
}

TEST_F(PopupMenuInit, AWindowWithoutAnObjectHasItsItemsDisabled)
{
    const HWND plain = ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, NULL, NULL, NULL, NULL);
    m_handler.HookWindow(plain);
    Add(ID_LAST);
    ::SendMessageW(plain, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu.m_hMenu), 0);
    EXPECT_TRUE(IsGreyAt(0));
    ::DestroyWindow(plain);
}

TEST_F(PopupMenuInit, OtherMessagesGoToTheWindow)
{
    m_window.SetWindowText(L"through the hook");
    CString text;
    m_window.GetWindowText(text);
    EXPECT_STREQ(L"through the hook", text);
}
