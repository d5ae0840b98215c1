#include "ControlFixture.h"

#include <string>

class ListCtrl : public ControlFixture
{
protected:
    void SetUp() override
    {
        ControlFixture::SetUp();
        ASSERT_TRUE(
            m_list.Create(Visible | LVS_REPORT | LVS_EDITLABELS | LVS_SHOWSELALWAYS, m_place, &m_parent, ControlId));
        EXPECT_EQ(0, m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100));
        EXPECT_EQ(1, m_list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 60, 1));
        const wchar_t* const names[] = {L"delta", L"alpha", L"charlie", L"bravo"};
        for (int row = 0; row < 4; ++row)
        {
            EXPECT_EQ(row, m_list.InsertItem(row, names[row]));
            m_list.SetItemData(row, 100 + row);
        }
    }

    static int CALLBACK CompareData(LPARAM one, LPARAM two, LPARAM direction)
    {
        return static_cast<int>((one - two) * direction);
    }

    static int CALLBACK CompareTexts(LPARAM one, LPARAM two, LPARAM list)
    {
        CListCtrl* const control = reinterpret_cast<CListCtrl*>(list);
        return control->GetItemText(static_cast<int>(one), 0).Compare(control->GetItemText(static_cast<int>(two), 0));
    }

    CListCtrl m_list;
};

// Rows and their cells.

TEST_F(ListCtrl, RowsAreInsertedReadAndDeleted)
{
    EXPECT_EQ(4, m_list.GetItemCount());
    EXPECT_STREQ(L"alpha", m_list.GetItemText(1, 0));
    EXPECT_STREQ(L"", m_list.GetItemText(1, 1));
    EXPECT_TRUE(m_list.SetItemText(1, 1, L"12"));
    EXPECT_STREQ(L"12", m_list.GetItemText(1, 1));
    EXPECT_TRUE(m_list.DeleteItem(1));
    EXPECT_STREQ(L"charlie", m_list.GetItemText(1, 0));
    EXPECT_FALSE(m_list.DeleteItem(99));
    EXPECT_TRUE(m_list.DeleteAllItems());
    EXPECT_EQ(0, m_list.GetItemCount());
}

TEST_F(ListCtrl, TextsOfAnyLengthComeBackWhole)
{
    const int lengths[] = {0, 1, 254, 255, 256, 511, 3000};
    for (const int length : lengths)
    {
        const std::wstring text(length, L'x');
        m_list.SetItemText(0, 1, text.c_str());
        EXPECT_EQ(length, m_list.GetItemText(0, 1).GetLength());
    }
    TCHAR cut[4] = L"";
    EXPECT_EQ(3, m_list.GetItemText(1, 0, cut, 4));
    EXPECT_STREQ(L"alp", cut);
}

TEST_F(ListCtrl, DataBelongsToTheRow)
{
    EXPECT_EQ(102u, m_list.GetItemData(2));
    EXPECT_EQ(0u, m_list.GetItemData(99));
    EXPECT_TRUE(m_list.SetItemData(2, 7));
    EXPECT_EQ(7u, m_list.GetItemData(2));
}

TEST_F(ListCtrl, SetItemWritesWhatTheMaskNames)
{
    EXPECT_TRUE(m_list.SetItem(0, 1, LVIF_TEXT, L"cell", 0, 0, 0, 0));
    EXPECT_STREQ(L"cell", m_list.GetItemText(0, 1));
    EXPECT_TRUE(m_list.SetItem(0, 0, LVIF_PARAM, nullptr, 0, 0, 0, 55));
    EXPECT_EQ(55u, m_list.GetItemData(0));
    EXPECT_STREQ(L"delta", m_list.GetItemText(0, 0));
}

// Selection.

TEST_F(ListCtrl, SelectedRowsAreWalkedInOrder)
{
    EXPECT_EQ(nullptr, m_list.GetFirstSelectedItemPosition());
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    POSITION position = m_list.GetFirstSelectedItemPosition();
    ASSERT_NE(nullptr, position);
    EXPECT_EQ(0, m_list.GetNextSelectedItem(position));
    ASSERT_NE(nullptr, position);
    EXPECT_EQ(3, m_list.GetNextSelectedItem(position));
    EXPECT_EQ(nullptr, position);
    EXPECT_EQ(2u, m_list.GetSelectedCount());
    EXPECT_EQ(3, m_list.GetNextItem(0, LVNI_SELECTED));
    EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED), m_list.GetItemState(3, LVIS_SELECTED | LVIS_FOCUSED));
}

