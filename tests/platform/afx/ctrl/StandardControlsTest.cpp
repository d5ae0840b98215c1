#include "ControlFixture.h"

#include <algorithm>
#include <vector>

namespace
{
// Controls that draw themselves: the message goes to the parent and comes back to the control.
class DrawnButton : public CButton
{
public:
    int m_draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_draws += item->CtlType == ODT_BUTTON; }
};

class DrawnStatic : public CStatic
{
public:
    int m_draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_draws += item->CtlType == ODT_STATIC; }
};

// An owner-drawn list whose items are ordered by their data, the greatest first.
class DrawnListBox : public CListBox
{
public:
    static constexpr int Height = 21;
    int m_draws = 0;
    int m_deletes = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++m_draws; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = Height; }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        return items->itemData1 == items->itemData2 ? 0 : items->itemData1 > items->itemData2 ? -1 : 1;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_deletes; }
    int VKeyToItem(UINT key, UINT) override { return key == VK_END ? 1 : -1; }
};

class DrawnComboBox : public CComboBox
{
public:
    static constexpr int Height = 19;
    int m_draws = 0;
    int m_deletes = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++m_draws; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = Height; }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        return static_cast<int>(items->itemData1) - static_cast<int>(items->itemData2);
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_deletes; }
};
} // namespace

class StandardControls : public ControlFixture
{
};

// Buttons.

TEST_F(StandardControls, AButtonKeepsCheckStyleAndImage)
{
    CButton button;
    ASSERT_TRUE(button.Create(L"Check", Visible | BS_AUTO3STATE, m_place, &m_parent, ControlId));
    EXPECT_EQ(ControlId, button.GetDlgCtrlID());
    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(BST_INDETERMINATE, button.GetCheck());
    EXPECT_EQ(static_cast<UINT>(BS_AUTO3STATE), button.GetButtonStyle() & BS_TYPEMASK);
    button.SetState(TRUE);
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
    button.SetButtonStyle(BS_AUTOCHECKBOX);
    EXPECT_EQ(static_cast<UINT>(BS_AUTOCHECKBOX), button.GetButtonStyle() & BS_TYPEMASK);

    CButton picture;
    ASSERT_TRUE(picture.Create(L"", Visible | BS_ICON, m_place, &m_parent, ControlId + 1));
    const HICON icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    EXPECT_EQ(nullptr, picture.SetIcon(icon));
    EXPECT_EQ(icon, picture.GetIcon());
    EXPECT_EQ(icon, picture.SetIcon(nullptr));
}

TEST_F(StandardControls, OwnerDrawnButtonsAndLabelsDrawThemselves)
{
    DrawnButton button;
    ASSERT_TRUE(button.Create(L"", Visible | BS_OWNERDRAW, CRect(0, 0, 50, 20), &m_parent, ControlId));
    button.RedrawWindow();
    EXPECT_GE(button.m_draws, 1);
    DrawnStatic label;
    ASSERT_TRUE(label.Create(L"", Visible | SS_OWNERDRAW, CRect(0, 30, 50, 50), &m_parent, ControlId + 1));
    label.RedrawWindow();
    EXPECT_GE(label.m_draws, 1);
}

TEST_F(StandardControls, ALabelShowsAnIconOrABitmap)
{
    CStatic label;
    ASSERT_TRUE(label.Create(L"", Visible | SS_ICON, m_place, &m_parent));
    const HICON icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    EXPECT_EQ(nullptr, label.SetIcon(icon));
    EXPECT_EQ(icon, label.GetIcon());
}

// Text fields.

TEST_F(StandardControls, AnEditSelectsReplacesAndUndoes)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(Visible | WS_BORDER | ES_AUTOHSCROLL, m_place, &m_parent, ControlId));
    edit.SetWindowText(L"hello world");
    EXPECT_FALSE(edit.GetModify());
    edit.SetSel(0, 5);
    int start = -1;
    int end = -1;
    edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(5, end);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 5)), edit.GetSel());
    edit.ReplaceSel(L"HI", TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(L"HI world", text);
    EXPECT_TRUE(edit.GetModify());
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.Undo());
    edit.GetWindowText(text);
    EXPECT_STREQ(L"hello world", text);
    edit.SetSel(MAKELONG(0, -1));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 11)), edit.GetSel());
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
}

