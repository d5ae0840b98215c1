#include "msg/MsgGroupTree.h"

#include "base/NoRedraw.h"
#include "msg/GroupName.h"
#include "msg/MsgImages.h"
#include "res/resource.h"

namespace
{

const wchar_t kRootText[] = L"消息查看器";

const int kImagePixels = 16;
const int kRootImage = 0;
const int kGroupImage = 1;

} // namespace

void CMsgGroupTree::LoadImages()
{
    LoadImageStrip(m_images, IDB_TREE_IMAGES, kImagePixels);
    SetImageList(&m_images, TVSIL_NORMAL);
}

void CMsgGroupTree::ShowGroups(const CStringArray& groups, const CString& wanted)
{
    CNoRedraw noRedraw(*this);
    DeleteAllItems();
    m_groups.Copy(groups);
    const HTREEITEM root = InsertItem(kRootText, kRootImage, kRootImage);
    HTREEITEM selected = root;
    for (INT_PTR i = 0; i < groups.GetSize(); ++i)
    {
        const HTREEITEM item = InsertGroup(root, i);
        // Without a wanted group the root is meant, even where messages without a group have an item of their own.
        if (!wanted.IsEmpty() && CompareGroupNames(groups[i], wanted) == 0)
            selected = item;
    }
    Expand(root, TVE_EXPAND);
    SelectItem(selected);
}

CString CMsgGroupTree::GetSelectedGroup() const
{
    return ShowsAll() ? CString() : GroupOf(GetSelectedItem());
}

bool CMsgGroupTree::ShowsAll() const
{
    const HTREEITEM selected = GetSelectedItem();
    return selected == NULL || selected == GetRootItem();
}

void CMsgGroupTree::RemoveGroup(const CString& group)
{
    for (HTREEITEM item = GetChildItem(GetRootItem()); item != NULL; item = GetNextSiblingItem(item))
    {
        if (CompareGroupNames(GroupOf(item), group) == 0)
        {
            DeleteItem(item);
            return;
        }
    }
}

HTREEITEM CMsgGroupTree::InsertGroup(HTREEITEM root, INT_PTR index)
{
    const UINT mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    return InsertItem(mask, m_groups[index], kGroupImage, kGroupImage, 0, 0, index, root, TVI_LAST);
}

CString CMsgGroupTree::GroupOf(HTREEITEM item) const
{
    return m_groups[static_cast<INT_PTR>(GetItemData(item))];
}