TEST_F(ListCtrl, ChecksNeedTheExtendedStyle)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    EXPECT_EQ(static_cast<DWORD>(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT), m_list.GetExtendedStyle());
    EXPECT_FALSE(m_list.GetCheck(1));
    EXPECT_TRUE(m_list.SetCheck(1));
    EXPECT_TRUE(m_list.GetCheck(1));
    EXPECT_TRUE(m_list.SetCheck(1, FALSE));
    EXPECT_FALSE(m_list.GetCheck(1));
}

TEST_F(ListCtrl, RowsAreFoundByText)
{
    LVFINDINFO info = {};
    info.flags = LVFI_STRING;
    info.psz = L"charlie";
    EXPECT_EQ(2, m_list.FindItem(&info));
    info.psz = L"echo";
    EXPECT_EQ(-1, m_list.FindItem(&info));
}

// Sorting calls back with the rows' data, or with their indices.

TEST_F(ListCtrl, SortsByData)
{
    EXPECT_TRUE(m_list.SortItems(&CompareData, static_cast<DWORD_PTR>(-1)));
    EXPECT_STREQ(L"bravo", m_list.GetItemText(0, 0));
    EXPECT_STREQ(L"delta", m_list.GetItemText(3, 0));
    EXPECT_TRUE(m_list.SortItems(&CompareData, 1));
    EXPECT_STREQ(L"delta", m_list.GetItemText(0, 0));
}

TEST_F(ListCtrl, SortsByIndex)
{
    // Two rows: under Wine the rows move while longer lists are being sorted, so that their indices mean other rows.
    m_list.DeleteItem(3);
    m_list.DeleteItem(2);
    EXPECT_TRUE(m_list.SortItemsEx(&CompareTexts, DWORD_PTR(&m_list)));
    EXPECT_STREQ(L"alpha", m_list.GetItemText(0, 0));
    EXPECT_STREQ(L"delta", m_list.GetItemText(1, 0));
    EXPECT_EQ(101u, m_list.GetItemData(0));
}

// Columns and the header.

TEST_F(ListCtrl, ColumnsHaveHeadingWidthAndOrder)
{
    TCHAR heading[32] = L"";
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = heading;
    column.cchTextMax = 32;
    ASSERT_TRUE(m_list.GetColumn(1, &column));
    EXPECT_STREQ(L"Size", heading);
    EXPECT_EQ(60, column.cx);
    EXPECT_EQ(LVCFMT_RIGHT, column.fmt & LVCFMT_JUSTIFYMASK);
    EXPECT_TRUE(m_list.SetColumnWidth(1, 80));
    EXPECT_EQ(80, m_list.GetColumnWidth(1));

    int order[2] = {1, 0};
    EXPECT_TRUE(m_list.SetColumnOrderArray(2, order));
    int back[2] = {};
    EXPECT_TRUE(m_list.GetColumnOrderArray(back));
    EXPECT_EQ(1, back[0]);
    EXPECT_EQ(0, back[1]);
    EXPECT_TRUE(m_list.DeleteColumn(1));
    EXPECT_EQ(1, m_list.GetHeaderCtrl()->GetItemCount());
}

TEST_F(ListCtrl, TheHeaderIsOneObject)
{
    CHeaderCtrl* const header = m_list.GetHeaderCtrl();
    ASSERT_NE(nullptr, header);
    EXPECT_EQ(2, header->GetItemCount());
    CWnd::DeleteTempMap();
    EXPECT_EQ(header, m_list.GetHeaderCtrl());
    EXPECT_EQ(header->m_hWnd, m_list.GetDlgItem(0)->m_hWnd);
}

TEST_F(ListCtrl, AHeaderThatAClientSubclassedIsTheClients)
{
    CHeaderCtrl mine;
    ASSERT_TRUE(mine.SubclassWindow(m_list.GetHeaderCtrl()->m_hWnd));
    EXPECT_EQ(&mine, m_list.GetHeaderCtrl());
    m_list.DestroyWindow();
    EXPECT_EQ(nullptr, mine.m_hWnd);
}

