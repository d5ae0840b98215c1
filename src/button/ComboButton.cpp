#include "button/ComboButton.h"

#include "base/FlagGuard.h"
#include "base/SavedDC.h"
#include "button/ComboButtonFace.h"
#include "button/ComboButtonLayout.h"
#include "button/ItemDrawing.h"
#include "button/MyMenu.h"

IMPLEMENT_DYNAMIC(CComboButton, CButton)

namespace
{

const UINT kFirstCommand = 1057; // of the first item; the others follow
const UINT kLastCommand = 1157;
const int kNoItem = -1;
const DWORD kHoverTime = 1000; // milliseconds
const DWORD kKeptStyles = WS_TABSTOP | WS_DISABLED;
const DWORD kOwnStyles = WS_CHILD | WS_VISIBLE | BS_OWNERDRAW;

} // namespace

BEGIN_MESSAGE_MAP(CComboButton, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_MOUSELEAVE()
    ON_WM_MENUCHAR()
    ON_COMMAND_RANGE(kFirstCommand, kLastCommand, &CComboButton::OnCommandRange)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CComboButton::OnBnClicked)
END_MESSAGE_MAP()

CComboButton::CComboButton()
    : m_nComboStyle(CBTS_DEFAULT), m_nDefaultItem(kNoItem), m_bMenuShown(false), m_bHot(false),
      m_bBackgroundsPainted(false)
{
}

CComboButton::~CComboButton() {}

void CComboButton::AddItem(CComboButtonItem* item)
{
    if (item == NULL)
        return;
    m_aItems.Add(item);
    if (m_nDefaultItem == kNoItem)
        SetDefaultItem(0);
    Redraw();
}

void CComboButton::RemoveItem(const CComboButtonItem* item)
{
    const INT_PTR index = Find(item);
    if (index == kNoItem)
        return;
    m_aItems.RemoveAt(index);
    if (m_nDefaultItem >= index)
        --m_nDefaultItem;
    if (m_nDefaultItem < 0)
        m_nDefaultItem = m_aItems.IsEmpty() ? kNoItem : 0;
    Redraw();
}

void CComboButton::SetDefaultItem(CComboButtonItem* item)
{
    SetDefaultItem(static_cast<int>(Find(item)));
}

void CComboButton::SetDefaultItem(int index)
{
    if (index < 0 || index >= m_aItems.GetCount())
        return;
    m_nDefaultItem = index;
    ShowDefaultName();
    Redraw();
}

CComboButtonItem* CComboButton::GetDefaultItem()
{
    return m_nDefaultItem == kNoItem ? NULL : m_aItems.GetAt(m_nDefaultItem);
}

CComboButtonItem* CComboButton::GetDefaultItem(int& index)
{
    index = m_nDefaultItem;
    return GetDefaultItem();
}

int CComboButton::GetItemCount()
{
    return static_cast<int>(m_aItems.GetCount());
}

CComboButtonItem* CComboButton::GetItem(int index)
{
    return m_aItems.GetAt(index);
}

void CComboButton::SetComboButtonStyle(UINT style)
{
    m_nComboStyle = style == 0 ? static_cast<UINT>(CBTS_DEFAULT) : style;
    Redraw();
}

UINT CComboButton::GetComboButtonStyle()
{
    return m_nComboStyle;
}

void CComboButton::DrawItem(LPDRAWITEMSTRUCT drawItem)
{
    // A background covers its whole rectangle: painted after the border it would leave nothing of border and focus.
    CDC& dc = *CDC::FromHandle(drawItem->hDC);
    const ComboButtonState state = StateOf(*drawItem);
    PaintFace(dc, drawItem->rcItem, state);
    PaintDropZone(dc, drawItem->rcItem, state);

    const CFlagGuard painted(m_bBackgroundsPainted);
    DrawItemBorder(drawItem);
    DrawItemContent(drawItem);
    DrawItemComboFlag(drawItem);
}

void CComboButton::DrawItemBorder(LPDRAWITEMSTRUCT drawItem)
{
    DrawBorder(*CDC::FromHandle(drawItem->hDC), drawItem->rcItem, StateOf(*drawItem));
}

