#include "tree/StateTreeCtrl.h"

#include "base/SelectedObject.h"
#include "tree/CheckBoxPicture.h"
#include "tree/CheckRules.h"
#include "tree/ToggleGuard.h"
#include "tree/TreeWalk.h"

namespace
{

const int kStateImageShift = 12;

// Below so many images a state image list is not ours. The two differ, and both are kept.
const int kFewestImagesForSetting = 6;
const int kFewestImagesForInput = 4;

// Sends a notification of the tree to its parent. Handlers may destroy either: false when the tree is gone.
bool Notify(HWND tree, HWND parent, NMHDR& header, UINT code)
{
    header.hwndFrom = tree;
    header.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(tree));
    header.code = code;
    if (parent != NULL)
        ::SendMessage(parent, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    return ::IsWindow(tree) != FALSE;
}

} // namespace

BEGIN_MESSAGE_MAP(CStateTreeCtrl, CTreeCtrl)
    ON_NOTIFY_REFLECT(NM_CLICK, &CStateTreeCtrl::OnClick)
    ON_NOTIFY_REFLECT(TVN_KEYDOWN, &CStateTreeCtrl::OnKeydown)
END_MESSAGE_MAP()

CStateTreeCtrl::CStateTreeCtrl()
    : m_bImageListCreated(0), m_toggleGuard(NULL), m_nativeCountsChildren(true), m_deletions(0)
{
    for (int i = 0; i < IMAGES; ++i)
        m_pBitmaps[i] = NULL;
}

CStateTreeCtrl::~CStateTreeCtrl()
{
    CToggleGuard::Abandon(m_toggleGuard);
    m_imageList.DeleteImageList();
    for (int i = 0; i < IMAGES; ++i)
        delete m_pBitmaps[i];
}

void CStateTreeCtrl::EnableCheck(HTREEITEM hItem, int bEnable)
{
    ReassertImageList(kFewestImagesForSetting);
    SetSubtree(hItem, bEnable ? STATE_UNCHECKED : STATE_DISABLED);
}

void CStateTreeCtrl::EnableChangeOtherItemState(HTREEITEM hItem, int bEnable)
{
    SetSubtree(hItem, bEnable ? STATE_UNCHECKED : STATE_FIXED);
}

int CStateTreeCtrl::SetCheck(HTREEITEM hItem, int bCheck)
{
    if (hItem == NULL)
        return 0;
    ReassertImageList(kFewestImagesForSetting);
    if (GetValue(hItem) == STATE_DISABLED)
        return 0;
    const unsigned int deletions = m_deletions;
    const BOOL result = SetValue(hItem, CheckedValue(bCheck != 0));
    if (deletions == m_deletions)
        ChangeChildItemState(hItem, bCheck);
    if (deletions == m_deletions)
        ChangeParentItemState(hItem);
    return result;
}

HTREEITEM CStateTreeCtrl::GetNextTreeItem(const CTreeCtrl& tree, HTREEITEM hItem)
{
    if (hItem == NULL)
        return NULL;
    const HTREEITEM child = tree.GetChildItem(hItem);
    if (child != NULL)
        return child;
    for (HTREEITEM item = hItem; item != NULL; item = tree.GetParentItem(item))
    {
        const HTREEITEM sibling = tree.GetNextSiblingItem(item);
        if (sibling != NULL)
            return sibling;
    }
    return NULL;
}

void CStateTreeCtrl::PreSubclassWindow()
{
    if ((GetStyle() & TVS_CHECKBOXES) == 0)
        ModifyStyle(0, TVS_CHECKBOXES);
    // Each window has a native list that ours replaces, also the second one of the same object.
    m_bImageListCreated = 0;
    // What items of a filled tree were told is not known.
    m_nativeCountsChildren = GetCount() == 0;
    CTreeCtrl::PreSubclassWindow();
}

BOOL CStateTreeCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const NMHDR* const header = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam) : NULL;
    if (header != NULL && (header->code == TVN_DELETEITEMW || header->code == TVN_DELETEITEMA))
    {
        ++m_deletions;
        CToggleGuard::Forget(m_toggleGuard, reinterpret_cast<const NMTREEVIEW*>(header)->itemOld.hItem);
    }
    CreateImageList();
    return CTreeCtrl::OnChildNotify(message, wParam, lParam, result);
}

