// The list of items, the default item, the caption, and what presses and keys do. Menus: ComboButtonMenuTest.cpp.
#include "ComboButtonFixture.h"

class ComboButton : public ComboButtonFixture
{
protected:
    // As a dialog makes it of its template.
    HWND PlainButton(DWORD style)
    {
        return ::CreateWindowW(L"BUTTON", L"plain", style, kPlace.left, kPlace.top, kWidth, kHeight, m_owner->m_hWnd,
                               reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kButtonId)), NULL, NULL);
    }
};

// Items and the default among them.

TEST_F(ComboButton, StartsEmptyWithTheUsualStyle)
{
    EXPECT_EQ(0, m_button->GetItemCount());
    EXPECT_EQ(-1, DefaultIndex());
    EXPECT_EQ(nullptr, m_button->GetDefaultItem());
    EXPECT_EQ(170u, m_button->GetComboButtonStyle());
    EXPECT_EQ(L"at first", Text());
}

TEST_F(ComboButton, TheFirstItemBecomesDefaultAndCaption)
{
    TestItem& first = AddItem(L"first");
    EXPECT_EQ(L"first", Text());
    AddItem(L"second");
    EXPECT_EQ(L"first", Text());
    EXPECT_EQ(0, DefaultIndex());
    EXPECT_EQ(&first, m_button->GetDefaultItem());
    int index = -2;
    EXPECT_EQ(&first, m_button->GetDefaultItem(index));
    EXPECT_EQ(2, m_button->GetItemCount());
    EXPECT_EQ(&first, m_button->GetItem(0));
    EXPECT_EQ(m_items[1].get(), m_button->GetItem(1));
}

TEST_F(ComboButton, ItemsAddedBeforeTheWindowNameItWhenItComes)
{
    m_button->DestroyWindow();
    m_button.reset(new TestComboButton);
    AddItem(L"early");
    EXPECT_EQ(0, DefaultIndex());
    ASSERT_TRUE(m_button->SubclassWindow(PlainButton(WS_CHILD)));
    EXPECT_EQ(L"early", Text());
}

TEST_F(ComboButton, NullIsNoItem)
{
    CComboButtonItem* const none = NULL;
    m_button->AddItem(none);
    EXPECT_EQ(0, m_button->GetItemCount());
    EXPECT_EQ(-1, DefaultIndex());
    AddItems(2);
    m_button->AddItem(none);
    m_button->RemoveItem(none);
    m_button->SetDefaultItem(none);
    EXPECT_EQ(2, m_button->GetItemCount());
    EXPECT_EQ(0, DefaultIndex());
}

TEST_F(ComboButton, TheDefaultIsChosenByPointerOrIndex)
{
    AddItems(3);
    m_button->SetDefaultItem(m_items[2].get());
    EXPECT_EQ(2, DefaultIndex());
    EXPECT_EQ(L"item 2", Text());
    m_button->SetDefaultItem(1);
    EXPECT_EQ(1, DefaultIndex());
    EXPECT_EQ(L"item 1", Text());
}

TEST_F(ComboButton, WhatIsNoItemAndNoIndexLeavesTheDefaultAlone)
{
    AddItems(3);
    m_button->SetDefaultItem(1);
    m_button->SetDefaultItem(&NewItem(L"stranger"));
    for (const int index : {-1, -1000, 3, 1000})
        m_button->SetDefaultItem(index);
    EXPECT_EQ(1, DefaultIndex());
    EXPECT_EQ(L"item 1", Text());
}

TEST_F(ComboButton, AnItemOutOfRangeIsAnInvalidArgument)
{
    AddItems(2);
    for (const int index : {-1, 2})
    {
        try
        {
            m_button->GetItem(index);
            ADD_FAILURE() << index << " was accepted";
        }
        catch (CInvalidArgException* exception)
        {
            exception->Delete();
        }
    }
}

