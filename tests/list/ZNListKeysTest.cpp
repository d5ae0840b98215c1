// The editable list: what keys do. Where they lead is tested with the rules; here, what the list does about it.
#include "EditableListFixture.h"

#include "MessageSpy.h"

namespace
{

class EditableListKeys : public EditableListFixture
{
};

} // namespace

TEST_F(EditableListKeys, EnterWithNoEditorAndNoRowSelectedAndFocusedIsPassedOn)
{
    List().SetFocus();
    List().SetItemState(0, 0, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_FALSE(Press(VK_RETURN));
    List().SetItemState(1, LVIS_SELECTED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_FALSE(Press(VK_RETURN));
    List().SetItemState(1, 0, LVIS_SELECTED);
    List().SetItemState(2, LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_FALSE(Press(VK_SPACE));
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableListKeys, SpaceAndEnterEditColumn1OfAFreshList)
{
    AnswerWithEdit();
    for (const UINT key : {VK_SPACE, VK_RETURN})
    {
        Create();
        List().SetFocus();
        List().SelectItem(2, true);
        EXPECT_TRUE(Press(key));
        EXPECT_EQ((Notes{L"begin 2,1 r2c1"}), TakeNotes());
        EXPECT_EQ(1, CountEditors());
    }
}

TEST_F(EditableListKeys, EnterEditsTheColumnThatWasClickedLast)
{
    ClickCell(1, 2);
    TakeNotes();
    List().SelectItem(3, true);
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_EQ((Notes{L"begin 3,2 r3c2"}), TakeNotes());
}

TEST_F(EditableListKeys, KeysWithoutAnEditorGoToTheList)
{
    List().SetFocus();
    List().SelectItem(1, true);
    for (const UINT key : {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_TAB, VK_ESCAPE, VK_PROCESSKEY})
        EXPECT_FALSE(Press(key)) << key;
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableListKeys, EnterGoesToTheNextEditableCellAndOpensItsEditor)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    TakeNotes();
    ASSERT_TRUE(Press(VK_RETURN));
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"begin 1,2 r1c2"}), TakeNotes());
    ASSERT_TRUE(Press(VK_RETURN));
    EXPECT_EQ((Notes{L"end 1,2 r1c2", L"begin 2,0 r2c0"}), TakeNotes());
    EXPECT_EQ((std::vector<int>{2}), Selected());
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListKeys, EnterInTheLastCellEndsNothingAndIsPassedOn)
{
    AnswerWithEdit();
    ClickCell(kRows - 1, kColumns - 1);
    TakeNotes();
    EXPECT_FALSE(Press(VK_RETURN));
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListKeys, EnterOfAnInputMethodEndsNothing)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    TakeNotes();
    EXPECT_FALSE(Press(VK_PROCESSKEY));
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListKeys, TabAndEscapeAreNotHandledByTheList)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    TakeNotes();
    EXPECT_FALSE(Press(VK_TAB));
    EXPECT_FALSE(Press(VK_ESCAPE));
    EXPECT_EQ(1, CountEditors());
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableListKeys, UpAndDownMoveSelectionFocusAndEditor)
{
    AnswerWithEdit();
    ClickCell(1, 2);
    List().SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    TakeNotes();
    ASSERT_TRUE(Press(VK_DOWN));
    EXPECT_EQ((Notes{L"end 1,2 r1c2", L"begin 2,2 r2c2"}), TakeNotes());
    EXPECT_EQ((std::vector<int>{2}), Selected());
    EXPECT_EQ(2, List().GetNextItem(-1, LVNI_FOCUSED));
    ASSERT_TRUE(Press(VK_UP));
    EXPECT_EQ((Notes{L"end 2,2 r2c2", L"begin 1,2 r1c2"}), TakeNotes());
    EXPECT_EQ((std::vector<int>{1}), Selected());
}

TEST_F(EditableListKeys, KeysWithModifiersMove)
{
    AnswerWithEdit();
    ClickCell(1, 0);
    TakeNotes();
    EXPECT_FALSE(Press(VK_RIGHT));
    {
        const HeldKey ctrl(VK_CONTROL);
        EXPECT_TRUE(Press(VK_RIGHT));
        EXPECT_TRUE(Press(VK_LEFT));
    }
    EXPECT_EQ((Notes{L"end 1,0 r1c0", L"begin 1,1 r1c1", L"end 1,1 r1c1", L"begin 1,0 r1c0"}), TakeNotes());
}

