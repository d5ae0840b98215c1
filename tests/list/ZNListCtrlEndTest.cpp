// How an edit ends: the final text of every editor, every event that closes one, and the order of what the owner is
// told.
#include "EditableListFixture.h"

#include <afxdtctl.h>

namespace
{

class EditableListEnd : public EditableListFixture
{
protected:
    void BeginTrack(UINT code)
    {
        NMHEADERW info = {};
        info.hdr.hwndFrom = List().GetHeaderCtrl()->m_hWnd;
        info.hdr.idFrom = ::GetDlgCtrlID(info.hdr.hwndFrom);
        info.hdr.code = code;
        List().SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
    }

    void ClickButton() { ::SendMessageW(Child(kButtonId), BM_CLICK, 0, 0); }

    void ChooseEntry(int entry)
    {
        const HWND combo = Child(kComboId);
        ::SendMessageW(combo, CB_SETCURSEL, entry, 0);
        List().SendMessage(WM_COMMAND, MAKEWPARAM(kComboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
    }

    bool AllEditorsAreGone()
    {
        return WaitFor([this] { return CountEditors() == 0; });
    }

    // A fresh edit of cell 1,1, and what came of it.
    Notes After(const std::function<void()>& event)
    {
        List().EndEdit();
        EXPECT_TRUE(AllEditorsAreGone());
        ClickCell(1, 1);
        TakeNotes();
        event();
        return TakeNotes();
    }
};

} // namespace

// Texts.

TEST_F(EditableListEnd, WithoutAnEditorNothingHappens)
{
    List().EndEdit();
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableListEnd, ValidTextIsHandedOver)
{
    CSuperEdit* const edit = List().ShowInPlaceEdit(1, 1, L"5");
    edit->SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    edit->SetWindowText(L"7");
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 7"}), TakeNotes());
    EXPECT_EQ(L"r1c1", CellText(1, 1)); // the list itself writes nothing
}

TEST_F(EditableListEnd, InvalidTextPutsTheTextOfTheCellBack)
{
    CSuperEdit* const edit = List().ShowInPlaceEdit(1, 1, L"5");
    edit->SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    edit->SetWindowText(L"77");
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 r1c1"}), TakeNotes());
}

// The default that such an edit gives itself when it loses the focus comes too late.
TEST_F(EditableListEnd, TextTypedOutOfViewIsHandedOver)
{
    List().SetColumnWidth(1, 600); // column 2 begins behind the right edge
    CSuperEdit* const edit = List().ShowInPlaceEdit(1, 2, L"");
    ASSERT_NE(nullptr, edit);
    edit->SetValidCharSet(VVE_DECIMAL, NULL);
    for (const wchar_t key : {L'4', L'2'})
        edit->SendMessage(WM_CHAR, key, 1);
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,2 42"}), TakeNotes());
}

TEST_F(EditableListEnd, InvalidTextPutsTheTextOfTheCellBackWhenTheFocusGoes)
{
    CSuperEdit* const edit = List().ShowInPlaceEdit(1, 1, L"5");
    edit->SetInputInt(5, 1, 10, FALSE, FALSE, NULL);
    edit->SetWindowText(L"77");
    m_other.SetFocus();
    EXPECT_EQ((Notes{L"end 1,1 r1c1"}), TakeNotes());
    EXPECT_EQ(0, CountEditors());
}

TEST_F(EditableListEnd, EditWithButtonHandsItsTextOver)
{
    List().ShowInPlaceEditBtn(1, 1, EditOwner::kMessage, L"old")->SetWindowText(L"new");
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 new"}), TakeNotes());
    EXPECT_EQ(0, CountEditors());
}

TEST_F(EditableListEnd, ComboBoxHandsOverItsText)
{
    struct Row
    {
        const char* name;
        DWORD style;
        int selected;
        const wchar_t* typed; // null: nothing
        const wchar_t* expected;
    };
    const Row rows[] = {
        {"list, selected", CBS_DROPDOWNLIST, 1, nullptr, L"b"},
        {"list, nothing selected", CBS_DROPDOWNLIST, -1, nullptr, L""},
        {"drop-down, selected", CBS_DROPDOWN, 0, nullptr, L"a"},
        {"drop-down, typed", CBS_DROPDOWN, -1, L"typed", L"typed"},
        {"simple, selected", CBS_SIMPLE, 1, nullptr, L"b"},
        {"simple, typed but not selected", CBS_SIMPLE, -1, L"typed", L""},
        {"simple, nothing selected", CBS_SIMPLE, -1, nullptr, L""},
    };
    for (const Row& row : rows)
    {
        CComboBox* const combo = List().ShowInPlaceComboBox(1, 1, row.style, EditOwner::kMessage);
        combo->AddString(L"a");
        combo->AddString(L"b");
        if (row.selected >= 0)
            combo->SetCurSel(row.selected);
        if (row.typed != nullptr)
            combo->SetWindowText(row.typed);
        List().EndEdit();
        EXPECT_EQ((Notes{std::wstring(L"end 1,1 ") + row.expected}), TakeNotes()) << row.name;
        EXPECT_TRUE(AllEditorsAreGone());
    }
}

TEST_F(EditableListEnd, ComboBoxWithoutASelectionInSimpleStyleEndsWithAnEmptyText)
{
    List().ShowInPlaceComboBox(1, 1, CBS_SIMPLE, 0)->AddString(L"a");
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 "}), TakeNotes());
}

TEST_F(EditableListEnd, ComboBoxIsClosedByAMessageAndNotAtOnce)
{
    const HWND combo = List().ShowInPlaceComboBox(1, 1, CBS_DROPDOWNLIST, 0)->m_hWnd;
    List().EndEdit();
    EXPECT_TRUE(::IsWindow(combo));
    MSG message = {};
    EXPECT_TRUE(::PeekMessageW(&message, combo, WM_CLOSE, WM_CLOSE, PM_NOREMOVE));
    EXPECT_TRUE(WaitFor([combo] { return !::IsWindow(combo); }));
    EXPECT_EQ((Notes{L"end 1,1 "}), TakeNotes());
}

TEST_F(EditableListEnd, PickerHandsOverItsDateWithoutTheTime)
{
    List().ShowInPlaceDateTimeCtrl(1, 1, 0, L"2016-05-07 10:30:15");
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 2016-05-07"}), TakeNotes());
}

TEST_F(EditableListEnd, PickerHandsOverADateThatTheFrameworksTimeCannotHold)
{
    List().ShowInPlaceDateTimeCtrl(1, 1, 0, L"1850-02-03");
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 1850-02-03"}), TakeNotes());
}

TEST_F(EditableListEnd, PickerWithoutADateHandsOverAnEmptyText)
{
    List().ShowInPlaceDateTimeCtrl(1, 1, DTS_SHOWNONE, L"2016-05-07")->SetTime();
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 "}), TakeNotes());
}

// Events.

TEST_F(EditableListEnd, FocusGoesToTheListWhenAnEditorIsDestroyed)
{
    List().ShowInPlaceEdit(1, 1, L"");
    List().EndEdit();
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
}

TEST_F(EditableListEnd, EveryWayToEndAnEditTellsTheOwnerOnce)
{
    AnswerWithEdit();
    const Notes ended = {L"end 1,1 r1c1"};
    EXPECT_EQ(ended, After([this] { List().EndEdit(); })) << "called";
    EXPECT_EQ(ended, After([this] {
                  List().EndEdit();
                  List().EndEdit();
              }))
        << "called twice";
    EXPECT_EQ(ended, After([this] { List().SendMessage(WM_VSCROLL, SB_LINEDOWN); })) << "vertical scroll";
    EXPECT_EQ(ended, After([this] { List().SendMessage(WM_HSCROLL, SB_LINERIGHT); })) << "horizontal scroll";
    EXPECT_EQ(ended, After([this] { List().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120)); })) << "wheel";
    EXPECT_EQ(ended, After([this] { BeginTrack(HDN_BEGINTRACKW); })) << "column drag";
    EXPECT_EQ(ended, After([this] { BeginTrack(HDN_BEGINTRACKA); })) << "column drag of the other kind";
    EXPECT_EQ(ended, After([this] { m_other.SetFocus(); })) << "focus";
    EXPECT_EQ(ended, After([this] { List().SetFocus(); })) << "focus to the list";
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"begin 0,1 r0c1"}), After([this] { Press(VK_UP); })) << "up";
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"begin 1,2 r1c2"}), After([this] { Press(VK_RETURN); })) << "Enter";
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"begin 2,0 r2c0"}), After([this] { ClickCell(2, 0); })) << "click";
    EXPECT_EQ(ended, After([this] { Click(CPoint(50, 390)); })) << "click beside";
    EXPECT_EQ(ended, After([this] { List().UpItem(0); })) << "row operation";
    EXPECT_EQ(ended, After([this] { List().DestroyWindow(); })) << "destruction";
}