TEST_F(StandardControls, AnEditLimitsWhatIsTyped)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(Visible | ES_AUTOHSCROLL, m_place, &m_parent, ControlId));
    edit.SetLimitText(3);
    EXPECT_EQ(3u, edit.GetLimitText());
    for (const wchar_t c : {L'a', L'b', L'c', L'd'})
        edit.SendMessage(WM_CHAR, c);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(L"abc", text);
    edit.SetMargins(4, 6);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(4, 6)), edit.GetMargins());
    edit.SetPasswordChar('*');
    EXPECT_EQ('*', edit.GetPasswordChar());
    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
}

TEST_F(StandardControls, AnEditOfSeveralLinesKnowsThem)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(Visible | ES_MULTILINE | ES_AUTOHSCROLL | ES_AUTOVSCROLL, m_place, &m_parent, ControlId));
    edit.SetWindowText(L"one\r\nsecond\r\nlast");
    EXPECT_EQ(3, edit.GetLineCount());
    EXPECT_EQ(5, edit.LineIndex(1));
    EXPECT_EQ(1, edit.LineFromChar(7));
    EXPECT_EQ(6, edit.LineLength(6));
    TCHAR line[16] = L"";
    const int length = edit.GetLine(1, line, 16);
    EXPECT_EQ(6, length);
    EXPECT_EQ(CString(L"second"), CString(line, length));
    const CPoint second = edit.PosFromChar(5);
    EXPECT_GT(second.y, edit.PosFromChar(0).y);
    EXPECT_EQ(5, LOWORD(edit.CharFromPos(second)));
    EXPECT_EQ(1, HIWORD(edit.CharFromPos(second)));
}

// List boxes.

TEST_F(StandardControls, AListBoxHoldsTextsAndData)
{
    CListBox list;
    ASSERT_TRUE(list.Create(Visible | WS_BORDER | LBS_SORT, m_place, &m_parent, ControlId));
    EXPECT_EQ(0, list.AddString(L"beta"));
    EXPECT_EQ(0, list.AddString(L"alpha"));
    EXPECT_EQ(2, list.InsertString(-1, L"last"));
    EXPECT_EQ(3, list.GetCount());
    CString text;
    list.GetText(1, text);
    EXPECT_STREQ(L"beta", text);
    EXPECT_EQ(4, list.GetTextLen(1));
    EXPECT_NE(LB_ERR, list.SetItemData(1, 12));
    EXPECT_EQ(12u, list.GetItemData(1));
    EXPECT_EQ(LB_ERR, list.GetCurSel());
    EXPECT_EQ(1, list.SelectString(-1, L"bet"));
    EXPECT_EQ(1, list.GetCurSel());
    EXPECT_EQ(2, list.FindStringExact(-1, L"last"));
    EXPECT_EQ(LB_ERR, list.FindStringExact(-1, L"las"));
    EXPECT_EQ(2, list.DeleteString(0));
    list.ResetContent();
    EXPECT_EQ(0, list.GetCount());
}

TEST_F(StandardControls, AListBoxSelectsSeveral)
{
    CListBox list;
    ASSERT_TRUE(list.Create(Visible | LBS_MULTIPLESEL, m_place, &m_parent, ControlId));
    for (const wchar_t* text : {L"a", L"b", L"c", L"d"})
        list.AddString(text);
    list.SelItemRange(TRUE, 1, 2);
    EXPECT_EQ(2, list.GetSelCount());
    int chosen[4] = {};
    EXPECT_EQ(2, list.GetSelItems(4, chosen));
    EXPECT_EQ(1, chosen[0]);
    EXPECT_EQ(2, chosen[1]);
    list.SelItemRange(FALSE, 2, 2);
    EXPECT_FALSE(list.GetSel(2));
    EXPECT_TRUE(list.GetSel(1));
    BOOL outside = TRUE;
    CRect item;
    list.GetItemRect(3, &item);
    EXPECT_EQ(3u, list.ItemFromPoint(item.CenterPoint(), outside));
    EXPECT_FALSE(outside);
}