TEST_F(EditableListKeys, CtrlRightPassesTheColumnsThatAreNeverEdited)
{
    Create(LVS_REPORT, kRows, 4);
    List().m_aNoEditColumns.Add(1);
    List().m_aNoEditColumns.Add(2);
    AnswerWithEdit();
    ClickCell(1, 0);
    TakeNotes();
    const HeldKey ctrl(VK_CONTROL);
    EXPECT_TRUE(Press(VK_RIGHT));
    EXPECT_EQ((Notes{L"end 1,0 r1c0", L"begin 1,3 r1c3"}), TakeNotes());
}

TEST_F(EditableListKeys, PlainArrowsLeaveAComboBoxAndArrowsWithShiftStay)
{
    AnswerWithCombo();
    ClickCell(1, 1);
    TakeNotes();
    {
        const HeldKey shift(VK_SHIFT);
        EXPECT_FALSE(Press(VK_DOWN));
        EXPECT_EQ(Notes(), m_owner.notes);
    }
    EXPECT_TRUE(Press(VK_DOWN));
    EXPECT_EQ((Notes{L"end 1,1 ", L"begin 2,1 r2c1"}), TakeNotes());
}

TEST_F(EditableListKeys, MovesWithoutAskingForAnEditorWhenToldSo)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    List().SetIfEnterNextEdit(false);
    TakeNotes();
    EXPECT_TRUE(Press(VK_DOWN));
    EXPECT_EQ((Notes{L"end 1,1 r1c1"}), TakeNotes());
    EXPECT_EQ((std::vector<int>{2}), Selected());
    EXPECT_EQ(0, CountEditors());
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_EQ(Notes(), m_owner.notes);
    List().SetIfEnterNextEdit(true);
    EXPECT_TRUE(Press(VK_RETURN)); // the cell that the arrow led to
    EXPECT_EQ((Notes{L"begin 2,1 r2c1"}), TakeNotes());
}

TEST_F(EditableListKeys, KeyBringsTheWholeRowIntoView)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    const MessageSpy spy(List().m_hWnd, LVM_ENSUREVISIBLE);
    ASSERT_TRUE(Press(VK_DOWN));
    EXPECT_EQ((std::vector<MessageSpy::Parameters>{{2, FALSE}}), spy.Seen());
}

TEST_F(EditableListKeys, KeyBringsItsRowIntoView)
{
    Create(LVS_REPORT, 200);
    AnswerWithEdit();
    const int last = List().GetTopIndex() + List().GetCountPerPage() - 1;
    ClickCell(last, 1);
    ASSERT_TRUE(Press(VK_DOWN));
    CRect row;
    List().GetItemRect(last + 1, &row, LVIR_BOUNDS);
    CRect client;
    List().GetClientRect(&client);
    EXPECT_LE(row.bottom, client.bottom);
    EXPECT_TRUE(CellRect(last + 1, 1) == PlaceOf(Child(kEditId)));
}

TEST_F(EditableListKeys, RowsChangeFromTheLastToTheFirstWhenAKeyMoves)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    List().SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    List().SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    std::vector<int> changed;
    m_owner.onAny = [&changed](NMHDR& header) {
        const NMLISTVIEW& change = reinterpret_cast<NMLISTVIEW&>(header);
        const UINT flipped = (change.uOldState ^ change.uNewState) & LVIS_SELECTED;
        if (header.code == LVN_ITEMCHANGED && flipped != 0)
            changed.push_back(change.iItem);
    };
    ASSERT_TRUE(Press(VK_DOWN));
    EXPECT_EQ((std::vector<int>{3, 2, 1, 0}), changed);
}

TEST_F(EditableListKeys, OtherMessagesAreNotLookedAt)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    TakeNotes();
    for (const UINT kind : {WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN})
    {
        MSG message = {};
        message.hwnd = ::GetFocus();
        message.message = kind;
        message.wParam = VK_RETURN;
        EXPECT_FALSE(List().PreTranslateMessage(&message));
    }
    EXPECT_EQ(Notes(), m_owner.notes);
}
