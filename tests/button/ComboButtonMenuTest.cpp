// The menu that a press on the drop zone opens, driven by messages. Real mouse and keys: ComboButtonInputTest.cpp.
#include "ComboButtonFixture.h"

#include "GdiCount.h"
#include "MenuScript.h"
#include "Wait.h"

namespace
{

class ComboButtonMenu : public ComboButtonFixture
{
protected:
    // Opens the menu, does something while it is open, closes it without a choice.
    void WithMenu(const std::function<void()>& work)
    {
        MenuScript script;
        script.When(MenuScript::IsOpen, work).When(MenuScript::IsOpen, [] { ::EndMenu(); });
        Press(OnDropZone());
        EXPECT_TRUE(script.IsDone());
    }

    // Opens the menu and chooses an entry as the arrow keys and Enter do; `meanwhile` comes before Enter.
    void ChooseInMenu(int downs, const std::function<void()>& meanwhile = nullptr)
    {
        MenuScript script;
        for (int i = 0; i < downs; ++i)
            script.When(MenuScript::IsOpen, [] { PostKey(VK_DOWN); });
        script.When([] { return MenuScript::IsOpen() && Highlighted() >= 0; },
                    [meanwhile] {
                        if (meanwhile)
                            meanwhile();
                        PostKey(VK_RETURN);
                    });
        Press(OnDropZone());
        EXPECT_TRUE(script.IsDone());
        Dispatch();
    }

    // The menu loop takes keys for whatever window they are posted to.
    static void PostKey(WPARAM key) { ::PostMessageW(MenuScript::MenuWindow(), WM_KEYDOWN, key, 0); }

    static int Highlighted()
    {
        for (int i = 0; i < ::GetMenuItemCount(MenuScript::OpenMenu()); ++i)
        {
            if (MenuScript::IsHighlighted(i))
                return i;
        }
        return -1;
    }

    // What the menu has posted.
    static void Dispatch()
    {
        MSG message;
        while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);
    }

    LRESULT TypeInMenu(wchar_t character)
    {
        return m_button->SendMessage(WM_MENUCHAR, MAKEWPARAM(character, MF_POPUP),
                                     reinterpret_cast<LPARAM>(MenuScript::OpenMenu()));
    }
};

} // namespace

// Opening and closing.

TEST_F(ComboButtonMenu, APressOnTheDropZoneOpensAnEntryForEachItem)
{
    AddItems(3);
    m_button->SetDefaultItem(1);
    WithMenu([this] {
        const HMENU menu = MenuScript::OpenMenu();
        EXPECT_EQ(3, ::GetMenuItemCount(menu));
        for (int i = 0; i < 3; ++i)
        {
            EXPECT_EQ(static_cast<UINT>(kFirstCommand + i), ::GetMenuItemID(menu, i));
            EXPECT_EQ(MF_OWNERDRAW, ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_OWNERDRAW);
        }
        EXPECT_EQ(0, m_items[1]->runs);
    });
    EXPECT_FALSE(MenuScript::IsOpen());
    EXPECT_EQ(1, m_button->menusInitialised);
    EXPECT_EQ(0, m_owner->clicks);
    EXPECT_EQ(1, DefaultIndex());
}

TEST_F(ComboButtonMenu, StandsBelowTheDropZone)
{
    AddItems(2);
    WithMenu([this] {
        CRect client;
        m_button->GetClientRect(&client);
        m_button->ClientToScreen(&client);
        CRect menu;
        ::GetWindowRect(MenuScript::MenuWindow(), &menu);
        EXPECT_EQ(CPoint(client.right - 17, client.bottom), menu.TopLeft());
    });
}

TEST_F(ComboButtonMenu, OpensWhileTheDefaultItemIsDisabled)
{
    AddItems(2);
    m_items[0]->enabled = false;
    WithMenu([] {});
    EXPECT_EQ(1, m_button->menusInitialised);
}

TEST_F(ComboButtonMenu, TheDropZoneBeginsSeventeenPixelsFromTheRight)
{
    AddItems(2);
    Click(CPoint(kWidth - 18, 15));
    EXPECT_EQ(0, m_button->menusInitialised);
    EXPECT_EQ(1, m_items[0]->runs);
    MenuScript script;
    script.When(MenuScript::IsOpen, [] { ::EndMenu(); });
    Press(CPoint(kWidth - 17, 0));
    EXPECT_EQ(1, m_button->menusInitialised);
    EXPECT_TRUE(script.IsDone());
}

