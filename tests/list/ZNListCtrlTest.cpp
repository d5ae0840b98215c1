// The editable list: its editors, and how clicks open them.
#include "EditableListFixture.h"

#include <afxdtctl.h>

#include <algorithm>
#include <tuple>

namespace
{

class EditableList : public EditableListFixture
{
protected:
    static DWORD StyleOf(HWND child) { return static_cast<DWORD>(::GetWindowLongPtrW(child, GWL_STYLE)); }

    static std::wstring ClassOf(HWND child)
    {
        wchar_t name[32] = L"";
        ::GetClassNameW(child, name, 32);
        return name;
    }

    // Year, month, day, hour, minute, second.
    std::vector<int> Picked()
    {
        SYSTEMTIME m = {};
        ::SendMessageW(Child(kPickerId), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&m));
        return {m.wYear, m.wMonth, m.wDay, m.wHour, m.wMinute, m.wSecond};
    }

    bool OpenPicker(const wchar_t* text, DWORD style = 0)
    {
        List().EndEdit();
        return List().ShowInPlaceDateTimeCtrl(1, 1, style, text) != nullptr;
    }
};

// Writes down which children a window is asked to create.
class CreationSpy
{
public:
    explicit CreationSpy(HWND parent)
    {
        s_parent = parent;
        s_created.clear();
        m_hook = ::SetWindowsHookExW(WH_CBT, &CreationSpy::OnHook, NULL, ::GetCurrentThreadId());
    }
    ~CreationSpy() { ::UnhookWindowsHookEx(m_hook); }
    CreationSpy(const CreationSpy&) = delete;
    CreationSpy& operator=(const CreationSpy&) = delete;

    bool Has(int id, DWORD style, const CRect& place) const
    {
        const Created wanted = {id, style, place.left, place.top, place.Width(), place.Height()};
        return std::find(s_created.begin(), s_created.end(), wanted) != s_created.end();
    }

private:
    typedef std::tuple<int, DWORD, int, int, int, int> Created;

    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND)
        {
            const CREATESTRUCTW& c = *reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs;
            const int id = static_cast<int>(reinterpret_cast<LONG_PTR>(c.hMenu));
            if (c.hwndParent == s_parent)
                s_created.emplace_back(id, static_cast<DWORD>(c.style), c.x, c.y, c.cx, c.cy);
        }
        return ::CallNextHookEx(NULL, code, wParam, lParam);
    }

    static HWND s_parent;
    static std::vector<Created> s_created;
    HHOOK m_hook;
};

HWND CreationSpy::s_parent = NULL;
std::vector<CreationSpy::Created> CreationSpy::s_created;

} // namespace

TEST_F(EditableList, KeepsItsStyleWord)
{
    EXPECT_EQ(9u, List().GetZNListCtrlStyle());
    List().SetZNListCtrlStyle(0xFFFFFFFFu);
    EXPECT_EQ(0xFFFFFFFFu, List().GetZNListCtrlStyle());
}

TEST_F(EditableList, SortsNothingByClicksUnlessItIsEnabled)
{
    List().SetItemText(3, 0, L"a");
    NMLISTVIEW click = {};
    click.hdr.hwndFrom = List().m_hWnd;
    click.hdr.idFrom = kListId;
    click.hdr.code = LVN_COLUMNCLICK;
    m_owner.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&click));
    EXPECT_EQ(L"a", CellText(3, 0));
    List().EnableSort(1);
    m_owner.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&click));
    m_owner.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&click));
    EXPECT_EQ(L"a", CellText(0, 0));
    EXPECT_EQ((std::vector<DWORD_PTR>{1003, 1000, 1001, 1002}), Data());
}

TEST_F(EditableList, IsEditTestsTheColumnOnly)
{
    EXPECT_TRUE(List().IsEdit(0));
    List().m_aNoEditColumns.Add(1);
    EXPECT_TRUE(List().IsEdit(0));
    EXPECT_FALSE(List().IsEdit(1));
    EXPECT_TRUE(List().IsEdit(99));
    EXPECT_TRUE(List().IsEdit(-1));
}