TEST_F(StandardControls, AnOwnerDrawnListBoxMeasuresComparesDrawsAndDeletes)
{
    DrawnListBox list;
    const DWORD style = LBS_OWNERDRAWFIXED | LBS_SORT | LBS_WANTKEYBOARDINPUT | LBS_NOTIFY;
    ASSERT_TRUE(list.Create(Visible | style, m_place, &m_parent, ControlId));
    for (const INT_PTR data : {5, 9, 7})
        list.AddString(reinterpret_cast<LPCTSTR>(data));
    EXPECT_EQ(9u, list.GetItemData(0));
    EXPECT_EQ(5u, list.GetItemData(2));
    EXPECT_EQ(DrawnListBox::Height, list.GetItemHeight(0));
    list.RedrawWindow();
    EXPECT_GE(list.m_draws, 3);
    EXPECT_EQ(1, m_parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(VK_END, 0), LPARAM(list.m_hWnd)));
    EXPECT_EQ(-1, m_parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(VK_HOME, 0), LPARAM(list.m_hWnd)));
    list.DeleteString(0);
    EXPECT_EQ(1, list.m_deletes);
}

// Combo boxes.

TEST_F(StandardControls, AComboBoxHoldsTextsAndDropsDown)
{
    CComboBox combo;
    ASSERT_TRUE(combo.Create(Visible | CBS_DROPDOWN, CRect(10, 10, 150, 200), &m_parent, ControlId));
    EXPECT_EQ(0, combo.AddString(L"alpha"));
    EXPECT_EQ(1, combo.AddString(L"beta"));
    EXPECT_EQ(2, combo.GetCount());
    CString text;
    combo.GetLBText(1, text);
    EXPECT_STREQ(L"beta", text);
    EXPECT_EQ(CB_ERR, combo.GetCurSel());
    EXPECT_EQ(1, combo.SetCurSel(1));
    combo.GetWindowText(text);
    EXPECT_STREQ(L"beta", text);
    EXPECT_TRUE(combo.SetEditSel(1, 3));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(1, 3)), combo.GetEditSel());
    combo.SetItemData(0, 77);
    EXPECT_EQ(77u, combo.GetItemData(0));
    combo.SetDroppedWidth(222);
    EXPECT_EQ(222, combo.GetDroppedWidth());
    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    combo.ShowDropDown(FALSE);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(1, combo.FindString(-1, L"be"));
    EXPECT_EQ(1, combo.DeleteString(0));
    combo.ResetContent();
    EXPECT_EQ(0, combo.GetCount());
}

TEST_F(StandardControls, AnOwnerDrawnComboBoxMeasuresComparesDrawsAndDeletes)
{
    DrawnComboBox combo;
    const DWORD style = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT;
    ASSERT_TRUE(combo.Create(Visible | style, CRect(10, 10, 150, 200), &m_parent, ControlId));
    for (const INT_PTR data : {5, 9, 7})
        combo.AddString(reinterpret_cast<LPCTSTR>(data));
    EXPECT_EQ(5u, combo.GetItemData(0));
    EXPECT_EQ(9u, combo.GetItemData(2));
    EXPECT_EQ(DrawnComboBox::Height, combo.GetItemHeight(0));
    combo.SetCurSel(0);
    combo.RedrawWindow();
    EXPECT_GE(combo.m_draws, 1);
    combo.DeleteString(0);
    EXPECT_EQ(1, combo.m_deletes);
}

// Scroll bars.

TEST_F(StandardControls, AScrollBarStopsWhereTheLastPageBegins)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(Visible | SBS_HORZ, CRect(0, 0, 100, 20), &m_parent, ControlId));
    bar.SetScrollRange(0, 50);
    int least = -1;
    int most = -1;
    bar.GetScrollRange(&least, &most);
    EXPECT_EQ(0, least);
    EXPECT_EQ(50, most);
    bar.SetScrollPos(20);
    EXPECT_EQ(20, bar.GetScrollPos());
    EXPECT_EQ(50, bar.GetScrollLimit());
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(40, bar.GetScrollLimit());
    SCROLLINFO back = {};
    EXPECT_TRUE(bar.GetScrollInfo(&back));
    EXPECT_EQ(11u, back.nPage);
    EXPECT_EQ(20, back.nPos);
}
