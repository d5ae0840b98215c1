#include "tree/MFCUtils.h"

#include "tree/TreeWalk.h"

#include <ZNKTPub.h>

namespace
{

const wchar_t kResourceModule[] = L"\\ZNKTRes.dll";

// Guard: the module that holds the suite's icons is loaded.
class CIconModule
{
public:
    CIconModule() : m_module(::LoadLibrary(ZNKTPub::GetInstallPath() + kResourceModule)) {}

    ~CIconModule()
    {
        if (m_module != NULL)
            ::FreeLibrary(m_module);
    }

    // A copy of its own, which stays when the module is released.
    HICON Load(const CString& name, int cx, int cy) const
    {
        // Without a module the name would be looked up in the program.
        return m_module == NULL ? NULL : static_cast<HICON>(::LoadImage(m_module, name, IMAGE_ICON, cx, cy, 0));
    }

private:
    CIconModule(const CIconModule&);
    CIconModule& operator=(const CIconModule&);

    HMODULE m_module;
};

bool Exists(const CWnd* wnd)
{
    return wnd != NULL && ::IsWindow(wnd->m_hWnd);
}

} // namespace

namespace MFCUtils
{

int DeleteTreeChildItems(CTreeCtrl* pTree, HTREEITEM hParent)
{
    int deleted = 0;
    while (Exists(pTree) && hParent != NULL)
    {
        const HTREEITEM child = pTree->GetChildItem(hParent);
        if (child == NULL || !pTree->DeleteItem(child))
            break;
        ++deleted;
    }
    return deleted;
}

HTREEITEM FindTreeItem(const CTreeCtrl* pTree, DWORD_PTR dwData, HTREEITEM hParent)
{
    if (!Exists(pTree))
        return NULL;
    CTreeWalk walk(*pTree, hParent);
    HTREEITEM item = walk.First();
    while (item != NULL && pTree->GetItemData(item) != dwData)
        item = walk.Next(item);
    return item;
}

HTREEITEM FindTreeItem(const CTreeCtrl* pTree, const wchar_t* pszText, HTREEITEM hItem)
{
    if (!Exists(pTree) || pszText == NULL)
        return NULL;
    const CString own = hItem == NULL ? CString() : pTree->GetItemText(hItem);
    if (own.CompareNoCase(pszText) == 0)
        return hItem;
    CTreeWalk walk(*pTree, hItem);
    HTREEITEM item = walk.First();
    while (item != NULL && pTree->GetItemText(item).CompareNoCase(pszText) != 0)
        item = walk.Next(item);
    return item;
}

HTREEITEM FindTreeItem(const CTreeCtrl* pTree, const std::vector<int>& path, HTREEITEM hItem)
{
    if (!Exists(pTree))
        return NULL;
    HTREEITEM item = hItem;
    for (size_t level = 0; level < path.size(); ++level)
    {
        item = FirstChild(*pTree, item);
        for (int place = 0; place < path[level] && item != NULL; ++place)
            item = pTree->GetNextSiblingItem(item);
        if (item == NULL)
            return NULL;
    }
    return item;
}

int SendSizeMessageManual(CWnd* pWnd)
{
    if (!Exists(pWnd))
        return 0;
    CRect client;
    pWnd->GetClientRect(&client);
    return static_cast<int>(pWnd->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height())));
}

int LoadIcons(CStringArray& names, HICON* pIcons, int cx, int cy)
{
    const int count = static_cast<int>(names.GetSize());
    const CIconModule module;
    for (int i = 0; pIcons != NULL && i < count; ++i)
        pIcons[i] = module.Load(names[i], cx, cy);
    return count;
}

} // namespace MFCUtils
