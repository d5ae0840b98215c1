// The edit menu: its resource, its commands, the state of its items, what goes on to the parent.
#include "RichEditFixture.h"

#include "Wait.h"
#include "base/ModuleResources.h"
#include "res/resource.h"

#include <acdocman.h>
#include <afxstat_.h>

#include <memory>

namespace
{

// Shows what is the handler's own.
class TestedHandler : public CEditMenuHandler
{
public:
    using CEditMenuHandler::WindowProc;
};

// Notes the points at which a menu is asked for.
class NotingHandler : public CEditMenuHandler
{
public:
    std::vector<CPoint> points;

protected:
    BOOL OnContextMenu(CPoint pt) override
    {
        points.push_back(pt);
        return TRUE;
    }
};

class ClipboardContent
{
public:
    explicit ClipboardContent(UINT format)
    {
        ::OpenClipboard(NULL);
        ::EmptyClipboard();
        if (format != 0)
            ::SetClipboardData(format, ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 16));
        ::CloseClipboard();
    }
};

struct UpdateRow
{
    const char* name;
    const wchar_t* text;
    long start;
    long end;
    UINT clipboard;
    std::vector<UINT> enabled;
};

class EditMenu : public RichEditFixture
{
protected:
    // The items of the menu that are not grey when it opens.
    std::vector<UINT> EnabledItems()
    {
        std::vector<UINT> enabled;
        MenuDriver driver([&](HMENU menu) {
            for (int i = 0; i < ::GetMenuItemCount(menu); ++i)
            {
                const UINT id = ::GetMenuItemID(menu, i);
                if (id != 0 && !IsGrey(menu, id))
                    enabled.push_back(id);
            }
            return 0;
        });
        RightClick();
        EXPECT_EQ(1, driver.Opened());
        return enabled;
    }

    // What the system sends after a right click.
    LRESULT RightClick(HWND window)
    {
        CRect rect;
        ::GetWindowRect(window, &rect);
        return ::SendMessageW(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window),
                              MAKELPARAM(rect.left + 5, rect.top + 5));
    }
    LRESULT RightClick() { return RightClick(m_edit.m_hWnd); }

    void Command(UINT id) { m_edit.SendMessage(WM_COMMAND, id); }

    // The number of commands that reached the parent.
    size_t Told() const { return m_owner.commands.size(); }
};

} // namespace

// The resource.

TEST_F(EditMenu, HasItsItemsInOrder)
{
    EXPECT_EQ(IDR_EDIT_MENU, ZNKT_EDIT_MENU);
    EXPECT_EQ(115, ZNKT_EDIT_MENU);
    const CModuleResources resources;
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(ZNKT_EDIT_MENU));
    ASSERT_EQ(1u, menu.GetMenuItemCount());
    EXPECT_EQ(L"&Edit", ItemText(menu, 0));
    const struct
    {
        UINT id;
        const wchar_t* text;
    } rows[] = {
        {57643, L"\x64A4\x9500(&U)\tCtrl+Z"},
        {0, L""},
        {57635, L"\x526A\x5207(&T)\tCtrl+X"},
        {57634, L"\x590D\x5236(&C)\tCtrl+C"},
        {57637, L"\x7C98\x8D34(&P)\tCtrl+V"},
        {57632, L"\x5220\x9664(&D)\tDel"},
        {0, L""},
        {57642, L"\x5168\x9009(&A)\tCtrl+A"},
    };
    CMenu* const popup = menu.GetSubMenu(0);
    ASSERT_EQ(8u, popup->GetMenuItemCount());
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(rows[i].id, popup->GetMenuItemID(i)) << i;
        EXPECT_EQ(rows[i].text, ItemText(*popup, i)) << i;
    }
}

// The context menu.

TEST_F(EditMenu, ARightClickOpensItAtThePoint)
{
    SetText(L"text");
    const HINSTANCE before = AfxGetResourceHandle();
    HMENU shown = NULL;
    MenuDriver driver([&](HMENU menu) {
        shown = menu;
        EXPECT_EQ(8, ::GetMenuItemCount(menu));
        EXPECT_EQ(menu, AfxGetThreadState()->m_hTrackingMenu);
        EXPECT_EQ(m_edit.m_hWnd, AfxGetThreadState()->m_hTrackingWindow) << "the control is the owner";
        return 0;
    });
    CRect rect;
    m_edit.GetWindowRect(&rect);
    EXPECT_EQ(TRUE, RightClick());
    EXPECT_EQ(1, driver.Opened());
    EXPECT_NEAR(rect.left + 5, driver.Place().left, 2);
    EXPECT_NEAR(rect.top + 5, driver.Place().top, 2);
    EXPECT_FALSE(::IsMenu(shown)) << "it is destroyed afterwards";
    EXPECT_EQ(before, AfxGetResourceHandle()) << "the resources are switched back";
}

