#include "dialog/CheckSpecificationMsgDlg.h"

#include "base/CursorInside.h"
#include "base/ModuleResources.h"
#include "base/PrivateMessages.h"
#include "dialog/CheckMsgRules.h"
#include "res/resource.h"
#include "tree/MFCUtils.h"

namespace
{

const COLORREF kBackground = 0xDDFFE9; // pale green
const int kShowDelay = 50;             // ms
const UINT kHideCheck = 200;           // ms
const int kIconPixels = 32;
const UINT kMoveOnly = SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
const wchar_t* const kIconNames[] = {L"IDI_ICON_DOCK", L"IDI_ICON_UNDOCK", L"IDI_ICON_CLOSE_C"};

// Three empty lines, then "there are no properties to show", centred and bold.
const wchar_t kNoTexts[] = L"{\\rtf1\\ansi\\ansicpg936\\deff0\\deflang1033\\deflangfe2052"
                           L"{\\fonttbl{\\f0\\fmodern\\fprq6\\fcharset134 \\'cb\\'ce\\'cc\\'e5;}}"
                           L"{\\colortbl ;\\red0\\green0\\blue0;}{\\*\\generator Msftedit 5.41.15.1507;}"
                           L"\\viewkind4\\uc1\\pard\\qc\\cf1\\lang2052\\b\\f0\\fs18\\par\\par\\par"
                           L"\\'ce\\'de\\'ca\\'f4\\'d0\\'d4\\'cf\\'d4\\'ca\\'be\\cf0\\b0\\fs20\\par}";

CPoint Cursor()
{
    CPoint cursor;
    ::GetCursorPos(&cursor);
    return cursor;
}

CString JoinLines(const CStringArray& texts)
{
    CString joined;
    for (INT_PTR i = 0; i < texts.GetSize(); ++i)
    {
        joined += texts[i];
        joined += L"\n";
    }
    return joined;
}

} // namespace

IMPLEMENT_DYNAMIC(CCheckSpecificationMsgDlg, CDialog)

BEGIN_MESSAGE_MAP(CCheckSpecificationMsgDlg, CDialog)
    ON_WM_CTLCOLOR()
    ON_WM_NCHITTEST()
    ON_BN_CLICKED(IDC_CHECK_DOCK, &CCheckSpecificationMsgDlg::OnDock)
    ON_WM_TIMER()
    ON_BN_CLICKED(IDC_CHECK_CLOSE, &CCheckSpecificationMsgDlg::OnClose)
    ON_MESSAGE(ZNKT_WM_KEEP_FOCUS, &CCheckSpecificationMsgDlg::OnKeepFocus)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CCheckSpecificationMsgDlg::CCheckSpecificationMsgDlg()
    : m_bMouseOver(1), m_ptLast(CPoint(0, 0)), m_ptSet(CPoint(0, 0)), m_nShowDelay(kShowDelay), m_richEdit(0)
{
    for (int i = 0; i < ICON_COUNT; ++i)
        m_icons[i] = NULL;
}

// The window goes while its controls still have their objects and icons.
CCheckSpecificationMsgDlg::~CCheckSpecificationMsgDlg()
{
    if (m_hWnd != NULL)
        DestroyWindow();
    for (int i = 0; i < ICON_COUNT; ++i)
    {
        if (m_icons[i] != NULL)
            ::DestroyIcon(m_icons[i]);
    }
}

void CCheckSpecificationMsgDlg::SetMessages(const CStringArray& msgs)
{
    if (m_hWnd == NULL)
        return;
    if (msgs.IsEmpty())
    {
        m_richEdit.SetRTF(kNoTexts);
        return;
    }
    m_richEdit.SetWindowText(JoinLines(msgs));
    m_ptSet = Cursor();
    SetTimer(ZNKT_TIMER_CHECK_SHOW, static_cast<UINT>(m_nShowDelay), NULL);
}

void CCheckSpecificationMsgDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CHECK_TEXT, m_richEdit);
    DDX_Control(pDX, IDC_CHECK_DOCK, m_btnDock);
    DDX_Control(pDX, IDC_CHECK_CLOSE, m_btnClose);
}

BOOL CCheckSpecificationMsgDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    InitLayout();
    const CModuleResources resources;
    InitButtons();
    InitColors();
    InitToolTips();
    return TRUE;
}

BOOL CCheckSpecificationMsgDlg::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_MOUSEMOVE)
    {
        SetActiveWindow();
        m_bMouseOver = 1;
    }
    if (m_toolTip.GetSafeHwnd() != NULL)
        m_toolTip.RelayEvent(pMsg);
    return CDialog::PreTranslateMessage(pMsg);
}

