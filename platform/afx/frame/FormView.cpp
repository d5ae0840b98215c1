#include <afxwin.h>

#include "afx/dialog/DialogTemplateLock.h"
#include "afx/frame/Document.h"
#include "afx/frame/FormView.h"

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

namespace
{
INT_PTR CALLBACK FormProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}
} // namespace

CFormView::CFormView(LPCTSTR templateName) : m_lpszTemplateName(templateName) {}

CFormView::CFormView(UINT templateId) : m_lpszTemplateName(MAKEINTRESOURCE(templateId)) {}

BOOL CFormView::Create(LPCTSTR, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                       CCreateContext* context)
{
    const CDialogTemplateLock lock(m_lpszTemplateName);
    if (lock.Get() == nullptr)
        return FALSE;
    AfxHookWindowCreate(this);
    const HWND window = ::CreateDialogIndirect(lock.Instance(), lock.Get(), parent->GetSafeHwnd(), &FormProcedure);
    if (!AfxUnhookWindowCreate() && window == nullptr)
        PostNcDestroy();
    if (window == nullptr)
        return FALSE;

    CRect whole;
    GetWindowRect(&whole);
    SetScrollSizes(MM_TEXT, whole.Size());
    SetDlgCtrlID(static_cast<int>(id));
    SetWindowText(windowName);
    ModifyStyle(WS_VISIBLE, style & (WS_BORDER | WS_DISABLED), SWP_FRAMECHANGED);
    MoveWindow(&rect, FALSE);
    ShowWindow(style & WS_VISIBLE ? SW_SHOWNA : SW_HIDE);
    if (context != nullptr && context->m_pCurrentDoc != nullptr)
        context->m_pCurrentDoc->AddView(this);
    return TRUE;
}

void CFormView::OnInitialUpdate()
{
    UpdateData(FALSE);
    CScrollView::OnInitialUpdate();
}

BOOL CFormView::PreTranslateMessage(MSG* message)
{
    return CScrollView::PreTranslateMessage(message) || PreTranslateInput(message);
}