TEST_F(EditMenu, CoordinatesAreSigned)
{
    NotingHandler handler;
    handler.Install(&m_edit, ZNKT_EDIT_MENU);
    m_edit.SendMessage(WM_CONTEXTMENU, 0, MAKELPARAM(-30, -1));
    m_edit.SendMessage(WM_CONTEXTMENU, 0, MAKELPARAM(1000, 20));
    ASSERT_EQ(2u, handler.points.size());
    EXPECT_EQ(CPoint(-30, -1), handler.points[0]);
    EXPECT_EQ(CPoint(1000, 20), handler.points[1]);
}

TEST_F(EditMenu, WithMenuIdZeroARightClickDoesNothingSpecial)
{
    CAutoRichEditCtrl bare(0);
    Create(bare);
    MenuDriver driver([](HMENU) { return 0; });
    RightClick(bare.m_hWnd);
    EXPECT_EQ(0, driver.Opened());
    m_owner.commands.clear();
    bare.SetWindowText(L"text");
    bare.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
    long start = 0;
    long end = 0;
    bare.GetSel(start, end);
    EXPECT_EQ(start, end);
    ASSERT_EQ(1u, Told()) << "no handler: commands are the parent's";
    EXPECT_EQ(UINT(ID_EDIT_SELECT_ALL), m_owner.commands[0].id);
}

TEST_F(EditMenu, AMenuThatDoesNotExistOpensNothing)
{
    CAutoRichEditCtrl edit(9999);
    Create(edit);
    MenuDriver driver([](HMENU) { return 0; });
    EXPECT_EQ(TRUE, RightClick(edit.m_hWnd));
    EXPECT_EQ(0, driver.Opened());
}

TEST_F(EditMenu, TheControlMayBeDestroyedWhileTheMenuIsOpen)
{
    std::unique_ptr<CAutoRichEditCtrl> edit = std::make_unique<CAutoRichEditCtrl>(ZNKT_EDIT_MENU);
    Create(*edit);
    MenuDriver driver([&](HMENU) {
        edit.reset();
        return 0;
    });
    RightClick(edit->m_hWnd);
    EXPECT_EQ(1, driver.Opened());
    EXPECT_TRUE(edit == nullptr);
}

// Commands.

TEST_F(EditMenu, InstallAnswersTrue)
{
    TestedHandler handler;
    EXPECT_EQ(TRUE, handler.Install(&m_edit, 1));
    EXPECT_EQ(m_edit.m_hWnd, handler.GetHookedWindow());
    EXPECT_EQ(TRUE, handler.Install(NULL, 1));
    EXPECT_TRUE(handler.GetHookedWindow() == NULL);
}

TEST_F(EditMenu, CopyPutsTheSelectionOnTheClipboard)
{
    const ClipboardContent empty(0);
    SetText(L"abcd");
    m_edit.SetSel(1, 3);
    Command(ID_EDIT_COPY);
    EXPECT_EQ(L"abcd", Text());
    m_edit.SetSel(4, 4);
    Command(ID_EDIT_PASTE);
    EXPECT_EQ(L"abcdbc", Text());
    EXPECT_EQ(0u, Told()) << "handled here";
}

TEST_F(EditMenu, CutTakesTheSelectionAway)
{
    SetText(L"abcd");
    m_edit.SetSel(1, 3);
    Command(ID_EDIT_CUT);
    EXPECT_EQ(L"ad", Text());
    Command(ID_EDIT_PASTE);
    EXPECT_EQ(L"abcd", Text());
}

TEST_F(EditMenu, DeleteTakesTheSelectionAwayWithoutTheClipboard)
{
    const ClipboardContent empty(0);
    SetText(L"abcd");
    m_edit.SetSel(1, 3);
    Command(ID_EDIT_CLEAR);
    EXPECT_EQ(L"ad", Text());
    EXPECT_FALSE(::IsClipboardFormatAvailable(CF_TEXT));
}

TEST_F(EditMenu, SelectAllSelectsFromTheFirstToTheLast)
{
    SetText(L"abcd");
    Command(ID_EDIT_SELECT_ALL);
    long start = 9;
    long end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_GE(end, 4);
}

TEST_F(EditMenu, UndoTakesTheLastChangeBack)
{
    SetText(L"abcd");
    m_edit.SetSel(0, 2);
    m_edit.ReplaceSel(L"", TRUE);
    ASSERT_EQ(L"cd", Text());
    Command(ID_EDIT_UNDO);
    EXPECT_EQ(L"abcd", Text());
}

TEST_F(EditMenu, ADisabledCommandIsNotCarriedOut)
{
    const ClipboardContent other(CF_DSPBITMAP);
    SetText(L"abcd");
    Command(ID_EDIT_PASTE);
    Command(ID_EDIT_CUT);
    EXPECT_EQ(L"abcd", Text());
    EXPECT_EQ(0u, Told());
}