TEST_F(ComboButton, RemovingMovesTheDefault)
{
    const struct
    {
        const char* name;
        int count, before, removed, after;
    } rows[] = {
        {"the default at the front", 3, 0, 0, 0},
        {"the default in the middle", 3, 1, 1, 0},
        {"the default at the end", 3, 2, 2, 1},
        {"before the default", 3, 2, 0, 1},
        {"before the default, which is the second", 3, 1, 0, 0},
        {"behind the default", 3, 1, 2, 1},
        {"the only one", 1, 0, 0, -1},
    };
    for (const auto& row : rows)
    {
        CreateButton();
        m_items.clear();
        AddItems(row.count);
        m_button->SetDefaultItem(row.before);
        m_button->RemoveItem(m_items[static_cast<size_t>(row.removed)].get());
        EXPECT_EQ(row.after, DefaultIndex()) << row.name;
        EXPECT_EQ(row.count - 1, m_button->GetItemCount()) << row.name;
    }
}

TEST_F(ComboButton, ARemovalLeavesTheWindowTextAlone)
{
    AddItems(3);
    m_button->RemoveItem(m_items[0].get());
    EXPECT_EQ(m_items[1].get(), m_button->GetDefaultItem());
    EXPECT_EQ(L"item 0", Text());
    m_button->SetDefaultItem(0);
    EXPECT_EQ(L"item 1", Text());
}

TEST_F(ComboButton, AStrangerCannotBeRemoved)
{
    AddItems(2);
    m_button->RemoveItem(&NewItem(L"stranger"));
    EXPECT_EQ(2, m_button->GetItemCount());
}

TEST_F(ComboButton, AnItemThatIsThereTwiceLosesItsFirstPlace)
{
    AddItems(2);
    m_button->AddItem(m_items[0].get());
    m_button->RemoveItem(m_items[0].get());
    EXPECT_EQ(2, m_button->GetItemCount());
    EXPECT_EQ(m_items[1].get(), m_button->GetItem(0));
    EXPECT_EQ(m_items[0].get(), m_button->GetItem(1));
}

TEST_F(ComboButton, AfterTheLastItemANewOneIsTheDefaultAgain)
{
    AddItems(1);
    m_button->RemoveItem(m_items[0].get());
    EXPECT_EQ(nullptr, m_button->GetDefaultItem());
    AddItem(L"new");
    EXPECT_EQ(0, DefaultIndex());
    EXPECT_EQ(L"new", Text());
}

TEST_F(ComboButton, StyleZeroIsTheUsualStyle)
{
    m_button->SetComboButtonStyle(CBTS_FLAT | CBTS_SHOWIMAGE);
    EXPECT_EQ(0x21u, m_button->GetComboButtonStyle());
    m_button->SetComboButtonStyle(0);
    EXPECT_EQ(170u, m_button->GetComboButtonStyle());
    m_button->SetComboButtonStyle(0xFFFFFFFF);
    EXPECT_EQ(0xFFFFFFFF, m_button->GetComboButtonStyle());
}

// The window.

TEST_F(ComboButton, TakesTheStylesOfAnOwnerDrawnChild)
{
    const struct
    {
        const char* name;
        DWORD given, kept;
    } rows[] = {
        {"hidden", WS_CHILD, 0},
        {"tab stop", WS_CHILD | WS_VISIBLE | WS_TABSTOP, WS_TABSTOP},
        {"disabled", WS_CHILD | WS_VISIBLE | WS_DISABLED, WS_DISABLED},
        {"all others go", WS_CHILD | WS_VISIBLE | WS_GROUP | WS_BORDER | BS_DEFPUSHBUTTON | BS_MULTILINE, 0},
    };
    for (const auto& row : rows)
    {
        CreateButton(row.given);
        EXPECT_EQ(0x5000000Bu | row.kept, m_button->GetStyle()) << row.name;
    }
}