TEST_F(ComboButtonMenu, ASecondPressWhileItIsOpenDoesNothing)
{
    AddItems(2);
    WithMenu([this] { Press(OnDropZone()); });
    EXPECT_EQ(1, m_button->menusInitialised);
    WithMenu([] {}); // and it opens again
    EXPECT_EQ(2, m_button->menusInitialised);
}

TEST_F(ComboButtonMenu, SeparatorsAndDisabledItemsHaveTheirEntries)
{
    AddItems(4);
    m_items[1]->separator = true;
    m_items[2]->enabled = false;
    WithMenu([] {
        const HMENU menu = MenuScript::OpenMenu();
        EXPECT_EQ(4, ::GetMenuItemCount(menu));
        EXPECT_TRUE(::GetMenuState(menu, 1, MF_BYPOSITION) & MF_SEPARATOR);
        EXPECT_FALSE(::GetMenuState(menu, 1, MF_BYPOSITION) & MF_OWNERDRAW);
        EXPECT_EQ(UINT(MF_GRAYED | MF_DISABLED),
                  ::GetMenuState(menu, 2, MF_BYPOSITION) & UINT(MF_GRAYED | MF_DISABLED));
        EXPECT_EQ(0u, ::GetMenuState(menu, 3, MF_BYPOSITION) & UINT(MF_GRAYED | MF_DISABLED));
        EXPECT_EQ(static_cast<UINT>(kFirstCommand + 3), ::GetMenuItemID(menu, 3)); // the separator counts
    });
}

// Choosing.