TEST_F(EditMenu, OtherCommandsGoOnToTheParent)
{
    for (const UINT id : {UINT(1), UINT(57631), UINT(ID_EDIT_FIND), UINT(ID_EDIT_REDO), UINT(0x8000), UINT(0xFFFE)})
    {
        m_owner.commands.clear();
        Command(id);
        ASSERT_EQ(1u, Told()) << id;
        EXPECT_EQ(id, m_owner.commands[0].id);
        EXPECT_EQ(0, m_owner.commands[0].code);
    }
}

TEST_F(EditMenu, TheHandlerAnswersOnlyForItsOwnCommands)
{
    TestedHandler handler;
    handler.Install(&m_edit, ZNKT_EDIT_MENU);
    for (UINT id = ID_EDIT_CLEAR - 2; id <= ID_EDIT_UNDO + 2; ++id)
    {
        const bool own = id == ID_EDIT_CLEAR || id == ID_EDIT_COPY || id == ID_EDIT_CUT || id == ID_EDIT_PASTE ||
                         id == ID_EDIT_SELECT_ALL || id == ID_EDIT_UNDO;
        EXPECT_EQ(own ? TRUE : FALSE, handler.OnCommand(id)) << id;
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, id, L"item");
        CCmdUI item;
        item.m_nID = id;
        item.m_pMenu = &menu;
        EXPECT_EQ(own ? TRUE : FALSE, handler.OnUpdateCmdUI(&item)) << id;
    }
}

TEST_F(EditMenu, TheHandlerLeavesWindowsAloneThatAreNoRichEdits)
{
    TestedHandler handler;
    EXPECT_FALSE(handler.OnCommand(ID_EDIT_COPY)) << "not attached";
    handler.HookWindow(m_owner.m_hWnd);
    CCmdUI item;
    item.m_nID = ID_EDIT_COPY;
    EXPECT_FALSE(handler.OnCommand(ID_EDIT_COPY));
    EXPECT_FALSE(handler.OnUpdateCmdUI(&item));
    EXPECT_FALSE(handler.OnUpdateCmdUI(NULL));
}

// The state of the items.

TEST_F(EditMenu, ItemsAreGreyWhereTheyCanDoNothing)
{
    const UINT all = ID_EDIT_SELECT_ALL;
    const UpdateRow rows[] = {
        {"empty control, empty clipboard", L"", 0, 0, 0, {}},
        {"text without a selection", L"abc", 1, 1, 0, {all}},
        {"a selection", L"abc", 0, 2, 0, {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR, all}},
        {"plain text on the clipboard", L"abc", 1, 1, CF_TEXT, {ID_EDIT_PASTE, all}},
        {"plain text for an empty control", L"", 0, 0, CF_TEXT, {ID_EDIT_PASTE}},
        {"no text on the clipboard", L"abc", 1, 1, CF_DSPBITMAP, {all}},
        {"text that is not plain on the clipboard",
         L"abc",
         1,
         1,
         ::RegisterClipboardFormatW(L"Rich Text Format"),
         {all}},
    };
    for (const UpdateRow& row : rows)
    {
        const ClipboardContent content(row.clipboard);
        SetText(row.text);
        m_edit.SetSel(row.start, row.end);
        EXPECT_EQ(row.enabled, EnabledItems()) << row.name;
    }
}

TEST_F(EditMenu, UndoIsThereWhenTheControlCanUndo)
{
    const ClipboardContent empty(0);
    SetText(L"");
    m_edit.ReplaceSel(L"typed", TRUE);
    ASSERT_TRUE(m_edit.CanUndo());
    EXPECT_EQ((std::vector<UINT>{ID_EDIT_UNDO, ID_EDIT_SELECT_ALL}), EnabledItems());
    m_edit.EmptyUndoBuffer();
    EXPECT_EQ((std::vector<UINT>{ID_EDIT_SELECT_ALL}), EnabledItems());
}

TEST_F(EditMenu, OtherUpdateRequestsGoOnToTheParent)
{
    m_owner.onUpdate = [](CCmdUI& item) { item.SetText(L"named by the parent"); };
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_EDIT_FIND, L"find");
    menu.AppendMenu(MF_STRING, ID_EDIT_COPY, L"copy");
    m_edit.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_EQ((std::vector<UINT>{ID_EDIT_FIND}), m_owner.updates);
    EXPECT_EQ(L"named by the parent", ItemText(menu, 0));
    EXPECT_EQ(L"copy", ItemText(menu, 1));
    EXPECT_TRUE(IsGrey(menu, ID_EDIT_COPY));
    EXPECT_FALSE(IsGrey(menu, ID_EDIT_FIND));
}

// A choice by the keyboard.

TEST_F(EditMenu, AChosenItemIsCarriedOut)
{
    SetText(L"abc");
    m_edit.SetFocus();
    const MenuDriver driver([](HMENU) { return ID_EDIT_SELECT_ALL; });
    RightClick();
    EXPECT_TRUE(WaitFor([this] { return !m_edit.GetSelText().IsEmpty(); }));
    long start = 9;
    long end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_GE(end, 3);
}