TEST_F(EditableList, OpensAValidatingEditOverTheCell)
{
    CSuperEdit* const edit = List().ShowInPlaceEdit(1, 2, L"some text");
    ASSERT_NE(nullptr, edit);
    EXPECT_EQ(edit->m_hWnd, Child(kEditId));
    EXPECT_EQ(1, CountEditors());
    EXPECT_TRUE(CellRect(1, 2) == PlaceOf(*edit));
    EXPECT_EQ(L"some text", TextOf(*edit));
    EXPECT_EQ(edit->m_hWnd, ::GetFocus());
    int start = -1;
    int end = -1;
    edit->GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(9, end);
    EXPECT_TRUE(edit->IsKindOf(RUNTIME_CLASS(CSuperEdit)));
}

TEST_F(EditableList, EditorOfColumn0CoversTheLabelOnly)
{
    CSuperEdit* const edit = List().ShowInPlaceEdit(1, 0, L"");
    ASSERT_NE(nullptr, edit);
    CRect label;
    List().GetSubItemRect(1, 0, LVIR_LABEL, label);
    EXPECT_TRUE(label == PlaceOf(*edit));
    EXPECT_GT(kColumnWidth + 1, label.right);
}

TEST_F(EditableList, EditorsTakeTheFontOfTheList)
{
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    List().SetFont(&font);
    const auto fontOf = [this](int id) { return reinterpret_cast<HFONT>(::SendMessageW(Child(id), WM_GETFONT, 0, 0)); };
    const HFONT expected = static_cast<HFONT>(font.GetSafeHandle());
    List().ShowInPlaceEditBtn(1, 1, 0, L"");
    EXPECT_EQ(expected, fontOf(kEditId));
    EXPECT_EQ(expected, fontOf(kButtonId));
    List().ShowInPlaceEdit(1, 1, L"");
    EXPECT_EQ(expected, fontOf(kEditId));
    List().ShowInPlaceComboBox(1, 1, CBS_DROPDOWN, 0);
    EXPECT_EQ(expected, fontOf(kComboId));
    List().EndEdit();
    ASSERT_TRUE(OpenPicker(L""));
    EXPECT_EQ(expected, fontOf(kPickerId));
    DeleteList(); // before its font
}

TEST_F(EditableList, OpensAnEditWithAButtonAtItsRight)
{
    CEdit* const edit = List().ShowInPlaceEditBtn(1, 2, EditOwner::kMessage, L"some text");
    ASSERT_NE(nullptr, edit);
    const HWND button = Child(kButtonId);
    EXPECT_EQ(2, CountEditors());
    EXPECT_EQ(edit->m_hWnd, Child(kEditId));
    EXPECT_FALSE(edit->IsKindOf(RUNTIME_CLASS(CSuperEdit)));
    EXPECT_EQ(L"\x2026", TextOf(button));
    EXPECT_EQ(0x50000000u, StyleOf(button) & ~WS_CLIPSIBLINGS);
    const CRect cell = CellRect(1, 2);
    const int width = cell.Height() * 3 / 2;
    EXPECT_TRUE(CRect(cell.right - width, cell.top, cell.right, cell.bottom) == PlaceOf(button));
    EXPECT_TRUE(CRect(cell.left, cell.top, cell.right - width, cell.bottom) == PlaceOf(*edit));
    EXPECT_EQ(L"some text", TextOf(*edit));
    EXPECT_EQ(edit->m_hWnd, ::GetFocus());
}