TEST_F(EditableListEnd, OtherHeaderNotificationsEndNothing)
{
    AnswerWithEdit();
    ClickCell(1, 1);
    TakeNotes();
    BeginTrack(HDN_ENDTRACKW);
    BeginTrack(HDN_ITEMCHANGEDW);
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableListEnd, EveryEditorEndsWithItsFocus)
{
    const std::function<void()> answers[] = {
        [this] { AnswerWithEdit(); }, [this] { AnswerWithButton(); }, [this] { AnswerWithCombo(CBS_DROPDOWN); },
        [this] { AnswerWithCombo(CBS_DROPDOWNLIST); }, [this] { AnswerWithPicker(); }};
    const wchar_t* const ends[] = {L"end 1,1 r1c1", L"end 1,1 r1c1", L"end 1,1 ", L"end 1,1 ", L"end 1,1 2016-05-07"};
    for (size_t i = 0; i < 5; ++i)
    {
        answers[i]();
        EXPECT_EQ((Notes{ends[i]}), After([this] { m_other.SetFocus(); })) << i;
        EXPECT_TRUE(AllEditorsAreGone());
    }
}

TEST_F(EditableListEnd, EditorsStayOpenWithoutTheFocusWhenTheStyleSaysSo)
{
    List().SetZNListCtrlStyle(9 | ZNLCS_KEEPEDITONKILLFOCUS);
    const std::function<void()> answers[] = {[this] { AnswerWithEdit(); }, [this] { AnswerWithButton(); },
                                             [this] { AnswerWithCombo(CBS_DROPDOWN); }, [this] { AnswerWithPicker(); }};
    for (const auto& answer : answers)
    {
        answer();
        EXPECT_EQ(Notes(), After([this] { m_other.SetFocus(); }));
        EXPECT_LT(0, CountEditors());
    }
}

