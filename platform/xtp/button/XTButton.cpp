#include "xtp/button/XTButton.h"

#include "xtp/button/GdiGuards.h"
#include "xtp/button/XTButtonThemes.h"

#include "afxwin.h"

IMPLEMENT_DYNCREATE(CXTButton, CButton)

BEGIN_MESSAGE_MAP(CXTButton, CButton)
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_ENABLE()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(BM_GETCHECK, &CXTButton::OnGetCheck)
    ON_MESSAGE(BM_SETCHECK, &CXTButton::OnSetCheck)
    ON_MESSAGE(BM_SETSTYLE, &CXTButton::OnSetStyle)
END_MESSAGE_MAP()

namespace
{
const DWORD kInitialStyle = BS_XT_WINXP_COMPAT | BS_XT_SHOWFOCUS;

bool IsDefaultType(DWORD style)
{
    return (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

DWORD MakeOwnerDrawn(DWORD style)
{
    return (style & ~static_cast<DWORD>(BS_TYPEMASK)) | BS_OWNERDRAW;
}

CXTButtonTheme* CreateTheme(CRuntimeClass* theme)
{
    if (theme == nullptr || !theme->IsDerivedFrom(RUNTIME_CLASS(CXTButtonTheme)))
        return nullptr;
    return static_cast<CXTButtonTheme*>(theme->CreateObject());
}

HICON LoadIconOfSize(UINT id, CSize size)
{
    const wchar_t* name = MAKEINTRESOURCEW(id);
    const HINSTANCE module = AfxFindResourceHandle(name, RT_GROUP_ICON);
    return static_cast<HICON>(::LoadImageW(module, name, IMAGE_ICON, size.cx, size.cy, LR_DEFAULTCOLOR));
}
} // namespace

struct CXTButton::OwnedIcons
{
    OwnedIcons(HICON normalIcon, HICON pressedIcon) : normal(normalIcon), pressed(pressedIcon) {}
    ~OwnedIcons()
    {
        for (HICON icon : {normal, pressed})
        {
            if (icon != nullptr)
                ::DestroyIcon(icon);
        }
    }
    OwnedIcons(const OwnedIcons&) = delete;
    OwnedIcons& operator=(const OwnedIcons&) = delete;

    HICON normal;
    HICON pressed;
};

CXTButton::CXTButton(CRuntimeClass* theme)
    : m_style(kInitialStyle), m_theme(CreateTheme(theme)), m_icon(nullptr), m_pressedIcon(nullptr), m_iconSize(0, 0),
      m_checked(FALSE), m_hot(FALSE), m_default(FALSE)
{
}

CXTButton::~CXTButton() = default;

DWORD CXTButton::SetXButtonStyle(DWORD style, BOOL redraw)
{
    const DWORD previous = m_style;
    m_style = style;
    Redraw(redraw);
    return previous;
}

void CXTButton::SetTheme(CXTButtonTheme* theme)
{
    if (theme != m_theme.get())
        m_theme.reset(theme);
    Redraw(TRUE);
}

BOOL CXTButton::SetIcon(CSize size, HICON icon, HICON pressed, BOOL redraw)
{
    if (icon == nullptr || size.cx <= 0 || size.cy <= 0)
        return FALSE;
    TakeIcons(size, icon, pressed, redraw);
    m_ownedIcons.reset();
    return TRUE;
}

BOOL CXTButton::SetIcon(CSize size, UINT icon, UINT pressed, BOOL redraw)
{
    if (size.cx <= 0 || size.cy <= 0)
        return FALSE;
    std::unique_ptr<OwnedIcons> loaded(
        new OwnedIcons(LoadIconOfSize(icon, size), pressed == 0 ? nullptr : LoadIconOfSize(pressed, size)));
    if (loaded->normal == nullptr || (pressed != 0 && loaded->pressed == nullptr))
        return FALSE;
    TakeIcons(size, loaded->normal, loaded->pressed, redraw);
    m_ownedIcons = std::move(loaded);
    return TRUE;
}

void CXTButton::SetChecked(BOOL checked)
{
    checked = checked != FALSE;
    if (m_checked == checked)
        return;
    m_checked = checked;
    Redraw(TRUE);
}

void CXTButton::DrawItem(LPDRAWITEMSTRUCT drawItem)
{
    const RECT& rect = drawItem->rcItem;
    const SIZE size = {rect.right - rect.left, rect.bottom - rect.top};
    if (size.cx <= 0 || size.cy <= 0)
        return;
    // Through memory: the hot look changes with every move of the mouse and must not flicker.
    const xtp::MemoryImage image(size.cx, size.cy);
    if (!image.IsValid())
    {
        Paint(drawItem->hDC, rect, drawItem->itemState);
        return;
    }
    Paint(image.dc(), RECT{0, 0, size.cx, size.cy}, drawItem->itemState);
    ::BitBlt(drawItem->hDC, rect.left, rect.top, size.cx, size.cy, image.dc(), 0, 0, SRCCOPY);
}

BOOL CXTButton::PreCreateWindow(CREATESTRUCT& cs)
{
    m_default = IsDefaultType(cs.style);
    cs.style = MakeOwnerDrawn(cs.style);
    return CButton::PreCreateWindow(cs);
}

void CXTButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    const DWORD style = GetStyle();
    if ((style & BS_TYPEMASK) == BS_OWNERDRAW)
        return;
    m_default = IsDefaultType(style);
    ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
}

// Drawing covers the whole button.
BOOL CXTButton::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CXTButton::OnMouseMove(UINT flags, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    // While the button holds the mouse no leaving is reported.
    SetHot(client.PtInRect(point));
    if (m_hot)
    {
        TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    }
    CButton::OnMouseMove(flags, point);
}

void CXTButton::OnMouseLeave()
{
    SetHot(FALSE);
    Default();
}

// An owner-drawn button takes every second of a row of fast clicks for a double click, which nobody handles.
void CXTButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    SendMessage(WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
}

void CXTButton::OnEnable(BOOL enable)
{
    CButton::OnEnable(enable);
    if (!enable)
        SetHot(FALSE);
    Redraw(TRUE);
}

// Owner-drawn buttons are no push buttons to a dialog, which then neither moves the default frame to them nor away.
UINT CXTButton::OnGetDlgCode()
{
    return DLGC_BUTTON | (m_default ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
}

LRESULT CXTButton::OnGetCheck(WPARAM, LPARAM)
{
    return m_checked ? BST_CHECKED : BST_UNCHECKED;
}

LRESULT CXTButton::OnSetCheck(WPARAM check, LPARAM)
{
    SetChecked(check == BST_CHECKED);
    return 0;
}

// The dialog marks its default button by the style; the drawing stays here.
LRESULT CXTButton::OnSetStyle(WPARAM style, LPARAM redraw)
{
    m_default = IsDefaultType(static_cast<DWORD>(style));
    DefWindowProc(BM_SETSTYLE, MakeOwnerDrawn(static_cast<DWORD>(style)), redraw);
    return 0;
}

void CXTButton::SetHot(BOOL hot)
{
    hot = hot != FALSE;
    if (m_hot == hot)
        return;
    m_hot = hot;
    Redraw(TRUE);
}

void CXTButton::TakeIcons(CSize size, HICON icon, HICON pressed, BOOL redraw)
{
    m_iconSize = size;
    m_icon = icon;
    m_pressedIcon = pressed;
    Redraw(redraw);
}

void CXTButton::Redraw(BOOL redraw)
{
    if (redraw && m_hWnd != nullptr)
        Invalidate(FALSE);
}

void CXTButton::Paint(HDC dc, const RECT& rect, UINT itemState) const
{
    const xtp::SavedDC saved(dc);
    FillBackground(dc, rect);
    const XTButtonState state = GetDrawState(itemState);
    GetDrawTheme().Draw(dc, rect, m_style, state, GetContent(state), XTButtonColors::FromSystem());
}

// What the parent has behind its controls.
void CXTButton::FillBackground(HDC dc, const RECT& rect) const
{
    const HWND parent = ::GetParent(m_hWnd);
    const LRESULT brush =
        ::SendMessageW(parent, WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_hWnd));
    ::FillRect(dc, &rect, brush != 0 ? reinterpret_cast<HBRUSH>(brush) : ::GetSysColorBrush(COLOR_BTNFACE));
}

const CXTButtonTheme& CXTButton::GetDrawTheme() const
{
    static const CXTButtonThemeOfficeXP defaultTheme;
    static const CXTButtonTheme classicTheme;
    if (m_theme)
        return *m_theme;
    if ((m_style & BS_XT_WINXP_COMPAT) != 0)
        return defaultTheme;
    return classicTheme;
}

XTButtonState CXTButton::GetDrawState(UINT itemState) const
{
    const bool cues = (itemState & ODS_NOFOCUSRECT) == 0 && (m_style & BS_XT_FLAT) == 0;
    XTButtonState state = {};
    state.enabled = (itemState & ODS_DISABLED) == 0;
    state.hot = m_hot && state.enabled;
    state.pressed = (itemState & ODS_SELECTED) != 0;
    state.checked = m_checked && (m_style & BS_XT_TOGGLE) != 0;
    state.focused = (itemState & ODS_FOCUS) != 0 && ((m_style & BS_XT_SHOWFOCUS) != 0 || cues);
    state.isDefault = m_default && state.enabled;
    return state;
}

XTButtonContent CXTButton::GetContent(const XTButtonState& state) const
{
    XTButtonContent content = {};
    const bool in = state.pressed || state.checked;
    content.icon = in && m_pressedIcon != nullptr ? m_pressedIcon : m_icon;
    content.iconSize = m_iconSize;
    GetWindowText(content.caption);
    content.font = reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0));
    content.stacked = (m_style & BS_XT_TWOROWS) != 0;
    content.hidePrefix = (::SendMessageW(m_hWnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) != 0;
    return content;
}