TEST_F(EditableList, OpensAnEmptyComboBox)
{
    CComboBox* const combo = List().ShowInPlaceComboBox(1, 2, CBS_DROPDOWNLIST, EditOwner::kMessage);
    ASSERT_NE(nullptr, combo);
    EXPECT_EQ(combo->m_hWnd, Child(kComboId));
    EXPECT_EQ(0x50000000u | CBS_DROPDOWNLIST, StyleOf(*combo) & (0x50000000u | CBS_DROPDOWNLIST));
    EXPECT_EQ(0, combo->GetCount());
    EXPECT_EQ(combo->m_hWnd, ::GetFocus());
    const CRect cell = CellRect(1, 2);
    EXPECT_EQ(cell.TopLeft(), PlaceOf(*combo).TopLeft());
    EXPECT_EQ(cell.right, PlaceOf(*combo).right);
    CRect dropped;
    ::SendMessageW(*combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    EXPECT_LT(100, dropped.Height()); // versions differ in what they take off
}

// Controls change their style once they exist: what counts is what they are asked for.
TEST_F(EditableList, EditorsAreCreatedWithTheirStylesAndPlaces)
{
    const CRect cell = CellRect(1, 2);
    const int width = cell.Height() * 3 / 2;
    const CRect button(cell.right - width, cell.top, cell.right, cell.bottom);
    const CRect picker(cell.left, cell.top, cell.right, std::max(cell.bottom, cell.top + 17));
    CreationSpy spy(List().m_hWnd);

    List().ShowInPlaceEdit(1, 2, L"");
    EXPECT_TRUE(spy.Has(kEditId, 0x50810080, cell));
    List().ShowInPlaceEditBtn(1, 2, 0, L"");
    EXPECT_TRUE(spy.Has(kEditId, 0x50810080, CRect(cell.left, cell.top, button.left, cell.bottom)));
    EXPECT_TRUE(spy.Has(kButtonId, 0x50000000, button));
    List().ShowInPlaceComboBox(1, 2, CBS_DROPDOWNLIST | CBS_SORT, 0);
    EXPECT_TRUE(spy.Has(kComboId, 0x50200040 | CBS_DROPDOWNLIST | CBS_SORT,
                        CRect(cell.left, cell.top, cell.right, cell.top + 150)));
    List().ShowInPlaceDateTimeCtrl(1, 2, DTS_TIMEFORMAT, L"");
    EXPECT_TRUE(spy.Has(kPickerId, 0x50000000 | DTS_TIMEFORMAT, picker));
}

TEST_F(EditableList, OpensAPickerWithAMoment)
{
    const CTime moment(2016, 5, 7, 10, 30, 15);
    CDateTimeCtrl* const picker = List().ShowInPlaceDateTimeCtrl(1, 2, DTS_TIMEFORMAT, &moment);
    ASSERT_NE(nullptr, picker);
    EXPECT_EQ(picker->m_hWnd, Child(kPickerId));
    EXPECT_EQ(DATETIMEPICK_CLASSW, ClassOf(*picker));
    EXPECT_EQ(0x50000000u | DTS_TIMEFORMAT, StyleOf(*picker) & (0x50000000u | DTS_TIMEFORMAT));
    CRect place = CellRect(1, 2);
    place.bottom = std::max(place.bottom, place.top + 17);
    EXPECT_TRUE(place == PlaceOf(*picker));
    EXPECT_TRUE(::GetFocus() == picker->m_hWnd || ::IsChild(picker->m_hWnd, ::GetFocus()));
    EXPECT_EQ((std::vector<int>{2016, 5, 7, 10, 30, 15}), Picked());
}

TEST_F(EditableList, PickerWithoutAMomentShowsToday)
{
    const CTime before = CTime::GetCurrentTime();
    const CTime invalid(static_cast<__time64_t>(-1));
    const CTime* const moments[] = {nullptr, &invalid};
    for (const CTime* const moment : moments)
    {
        ASSERT_NE(nullptr, List().ShowInPlaceDateTimeCtrl(1, 1, 0, moment));
        EXPECT_LE(before.GetYear(), Picked()[0]);
        List().EndEdit();
    }
}

TEST_F(EditableList, PickerShowsWhatItsTextSays)
{
    const std::vector<std::tuple<const wchar_t*, std::vector<int>>> rows = {
        {L"2016-5-7", {2016, 5, 1, 0, 0, 0}},
        {L"2016-05-7", {2016, 5, 1, 0, 0, 0}},
        {L"2016-05-07", {2016, 5, 7, 0, 0, 0}},
        {L"2016-05-07 10:30", {2016, 5, 7, 10, 0, 0}},
        {L"2016-05-07 10:30:15", {2016, 5, 7, 10, 30, 15}},
        {L"no date", {2000, 1, 1, 0, 0, 0}},
        {L"2016-13-32", {2016, 1, 1, 0, 0, 0}},
        {L"2016-02-31", {2016, 3, 2, 0, 0, 0}},
        {L"1850-02-03", {1850, 2, 3, 0, 0, 0}},
        {L"3500-02-03", {3500, 2, 3, 0, 0, 0}},
    };
    for (const auto& row : rows)
    {
        ASSERT_TRUE(OpenPicker(std::get<0>(row)));
        EXPECT_EQ(std::get<1>(row), Picked()) << CStringA(std::get<0>(row)).GetString();
    }
}

TEST_F(EditableList, TextWithoutADateOpensThePickerWithToday)
{
    const int year = CTime::GetCurrentTime().GetYear();
    for (const wchar_t* const text : {static_cast<const wchar_t*>(nullptr), L"", L"17-05-07", L"20160-05-07", L"-5-07"})
    {
        ASSERT_TRUE(OpenPicker(text));
        EXPECT_LE(year, Picked()[0]);
        EXPECT_GE(year + 1, Picked()[0]);
    }
}

TEST_F(EditableList, NullTextIsAnEmptyOne)
{
    ASSERT_NE(nullptr, List().ShowInPlaceEdit(1, 1, nullptr));
    EXPECT_EQ(L"", TextOf(Child(kEditId)));
    ASSERT_NE(nullptr, List().ShowInPlaceEditBtn(1, 1, 0, nullptr));
    EXPECT_EQ(L"", TextOf(Child(kEditId)));
}

TEST_F(EditableList, CellsThatDoNotExistOpenNothing)
{
    const int cells[][2] = {{-1, 1}, {kRows, 1}, {1, -1}, {1, kColumns}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MIN}};
    for (const auto& cell : cells)
    {
        EXPECT_EQ(nullptr, List().ShowInPlaceEdit(cell[0], cell[1], L""));
        EXPECT_EQ(nullptr, List().ShowInPlaceEditBtn(cell[0], cell[1], 0, L""));
        EXPECT_EQ(nullptr, List().ShowInPlaceComboBox(cell[0], cell[1], 0, 0));
        EXPECT_EQ(nullptr, List().ShowInPlaceDateTimeCtrl(cell[0], cell[1], 0, L""));
        EXPECT_EQ(nullptr, List().ShowInPlaceDateTimeCtrl(cell[0], cell[1], 0, static_cast<const CTime*>(nullptr)));
    }
    EXPECT_EQ(0, CountEditors());
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableList, CellThatDoesNotExistLeavesTheOpenEditorAlone)
{
    List().ShowInPlaceEdit(1, 1, L"open");
    EXPECT_EQ(nullptr, List().ShowInPlaceEdit(kRows, 1, L""));
    EXPECT_EQ(L"open", TextOf(Child(kEditId)));
    EXPECT_EQ(Notes(), m_owner.notes);
}

