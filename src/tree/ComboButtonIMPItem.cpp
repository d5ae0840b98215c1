#include "tree/ComboButtonIMPItem.h"

#include "tree/MFCUtils.h"

namespace
{

const int kIconPixels = 16;

struct Command
{
    int mode;
    const wchar_t* icon;
    const wchar_t* name;
    UINT message;
};

const Command kCommands[] = {
    {MFCUtils::CComboButtonIMPItem::eNew, L"IDI_ICON_NEW", L"新建", UM_TREE_NEW},
    {MFCUtils::CComboButtonIMPItem::eCopyFrom, L"IDI_ICON_COPYFROM", L"复制新建", UM_TREE_COPYFROM},
    {MFCUtils::CComboButtonIMPItem::eEdit, L"IDI_ICON_EDIT", L"编辑", UM_TREE_EDIT},
    {MFCUtils::CComboButtonIMPItem::eRename, L"IDI_ICON_RENAME", L"重命名", UM_TREE_RENAME},
    {MFCUtils::CComboButtonIMPItem::eDel, L"IDI_ICON_DEL", L"删除", UM_TREE_DEL},
};
const int kCommandCount = sizeof(kCommands) / sizeof(kCommands[0]);

// Null for an unknown mode.
const Command* FindCommand(int mode)
{
    for (int i = 0; i < kCommandCount; ++i)
    {
        if (kCommands[i].mode == mode)
            return &kCommands[i];
    }
    return NULL;
}

HICON LoadCommandIcon(const Command& command)
{
    CStringArray names;
    names.Add(command.icon);
    HICON icon = NULL;
    MFCUtils::LoadIcons(names, &icon, kIconPixels, kIconPixels);
    return icon;
}

HICON Duplicate(HICON icon)
{
    return icon == NULL ? NULL : ::CopyIcon(icon);
}

void Destroy(HICON icon)
{
    if (icon != NULL)
        ::DestroyIcon(icon);
}

} // namespace

namespace MFCUtils
{

CComboButtonIMPItem::CComboButtonIMPItem(CWnd* pWnd, EMode eMode, int nParam)
    : m_eMode(eMode), m_hIcon(NULL), m_pWnd(pWnd), m_nParam(nParam), m_bEnabled(true)
{
    const Command* const command = FindCommand(eMode);
    if (command == NULL)
        return;
    m_strName = command->name;
    m_hIcon = LoadCommandIcon(*command);
}

CComboButtonIMPItem::CComboButtonIMPItem(const CComboButtonIMPItem& source)
    : CComboButtonItem(source), m_eMode(source.m_eMode), m_hIcon(Duplicate(source.m_hIcon)),
      m_strName(source.m_strName), m_pWnd(source.m_pWnd), m_nParam(source.m_nParam), m_bEnabled(source.m_bEnabled)
{
}

CComboButtonIMPItem& CComboButtonIMPItem::operator=(const CComboButtonIMPItem& source)
{
    if (this == &source)
        return *this;
    Destroy(m_hIcon);
    m_eMode = source.m_eMode;
    m_hIcon = Duplicate(source.m_hIcon);
    m_strName = source.m_strName;
    m_pWnd = source.m_pWnd;
    m_nParam = source.m_nParam;
    m_bEnabled = source.m_bEnabled;
    return *this;
}

CComboButtonIMPItem::~CComboButtonIMPItem()
{
    Destroy(m_hIcon);
}

bool CComboButtonIMPItem::Enabled()
{
    return m_bEnabled;
}

HICON CComboButtonIMPItem::GetIcon()
{
    return m_hIcon;
}

CString CComboButtonIMPItem::GetName()
{
    return m_strName;
}

void CComboButtonIMPItem::Action()
{
    const Command* const command = FindCommand(m_eMode);
    if (command != NULL && m_pWnd != NULL && ::IsWindow(m_pWnd->m_hWnd))
        m_pWnd->SendMessage(command->message, 0, m_nParam);
}

void CComboButtonIMPItem::SetEnable(bool bEnable)
{
    m_bEnabled = bEnable;
}

} // namespace MFCUtils
