#include "tree/AddedIconTreeCtrl.h"

#include "base/SelectedObject.h"
#include "tree/IconPainter.h"

namespace
{

const COLORREF kGround = 0xFFFFFF;
const COLORREF kText = 0x000000;
const COLORREF kSelectedGround = 0xC56A31;
const COLORREF kSelectedText = 0xFFFFFF;
const int kRoomAfterText = 4;
const int kTextIndent = 3;
const UINT kTextFormat = DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;

void Fill(CDC& dc, const RECT& rect, COLORREF color)
{
    CBrush brush(color);
    dc.FillRect(&rect, &brush);
}

} // namespace

IMPLEMENT_DYNAMIC(CAddedIconTreeCtrl, CTreeCtrl)

BEGIN_MESSAGE_MAP(CAddedIconTreeCtrl, CTreeCtrl)
    ON_WM_PAINT()
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CAddedIconTreeCtrl::CAddedIconTreeCtrl() : m_pAddedImageList(NULL) {}

CAddedIconTreeCtrl::~CAddedIconTreeCtrl()
{
    m_mapAddedIcons.RemoveAll();
}

BOOL CAddedIconTreeCtrl::PreTranslateMessage(MSG* message)
{
    const HWND tree = m_hWnd;
    if (message->message == WM_LBUTTONDOWN && message->hwnd == tree && tree != NULL)
    {
        const HTREEITEM item = HitTest(CPoint(message->lParam));
        if (item != NULL)
            SelectItem(item);
        // The owner may have destroyed the tree when it heard of the selection.
        if (!::IsWindow(tree))
            return TRUE;
    }
    return CTreeCtrl::PreTranslateMessage(message);
}

void CAddedIconTreeCtrl::SetAddedImageList(CImageList* pList)
{
    m_pAddedImageList = pList;
}

CImageList* CAddedIconTreeCtrl::GetAddedImageList() const
{
    return m_pAddedImageList;
}

void CAddedIconTreeCtrl::SetAddedIcons(HTREEITEM hItem, const CTreeItemImages& images)
{
    if (hItem != NULL)
        m_mapAddedIcons.SetAt(hItem, images);
}

CTreeItemImages CAddedIconTreeCtrl::GetAddedIcons(HTREEITEM hItem)
{
    CTreeItemImages images;
    m_mapAddedIcons.Lookup(hItem, images);
    return images;
}

void CAddedIconTreeCtrl::RemoveAddedIcons(HTREEITEM hItem)
{
    m_mapAddedIcons.RemoveKey(hItem);
}

void CAddedIconTreeCtrl::RemoveAllAddedIcons()
{
    m_mapAddedIcons.RemoveAll();
}

void CAddedIconTreeCtrl::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    Fill(dc, client, kGround);
    const HWND tree = m_hWnd;
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.m_hDC), 0);
    // The owner may be asked for texts, and anything may happen then.
    if (::IsWindow(tree))
        PaintItems(dc);
}

void CAddedIconTreeCtrl::OnVScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    CTreeCtrl::OnVScroll(code, position, scrollBar);
    InvalidateAddedIcons();
}

void CAddedIconTreeCtrl::OnHScroll(UINT code, UINT position, CScrollBar* scrollBar)
{
    CTreeCtrl::OnHScroll(code, position, scrollBar);
    InvalidateAddedIcons();
}

BOOL CAddedIconTreeCtrl::OnMouseWheel(UINT, short, CPoint)
{
    const LRESULT result = Default();
    InvalidateAddedIcons();
    return static_cast<BOOL>(result);
}

void CAddedIconTreeCtrl::PaintItems(CDC& dc)
{
    const HWND tree = m_hWnd;
    const CSelectedObject font(dc, reinterpret_cast<HGDIOBJ>(::SendMessage(tree, WM_GETFONT, 0, 0)));
    CIconPainter icons(dc);
    dc.SetBkMode(TRANSPARENT);
    HTREEITEM item = GetFirstVisibleItem();
    for (UINT left = GetVisibleCount(); left > 0 && item != NULL; --left)
    {
        const CString text = GetItemText(item);
        if (!::IsWindow(tree))
            return;
        PaintItem(dc, icons, item, text);
        item = GetNextVisibleItem(item);
    }
}

void CAddedIconTreeCtrl::PaintItem(CDC& dc, CIconPainter& icons, HTREEITEM item, const CString& text)
{
    CRect label;
    if (!GetItemRect(item, &label, TRUE))
        return;
    const bool selected = (GetItemState(item, TVIS_SELECTED) & TVIS_SELECTED) != 0;
    label.OffsetRect(PaintIcons(icons, item, label.TopLeft()), 0);
    label.right += kRoomAfterText;
    Fill(dc, label, selected ? kSelectedGround : kGround);
    label.OffsetRect(kTextIndent, 0);
    dc.SetTextColor(selected ? kSelectedText : kText);
    dc.DrawText(text, &label, kTextFormat);
    if (!selected)
        return;
    label.OffsetRect(-kTextIndent, 0);
    dc.DrawFocusRect(&label);
}

// Answers the width of all of them.
int CAddedIconTreeCtrl::PaintIcons(CIconPainter& icons, HTREEITEM item, CPoint place)
{
    const AddedIcons::CPair* const found = m_mapAddedIcons.PLookup(item);
    if (found == NULL)
        return 0;
    const CTreeItemImages& images = found->value;
    int width = 0;
    for (int entry = 0; entry < images.GetCount(); ++entry)
        width += PaintEntry(icons, images, entry, CPoint(place.x + width, place.y));
    return width;
}

int CAddedIconTreeCtrl::PaintEntry(CIconPainter& icons, const CTreeItemImages& images, int entry, CPoint place)
{
    const unsigned int source = images.GetSource(entry);
    if (source == CTreeItemImages::IMG_ICONHANDLE)
        return icons.PaintIcon(images.GetIcon(entry), place);
    const CImageList* const list =
        source == CTreeItemImages::IMG_ADDEDLIST ? m_pAddedImageList : GetImageList(TVSIL_NORMAL);
    return icons.PaintImage(list == NULL ? NULL : list->GetSafeHandle(), images.GetIndex(entry), place);
}

// The native control moves the pixels that are there, but not by what this class has drawn.
void CAddedIconTreeCtrl::InvalidateAddedIcons()
{
    if (!m_mapAddedIcons.IsEmpty() && ::IsWindow(m_hWnd))
        Invalidate(TRUE);
}