void CComboButton::DrawItemContent(LPDRAWITEMSTRUCT drawItem)
{
    CDC& dc = *CDC::FromHandle(drawItem->hDC);
    const ComboButtonState state = StateOf(*drawItem);
    if (!m_bBackgroundsPainted)
        PaintFace(dc, drawItem->rcItem, state);
    CComboButtonItem* const item = GetDefaultItem();
    if (item == NULL)
        return;

    const CSavedDC saved(dc);
    // The background of the drop zone may be there already, and would not cover what is too wide.
    if (HasDropZone(state.itemCount))
        dc.ExcludeClipRect(DropZone(drawItem->rcItem));
    const bool disabled = state.disabled || !item->Enabled();
    const CString caption = item->GetName();
    const CSize captionSize = MeasureItemText(dc, caption);
    const ItemImage image = FindItemImage(item->GetIcon(), item->GetBitmap());
    const ComboButtonContent content = LayOutContent(ContentArea(drawItem->rcItem, state.itemCount), state.style,
                                                     HasImage(image) ? &image.size : NULL, captionSize, state.pressed);
    if (content.showsImage)
        DrawItemImage(dc, content.image, image, disabled);
    if (content.showsCaption)
        DrawItemText(dc, content.caption, captionSize, caption, disabled);
}

void CComboButton::DrawItemComboFlag(LPDRAWITEMSTRUCT drawItem)
{
    CDC& dc = *CDC::FromHandle(drawItem->hDC);
    const ComboButtonState state = StateOf(*drawItem);
    if (!m_bBackgroundsPainted)
        PaintDropZone(dc, drawItem->rcItem, state);
    DrawDropSign(dc, drawItem->rcItem, state);
}

void CComboButton::PreSubclassWindow()
{
    // A former window may have gone while its menu was open or the mouse was over it.
    m_bMenuShown = false;
    m_bHot = false;
    const DWORD kept = GetStyle() & kKeptStyles;
    ::SetWindowLongPtr(m_hWnd, GWL_STYLE, static_cast<LONG>(kOwnStyles | kept));
    CButton::PreSubclassWindow();
    ShowDefaultName();
}

void CComboButton::OnMouseMove(UINT flags, CPoint point)
{
    if (!m_bHot)
    {
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, kHoverTime};
        if (::TrackMouseEvent(&track))
            m_bHot = true;
        Redraw();
    }
    CButton::OnMouseMove(flags, point);
}

void CComboButton::OnLButtonDown(UINT flags, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    if (HasDropZone(m_aItems.GetCount()) && DropZone(client).PtInRect(point))
        ShowMenu();
    else if (!IsDefaultDisabled())
        CButton::OnLButtonDown(flags, point);
}

void CComboButton::OnLButtonUp(UINT flags, CPoint point)
{
    if (!RefusesInput())
        CButton::OnLButtonUp(flags, point);
}

void CComboButton::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!IsDefaultDisabled())
        CButton::OnKeyDown(key, repeat, flags);
}

void CComboButton::OnKeyUp(UINT key, UINT repeat, UINT flags)
{
    if (!RefusesInput())
        CButton::OnKeyUp(key, repeat, flags);
}

void CComboButton::OnMouseLeave()
{
    m_bHot = false;
    Redraw();
    CButton::OnMouseLeave();
}

LRESULT CComboButton::OnMenuChar(UINT character, UINT flags, CMenu* menu)
{
    CMyMenu* const shown = DYNAMIC_DOWNCAST(CMyMenu, menu);
    return shown == NULL ? 0 : shown->HandleMenuChar(this, character, flags);
}

void CComboButton::OnCommandRange(UINT id)
{
    const INT_PTR index = FindChosen(id - kFirstCommand);
    if (!m_bMenuShown)
        m_aMenuItems.RemoveAll();
    if (index == kNoItem)
        return;
    SetDefaultItem(static_cast<int>(index));
    // The item runs when the parent's notification comes back; it may destroy this button.
    ::SendMessage(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED),
                  reinterpret_cast<LPARAM>(m_hWnd));
}

BOOL CComboButton::OnBnClicked()
{
    const HWND parent = ::GetParent(m_hWnd);
    CComboButtonItem* const item = GetDefaultItem();
    if (item != NULL && item->Enabled())
        item->Action();
    // The parent sees the click as well, unless the item has destroyed it. This button may be gone, too.
    return !::IsWindow(parent);
}

INT_PTR CComboButton::Find(const CComboButtonItem* item) const
{
    for (INT_PTR index = 0; index < m_aItems.GetCount(); ++index)
    {
        if (m_aItems.GetAt(index) == item)
            return index;
    }
    return kNoItem;
}

