// The editable list under a real mouse and keyboard.
#include "EditableListFixture.h"
#include "RealKeyboard.h"
#include "RealMouse.h"

namespace
{

class EditableListInput : public EditableListFixture
{
protected:
    static CPoint OnScreen(HWND window, CPoint point)
    {
        ::ClientToScreen(window, &point);
        return point;
    }

    static CPoint MiddleOf(HWND window)
    {
        CRect rect;
        ::GetWindowRect(window, &rect);
        return rect.CenterPoint();
    }

    // A click that went astray may have opened another editor before: what was noted until then is forgotten.
    bool ClickUntilEdited(int row, int column, int id)
    {
        const std::wstring begin = L"begin " + std::to_wstring(row) + L"," + std::to_wstring(column);
        const bool done = ClickMouseUntil(OnScreen(List().m_hWnd, CellRect(row, column).CenterPoint()), [&] {
            return Child(id) != NULL && !m_owner.notes.empty() &&
                   m_owner.notes.back().compare(0, begin.size(), begin) == 0;
        });
        TakeNotes();
        return done;
    }

    bool IsNoted(const Notes& expected)
    {
        return WaitThroughFramework([this, &expected] { return m_owner.notes == expected; });
    }

    // The owner writes what was edited into the cell, as owners do.
    void StoreTexts()
    {
        m_owner.onEnd = [this](int row, int column) {
            const std::wstring& note = m_owner.notes.back();
            List().SetItemText(row, column, note.substr(note.find(L' ', 4) + 1).c_str());
        };
    }
};

} // namespace

TEST_F(EditableListInput, ClickTypeAndEnterEditACellAndGoToTheNext)
{
    AnswerWithEdit();
    StoreTexts();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    TypeText(L"new");
    ASSERT_TRUE(WaitThroughFramework([this] { return TextOf(Child(kEditId)) == L"new"; }));
    PressKey(VK_RETURN);
    ASSERT_TRUE(IsNoted({L"end 1,1 new", L"begin 1,2 r1c2"}));
    EXPECT_EQ(L"new", CellText(1, 1));
    TypeText(L"next");
    ASSERT_TRUE(WaitThroughFramework([this] { return TextOf(Child(kEditId)) == L"next"; }));
    PressKey(VK_DOWN);
    ASSERT_TRUE(WaitThroughFramework([this] { return CellText(1, 2) == L"next"; }));
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListInput, ChineseIsTyped)
{
    AnswerWithEdit();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    TypeText(L"\x56FE\x5C42");
    EXPECT_TRUE(WaitThroughFramework([this] { return TextOf(Child(kEditId)) == L"\x56FE\x5C42"; }));
}

TEST_F(EditableListInput, ClickElsewhereEndsTheEdit)
{
    AnswerWithEdit();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    TypeText(L"x");
    ASSERT_TRUE(WaitThroughFramework([this] { return TextOf(Child(kEditId)) == L"x"; }));
    EXPECT_TRUE(ClickMouseUntil(MiddleOf(m_other.m_hWnd), [this] { return CountEditors() == 0; }));
    EXPECT_TRUE(IsNoted({L"end 1,1 x"}));
}

TEST_F(EditableListInput, ClickOnAnotherCellMovesTheEditor)
{
    AnswerWithEdit();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    EXPECT_TRUE(ClickMouseUntil(OnScreen(List().m_hWnd, CellRect(2, 2).CenterPoint()),
                                [this] { return TextOf(Child(kEditId)) == L"r2c2"; }));
    EXPECT_TRUE(IsNoted({L"end 1,1 r1c1", L"begin 2,2 r2c2"}));
}

TEST_F(EditableListInput, ClickInsideTheEditorEndsNothing)
{
    AnswerWithEdit();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    CEdit* const edit = static_cast<CEdit*>(CWnd::FromHandlePermanent(Child(kEditId)));
    ASSERT_TRUE(ClickMouseUntil(MiddleOf(*edit), [edit] { return HIWORD(edit->GetSel()) == LOWORD(edit->GetSel()); }));
    EXPECT_TRUE(IsNoted({}));
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListInput, ButtonOfThreeDotsTellsTheOwner)
{
    AnswerWithButton();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kButtonId));
    EXPECT_TRUE(ClickMouseUntil(MiddleOf(Child(kButtonId)), [this] { return m_owner.notes.size() >= 2; }));
    EXPECT_TRUE(IsNoted({L"end 1,1 r1c1", L"message 1,1"}));
    EXPECT_EQ(0, CountEditors());
}

TEST_F(EditableListInput, EntryIsChosenFromTheDropDown)
{
    AnswerWithCombo(CBS_DROPDOWNLIST);
    ASSERT_TRUE(ClickUntilEdited(1, 1, kComboId));
    const HWND combo = Child(kComboId);
    ASSERT_TRUE(
        ClickMouseUntil(MiddleOf(combo), [combo] { return ::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }));
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
    CRect entry;
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&entry));
    EXPECT_TRUE(ClickMouseUntil(OnScreen(info.hwndList, entry.CenterPoint()),
                                [combo] { return ::SendMessageW(combo, CB_GETCURSEL, 0, 0) == 1; }));
    EXPECT_TRUE(IsNoted({L"message 41,0"}));
    PressKey(VK_RETURN);
    EXPECT_TRUE(IsNoted({L"message 41,0", L"end 1,1 entry 1", L"begin 1,2 r1c2"}));
}

TEST_F(EditableListInput, WheelScrollsAndEndsTheEdit)
{
    Create(LVS_REPORT, 200);
    AnswerWithEdit();
    List().SetZNListCtrlStyle(9 | ZNLCS_KEEPEDITONKILLFOCUS);
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    // Some versions of the edit keep the wheel to themselves, so that it turns over the list here.
    List().SetFocus();
    const CPoint beside = OnScreen(List().m_hWnd, CPoint(kColumns * kColumnWidth + 20, 100));
    ::SetCursorPos(beside.x, beside.y);
    SendMouse(beside, MOUSEEVENTF_WHEEL, -WHEEL_DELTA);
    EXPECT_TRUE(WaitThroughFramework([this] { return CountEditors() == 0; }));
    EXPECT_TRUE(WaitThroughFramework([this] { return List().GetTopIndex() > 0; }));
    EXPECT_TRUE(IsNoted({L"end 1,1 r1c1"}));
}

TEST_F(EditableListInput, DraggingAHeadingEndsTheEdit)
{
    AnswerWithEdit();
    ASSERT_TRUE(ClickUntilEdited(1, 1, kEditId));
    const HWND header = List().GetHeaderCtrl()->m_hWnd;
    CRect item;
    List().GetHeaderCtrl()->GetItemRect(0, &item);
    const CPoint divider = OnScreen(header, CPoint(item.right - 1, item.CenterPoint().y));
    EXPECT_TRUE(ClickMouseUntil(divider, [this] { return CountEditors() == 0; }));
    EXPECT_TRUE(IsNoted({L"end 1,1 r1c1"}));
}

TEST_F(EditableListInput, SpaceEditsTheSelectedRow)
{
    AnswerWithEdit();
    List().SetFocus();
    List().SelectItem(2, true);
    PressKey(VK_SPACE);
    EXPECT_TRUE(IsNoted({L"begin 2,1 r2c1"}));
    EXPECT_EQ(L"r2c1", TextOf(Child(kEditId)));
}
