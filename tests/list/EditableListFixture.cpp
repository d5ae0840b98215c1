#include "EditableListFixture.h"

EditOwner::EditOwner()
{
    const CString wndClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    CreateEx(0, wndClass, L"owner", WS_POPUP | WS_VISIBLE, CRect(50, 50, 650, 550), NULL, 0);
}

EditOwner::~EditOwner()
{
    ForgetAll();
    DestroyWindow();
}

void EditOwner::ForgetAll()
{
    onBegin = nullptr;
    onEnd = nullptr;
    onMessage = nullptr;
    onDelete = nullptr;
    onAny = nullptr;
}

BOOL EditOwner::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    NMHDR& header = *reinterpret_cast<NMHDR*>(lParam);
    const NMLVDISPINFOW& info = *reinterpret_cast<NMLVDISPINFOW*>(lParam);
    if (header.code == LVN_BEGINLABELEDITW)
    {
        NoteCell(L"begin", wParam, info);
        if (onBegin)
            onBegin(info.item.iItem, info.item.iSubItem);
        return TRUE;
    }
    if (header.code == LVN_ENDLABELEDITW)
    {
        NoteCell(L"end", wParam, info);
        if (onEnd)
            onEnd(info.item.iItem, info.item.iSubItem);
        return TRUE;
    }
    if (onAny)
        onAny(header);
    return CWnd::OnNotify(wParam, lParam, result);
}

void EditOwner::NoteCell(const wchar_t* what, WPARAM wParam, const NMLVDISPINFOW& info)
{
    EXPECT_EQ(wParam, info.hdr.idFrom);
    EXPECT_EQ(::GetDlgItem(m_hWnd, static_cast<int>(wParam)), info.hdr.hwndFrom);
    EXPECT_EQ(static_cast<UINT>(LVIF_TEXT), info.item.mask);
    const std::wstring text = info.item.pszText;
    EXPECT_EQ(static_cast<int>(text.size()), info.item.cchTextMax);
    notes.push_back(std::wstring(what) + L" " + std::to_wstring(info.item.iItem) + L"," +
                    std::to_wstring(info.item.iSubItem) + L" " + text);
}