LRESULT CStateTreeCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    WatchChange(message, lParam);
    const HTREEITEM toggled = FindToggled(message, wParam, lParam);
    if (toggled == NULL)
        return CTreeCtrl::DefWindowProc(message, wParam, lParam);
    const CToggleGuard guard(*this, m_toggleGuard, toggled);
    return CTreeCtrl::DefWindowProc(message, wParam, lParam);
}

void CStateTreeCtrl::ChangeChildItemState(HTREEITEM hItem, int bCheck)
{
    const int target = CheckedValue(bCheck != 0);
    const unsigned int deletions = m_deletions;
    CTreeWalk walk(*this, hItem);
    HTREEITEM item = hItem == NULL ? NULL : walk.First();
    while (item != NULL)
    {
        bool mayHaveChildren = false;
        const ChildRule rule = RuleForChild(GetValue(item, mayHaveChildren), target);
        if (rule.set)
            SetValue(item, target);
        item = deletions == m_deletions ? walk.Next(item, rule.descend && mayHaveChildren) : NULL;
    }
}

void CStateTreeCtrl::ChangeParentItemState(HTREEITEM hItem)
{
    if (hItem == NULL)
        return;
    const unsigned int deletions = m_deletions;
    int childValue = GetValue(hItem);
    HTREEITEM parent = GetParentItem(hItem);
    while (parent != NULL && deletions == m_deletions)
    {
        const int before = GetValue(parent);
        if (before == STATE_FIXED)
            return;
        const int value = FindParentValue(parent, childValue);
        if (before == value)
            return;
        SetValue(parent, value);
        childValue = value;
        parent = GetParentItem(parent);
    }
}

CBitmap* CStateTreeCtrl::CreateCheckBoxBitmap(int nState)
{
    CClientDC client(this);
    CDC memory;
    memory.CreateCompatibleDC(&client);
    CBitmap* const bitmap = new CBitmap;
    bitmap->CreateCompatibleBitmap(&client, kCheckBoxPixels, kCheckBoxPixels);
    const CSelectedObject selected(memory, bitmap->GetSafeHandle());
    DrawCheckBox(memory, nState);
    return bitmap;
}

void CStateTreeCtrl::OnClick(NMHDR*, LRESULT* result)
{
    *result = 0;
    const HWND tree = m_hWnd;
    const HWND parent = ::GetParent(tree);
    NMSTATETREECHECK change = {};
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    UINT where = 0;
    change.hItem = HitTest(point, &where);
    if (change.hItem != NULL && (where & TVHT_ONITEMSTATEICON) != 0)
    {
        *result = 1;
        ReassertImageList(kFewestImagesForInput);
        const int value = GetValue(change.hItem);
        if (!TakesClicks(value))
            return;
        change.bCheck = ChecksWhenToggled(value);
        SetCheck(change.hItem, change.bCheck);
        if (!::IsWindow(tree) || !Notify(tree, parent, change.hdr, STATETREEN_CHECKCHANGED))
            return;
    }
    NMHDR click = {};
    Notify(tree, parent, click, STATETREEN_CLICK);
}

void CStateTreeCtrl::OnKeydown(NMHDR* notification, LRESULT* result)
{
    *result = 0;
    const HTREEITEM item = GetSelectedItem();
    if (reinterpret_cast<const NMTVKEYDOWN*>(notification)->wVKey != VK_SPACE || item == NULL)
        return;
    ReassertImageList(kFewestImagesForInput);
    SetCheck(item, ChecksWhenToggled(GetValue(item)));
}

void CStateTreeCtrl::CreateImageList()
{
    if (m_bImageListCreated)
        return;
    m_bImageListCreated = 1;
    if (m_imageList.GetSafeHandle() == NULL)
        DrawImages();
    CImageList* const native = SetImageList(&m_imageList, TVSIL_STATE);
    if (native != NULL)
        native->DeleteImageList();
}

void CStateTreeCtrl::DrawImages()
{
    m_imageList.Create(kCheckBoxPixels, kCheckBoxPixels, ILC_COLOR24 | ILC_MASK, IMAGES, 0);
    for (int value = STATE_NONE; value <= STATE_DISABLED; ++value)
        AddImage(value, value);
    AddImage(STATE_FIXED, STATE_UNCHECKED);
}

void CStateTreeCtrl::AddImage(int index, int value)
{
    m_pBitmaps[index] = CreateCheckBoxBitmap(value);
    m_imageList.Add(m_pBitmaps[index], kCheckBoxMask);
}

