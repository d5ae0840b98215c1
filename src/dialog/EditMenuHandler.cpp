#include "dialog/EditMenuHandler.h"

#include "base/ModuleResources.h"
#include "dialog/AutoRichEditCtrl.h"

namespace
{

bool IsEditCommand(UINT id)
{
    return id >= ID_EDIT_CLEAR && id <= ID_EDIT_UNDO;
}

bool HasSelection(const CRichEditCtrl& edit)
{
    long start = 0;
    long end = 0;
    edit.GetSel(start, end);
    return start < end;
}

} // namespace

CEditMenuHandler::CEditMenuHandler() : m_nMenuID(0) {}

BOOL CEditMenuHandler::Install(CAutoRichEditCtrl* pCtrl, UINT nMenuID)
{
    m_nMenuID = nMenuID;
    HookWindow(pCtrl->GetSafeHwnd());
    return TRUE;
}

LRESULT CEditMenuHandler::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (msg != WM_CONTEXTMENU)
        return CPopupMenuInitHandler::WindowProc(msg, wParam, lParam);
    return OnContextMenu(CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))));
}

BOOL CEditMenuHandler::OnCommand(UINT nID)
{
    CRichEditCtrl* const edit = GetRichEdit();
    if (edit == NULL || !IsEditCommand(nID))
        return FALSE;
    switch (nID)
    {
    case ID_EDIT_CLEAR:
        edit->SendMessage(WM_CLEAR);
        return TRUE;
    case ID_EDIT_COPY:
        edit->SendMessage(WM_COPY);
        return TRUE;
    case ID_EDIT_CUT:
        edit->SendMessage(WM_CUT);
        return TRUE;
    case ID_EDIT_PASTE:
        edit->SendMessage(WM_PASTE);
        return TRUE;
    case ID_EDIT_SELECT_ALL:
        edit->SetSel(0, -1);
        return TRUE;
    case ID_EDIT_UNDO:
        edit->SendMessage(EM_UNDO);
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CEditMenuHandler::OnUpdateCmdUI(CCmdUI* pCmdUI)
{
    const CRichEditCtrl* const edit = GetRichEdit();
    if (edit == NULL || pCmdUI == NULL || !IsEditCommand(pCmdUI->m_nID))
        return FALSE;
    switch (pCmdUI->m_nID)
    {
    case ID_EDIT_CLEAR:
    case ID_EDIT_COPY:
    case ID_EDIT_CUT:
        pCmdUI->Enable(HasSelection(*edit));
        return TRUE;
    case ID_EDIT_PASTE:
        pCmdUI->Enable(::IsClipboardFormatAvailable(CF_TEXT));
        return TRUE;
    case ID_EDIT_SELECT_ALL:
        pCmdUI->Enable(edit->GetTextLength() >= 1);
        return TRUE;
    case ID_EDIT_UNDO:
        pCmdUI->Enable(edit->CanUndo());
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CEditMenuHandler::OnContextMenu(CPoint pt)
{
    const CModuleResources resources;
    CMenu menu;
    CMenu* const popup = menu.LoadMenu(m_nMenuID) ? menu.GetSubMenu(0) : NULL;
    if (popup != NULL)
        popup->TrackPopupMenu(0, pt.x, pt.y, CWnd::FromHandle(GetHookedWindow()));
    return TRUE; // the menu destroys itself
}

CRichEditCtrl* CEditMenuHandler::GetRichEdit() const
{
    return DYNAMIC_DOWNCAST(CRichEditCtrl, CWnd::FromHandlePermanent(GetHookedWindow()));
}
