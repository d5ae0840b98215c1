#include "ComboButtonPage.h"

#include "../GalleryIds.h"

const wchar_t CComboButtonPage::Description[] =
    L"带一组命令的按钮：单击执行默认命令；右侧的箭头打开全部命令的菜单，选中"
    L"的命令随即执行并成为默认命令。";

namespace
{

const UINT kRound = CBTS_ROUND | CBTS_GRADIENT | CBTS_HOTFRAME;
const UINT kBoth = CBTS_SHOWIMAGE | CBTS_IMAGEANDTEXT;

// As the labels of the template describe them.
const UINT kStyles[] = {
    CBTS_DEFAULT,
    kRound,
    kRound | kBoth,
    kRound | kBoth | CBTS_IMAGEABOVE,
    kBoth,
    CBTS_GRADIENT | kBoth,
    CBTS_FLAT | CBTS_SEPARATORONHOT | kBoth,
    kRound | kBoth,
};
const int kUnavailable = 7;

} // namespace

// [show]
void CFindItem::Action()
{
    m_page->Show(L"查找");
}
// [end]

BEGIN_MESSAGE_MAP(CComboButtonPage, CGalleryPage)
    ON_MESSAGE(UM_TREE_NEW, &CComboButtonPage::OnNew)
    ON_MESSAGE(UM_TREE_COPYFROM, &CComboButtonPage::OnCopyFrom)
    ON_MESSAGE(UM_TREE_EDIT, &CComboButtonPage::OnEdit)
    ON_MESSAGE(UM_TREE_DEL, &CComboButtonPage::OnDelete)
END_MESSAGE_MAP()

CComboButtonPage::CComboButtonPage()
    : CGalleryPage(IDD_COMBO_BUTTON_PAGE),
      m_new(this, MFCUtils::CComboButtonIMPItem::eNew, 0),
      m_copy(this, MFCUtils::CComboButtonIMPItem::eCopyFrom, 0),
      m_edit(this, MFCUtils::CComboButtonIMPItem::eEdit, 0),
      m_delete(this, MFCUtils::CComboButtonIMPItem::eDel, 0), m_find(this)
{
    m_delete.SetEnable(false);
}

void CComboButtonPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    // 取代模板中的按钮
    for (int i = 0; i < BUTTONS; ++i)
        DDX_Control(exchange, IDC_COMBO_BUTTON + i, m_buttons[i]);
    // [end]
}

BOOL CComboButtonPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    for (int i = 0; i < BUTTONS; ++i)
    {
        // [show]
        // 第一条是默认命令；按钮不拥有它们
        m_buttons[i].AddItem(&m_new);
        m_buttons[i].AddItem(&m_copy);
        m_buttons[i].AddItem(&m_edit);
        m_buttons[i].AddItem(&m_delete);
        m_buttons[i].AddItem(&m_find);
        // 例如 CBTS_ROUND | CBTS_GRADIENT | CBTS_SHOWIMAGE
        m_buttons[i].SetComboButtonStyle(kStyles[i]);
        // [end]
    }
    m_buttons[kUnavailable].SetDefaultItem(&m_delete);
    return TRUE;
}

LRESULT CComboButtonPage::Show(const wchar_t* command)
{
    SetDlgItemText(IDC_COMBO_BUTTON_RESULT, CString(L"执行了：") + command);
    return 0;
}