// The native control makes a list of its own again at times. Before the first notification there is nothing to assert.
void CStateTreeCtrl::ReassertImageList(int fewest)
{
    if (!m_bImageListCreated)
        return;
    const CImageList* const current = GetImageList(TVSIL_STATE);
    if (current == NULL || current->GetImageCount() < fewest)
        SetImageList(&m_imageList, TVSIL_STATE);
}

int CStateTreeCtrl::GetValue(HTREEITEM item) const
{
    return (GetItemState(item, TVIS_STATEIMAGEMASK) & TVIS_STATEIMAGEMASK) >> kStateImageShift;
}

// One message for both. Whether an item has children is only asked where the control has counted them itself: an owner
// may have said otherwise, or may want to be asked.
int CStateTreeCtrl::GetValue(HTREEITEM item, bool& mayHaveChildren) const
{
    TVITEM info = {};
    info.hItem = item;
    info.mask = TVIF_HANDLE | TVIF_STATE | (m_nativeCountsChildren ? TVIF_CHILDREN : 0);
    info.stateMask = TVIS_STATEIMAGEMASK;
    GetItem(&info);
    mayHaveChildren = !m_nativeCountsChildren || info.cChildren != 0;
    return (info.state & TVIS_STATEIMAGEMASK) >> kStateImageShift;
}

BOOL CStateTreeCtrl::SetValue(HTREEITEM item, int value)
{
    TVITEM change = {};
    change.hItem = item;
    change.mask = TVIF_HANDLE | TVIF_STATE;
    change.state = INDEXTOSTATEIMAGEMASK(value);
    change.stateMask = TVIS_STATEIMAGEMASK;
    return SetItem(&change);
}

void CStateTreeCtrl::SetSubtree(HTREEITEM item, int value)
{
    if (item == NULL)
        return;
    const unsigned int deletions = m_deletions;
    SetValue(item, value);
    CTreeWalk walk(*this, item);
    HTREEITEM below = deletions == m_deletions ? walk.First() : NULL;
    while (below != NULL)
    {
        SetValue(below, value);
        below = deletions == m_deletions ? walk.Next(below) : NULL;
    }
}

// One of the children is known already, so that one other kind of child is enough to end the search. The questions go
// to the native control directly: the dispatch of so many messages would take as long as their answers.
int CStateTreeCtrl::FindParentValue(HTREEITEM parent, int knownChildValue)
{
    CChildCount count;
    count.Add(knownChildValue);
    LRESULT child = CTreeCtrl::DefWindowProc(TVM_GETNEXTITEM, TVGN_CHILD, reinterpret_cast<LPARAM>(parent));
    while (child != 0 && !count.IsDecided())
    {
        const LRESULT state = CTreeCtrl::DefWindowProc(TVM_GETITEMSTATE, child, TVIS_STATEIMAGEMASK);
        count.Add((state & TVIS_STATEIMAGEMASK) >> kStateImageShift);
        child = CTreeCtrl::DefWindowProc(TVM_GETNEXTITEM, TVGN_NEXT, child);
    }
    return count.ParentValue();
}

// The item whose box the native control may toggle on that message.
HTREEITEM CStateTreeCtrl::FindToggled(UINT message, WPARAM wParam, LPARAM lParam) const
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK: {
        UINT where = 0;
        const HTREEITEM item = HitTest(CPoint(lParam), &where);
        return (where & TVHT_ONITEMSTATEICON) != 0 ? item : NULL;
    }
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR: // of the space, whose code is that of its key
        return wParam == VK_SPACE ? GetSelectedItem() : NULL;
    default:
        return NULL;
    }
}

// What others tell the tree about its items.
void CStateTreeCtrl::WatchChange(UINT message, LPARAM lParam)
{
    const TVITEM* change = NULL;
    if (message == TVM_SETITEMW || message == TVM_SETITEMA)
        change = reinterpret_cast<const TVITEM*>(lParam);
    else if ((message == TVM_INSERTITEMW || message == TVM_INSERTITEMA) && lParam != 0)
        change = &reinterpret_cast<const TVINSERTSTRUCT*>(lParam)->item;
    if (change == NULL)
        return;
    if ((change->mask & TVIF_CHILDREN) != 0)
        m_nativeCountsChildren = false;
    if (message == TVM_SETITEMW || message == TVM_SETITEMA)
        CToggleGuard::KeepNew(m_toggleGuard, *change);
}
