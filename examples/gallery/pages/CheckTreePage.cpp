#include "CheckTreePage.h"

#include "../GalleryIds.h"

#include <MFCUtils.h>

const wchar_t CCheckTreePage::Description[] =
    L"勾选一项即勾选其全部子项，上级显示全选、部分或未选。红色标志的项不可勾"
    L"选，固定的项不随上级改变。";

BEGIN_MESSAGE_MAP(CCheckTreePage, CGalleryPage)
    // [show]
    ON_NOTIFY(STATETREEN_CHECKCHANGED, IDC_CHECK_TREE,
              &CCheckTreePage::OnCheckChanged)
    // [end]
    ON_NOTIFY(STATETREEN_CLICK, IDC_CHECK_TREE,
              &CCheckTreePage::OnTreeClicked)
END_MESSAGE_MAP()

CCheckTreePage::CCheckTreePage() : CGalleryPage(IDD_CHECK_TREE_PAGE) {}

void CCheckTreePage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    // [show]
    DDX_Control(exchange, IDC_CHECK_TREE, m_tree); // 模板中的任意树控件
    // [end]
    DDX_Control(exchange, IDC_CHECK_TREE_LOG, m_log);
}

BOOL CCheckTreePage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    const HTREEITEM layers =
        AddBranch(L"图层", {L"轮廓线", L"中心线", L"标注", L"图框"});
    const HTREEITEM blocks =
        AddBranch(L"图块", {L"M12 螺栓", L"轴承 6204", L"标题栏"});
    const HTREEITEM frame = MFCUtils::FindTreeItem(&m_tree, L"图框", layers);
    const HTREEITEM titleBlock =
        MFCUtils::FindTreeItem(&m_tree, L"标题栏", blocks);
    // [show]
    m_tree.SetCheck(layers, 1);                       // 连同全部子项
    m_tree.EnableCheck(frame, 0);                     // 不可勾选
    m_tree.EnableChangeOtherItemState(titleBlock, 0); // 固定：不随上级改变
    // [end]
    m_tree.SetCheck(MFCUtils::FindTreeItem(&m_tree, L"标注", layers), 0);
    m_tree.SetCheck(MFCUtils::FindTreeItem(&m_tree, L"M12 螺栓", blocks), 1);
    m_tree.SetCheck(MFCUtils::FindTreeItem(&m_tree, L"轴承 6204", blocks), 1);
    m_resize.AddCtrl(IDC_CHECK_TREE, 0, 0, 0.5, 1);
    m_resize.AddCtrl(IDC_CHECK_TREE_LOG_LABEL, 0.5, 0, 0.5, 0);
    m_resize.AddCtrl(IDC_CHECK_TREE_LOG, 0.5, 0, 0.5, 1);
    Log(L"请单击复选框或文字");
    return TRUE;
}

// [show]
void CCheckTreePage::OnCheckChanged(NMHDR* header, LRESULT* result)
{
    const NMSTATETREECHECK& change =
        *reinterpret_cast<const NMSTATETREECHECK*>(header);
    Log((change.bCheck ? L"勾选：" : L"取消：") +
        m_tree.GetItemText(change.hItem));
    *result = 0;
}
// [end]

void CCheckTreePage::OnTreeClicked(NMHDR*, LRESULT* result)
{
    Log(L"单击");
    *result = 0;
}

HTREEITEM CCheckTreePage::AddBranch(
    const wchar_t* name, std::initializer_list<const wchar_t*> leaves)
{
    const HTREEITEM branch = m_tree.InsertItem(name);
    for (const wchar_t* leaf : leaves)
        m_tree.InsertItem(leaf, branch);
    m_tree.Expand(branch, TVE_EXPAND);
    return branch;
}

void CCheckTreePage::Log(const CString& line)
{
    m_log.SetCurSel(m_log.AddString(line));
}