TEST_F(ListCtrl, AListWithoutHeaderHasNone)
{
    CListCtrl icons;
    ASSERT_TRUE(icons.Create(Visible | LVS_LIST, m_place, &m_parent, ControlId + 1));
    CHeaderCtrl* const header = icons.GetHeaderCtrl();
    EXPECT_TRUE(header == nullptr || header->GetItemCount() == 0);
}

// Geometry.

TEST_F(ListCtrl, CellsLieWhereHitTestsFindThem)
{
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(60, cell.Width());
    LVHITTESTINFO info = {};
    info.pt = cell.CenterPoint();
    EXPECT_EQ(2, m_list.SubItemHitTest(&info));
    EXPECT_EQ(1, info.iSubItem);
    CRect row;
    ASSERT_TRUE(m_list.GetItemRect(2, &row, LVIR_BOUNDS));
    EXPECT_EQ(cell.top, row.top);
    UINT flags = 0;
    CRect label;
    m_list.GetItemRect(2, &label, LVIR_LABEL);
    EXPECT_EQ(2, m_list.HitTest(CPoint(label.left + 2, label.CenterPoint().y), &flags));
    EXPECT_TRUE(flags & LVHT_ONITEMLABEL);
    EXPECT_EQ(-1, m_list.HitTest(CPoint(5, row.bottom + 100)));
    EXPECT_FALSE(m_list.GetItemRect(99, &row, LVIR_BOUNDS));
}

TEST_F(ListCtrl, ARowFarDownIsBroughtIntoView)
{
    for (int row = 4; row < 200; ++row)
        m_list.InsertItem(row, L"more");
    EXPECT_EQ(0, m_list.GetTopIndex());
    EXPECT_TRUE(m_list.EnsureVisible(150, FALSE));
    EXPECT_GT(m_list.GetTopIndex(), 0);
    EXPECT_LE(m_list.GetTopIndex(), 150);
    EXPECT_GT(m_list.GetTopIndex() + m_list.GetCountPerPage(), 150);
}

// Look.

TEST_F(ListCtrl, ColoursComeBack)
{
    EXPECT_TRUE(m_list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_EQ(RGB(1, 2, 3), m_list.GetBkColor());
    EXPECT_TRUE(m_list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(RGB(4, 5, 6), m_list.GetTextColor());
    EXPECT_TRUE(m_list.SetTextBkColor(RGB(7, 8, 9)));
    EXPECT_EQ(RGB(7, 8, 9), m_list.GetTextBkColor());
}

TEST_F(ListCtrl, ImageListsAreObjects)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(nullptr, m_list.GetImageList(LVSIL_SMALL));
    EXPECT_EQ(nullptr, m_list.SetImageList(&images, LVSIL_SMALL));
    EXPECT_EQ(&images, m_list.GetImageList(LVSIL_SMALL));
    EXPECT_EQ(&images, m_list.SetImageList(nullptr, LVSIL_SMALL));
    EXPECT_EQ(nullptr, m_list.GetImageList(LVSIL_SMALL));
}

// Labels.

TEST_F(ListCtrl, ALabelIsEditedInAnEdit)
{
    ASSERT_TRUE(OpensLabel(m_list, 1));
    CString text;
    m_list.GetEditControl()->GetWindowText(text);
    EXPECT_STREQ(L"alpha", text);
    m_list.CancelEditLabel();
    EXPECT_EQ(nullptr, m_list.GetEditControl());
}

// Owner drawing reaches the control through its parent.

namespace
{
class DrawnList : public CListCtrl
{
public:
    int m_rows = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_rows += item->itemID < 2; }
};
} // namespace

TEST_F(ListCtrl, OwnerDrawnRowsAreDrawnByTheControl)
{
    DrawnList list;
    ASSERT_TRUE(list.Create(Visible | LVS_REPORT | LVS_OWNERDRAWFIXED, m_place, &m_parent, ControlId + 1));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    list.BringWindowToTop();
    list.RedrawWindow();
    EXPECT_GE(list.m_rows, 2);
}