TEST_F(EditableListEnd, OpenCalendarOfAPickerKeepsTheEditOpen)
{
    AnswerWithPicker();
    ClickCell(1, 1);
    TakeNotes();
    const HWND picker = Child(kPickerId);
    CRect client;
    ::GetClientRect(picker, &client);
    ::SendMessageW(picker, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 5, client.CenterPoint().y));
    const HWND calendar = reinterpret_cast<HWND>(::SendMessageW(picker, DTM_GETMONTHCAL, 0, 0));
    ASSERT_TRUE(::IsWindow(calendar));
    ::SetFocus(calendar);
    ASSERT_EQ(calendar, ::GetFocus());
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(1, CountEditors());
    ::SetFocus(picker);
    m_other.SetFocus();
    EXPECT_EQ((Notes{L"end 1,1 2016-05-07"}), TakeNotes());
}

TEST_F(EditableListEnd, SelectionOfAnEntryIsPostedAndTheComboBoxStaysOpen)
{
    AnswerWithCombo();
    ClickCell(1, 1);
    TakeNotes();
    ChooseEntry(2);
    EXPECT_EQ(Notes(), m_owner.notes); // posted, not sent
    EXPECT_TRUE(WaitFor([this] { return !m_owner.notes.empty(); }));
    EXPECT_EQ((Notes{L"message 42,0"}), TakeNotes());
    EXPECT_EQ(1, CountEditors());
    ChooseEntry(-1);
    EXPECT_TRUE(WaitFor([this] { return !m_owner.notes.empty(); }));
    EXPECT_EQ((Notes{L"message 0,0"}), TakeNotes());
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 "}), TakeNotes());
}