LRESULT EditOwner::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kMessage)
    {
        notes.push_back(L"message " + std::to_wstring(static_cast<LONG_PTR>(wParam)) + L"," +
                        std::to_wstring(static_cast<LONG_PTR>(lParam)));
        if (onMessage)
            onMessage();
        return 0;
    }
    if (message == WM_LISTCTRL_BEFOREDELETE)
    {
        CArray<int, int>& rows = *reinterpret_cast<CArray<int, int>*>(wParam);
        std::wstring note = L"delete";
        for (INT_PTR i = 0; i < rows.GetSize(); ++i)
            note += L" " + std::to_wstring(rows[i]);
        notes.push_back(note);
        EXPECT_TRUE(reinterpret_cast<CZNListCtrl*>(lParam)->IsKindOf(RUNTIME_CLASS(CZNListCtrl)));
        if (onDelete)
            onDelete(rows);
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

EditableListFixture::EditableListFixture()
{
    m_other.Create(WS_CHILD | WS_VISIBLE, CRect(520, 0, 590, 30), &m_owner, 99);
    Create();
}

EditableListFixture::~EditableListFixture()
{
    m_owner.ForgetAll();
    DeleteList();
}

void EditableListFixture::SetUp()
{
    m_owner.SetForegroundWindow();
    ASSERT_TRUE(WaitFor([this] { return ::GetForegroundWindow() == m_owner.m_hWnd; }));
    m_other.SetFocus();
}

void EditableListFixture::Create(DWORD style, int rows, int columns)
{
    DeleteList();
    m_list.reset(new CZNListCtrl);
    m_list->Create(style | LVS_SHOWSELALWAYS | WS_CHILD | WS_VISIBLE, CRect(0, 0, 500, 400), &m_owner, kListId);
    m_list->SetExtendedStyle(LVS_EX_FULLROWSELECT); // a click on any cell selects its row
    for (int column = 0; column < columns; ++column)
        m_list->InsertColumn(column, L"column", LVCFMT_LEFT, kColumnWidth);
    for (int row = 0; row < rows; ++row)
    {
        m_list->InsertItem(row, L"");
        m_list->SetItemData(row, 1000 + row);
        for (int column = 0; column < columns; ++column)
            m_list->SetItemText(row, column, (L"r" + std::to_wstring(row) + L"c" + std::to_wstring(column)).c_str());
    }
}

int EditableListFixture::CountEditors() const
{
    int count = 0;
    for (HWND child = ::GetWindow(m_list->m_hWnd, GW_CHILD); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const int id = ::GetDlgCtrlID(child);
        count += id >= kButtonId && id <= kPickerId;
    }
    return count;
}

std::wstring EditableListFixture::TextOf(HWND window) const
{
    wchar_t text[300] = L"";
    ::GetWindowTextW(window, text, 300);
    return text;
}

std::vector<std::wstring> EditableListFixture::Column(int column)
{
    std::vector<std::wstring> texts;
    for (int row = 0; row < List().GetItemCount(); ++row)
        texts.push_back(CellText(row, column));
    return texts;
}

std::vector<DWORD_PTR> EditableListFixture::Data()
{
    std::vector<DWORD_PTR> data;
    for (int row = 0; row < List().GetItemCount(); ++row)
        data.push_back(List().GetItemData(row));
    return data;
}

std::vector<int> EditableListFixture::Selected()
{
    std::vector<int> rows;
    for (int row = 0; row < List().GetItemCount(); ++row)
    {
        if (List().GetItemState(row, LVIS_SELECTED) != 0)
            rows.push_back(row);
    }
    return rows;
}

CRect EditableListFixture::CellRect(int row, int column)
{
    CRect rect;
    List().GetSubItemRect(row, column, column == 0 ? LVIR_LABEL : LVIR_BOUNDS, rect);
    return rect;
}

CRect EditableListFixture::PlaceOf(HWND child)
{
    CRect rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(NULL, List().m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void EditableListFixture::Click(CPoint point)
{
    const HWND list = List().m_hWnd;
    const LPARAM place = MAKELPARAM(point.x, point.y);
    // The button goes up from the queue: a version of the list view waits for it before the press is over.
    ::PostMessageW(list, WM_LBUTTONUP, 0, place);
    ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
    MSG message;
    while (::IsWindow(list) && ::PeekMessageW(&message, list, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE))
        ::DispatchMessageW(&message);
}

BOOL EditableListFixture::Press(UINT key)
{
    MSG message = {};
    message.hwnd = ::GetFocus();
    message.message = WM_KEYDOWN;
    message.wParam = key;
    message.lParam = 1;
    return CWnd::WalkPreTranslateTree(m_owner.m_hWnd, &message);
}

void EditableListFixture::AnswerWithEdit()
{
    m_owner.onBegin = [this](int row, int column) {
        List().ShowInPlaceEdit(row, column, List().GetItemText(row, column));
    };
}

void EditableListFixture::AnswerWithButton()
{
    m_owner.onBegin = [this](int row, int column) {
        List().ShowInPlaceEditBtn(row, column, EditOwner::kMessage, List().GetItemText(row, column));
    };
}

void EditableListFixture::AnswerWithCombo(DWORD style)
{
    m_owner.onBegin = [this, style](int row, int column) {
        CComboBox* const combo = List().ShowInPlaceComboBox(row, column, style, EditOwner::kMessage);
        for (int entry = 0; entry < 3; ++entry)
            combo->SetItemData(combo->AddString((L"entry " + std::to_wstring(entry)).c_str()), 40 + entry);
    };
}

void EditableListFixture::AnswerWithPicker()
{
    m_owner.onBegin = [this](int row, int column) {
        List().ShowInPlaceDateTimeCtrl(row, column, DTS_SHORTDATEFORMAT, L"2016-05-07");
    };
}

Notes EditableListFixture::TakeNotes()
{
    Notes notes;
    notes.swap(m_owner.notes);
    return notes;
}
