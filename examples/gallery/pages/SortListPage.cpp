#include "SortListPage.h"

#include "../GalleryIds.h"

const wchar_t CSortListPage::Description[] =
    L"单击列标题即可排序：文字、数字各按其值，标题中的箭头表示方向。颜色列显"
    L"示色块，单击的单元格突出显示。";

namespace
{

enum Column
{
    COLUMN_LAYER,
    COLUMN_OBJECTS,
    COLUMN_COLOUR
};

struct Layer
{
    const wchar_t* name;
    const wchar_t* objects;
    const wchar_t* colour;
};

const Layer kLayers[] = {
    {L"轮廓线", L"128", L"白"},   {L"中心线", L"24", L"红"},
    {L"标注", L"9", L"绿"},       {L"剖面线", L"310", L"30"},
    {L"虚线", L"57", L"黄"},      {L"文字", L"86", L"青"},
    {L"螺纹", L"12", L"洋红"},    {L"焊缝", L"3", L"255,128,0"},
    {L"图框", L"41", L"蓝"},      {L"标题栏", L"18", L"随层"},
    {L"明细表", L"64", L"8"},     {L"粗糙度", L"7", L"随块"},
    {L"局部视图", L"33", L"140"}, {L"断裂线", L"5", L"200"},
    {L"Defpoints", L"2", L"白"},  {L"0", L"71", L"白"},
};

} // namespace

CSortListPage::CSortListPage() : CGalleryPage(IDD_SORT_LIST_PAGE) {}

void CSortListPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_SORT_LIST, m_layers); // 模板中的报表列表
    // [end]
}

BOOL CSortListPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    m_resize.AddCtrl(IDC_SORT_LIST, 0, 0, 1, 1);
    // [show]
    m_layers.InsertColumn(COLUMN_LAYER, L"图层", LVCFMT_LEFT, 220);
    m_layers.InsertColumn(COLUMN_OBJECTS, L"对象数", LVCFMT_RIGHT, 120);
    m_layers.InsertColumn(COLUMN_COLOUR, L"颜色", LVCFMT_LEFT, 200);
    for (const Layer& layer : kLayers)
    {
        const int row =
            m_layers.InsertItem(m_layers.GetItemCount(), layer.name);
        m_layers.SetItemText(row, COLUMN_OBJECTS, layer.objects);
        m_layers.SetItemText(row, COLUMN_COLOUR, layer.colour);
    }
    m_layers.SetIsColorColumn(COLUMN_COLOUR, 1); // 颜色名称带色块
    m_layers.SortColumn(COLUMN_OBJECTS, 1, 0);   // 按数字降序
    m_layers.SetCellHighlight(true, 2, COLUMN_LAYER); // 突出显示单击的单元格
    // [end]
    return TRUE;
}