HBRUSH CCheckSpecificationMsgDlg::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    pDC->SetBkMode(TRANSPARENT);
    return m_brBack;
}

// The window has no caption: all of it is one.
LRESULT CCheckSpecificationMsgDlg::OnNcHitTest(CPoint point)
{
    const LRESULT hit = CDialog::OnNcHitTest(point);
    return IsSizingBorder(hit) ? hit : HTCAPTION;
}

void CCheckSpecificationMsgDlg::OnDock()
{
    m_btnDock.SetCheck(!IsPinned());
}

void CCheckSpecificationMsgDlg::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == ZNKT_TIMER_CHECK_SHOW && !OnShowTimer())
        return;
    if (nIDEvent == ZNKT_TIMER_CHECK_HIDE)
        OnHideTimer();
    CDialog::OnTimer(nIDEvent);
}

void CCheckSpecificationMsgDlg::OnClose()
{
    ShowWindow(SW_HIDE);
}

LRESULT CCheckSpecificationMsgDlg::OnKeepFocus(WPARAM, LPARAM)
{
    if (!IsCursorInside(*this))
        m_bMouseOver = 0;
    return m_bMouseOver;
}

void CCheckSpecificationMsgDlg::OnSize(UINT nType, int cx, int cy)
{
    m_resize.ResizeAllCtrl(cx, cy);
    CDialog::OnSize(nType, cx, cy);
}

// The dock button is not registered: it stays where the template puts it.
void CCheckSpecificationMsgDlg::InitLayout()
{
    m_resize.InitDlg(this);
    m_resize.AddCtrl(IDC_CHECK_TEXT, 0, 0, 1, 1);
    m_resize.AddCtrl(IDC_CHECK_CLOSE, 1, 0, 0, 0);
}

void CCheckSpecificationMsgDlg::InitButtons()
{
    CStringArray names;
    for (int i = 0; i < ICON_COUNT; ++i)
        names.Add(kIconNames[i]);
    MFCUtils::LoadIcons(names, m_icons, kIconPixels, kIconPixels);
    m_btnClose.SetIcon(m_icons[ICON_CLOSE]);
    m_btnDock.SetIcon(m_icons[ICON_UNDOCK]);
    m_btnDock.SetCheckedIcon(m_icons[ICON_DOCK]);
}

void CCheckSpecificationMsgDlg::InitColors()
{
    m_btnClose.SetBackgroundColor(kBackground);
    m_btnDock.SetBackgroundColor(kBackground);
    m_brBack.CreateSolidBrush(kBackground);
    m_richEdit.SendMessage(EM_SETBKGNDCOLOR, FALSE, kBackground);
}

void CCheckSpecificationMsgDlg::InitToolTips()
{
    EnableToolTips(TRUE);
    m_toolTip.Create(this);
    m_toolTip.Activate(TRUE);
    m_toolTip.AddTool(&m_btnClose, L"关闭窗口");
    m_toolTip.AddTool(&m_btnDock, L"锁定位置");
}

// False when the cursor has left the object that the texts are about.
bool CCheckSpecificationMsgDlg::OnShowTimer()
{
    KillTimer(ZNKT_TIMER_CHECK_SHOW);
    const CPoint cursor = Cursor();
    if (HasCursorLeft(cursor, m_ptSet))
        return false;
    if (!IsWindowVisible())
    {
        if (!IsPinned())
            PlaceAtCursor(cursor);
        ShowWindow(SW_SHOW);
        SetTimer(ZNKT_TIMER_CHECK_HIDE, kHideCheck, NULL);
    }
    m_ptLast = cursor;
    return true;
}

void CCheckSpecificationMsgDlg::OnHideTimer()
{
    if (IsPinned() || !HasCursorLeft(Cursor(), m_ptLast) || IsCursorInside(*this))
        return;
    ShowWindow(SW_HIDE);
    KillTimer(ZNKT_TIMER_CHECK_HIDE);
}

// The window moves to the cursor first: only then is it known whether it fits there.
void CCheckSpecificationMsgDlg::PlaceAtCursor(CPoint cursor)
{
    SetWindowPos(NULL, cursor.x, cursor.y, 0, 0, kMoveOnly | SWP_NOREDRAW);
    CRect window;
    GetWindowRect(&window);
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CPoint place = PlaceBesideCursor(cursor, window, screen);
    SetWindowPos(NULL, place.x, place.y, 0, 0, kMoveOnly);
}