TEST_F(EditableList, WithoutAWindowOpensNothing)
{
    CZNListCtrl list;
    EXPECT_EQ(nullptr, list.ShowInPlaceEdit(0, 0, L""));
    EXPECT_EQ(nullptr, list.ShowInPlaceComboBox(0, 0, 0, 0));
    EXPECT_EQ(-1, list.UpItem(0));
    EXPECT_EQ(-1, list.InsItem(0));
    EXPECT_EQ(-1, list.DelItem(0));
    list.SelectItem(0, true);
    list.EndEdit();
}

TEST_F(EditableList, AnOpenEditorEndsWhenTheNextOneOpens)
{
    for (const unsigned long style : {9ul, 9ul | ZNLCS_KEEPEDITONKILLFOCUS})
    {
        List().SetZNListCtrlStyle(style);
        List().ShowInPlaceEdit(1, 1, L"first");
        ASSERT_NE(nullptr, List().ShowInPlaceEdit(2, 2, L"second"));
        EXPECT_EQ(1, CountEditors());
        EXPECT_EQ((Notes{L"end 1,1 first"}), TakeNotes());
        List().EndEdit();
        EXPECT_EQ((Notes{L"end 2,2 second"}), TakeNotes());
    }
}

// Clicks.

TEST_F(EditableList, FirstClickOnARowEditsAtOnceInTheDefaultStyle)
{
    AnswerWithEdit();
    ClickCell(1, 2);
    EXPECT_EQ((Notes{L"begin 1,2 r1c2"}), m_owner.notes);
    EXPECT_EQ(L"r1c2", TextOf(Child(kEditId)));
    EXPECT_EQ((std::vector<int>{1}), Selected());
}

