#include "TreeCommandsPage.h"

#include "../GalleryIds.h"

const wchar_t CTreeCommandsPage::Description[] =
    L"管理命名条目的对话框所需的一切：条目树，以及组合按钮上的新建、复制新建"
    L"、编辑、重命名和删除。";

typedef MFCUtils::CComboButtonIMPItem CCommand;

BEGIN_MESSAGE_MAP(CTreeCommandsPage, CGalleryPage)
    // [show]
    ON_MESSAGE(UM_TREE_NEW, &CTreeCommandsPage::OnNew)
    ON_MESSAGE(UM_TREE_COPYFROM, &CTreeCommandsPage::OnCopyFrom)
    ON_MESSAGE(UM_TREE_EDIT, &CTreeCommandsPage::OnEdit)
    ON_MESSAGE(UM_TREE_RENAME, &CTreeCommandsPage::OnRename)
    ON_MESSAGE(UM_TREE_DEL, &CTreeCommandsPage::OnDelete)
    // [end]
    ON_NOTIFY(TVN_ENDLABELEDIT, IDC_TREE_COMMANDS_TREE,
              &CTreeCommandsPage::OnEndRename)
END_MESSAGE_MAP()

// [show]
CTreeCommandsPage::CTreeCommandsPage()
    : CGalleryPage(IDD_TREE_COMMANDS_PAGE),
      m_noticeId(IDC_TREE_COMMANDS_NOTICE), m_new(this, CCommand::eNew, 0),
      m_copyFrom(this, CCommand::eCopyFrom, 0),
      m_edit(this, CCommand::eEdit, 0), m_rename(this, CCommand::eRename, 0),
      m_delete(this, CCommand::eDel, 0)
{
}
// [end]

void CTreeCommandsPage::DoDataExchange(CDataExchange* exchange)
{
    CGalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TREE_COMMANDS_TREE, m_tree);
    DDX_Control(exchange, IDC_TREE_COMMANDS_BUTTON, m_button);
}

BOOL CTreeCommandsPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    // [show]
    // 第一项为默认命令
    for (CComboButtonItem* item :
         {&m_new, &m_copyFrom, &m_edit, &m_rename, &m_delete})
        m_button.AddItem(item);
    // [end]
    m_resize.AddCtrl(IDC_TREE_COMMANDS_TREE, 0, 0, 1, 1);
    m_resize.AddCtrl(IDC_TREE_COMMANDS_BUTTON, 1, 0, 0, 0);
    m_resize.AddCtrl(IDC_TREE_COMMANDS_NOTICE, 1, 0, 0, 0);
    m_button.SetComboButtonStyle(CBTS_DEFAULT | CBTS_IMAGEANDTEXT);
    for (const wchar_t* name : {L"标准", L"机械", L"建筑"})
        Add(name);
    return TRUE;
}

LRESULT CTreeCommandsPage::OnNew(WPARAM, LPARAM)
{
    // [show]
    CString name; // 第一个未用的名称
    int number = 0;
    do
        name.Format(L"样式 %d", ++number);
    while (MFCUtils::FindTreeItem(&m_tree, name, NULL) != NULL);
    Add(name);
    // [end]
    return 0;
}

LRESULT CTreeCommandsPage::OnCopyFrom(WPARAM, LPARAM)
{
    const HTREEITEM item = m_tree.GetSelectedItem();
    if (item != NULL)
        Add(m_tree.GetItemText(item) + L" 副本");
    return 0;
}

LRESULT CTreeCommandsPage::OnEdit(WPARAM, LPARAM)
{
    const HTREEITEM item = m_tree.GetSelectedItem();
    if (item != NULL)
        Tell(L"编辑：" + m_tree.GetItemText(item));
    return 0;
}

LRESULT CTreeCommandsPage::OnRename(WPARAM, LPARAM)
{
    const HTREEITEM item = m_tree.GetSelectedItem();
    m_tree.SetFocus();
    if (item != NULL)
        m_tree.EditLabel(item);
    return 0;
}

LRESULT CTreeCommandsPage::OnDelete(WPARAM, LPARAM)
{
    const HTREEITEM item = m_tree.GetSelectedItem();
    if (item != NULL)
    {
        Tell(L"已删除：" + m_tree.GetItemText(item));
        m_tree.DeleteItem(item);
    }
    return 0;
}

void CTreeCommandsPage::OnEndRename(NMHDR* header, LRESULT* result)
{
    const wchar_t* const name =
        reinterpret_cast<const NMTVDISPINFO*>(header)->item.pszText;
    *result = name != NULL && name[0] != 0;
}

void CTreeCommandsPage::Add(const CString& name)
{
    m_tree.SelectItem(m_tree.InsertItem(name));
    Tell(L"已新建：" + name);
}