TEST_F(ComboButton, SubclassesAButtonOfADialog)
{
    m_button->DestroyWindow();
    m_button.reset(new TestComboButton);
    AddItem(L"first");
    ASSERT_TRUE(m_button->SubclassWindow(PlainButton(WS_CHILD | WS_TABSTOP | BS_AUTOCHECKBOX)));
    EXPECT_EQ(0x5000000Bu | WS_TABSTOP, m_button->GetStyle());
    EXPECT_EQ(L"first", Text());
    Click(OnFace());
    EXPECT_EQ(1, m_items[0]->runs);
}

// Presses and keys.

TEST_F(ComboButton, AClickRunsTheDefaultItemAndTellsTheParent)
{
    AddItems(2);
    m_button->SetDefaultItem(1);
    Click(OnFace());
    EXPECT_EQ(0, m_items[0]->runs);
    EXPECT_EQ(1, m_items[1]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButton, WithOneItemThereIsNoDropZone)
{
    AddItems(1);
    Click(OnDropZone());
    EXPECT_EQ(0, m_button->menusInitialised);
    EXPECT_EQ(1, m_items[0]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButton, WithoutItemsItIsAPlainButton)
{
    Click(OnDropZone());
    Click(OnFace());
    EXPECT_EQ(0, m_button->menusInitialised);
    EXPECT_EQ(2, m_owner->clicks);
}

TEST_F(ComboButton, ADisabledDefaultItemCannotBeClicked)
{
    AddItems(2);
    m_items[0]->enabled = false;
    Press(OnFace());
    EXPECT_FALSE(IsPushed());
    Release(OnFace());
    EXPECT_EQ(0, m_items[0]->runs);
    EXPECT_EQ(0, m_owner->clicks);
    m_items[0]->enabled = true;
    Click(OnFace());
    EXPECT_EQ(1, m_items[0]->runs);
}

TEST_F(ComboButton, ADisabledItemThatIsNotTheDefaultDoesNotMatter)
{
    AddItems(2);
    m_items[1]->enabled = false;
    Click(OnFace());
    EXPECT_EQ(1, m_items[0]->runs);
}

TEST_F(ComboButton, AnItemThatIsDisabledUnderThePressIsNotRunAndThePressEnds)
{
    AddItems(1);
    Press(OnFace());
    EXPECT_TRUE(IsPushed());
    m_items[0]->enabled = false;
    Release(OnFace());
    EXPECT_EQ(0, m_items[0]->runs);
    EXPECT_EQ(0, m_owner->clicks);
    EXPECT_FALSE(IsPushed());
    EXPECT_EQ(NULL, ::GetCapture());
}

TEST_F(ComboButton, TheSpaceKeyRunsAnEnabledDefaultItemOnly)
{
    AddItems(1);
    m_button->SendMessage(WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_TRUE(IsPushed());
    m_button->SendMessage(WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(1, m_items[0]->runs);

    m_items[0]->enabled = false;
    m_button->SendMessage(WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_FALSE(IsPushed());
    m_button->SendMessage(WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(1, m_items[0]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButton, ADisabledItemIsNotRunByAClickFromElsewhere)
{
    AddItems(1);
    m_items[0]->enabled = false;
    m_button->SendMessage(BM_CLICK);
    m_owner->SendMessage(WM_COMMAND, kButtonId, reinterpret_cast<LPARAM>(m_button->m_hWnd));
    EXPECT_EQ(0, m_items[0]->runs);
    EXPECT_EQ(1, m_owner->clicks); // the second one is a click that the parent hears of
}

TEST_F(ComboButton, TheExtraTextIsNeverAskedFor)
{
    AddItems(2);
    Click(OnFace());
    Choose(1);
    EXPECT_EQ(0, m_items[0]->extraTexts + m_items[1]->extraTexts);
    EXPECT_STREQ(L"", m_items[0]->CComboButtonItem::GetExtraText());
}

TEST_F(ComboButton, AnItemHasNoBitmapAndIsNoSeparatorUnlessItSaysSo)
{
    TestItem& item = NewItem(L"plain");
    EXPECT_EQ(NULL, item.CComboButtonItem::GetBitmap());
    EXPECT_FALSE(item.CComboButtonItem::IsSeparator());
}

// What an entry of the menu does, without a menu.

TEST_F(ComboButton, ACommandMakesItsItemTheDefaultAndRunsItOnce)
{
    AddItems(3);
    Choose(2);
    EXPECT_EQ(2, DefaultIndex());
    EXPECT_EQ(L"item 2", Text());
    EXPECT_EQ(1, m_items[2]->runs);
    EXPECT_EQ(0, m_items[0]->runs);
    EXPECT_EQ(1, m_owner->clicks);
    EXPECT_EQ(std::vector<WPARAM>{MAKEWPARAM(kButtonId, BN_CLICKED)}, m_owner->commands);
}

TEST_F(ComboButton, CommandsOutsideTheItemsDoNothing)
{
    AddItems(102);
    for (const int index : {-1, 101, 102, -1057})
        Choose(index);
    EXPECT_EQ(0, DefaultIndex());
    EXPECT_EQ(0, m_owner->clicks);
    EXPECT_EQ(0, m_items[101]->runs);
    Choose(100);
    EXPECT_EQ(100, DefaultIndex());
    EXPECT_EQ(1, m_items[100]->runs);
}

TEST_F(ComboButton, ACommandOfADisabledItemMakesItTheDefaultButDoesNotRunIt)
{
    AddItems(2);
    m_items[1]->enabled = false;
    Choose(1);
    EXPECT_EQ(1, DefaultIndex());
    EXPECT_EQ(0, m_items[1]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButton, CommandsOfAnEmptyButtonDoNothing)
{
    Choose(0);
    EXPECT_EQ(-1, DefaultIndex());
    EXPECT_EQ(0, m_owner->clicks);
}

// Items whose commands turn against the button.

TEST_F(ComboButton, AnItemMayDestroyTheButton)
{
    AddItems(2);
    m_items[0]->onAction = [this] { m_button->DestroyWindow(); };
    Click(OnFace());
    EXPECT_EQ(NULL, m_button->m_hWnd);
    EXPECT_EQ(1, m_items[0]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButton, AnItemMayDeleteTheButton)
{
    AddItems(2);
    m_items[1]->onAction = [this] {
        m_button->DestroyWindow();
        m_button.reset();
    };
    Choose(1);
    EXPECT_EQ(nullptr, m_button);
    EXPECT_EQ(1, m_items[1]->runs);
    EXPECT_EQ(1, m_owner->clicks);
}

TEST_F(ComboButton, AnItemMayDeleteTheDialogWithTheButton)
{
    AddItems(1);
    m_items[0]->onAction = [this] {
        m_button->DestroyWindow();
        m_button.reset();
        m_owner.reset();
    };
    Click(OnFace());
    EXPECT_EQ(nullptr, m_owner);
    EXPECT_EQ(1, m_items[0]->runs);
}

TEST_F(ComboButton, AnItemMayRemoveAllItems)
{
    AddItems(3);
    m_items[1]->onAction = [this] {
        for (const auto& item : m_items)
            m_button->RemoveItem(item.get());
    };
    Choose(1);
    EXPECT_EQ(0, m_button->GetItemCount());
    EXPECT_EQ(-1, DefaultIndex());
    EXPECT_EQ(1, m_owner->clicks);
    EXPECT_EQ(1, m_items[1]->runs);
}

TEST_F(ComboButton, AWindowThatComesBackIsAtRest)
{
    AddItems(2);
    m_items[0]->onAction = [this] { m_button->DestroyWindow(); };
    m_button->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(20, 15));
    Click(OnFace());
    ASSERT_TRUE(m_button->SubclassWindow(PlainButton(WS_CHILD)));
    EXPECT_EQ(L"item 0", Text());
    m_items[0]->onAction = nullptr;
    Click(OnFace());
    EXPECT_EQ(2, m_items[0]->runs);
}
