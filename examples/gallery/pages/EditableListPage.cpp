#include "EditableListPage.h"

#include "../GalleryIds.h"

#include <SuperEdit.h>

#include <afxdlgs.h>

const wchar_t CEditableListPage::Description[] =
    L"单击单元格就地编辑：名称是校验编辑框，颜色带按钮，线宽和开关是组合框，"
    L"日期是日期控件。回车到下一格，上下键换行。";

namespace
{

const UINT WM_PICK_COLOUR = WM_APP + 10;

enum Column
{
    COLUMN_NAME,
    COLUMN_COLOUR,
    COLUMN_WIDTH,
    COLUMN_DATE,
    COLUMN_ON,
    COLUMNS
};

const wchar_t* const kLayers[][COLUMNS] = {
    {L"轮廓线", L"白", L"0.50", L"2016-05-07", L"开"},
    {L"中心线", L"红", L"0.25", L"2016-05-07", L"开"},
    {L"标注", L"绿", L"0.18", L"2017-11-21", L"开"},
    {L"剖面线", L"30", L"0.18", L"2018-03-15", L"关"},
    {L"文字", L"青", L"0.25", L"2018-03-15", L"开"},
    {L"焊缝", L"255,128,0", L"0.35", L"2019-08-02", L"关"},
    {L"辅助线", L"140", L"0.13", L"2020-01-06", L"开"},
};

const wchar_t* const kWidths[] = {L"0.13", L"0.18", L"0.25",
                                  L"0.35", L"0.50", L"0.70"};
const wchar_t* const kSwitch[] = {L"开", L"关"};

const int kLongestName = 31;

} // namespace

BEGIN_MESSAGE_MAP(CEditableListPage, CGalleryPage)
    // [show]
    ON_NOTIFY(LVN_BEGINLABELEDITW, IDC_EDITABLE_LIST,
              &CEditableListPage::OnBeginEdit)
    ON_NOTIFY(LVN_ENDLABELEDITW, IDC_EDITABLE_LIST,
              &CEditableListPage::OnEndEdit)
    // [end]
    ON_MESSAGE(WM_PICK_COLOUR, &CEditableListPage::OnPickColour)
    ON_BN_CLICKED(IDC_EDITABLE_LIST_UP, &CEditableListPage::OnUp)
    ON_BN_CLICKED(IDC_EDITABLE_LIST_DOWN, &CEditableListPage::OnDown)
    ON_BN_CLICKED(IDC_EDITABLE_LIST_INSERT, &CEditableListPage::OnInsert)
    ON_BN_CLICKED(IDC_EDITABLE_LIST_DELETE, &CEditableListPage::OnDelete)
END_MESSAGE_MAP()

CEditableListPage::CEditableListPage() : CGalleryPage(IDD_EDITABLE_LIST_PAGE)
{
}

void CEditableListPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_EDITABLE_LIST, m_layers);
}

BOOL CEditableListPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    const wchar_t* const headings[COLUMNS] = {L"图层", L"颜色", L"线宽",
                                              L"建立日期", L"开关"};
    const int widths[COLUMNS] = {110, 100, 70, 110, 60};
    for (int column = 0; column < COLUMNS; ++column)
        m_layers.InsertColumn(column, headings[column], LVCFMT_LEFT,
                              widths[column]);
    for (const auto& layer : kLayers)
    {
        const int row =
            m_layers.InsertItem(m_layers.GetItemCount(), layer[COLUMN_NAME]);
        for (int column = COLUMN_COLOUR; column < COLUMNS; ++column)
            m_layers.SetItemText(row, column, layer[column]);
    }
    m_resize.AddCtrl(IDC_EDITABLE_LIST, 0, 0, 1, 1);
    for (int id = IDC_EDITABLE_LIST_UP; id <= IDC_EDITABLE_LIST_DELETE; ++id)
        m_resize.AddCtrl(id, 1, 0, 0, 0);
    m_layers.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    m_layers.SetIsColorColumn(COLUMN_COLOUR, 1);
    m_layers.ShowInPlaceEditBtn(1, COLUMN_COLOUR, WM_PICK_COLOUR,
                                m_layers.GetItemText(1, COLUMN_COLOUR));
    return TRUE;
}

// [show]
// 父窗口决定用哪种编辑器
void CEditableListPage::OnBeginEdit(NMHDR* header, LRESULT* result)
{
    const LVITEMW& cell = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    switch (cell.iSubItem)
    {
    case COLUMN_NAME:
        if (CSuperEdit* const edit = m_layers.ShowInPlaceEdit(
                cell.iItem, cell.iSubItem, cell.pszText))
            edit->SetTextLenMinMax(1, kLongestName);
        break;
    case COLUMN_COLOUR:
        m_layers.ShowInPlaceEditBtn(cell.iItem, cell.iSubItem, WM_PICK_COLOUR,
                                    cell.pszText);
        break;
    case COLUMN_WIDTH:
        ShowChoice(cell, kWidths, _countof(kWidths));
        break;
    case COLUMN_DATE:
        m_layers.ShowInPlaceDateTimeCtrl(cell.iItem, cell.iSubItem,
                                         DTS_SHORTDATEFORMAT, cell.pszText);
        break;
    case COLUMN_ON:
        ShowChoice(cell, kSwitch, _countof(kSwitch));
        break;
    }
    *result = 0;
}

// 列表自己不写单元格
void CEditableListPage::OnEndEdit(NMHDR* header, LRESULT* result)
{
    const LVITEMW& cell = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    m_layers.SetItemText(cell.iItem, cell.iSubItem, cell.pszText);
    *result = 0;
}
// [end]

LRESULT CEditableListPage::OnPickColour(WPARAM row, LPARAM column)
{
    CColorDialog dialog(0, CC_FULLOPEN, this);
    if (dialog.DoModal() != IDOK)
        return 0;
    const COLORREF colour = dialog.GetColor();
    CString text;
    text.Format(L"%d,%d,%d", GetRValue(colour), GetGValue(colour),
                GetBValue(colour));
    m_layers.SetItemText(static_cast<int>(row), static_cast<int>(column),
                         text);
    return 0;
}

void CEditableListPage::OnUp()
{
    m_layers.UpItem(-1);
}

void CEditableListPage::OnDown()
{
    m_layers.DownItem(-1);
}

void CEditableListPage::OnInsert()
{
    if (m_layers.InsItem(-1) < 0)
        m_layers.InsItem(m_layers.GetItemCount());
}

void CEditableListPage::OnDelete()
{
    m_layers.DelItem(-1);
}

void CEditableListPage::ShowChoice(const LVITEMW& cell,
                                   const wchar_t* const* choices, int count)
{
    CComboBox* const combo = m_layers.ShowInPlaceComboBox(
        cell.iItem, cell.iSubItem, CBS_DROPDOWNLIST, 0);
    if (combo == nullptr)
        return;
    for (int i = 0; i < count; ++i)
        combo->AddString(choices[i]);
    combo->SelectString(-1, cell.pszText);
}
