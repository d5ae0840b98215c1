#include "dialog/HtmlCtrl.h"

#include "dialog/AppCommand.h"

IMPLEMENT_DYNAMIC(CHtmlCtrl, CHtmlView)

BEGIN_MESSAGE_MAP(CHtmlCtrl, CHtmlView)
    ON_WM_DESTROY()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

CHtmlCtrl::CHtmlCtrl() {}

CHtmlCtrl::~CHtmlCtrl() {}

int CHtmlCtrl::CreateFromStatic(UINT nID, CWnd* pParent)
{
    CStatic item;
    if (pParent == NULL || m_hWnd != NULL || !item.SubclassDlgItem(nID, pParent))
        return FALSE;
    CRect place;
    item.GetWindowRect(&place);
    pParent->ScreenToClient(&place);
    item.DestroyWindow();
    return Create(NULL, NULL, WS_CHILD | WS_VISIBLE, place, pParent, nID);
}

void CHtmlCtrl::OnBeforeNavigate2(const wchar_t* pszURL, DWORD nFlags, const wchar_t* pszTargetFrameName,
                                  CByteArray& baPostedData, const wchar_t* pszHeaders, BOOL* pbCancel)
{
    const wchar_t* const command = CommandOfAddress(pszURL);
    if (command == NULL)
    {
        CHtmlView::OnBeforeNavigate2(pszURL, nFlags, pszTargetFrameName, baPostedData, pszHeaders, pbCancel);
        return;
    }
    // The command may end the control; the flag is the browser's and stays.
    if (pbCancel != NULL)
        *pbCancel = TRUE;
    OnAppCmd(command);
}

void CHtmlCtrl::OnAppCmd(const wchar_t*) {}

void CHtmlCtrl::PostNcDestroy() {}

void CHtmlCtrl::OnDestroy()
{
    m_pBrowserApp.Release();
    CWnd::OnDestroy();
}

int CHtmlCtrl::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message)
{
    return CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
}
