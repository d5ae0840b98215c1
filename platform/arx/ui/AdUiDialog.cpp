#include "adui.h"

#include <cwchar>

namespace
{

const wchar_t profileSection[] = L"Dialogs";

} // namespace

IMPLEMENT_DYNAMIC(CAdUiDialog, CAdUiBaseDialog)

BEGIN_MESSAGE_MAP(CAdUiDialog, CAdUiBaseDialog)
    ON_WM_GETMINMAXINFO()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CAdUiDialog::CAdUiDialog(UINT idd, CWnd* pParent, HINSTANCE hDialogResource)
    : CAdUiBaseDialog(idd, pParent, hDialogResource), m_persistent(FALSE), m_minimum(0, 0), m_maximum(0, 0)
{
}

CAdUiDialog::~CAdUiDialog() {}

LPCTSTR CAdUiDialog::GetDialogName()
{
    return m_name;
}

void CAdUiDialog::SetDialogName(LPCTSTR name)
{
    m_name = name;
}

BOOL CAdUiDialog::GetPersistency()
{
    return m_persistent;
}

void CAdUiDialog::SetPersistency(BOOL bFlag)
{
    m_persistent = bFlag;
}

void CAdUiDialog::SetDialogMinExtents(int width, int height)
{
    m_minimum = CSize(width, height);
}

void CAdUiDialog::SetDialogMaxExtents(int width, int height)
{
    m_maximum = CSize(width, height);
}

BOOL CAdUiDialog::OnInitDialog()
{
    const BOOL focusDefault = CAdUiBaseDialog::OnInitDialog();
    if (KeepsPlace())
        RestorePlace();
    return focusDefault;
}

void CAdUiDialog::OnGetMinMaxInfo(MINMAXINFO* lpMMI)
{
    CAdUiBaseDialog::OnGetMinMaxInfo(lpMMI);
    if (m_minimum.cx > 0)
        lpMMI->ptMinTrackSize.x = m_minimum.cx;
    if (m_minimum.cy > 0)
        lpMMI->ptMinTrackSize.y = m_minimum.cy;
    if (m_maximum.cx > 0)
        lpMMI->ptMaxTrackSize.x = m_maximum.cx;
    if (m_maximum.cy > 0)
        lpMMI->ptMaxTrackSize.y = m_maximum.cy;
}

void CAdUiDialog::OnDestroy()
{
    if (KeepsPlace())
        SavePlace();
    CAdUiBaseDialog::OnDestroy();
}

bool CAdUiDialog::KeepsPlace() const
{
    return m_persistent && !m_name.IsEmpty() && (GetStyle() & WS_CHILD) == 0 && AfxGetApp() != NULL;
}

void CAdUiDialog::RestorePlace()
{
    const CString text = AfxGetApp()->GetProfileString(profileSection, m_name);
    CRect rect;
    const int numbers =
        std::swscanf(text.GetString(), L"%ld,%ld,%ld,%ld", &rect.left, &rect.top, &rect.right, &rect.bottom);
    if (numbers != 4 || rect.IsRectEmpty() || ::MonitorFromRect(&rect, MONITOR_DEFAULTTONULL) == NULL)
        return;
    if ((GetStyle() & WS_THICKFRAME) != 0)
        MoveWindow(&rect);
    else
        SetWindowPos(NULL, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CAdUiDialog::SavePlace()
{
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof(placement);
    GetWindowPlacement(&placement);
    const RECT& rect = placement.rcNormalPosition;
    CString text;
    text.Format(L"%ld,%ld,%ld,%ld", rect.left, rect.top, rect.right, rect.bottom);
    AfxGetApp()->WriteProfileString(profileSection, m_name, text);
}