TEST_F(EditableList, WithStyle8TheFirstClickSelectsAndTheSecondEdits)
{
    List().SetZNListCtrlStyle(ZNLCS_DEFAULTEXTRA);
    AnswerWithEdit();
    ClickCell(1, 2);
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(0, CountEditors());
    EXPECT_EQ((std::vector<int>{1}), Selected());
    ClickCell(1, 1); // another cell of the same row
    EXPECT_EQ((Notes{L"begin 1,1 r1c1"}), TakeNotes());
    ClickCell(2, 1);
    EXPECT_EQ((Notes{L"end 1,1 r1c1"}), TakeNotes());
    EXPECT_EQ(0, CountEditors());
    ClickCell(2, 1);
    EXPECT_EQ((Notes{L"begin 2,1 r2c1"}), TakeNotes());
}

TEST_F(EditableList, ClickOnTheCellThatIsBeingEditedSendsNothingAndKeepsTheEditor)
{
    for (const unsigned long style : {9ul, 8ul, 9ul | ZNLCS_KEEPEDITONKILLFOCUS})
    {
        List().SetZNListCtrlStyle(style);
        List().ShowInPlaceEdit(1, 2, L"open");
        const HWND edit = Child(kEditId);
        ClickCell(1, 2);
        EXPECT_EQ(Notes(), m_owner.notes);
        EXPECT_EQ(edit, Child(kEditId));
        EXPECT_EQ((std::vector<int>{1}), Selected());
        List().EndEdit();
        EXPECT_EQ((Notes{L"end 1,2 open"}), TakeNotes());
    }
}

TEST_F(EditableList, ClickOnTheCellThatIsBeingEditedMakesItTheLastCell)
{
    List().SetZNListCtrlStyle(ZNLCS_DEFAULTEXTRA);
    List().ShowInPlaceEdit(2, 1, L"");
    ClickCell(2, 1);
    List().EndEdit();
    TakeNotes();
    ClickCell(2, 0); // not the first click on this row any more
    EXPECT_EQ((Notes{L"begin 2,0 r2c0"}), TakeNotes());
}

TEST_F(EditableList, EditorWhoseCellWasClickedStillEndsWithTheFocus)
{
    List().ShowInPlaceEdit(1, 2, L"open");
    ClickCell(1, 2);
    EXPECT_EQ(Child(kEditId), ::GetFocus());
    m_other.SetFocus();
    EXPECT_EQ((Notes{L"end 1,2 open"}), TakeNotes());
}

TEST_F(EditableList, ClickOnAnotherCellEndsTheEditFirst)
{
    AnswerWithEdit();
    for (const unsigned long style : {9ul, 9ul | ZNLCS_KEEPEDITONKILLFOCUS})
    {
        List().SetZNListCtrlStyle(style);
        ClickCell(1, 2);
        TakeNotes();
        ClickCell(2, 1);
        EXPECT_EQ((Notes{L"end 1,2 r1c2", L"begin 2,1 r2c1"}), TakeNotes());
        EXPECT_EQ(1, CountEditors());
    }
}

TEST_F(EditableList, ClickBesideAllRowsAsksForNothing)
{
    AnswerWithEdit();
    const CPoint empty(50, 390);
    Click(empty);
    EXPECT_EQ(Notes(), m_owner.notes);
    EXPECT_EQ(List().m_hWnd, ::GetFocus());
    int row = 0;
    int column = 0;
    List().GetClickPos(row, column);
    EXPECT_EQ(-1, row);
    ClickCell(1, 2);
    Click(empty);
    EXPECT_EQ((Notes{L"begin 1,2 r1c2", L"end 1,2 r1c2"}), TakeNotes());
    List().SetZNListCtrlStyle(9 | ZNLCS_KEEPEDITONKILLFOCUS);
    ClickCell(1, 2);
    Click(empty);
    EXPECT_EQ((Notes{L"begin 1,2 r1c2"}), TakeNotes());
    EXPECT_EQ(1, CountEditors());
}

TEST_F(EditableList, ClickIsRecordedByTheSortableList)
{
    ClickCell(2, 1);
    int row = 0;
    int column = 0;
    List().GetClickPos(row, column);
    EXPECT_EQ(2, row);
    EXPECT_EQ(1, column);
}