TEST_F(EditableListEnd, ComboBoxThatIsClosingSpeaksForNobody)
{
    AnswerWithCombo(CBS_DROPDOWNLIST);
    ClickCell(1, 1);
    const HWND closing = Child(kComboId);
    List().EndEdit();
    ClickCell(2, 1);
    ASSERT_TRUE(::IsWindow(closing));
    TakeNotes();
    List().SendMessage(WM_COMMAND, MAKEWPARAM(kComboId, CBN_SELCHANGE), reinterpret_cast<LPARAM>(closing));
    List().SendMessage(WM_COMMAND, MAKEWPARAM(kComboId, CBN_KILLFOCUS), reinterpret_cast<LPARAM>(closing));
    EXPECT_TRUE(WaitFor([closing] { return !::IsWindow(closing); }));
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(1, CountEditors());
    EXPECT_NE(nullptr, Child(kComboId));
}

// The button.

TEST_F(EditableListEnd, ButtonEndsTheEditAndThenTellsTheCell)
{
    AnswerWithButton();
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"message 1,1"}), After([this] {
                  ::SetFocus(Child(kButtonId));
                  ClickButton();
              }));
    EXPECT_EQ(0, CountEditors());
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"message 1,1"}), After([this] { ClickButton(); })) << "without the focus";
    List().SetZNListCtrlStyle(9 | ZNLCS_KEEPEDITONKILLFOCUS);
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"message 1,1"}), After([this] { ClickButton(); })) << "kept open";
}

TEST_F(EditableListEnd, ButtonWithoutAnEditTellsTheCellOfNoEdit)
{
    const auto click = [this] { List().SendMessage(WM_COMMAND, MAKEWPARAM(kButtonId, BN_CLICKED)); };
    List().ShowInPlaceEditBtn(1, 1, EditOwner::kMessage, L"");
    List().EndEdit();
    TakeNotes();
    click();
    EXPECT_EQ((Notes{L"message -100,-100"}), TakeNotes());
}

TEST_F(EditableListEnd, ButtonWithTheFocusKeepsTheEditOpen)
{
    AnswerWithButton();
    ClickCell(1, 1);
    TakeNotes();
    ::SetFocus(Child(kButtonId));
    EXPECT_EQ(2, CountEditors());
    List().EndEdit();
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(2, CountEditors());
    List().SetFocus();
    List().EndEdit();
    EXPECT_EQ((Notes{L"end 1,1 r1c1"}), TakeNotes());
    EXPECT_EQ(0, CountEditors());
}

TEST_F(EditableListEnd, ButtonWithTheFocusDoesNotKeepTheEditOpenWhenTheCellMoves)
{
    AnswerWithButton();
    const auto focus = [this] { ::SetFocus(Child(kButtonId)); };
    EXPECT_EQ((Notes{L"end 1,1 r1c1"}), After([&] {
                  focus();
                  List().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120));
              }));
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"begin 2,1 r2c1"}), After([&] {
                  focus();
                  Press(VK_DOWN);
              }));
    EXPECT_EQ(2, CountEditors());
    EXPECT_EQ((Notes{L"end 1,1 r1c1", L"begin 2,0 r2c0"}), After([&] {
                  focus();
                  ClickCell(2, 0);
              }));
}

TEST_F(EditableListEnd, TextMayBeAskedOfTheOwner)
{
    Create();
    List().SetItemText(1, 1, LPSTR_TEXTCALLBACKW);
    m_owner.onAny = [](NMHDR& header) {
        NMLVDISPINFOW& info = reinterpret_cast<NMLVDISPINFOW&>(header);
        if (header.code == LVN_GETDISPINFOW && (info.item.mask & LVIF_TEXT) != 0)
            ::lstrcpynW(info.item.pszText, L"asked", info.item.cchTextMax);
    };
    ClickCell(1, 1);
    EXPECT_EQ((Notes{L"begin 1,1 asked"}), TakeNotes());
}