// The index of the item that the menu shows at that entry, wherever it stands by now; without a menu, of the item at
// that index. -1 when there is none.
INT_PTR CComboButton::FindChosen(INT_PTR entry) const
{
    const bool stands = entry < m_aItems.GetCount();
    if (m_aMenuItems.IsEmpty())
        return stands ? entry : kNoItem;
    if (entry >= m_aMenuItems.GetCount())
        return kNoItem;
    const CComboButtonItem* const chosen = m_aMenuItems.GetAt(entry);
    return stands && m_aItems.GetAt(entry) == chosen ? entry : Find(chosen);
}

bool CComboButton::IsDefaultDisabled()
{
    CComboButtonItem* const item = GetDefaultItem();
    return item != NULL && !item->Enabled();
}

// What ends a press is kept from the window as well; a press that began while the item was enabled must not stay.
bool CComboButton::RefusesInput()
{
    if (!IsDefaultDisabled())
        return false;
    LetGoOfPress();
    return true;
}

void CComboButton::LetGoOfPress()
{
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

void CComboButton::ShowDefaultName()
{
    CComboButtonItem* const item = GetDefaultItem();
    if (m_hWnd != NULL && item != NULL)
        SetWindowText(item->GetName());
}

void CComboButton::Redraw()
{
    if (m_hWnd != NULL)
        Invalidate(FALSE);
}

ComboButtonState CComboButton::StateOf(const DRAWITEMSTRUCT& drawItem)
{
    ComboButtonState state;
    state.style = m_nComboStyle;
    state.itemCount = m_aItems.GetCount();
    state.pressed = (drawItem.itemState & ODS_SELECTED) != 0;
    state.focused = (drawItem.itemState & ODS_FOCUS) != 0;
    state.disabled = (drawItem.itemState & (ODS_GRAYED | ODS_DISABLED)) != 0;
    state.hot = m_bHot;
    state.menuShown = m_bMenuShown;
    // A bit of its own here, not a type of button: it is part of BS_OWNERDRAW.
    state.pushDefault = (GetStyle() & BS_DEFPUSHBUTTON) != 0;
    return state;
}

void CComboButton::ShowMenu()
{
    if (m_bMenuShown)
        return;
    const HWND window = m_hWnd;
    m_bMenuShown = true;
    Redraw();
    {
        CMyMenu menu;
        menu.CreatePopupMenu();
        FillMenu(menu);
        TrackMenu(menu);
    }
    // An item that was chosen by its mnemonic has run by now: it may have destroyed this button.
    if (CWnd::FromHandlePermanent(window) != this)
        return;
    m_bMenuShown = false;
    ForgetMenuUnlessChosen();
    Redraw();
}

// The items are asked for a lot meanwhile, so that an owner may change the list in the middle.
void CComboButton::FillMenu(CMyMenu& menu)
{
    m_aMenuItems.RemoveAll();
    for (INT_PTR index = 0; index < m_aItems.GetCount(); ++index)
    {
        CComboButtonItem* const item = m_aItems.GetAt(index);
        const UINT id = kFirstCommand + static_cast<UINT>(m_aMenuItems.Add(item));
        if (item->IsSeparator())
            menu.AppendMenu(MF_SEPARATOR);
        else
            AppendEntry(menu, id, *item, index == m_nDefaultItem);
    }
}

void CComboButton::AppendEntry(CMyMenu& menu, UINT id, CComboButtonItem& item, BOOL isDefault)
{
    const CString name = item.GetName();
    const HICON icon = item.GetIcon();
    menu.AppendMenu(MF_OWNERDRAW, id, name);
    if (icon != NULL)
        menu.AddIconEntry(this, id, name, icon, isDefault);
    else
        menu.AddBitmapEntry(this, id, name, item.GetBitmap(), isDefault);
    if (!item.Enabled())
        menu.EnableMenuItem(id, MF_BYCOMMAND | MF_GRAYED | MF_DISABLED);
}

void CComboButton::TrackMenu(CMyMenu& menu)
{
    CRect client;
    GetClientRect(&client);
    CPoint corner(DropZone(client).left, client.bottom);
    ClientToScreen(&corner);
    menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_TOPALIGN | TPM_LEFTBUTTON, corner.x, corner.y, this);
}

// The command of an entry that was chosen waits in the queue when the menu has closed.
void CComboButton::ForgetMenuUnlessChosen()
{
    MSG command;
    if (!::PeekMessage(&command, m_hWnd, WM_COMMAND, WM_COMMAND, PM_NOREMOVE) || command.message != WM_COMMAND)
        m_aMenuItems.RemoveAll();
}