TEST_F(ComboButtonMenu, AChosenEntryRunsOnceAndBecomesTheDefault)
{
    AddItems(3);
    ChooseInMenu(2);
    EXPECT_EQ(1, DefaultIndex());
    EXPECT_EQ(L"item 1", Text());
    EXPECT_EQ(1, m_items[1]->runs);
    EXPECT_EQ(0, m_items[0]->runs + m_items[2]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButtonMenu, ATypedMnemonicRunsItsEntryAndClosesTheMenu)
{
    AddItem(L"&Open");
    AddItem(L"Op&en more");
    WithMenu([this] {
        EXPECT_EQ(0, TypeInMenu(L'x'));
        EXPECT_EQ(MAKELRESULT(0, MNC_CLOSE), TypeInMenu(L'e'));
    });
    EXPECT_EQ(1, m_items[1]->runs);
    EXPECT_EQ(1, DefaultIndex());
    EXPECT_EQ(0, m_items[0]->runs);
}

TEST_F(ComboButtonMenu, KeysTypedInAnotherMenuOfTheButtonAreIgnored)
{
    AddItem(L"&Open");
    CMenu other;
    other.CreatePopupMenu();
    EXPECT_EQ(0,
              m_button->SendMessage(WM_MENUCHAR, MAKEWPARAM(L'o', MF_POPUP), reinterpret_cast<LPARAM>(other.m_hMenu)));
    EXPECT_EQ(0, m_button->SendMessage(WM_MENUCHAR, MAKEWPARAM(L'o', MF_POPUP), 0));
    EXPECT_EQ(0, m_items[0]->runs);
}

TEST_F(ComboButtonMenu, HoldsMoreThanAHundredItemsOfWhichOneHundredAndOneCanBeChosen)
{
    for (const int count : {101, 102})
    {
        CreateButton();
        m_items.clear();
        AddItems(count);
        WithMenu([count] { EXPECT_EQ(count, ::GetMenuItemCount(MenuScript::OpenMenu())); });
        m_button->SendMessage(WM_COMMAND, static_cast<WPARAM>(kFirstCommand + count - 1), 0);
        EXPECT_EQ(count == 101 ? 100 : 0, DefaultIndex()) << count;
        EXPECT_EQ(count == 101 ? 1 : 0, m_items[static_cast<size_t>(count - 1)]->runs) << count;
    }
}

TEST_F(ComboButtonMenu, AnEntryWithoutANameIsChosenLikeAnyOther)
{
    AddItem(L"");
    AddItem(L"");
    ChooseInMenu(2);
    EXPECT_EQ(1, m_items[1]->runs);
    EXPECT_EQ(L"", Text());
}

// The owner changes the list while the menu is open.

TEST_F(ComboButtonMenu, AnEntryRunsTheItemItShowsAlthoughItemsBeforeItWereRemoved)
{
    AddItems(3);
    ChooseInMenu(2, [this] { m_button->RemoveItem(m_items[0].get()); });
    EXPECT_EQ(1, m_items[1]->runs);
    EXPECT_EQ(0, m_items[2]->runs);
    EXPECT_EQ(m_items[1].get(), m_button->GetDefaultItem());
}

TEST_F(ComboButtonMenu, AnEntryWhoseItemWasRemovedDoesNothing)
{
    AddItems(3);
    ChooseInMenu(2, [this] { m_button->RemoveItem(m_items[1].get()); });
    EXPECT_EQ(0, m_items[0]->runs + m_items[1]->runs + m_items[2]->runs);
    EXPECT_EQ(0, m_owner->clicks);
    EXPECT_EQ(m_items[0].get(), m_button->GetDefaultItem());
}

TEST_F(ComboButtonMenu, AllItemsMayBeRemovedAndDeletedWhileItIsOpen)
{
    AddItems(3);
    ChooseInMenu(2, [this] {
        for (const auto& item : m_items)
            m_button->RemoveItem(item.get());
        m_items.clear();
        ::RedrawWindow(MenuScript::MenuWindow(), NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
    });
    EXPECT_EQ(0, m_owner->clicks);
    EXPECT_EQ(-1, DefaultIndex());
}

TEST_F(ComboButtonMenu, TheListCountsAgainAfterTheMenuClosedWithoutAChoice)
{
    AddItems(3);
    WithMenu([this] { m_button->RemoveItem(m_items[0].get()); });
    Choose(1);
    EXPECT_EQ(1, m_items[2]->runs);
}

TEST_F(ComboButtonMenu, TheListCountsAgainAfterAChoice)
{
    AddItems(3);
    ChooseInMenu(1, [this] { m_button->RemoveItem(m_items[0].get()); });
    Choose(0);
    EXPECT_EQ(1, m_items[1]->runs);
}

TEST_F(ComboButtonMenu, AnItemMayRemoveOthersWhileItIsAskedForItsName)
{
    AddItems(3);
    m_items[0]->onGetName = [this] {
        for (size_t i = 1; i < m_items.size(); ++i)
            m_button->RemoveItem(m_items[i].get());
        m_items.resize(1);
    };
    WithMenu([] { EXPECT_EQ(1, ::GetMenuItemCount(MenuScript::OpenMenu())); });
}

// The button goes while the menu is open.

TEST_F(ComboButtonMenu, AMnemonicMayDestroyTheButton)
{
    AddItem(L"&Open");
    AddItem(L"&Close");
    m_items[1]->onAction = [this] { m_button->DestroyWindow(); };
    WithMenu([this] { EXPECT_EQ(MAKELRESULT(0, MNC_CLOSE), TypeInMenu(L'c')); });
    EXPECT_EQ(NULL, m_button->m_hWnd);
    EXPECT_EQ(1, m_items[1]->runs);
}

TEST_F(ComboButtonMenu, AMnemonicMayDeleteTheButtonAndItsDialog)
{
    AddItem(L"&Open");
    AddItem(L"&Close");
    m_items[1]->onAction = [this] {
        m_button->DestroyWindow();
        m_button.reset();
        m_owner.reset();
    };
    TestItem& closing = *m_items[1];
    MenuScript script;
    script.When(MenuScript::IsOpen, [this] { TypeInMenu(L'c'); });
    script.When([] { return true; }, [] { ::EndMenu(); });
    Press(OnDropZone());
    EXPECT_EQ(nullptr, m_button);
    EXPECT_EQ(nullptr, m_owner);
    EXPECT_EQ(1, closing.runs);
}

// Nothing is left behind.

TEST_F(ComboButtonMenu, OpeningLeavesNoObjectBehind)
{
    const SampleIcon icon(16, 16, RGB(255, 0, 0));
    const SampleBitmap bitmap(24, 24, RGB(0, 255, 0));
    AddItems(4);
    m_items[0]->icon = icon;
    m_items[1]->bitmap = bitmap;
    m_items[2]->icon = icon;
    m_items[2]->enabled = false;
    m_items[3]->icon = reinterpret_cast<HICON>(static_cast<UINT_PTR>(0x12345));
    size_t counted = 0;
    for (int round = 0; round < 4; ++round)
    {
        WithMenu([] { ::RedrawWindow(MenuScript::MenuWindow(), NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW); });
        Dispatch();
        const size_t now = CountGdiObjects();
        EXPECT_TRUE(round < 2 || now == counted) << counted << " objects became " << now;
        counted = now;
    }
}
