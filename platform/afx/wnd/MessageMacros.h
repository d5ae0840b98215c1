// Entries of a message map. Each macro checks the handler's type, so that a handler with the arguments of another
// message doesn't compile.
#pragma once

#include "afx/wnd/MessageMap.h"

#define _AFX_HANDLER(type, memberFxn) AfxEraseHandler(static_cast<type>(memberFxn))
#define _AFX_ON_WM(message, sig, type, fn) {message, 0, 0, 0, sig, _AFX_HANDLER(type, &ThisClass::fn)},
#define _AFX_ON_ID(message, code, first, last, sig, type, memberFxn)                                                   \
    {message, (UINT)(WORD)(code), (UINT)(WORD)(first), (UINT)(WORD)(last), sig, _AFX_HANDLER(type, memberFxn)},

// Any window message; registered messages; messages posted to a thread.
#define ON_MESSAGE(message, memberFxn)                                                                                 \
    {message, 0, 0, 0, AfxSig_l_wl, _AFX_HANDLER(LRESULT(CWnd::*)(WPARAM, LPARAM), memberFxn)},
#define ON_REGISTERED_MESSAGE(numberVariable, memberFxn)                                                               \
    {AFX_REGISTERED_MESSAGE,                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     (UINT_PTR)&numberVariable,                                                                                        \
     _AFX_HANDLER(LRESULT(CWnd::*)(WPARAM, LPARAM), memberFxn)},
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    {message, 0, 0, 0, AfxSigThread, _AFX_HANDLER(void(CWinThread::*)(WPARAM, LPARAM), memberFxn)},
#define ON_REGISTERED_THREAD_MESSAGE(numberVariable, memberFxn)                                                        \
    {AFX_REGISTERED_MESSAGE,                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     (UINT_PTR)&numberVariable,                                                                                        \
     _AFX_HANDLER(void(CWinThread::*)(WPARAM, LPARAM), memberFxn)},

// Commands.
#define ON_COMMAND(id, memberFxn) ON_CONTROL(CN_COMMAND, id, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn) ON_CONTROL_RANGE(CN_COMMAND, id, idLast, memberFxn)
#define ON_COMMAND_EX(id, memberFxn) ON_COMMAND_EX_RANGE(id, id, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    _AFX_ON_ID(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_EX, BOOL (CCmdTarget::*)(UINT), memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    _AFX_ON_ID(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSigCmdUI, void (CCmdTarget::*)(CCmdUI*), memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    _AFX_ON_ID(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI, void (CCmdTarget::*)(CCmdUI*), memberFxn)

// Notifications of controls, handled by the parent.
#define ON_CONTROL(code, id, memberFxn)                                                                                \
    _AFX_ON_ID(WM_COMMAND, code, id, id, AfxSigCmd_v, void (CCmdTarget::*)(), memberFxn)
#define ON_CONTROL_RANGE(code, id, idLast, memberFxn)                                                                  \
    _AFX_ON_ID(WM_COMMAND, code, id, idLast, AfxSigCmd_RANGE, void (CCmdTarget::*)(UINT), memberFxn)
#define ON_NOTIFY(code, id, memberFxn)                                                                                 \
    _AFX_ON_ID(WM_NOTIFY, code, id, id, AfxSigNotify_v, void (CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_RANGE(code, id, idLast, memberFxn)                                                                   \
    _AFX_ON_ID(WM_NOTIFY, code, id, idLast, AfxSigNotify_RANGE, void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_EX(code, id, memberFxn) ON_NOTIFY_EX_RANGE(code, id, id, memberFxn)
#define ON_NOTIFY_EX_RANGE(code, id, idLast, memberFxn)                                                                \
    _AFX_ON_ID(WM_NOTIFY, code, id, idLast, AfxSigNotify_EX, BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn)

// Notifications given back to the control that sent them. The plain form hides them from the parent, the _EX form
// lets the parent have them too when the handler returns FALSE.
#define ON_CONTROL_REFLECT(code, memberFxn)                                                                            \
    _AFX_ON_ID(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, AfxSigCmd_v, void(CCmdTarget::*)(), memberFxn)
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                                         \
    _AFX_ON_ID(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, AfxSigCmd_b, BOOL(CCmdTarget::*)(), memberFxn)
#define ON_NOTIFY_REFLECT(code, memberFxn)                                                                             \
    _AFX_ON_ID(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, AfxSigNotify_v, void(CCmdTarget::*)(NMHDR*, LRESULT*),         \
               memberFxn)
#define ON_NOTIFY_REFLECT_EX(code, memberFxn)                                                                          \
    _AFX_ON_ID(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, AfxSigNotify_b, BOOL(CCmdTarget::*)(NMHDR*, LRESULT*),         \
               memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    _AFX_ON_ID(WM_REFLECT_BASE + WM_COMMAND, CN_UPDATE_COMMAND_UI, 0, 0, AfxSigCmdUI, void(CCmdTarget::*)(CCmdUI*),    \
               memberFxn)

// Reflected owner-draw, colour and scroll messages.
// clang-format off
#define ON_WM_CTLCOLOR_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_CTLCOLOR, AfxSig_B_D_u, HBRUSH (CWnd::*)(CDC*, UINT), CtlColor)
#define ON_WM_DRAWITEM_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_DRAWITEM, AfxSig_v_DRAW_REFLECT, void (CWnd::*)(LPDRAWITEMSTRUCT), DrawItem)
#define ON_WM_MEASUREITEM_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_MEASUREITEM, AfxSig_v_DRAW_REFLECT, void (CWnd::*)(LPMEASUREITEMSTRUCT), MeasureItem)
#define ON_WM_DELETEITEM_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_DELETEITEM, AfxSig_v_DRAW_REFLECT, void (CWnd::*)(LPDELETEITEMSTRUCT), DeleteItem)
#define ON_WM_COMPAREITEM_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_COMPAREITEM, AfxSig_i_COMPARE_REFLECT, int (CWnd::*)(LPCOMPAREITEMSTRUCT), CompareItem)
#define ON_WM_CHARTOITEM_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_CHARTOITEM, AfxSig_i_uu, int (CWnd::*)(UINT, UINT), CharToItem)
#define ON_WM_VKEYTOITEM_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_VKEYTOITEM, AfxSig_i_uu, int (CWnd::*)(UINT, UINT), VKeyToItem)
#define ON_WM_HSCROLL_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_HSCROLL, AfxSig_v_u_u_REFLECT, void (CWnd::*)(UINT, UINT), HScroll)
#define ON_WM_VSCROLL_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_VSCROLL, AfxSig_v_u_u_REFLECT, void (CWnd::*)(UINT, UINT), VScroll)
#define ON_WM_PARENTNOTIFY_REFLECT() _AFX_ON_WM(WM_REFLECT_BASE + WM_PARENTNOTIFY, AfxSig_v_u_l, void (CWnd::*)(UINT, LPARAM), ParentNotify)

// Window messages.
#define ON_WM_CREATE() _AFX_ON_WM(WM_CREATE, AfxSig_i_lp, int (CWnd::*)(LPCREATESTRUCT), OnCreate)
#define ON_WM_NCCREATE() _AFX_ON_WM(WM_NCCREATE, AfxSig_b_lp, BOOL (CWnd::*)(LPCREATESTRUCT), OnNcCreate)
#define ON_WM_DESTROY() _AFX_ON_WM(WM_DESTROY, AfxSig_v_v, void (CWnd::*)(), OnDestroy)
#define ON_WM_NCDESTROY() _AFX_ON_WM(WM_NCDESTROY, AfxSig_v_v, void (CWnd::*)(), OnNcDestroy)
#define ON_WM_MOVE() _AFX_ON_WM(WM_MOVE, AfxSig_v_ii, void (CWnd::*)(int, int), OnMove)
#define ON_WM_SIZE() _AFX_ON_WM(WM_SIZE, AfxSig_v_u_ii, void (CWnd::*)(UINT, int, int), OnSize)
#define ON_WM_MOVING() _AFX_ON_WM(WM_MOVING, AfxSig_v_u_RECT, void (CWnd::*)(UINT, LPRECT), OnMoving)
#define ON_WM_SIZING() _AFX_ON_WM(WM_SIZING, AfxSig_v_u_RECT, void (CWnd::*)(UINT, LPRECT), OnSizing)
#define ON_WM_ENTERSIZEMOVE() _AFX_ON_WM(WM_ENTERSIZEMOVE, AfxSig_v_v, void (CWnd::*)(), OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() _AFX_ON_WM(WM_EXITSIZEMOVE, AfxSig_v_v, void (CWnd::*)(), OnExitSizeMove)
#define ON_WM_WINDOWPOSCHANGING() _AFX_ON_WM(WM_WINDOWPOSCHANGING, AfxSig_v_lp, void (CWnd::*)(WINDOWPOS*), OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED() _AFX_ON_WM(WM_WINDOWPOSCHANGED, AfxSig_v_lp, void (CWnd::*)(WINDOWPOS*), OnWindowPosChanged)
#define ON_WM_GETMINMAXINFO() _AFX_ON_WM(WM_GETMINMAXINFO, AfxSig_v_lp, void (CWnd::*)(MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_STYLECHANGING() _AFX_ON_WM(WM_STYLECHANGING, AfxSig_v_i_lp, void (CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanging)
#define ON_WM_STYLECHANGED() _AFX_ON_WM(WM_STYLECHANGED, AfxSig_v_i_lp, void (CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanged)
#define ON_WM_SHOWWINDOW() _AFX_ON_WM(WM_SHOWWINDOW, AfxSig_v_b_u, void (CWnd::*)(BOOL, UINT), OnShowWindow)
#define ON_WM_ENABLE() _AFX_ON_WM(WM_ENABLE, AfxSig_v_b, void (CWnd::*)(BOOL), OnEnable)
#define ON_WM_ACTIVATE() _AFX_ON_WM(WM_ACTIVATE, AfxSig_v_u_W_b, void (CWnd::*)(UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_ACTIVATEAPP() _AFX_ON_WM(WM_ACTIVATEAPP, AfxSig_v_b_dw, void (CWnd::*)(BOOL, DWORD), OnActivateApp)
#define ON_WM_NCACTIVATE() _AFX_ON_WM(WM_NCACTIVATE, AfxSig_b_b, BOOL (CWnd::*)(BOOL), OnNcActivate)
#define ON_WM_MOUSEACTIVATE() _AFX_ON_WM(WM_MOUSEACTIVATE, AfxSig_i_W_uu, int (CWnd::*)(CWnd*, UINT, UINT), OnMouseActivate)
#define ON_WM_CHILDACTIVATE() _AFX_ON_WM(WM_CHILDACTIVATE, AfxSig_v_v, void (CWnd::*)(), OnChildActivate)
#define ON_WM_SETFOCUS() _AFX_ON_WM(WM_SETFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() _AFX_ON_WM(WM_KILLFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd*), OnKillFocus)
#define ON_WM_CLOSE() _AFX_ON_WM(WM_CLOSE, AfxSig_v_v, void (CWnd::*)(), OnClose)
#define ON_WM_QUERYENDSESSION() _AFX_ON_WM(WM_QUERYENDSESSION, AfxSig_b_v, BOOL (CWnd::*)(), OnQueryEndSession)
#define ON_WM_ENDSESSION() _AFX_ON_WM(WM_ENDSESSION, AfxSig_v_b, void (CWnd::*)(BOOL), OnEndSession)
#define ON_WM_QUERYOPEN() _AFX_ON_WM(WM_QUERYOPEN, AfxSig_b_v, BOOL (CWnd::*)(), OnQueryOpen)
#define ON_WM_QUERYDRAGICON() _AFX_ON_WM(WM_QUERYDRAGICON, AfxSig_h_v, HCURSOR (CWnd::*)(), OnQueryDragIcon)
#define ON_WM_CANCELMODE() _AFX_ON_WM(WM_CANCELMODE, AfxSig_v_v, void (CWnd::*)(), OnCancelMode)
#define ON_WM_CAPTURECHANGED() _AFX_ON_WM(WM_CAPTURECHANGED, AfxSig_v_W, void (CWnd::*)(CWnd*), OnCaptureChanged)
#define ON_WM_PAINT() _AFX_ON_WM(WM_PAINT, AfxSig_v_v, void (CWnd::*)(), OnPaint)
#define ON_WM_NCPAINT() _AFX_ON_WM(WM_NCPAINT, AfxSig_v_v, void (CWnd::*)(), OnNcPaint)
#define ON_WM_ERASEBKGND() _AFX_ON_WM(WM_ERASEBKGND, AfxSig_b_D, BOOL (CWnd::*)(CDC*), OnEraseBkgnd)
#define ON_WM_NCCALCSIZE() _AFX_ON_WM(WM_NCCALCSIZE, AfxSig_v_b_NCCALC, void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS*), OnNcCalcSize)
#define ON_WM_NCHITTEST() _AFX_ON_WM(WM_NCHITTEST, AfxSig_l_p, LRESULT (CWnd::*)(CPoint), OnNcHitTest)
#define ON_WM_SETCURSOR() _AFX_ON_WM(WM_SETCURSOR, AfxSig_b_W_uu, BOOL (CWnd::*)(CWnd*, UINT, UINT), OnSetCursor)
#define ON_WM_GETDLGCODE() _AFX_ON_WM(WM_GETDLGCODE, AfxSig_u_v, UINT (CWnd::*)(), OnGetDlgCode)
#define ON_WM_TIMER() _AFX_ON_WM(WM_TIMER, AfxSig_v_uptr, void (CWnd::*)(UINT_PTR), OnTimer)
#define ON_WM_SYSCOMMAND() _AFX_ON_WM(WM_SYSCOMMAND, AfxSig_v_u_l, void (CWnd::*)(UINT, LPARAM), OnSysCommand)
#define ON_WM_HSCROLL() _AFX_ON_WM(WM_HSCROLL, AfxSig_v_u_u_W, void (CWnd::*)(UINT, UINT, CScrollBar*), OnHScroll)
#define ON_WM_VSCROLL() _AFX_ON_WM(WM_VSCROLL, AfxSig_v_u_u_W, void (CWnd::*)(UINT, UINT, CScrollBar*), OnVScroll)
#define ON_WM_PARENTNOTIFY() _AFX_ON_WM(WM_PARENTNOTIFY, AfxSig_v_u_l, void (CWnd::*)(UINT, LPARAM), OnParentNotify)
#define ON_WM_CTLCOLOR() _AFX_ON_WM(WM_CTLCOLOR, AfxSig_B_D_W_u, HBRUSH (CWnd::*)(CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_DRAWITEM() _AFX_ON_WM(WM_DRAWITEM, AfxSig_v_i_lp, void (CWnd::*)(int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM() _AFX_ON_WM(WM_MEASUREITEM, AfxSig_v_i_lp, void (CWnd::*)(int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_DELETEITEM() _AFX_ON_WM(WM_DELETEITEM, AfxSig_v_i_lp, void (CWnd::*)(int, LPDELETEITEMSTRUCT), OnDeleteItem)
#define ON_WM_COMPAREITEM() _AFX_ON_WM(WM_COMPAREITEM, AfxSig_i_i_lp, int (CWnd::*)(int, LPCOMPAREITEMSTRUCT), OnCompareItem)
#define ON_WM_CHARTOITEM() _AFX_ON_WM(WM_CHARTOITEM, AfxSig_i_u_W_u, int (CWnd::*)(UINT, CListBox*, UINT), OnCharToItem)
#define ON_WM_VKEYTOITEM() _AFX_ON_WM(WM_VKEYTOITEM, AfxSig_i_u_W_u, int (CWnd::*)(UINT, CListBox*, UINT), OnVKeyToItem)
#define ON_WM_INITMENU() _AFX_ON_WM(WM_INITMENU, AfxSig_v_M, void (CWnd::*)(CMenu*), OnInitMenu)
#define ON_WM_INITMENUPOPUP() _AFX_ON_WM(WM_INITMENUPOPUP, AfxSig_v_M_u_b, void (CWnd::*)(CMenu*, UINT, BOOL), OnInitMenuPopup)
#define ON_WM_UNINITMENUPOPUP() _AFX_ON_WM(WM_UNINITMENUPOPUP, AfxSig_v_M_u, void (CWnd::*)(CMenu*, UINT), OnUnInitMenuPopup)
#define ON_WM_MENUSELECT() _AFX_ON_WM(WM_MENUSELECT, AfxSig_v_u_u_M, void (CWnd::*)(UINT, UINT, HMENU), OnMenuSelect)
#define ON_WM_MENUCHAR() _AFX_ON_WM(WM_MENUCHAR, AfxSig_l_u_u_M, LRESULT (CWnd::*)(UINT, UINT, CMenu*), OnMenuChar)
#define ON_WM_ENTERMENULOOP() _AFX_ON_WM(WM_ENTERMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), OnEnterMenuLoop)
#define ON_WM_EXITMENULOOP() _AFX_ON_WM(WM_EXITMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), OnExitMenuLoop)
#define ON_WM_ENTERIDLE() _AFX_ON_WM(WM_ENTERIDLE, AfxSig_v_u_W, void (CWnd::*)(UINT, CWnd*), OnEnterIdle)
#define ON_WM_CONTEXTMENU() _AFX_ON_WM(WM_CONTEXTMENU, AfxSig_v_W_p, void (CWnd::*)(CWnd*, CPoint), OnContextMenu)
#define ON_WM_HELPINFO() _AFX_ON_WM(WM_HELPINFO, AfxSig_b_HELPINFO, BOOL (CWnd::*)(HELPINFO*), OnHelpInfo)
#define ON_WM_DROPFILES() _AFX_ON_WM(WM_DROPFILES, AfxSig_v_h, void (CWnd::*)(HDROP), OnDropFiles)
#define ON_WM_COPYDATA() _AFX_ON_WM(WM_COPYDATA, AfxSig_b_W_COPYDATA, BOOL (CWnd::*)(CWnd*, COPYDATASTRUCT*), OnCopyData)
#define ON_WM_MDIACTIVATE() _AFX_ON_WM(WM_MDIACTIVATE, AfxSig_v_b_W_W, void (CWnd::*)(BOOL, CWnd*, CWnd*), OnMDIActivate)
#define ON_WM_KEYDOWN() _AFX_ON_WM(WM_KEYDOWN, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP() _AFX_ON_WM(WM_KEYUP, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnKeyUp)
#define ON_WM_CHAR() _AFX_ON_WM(WM_CHAR, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnChar)
#define ON_WM_DEADCHAR() _AFX_ON_WM(WM_DEADCHAR, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnDeadChar)
#define ON_WM_SYSKEYDOWN() _AFX_ON_WM(WM_SYSKEYDOWN, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnSysKeyDown)
#define ON_WM_SYSKEYUP() _AFX_ON_WM(WM_SYSKEYUP, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnSysKeyUp)
#define ON_WM_SYSCHAR() _AFX_ON_WM(WM_SYSCHAR, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnSysChar)
#define ON_WM_SYSDEADCHAR() _AFX_ON_WM(WM_SYSDEADCHAR, AfxSig_v_uuu, void (CWnd::*)(UINT, UINT, UINT), OnSysDeadChar)
#define ON_WM_MOUSEMOVE() _AFX_ON_WM(WM_MOUSEMOVE, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnMouseMove)
#define ON_WM_LBUTTONDOWN() _AFX_ON_WM(WM_LBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() _AFX_ON_WM(WM_LBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() _AFX_ON_WM(WM_LBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() _AFX_ON_WM(WM_RBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() _AFX_ON_WM(WM_RBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() _AFX_ON_WM(WM_RBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() _AFX_ON_WM(WM_MBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnMButtonDown)
#define ON_WM_MBUTTONUP() _AFX_ON_WM(WM_MBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() _AFX_ON_WM(WM_MBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnMButtonDblClk)
#define ON_WM_MOUSEHOVER() _AFX_ON_WM(WM_MOUSEHOVER, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnMouseHover)
#define ON_WM_MOUSELEAVE() _AFX_ON_WM(WM_MOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), OnMouseLeave)
#define ON_WM_NCMOUSEMOVE() _AFX_ON_WM(WM_NCMOUSEMOVE, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcMouseMove)
#define ON_WM_NCLBUTTONDOWN() _AFX_ON_WM(WM_NCLBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() _AFX_ON_WM(WM_NCLBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() _AFX_ON_WM(WM_NCLBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() _AFX_ON_WM(WM_NCRBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() _AFX_ON_WM(WM_NCRBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcRButtonUp)
#define ON_WM_NCRBUTTONDBLCLK() _AFX_ON_WM(WM_NCRBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcRButtonDblClk)
#define ON_WM_NCMBUTTONDOWN() _AFX_ON_WM(WM_NCMBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() _AFX_ON_WM(WM_NCMBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcMButtonUp)
#define ON_WM_NCMBUTTONDBLCLK() _AFX_ON_WM(WM_NCMBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcMButtonDblClk)
#define ON_WM_NCMOUSEHOVER() _AFX_ON_WM(WM_NCMOUSEHOVER, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), OnNcMouseHover)
#define ON_WM_NCMOUSELEAVE() _AFX_ON_WM(WM_NCMOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), OnNcMouseLeave)
#define ON_WM_MOUSEWHEEL() _AFX_ON_WM(WM_MOUSEWHEEL, AfxSig_b_u_s_p, BOOL (CWnd::*)(UINT, short, CPoint), OnMouseWheel)
#define ON_WM_SYSCOLORCHANGE() _AFX_ON_WM(WM_SYSCOLORCHANGE, AfxSig_v_v, void (CWnd::*)(), OnSysColorChange)
#define ON_WM_FONTCHANGE() _AFX_ON_WM(WM_FONTCHANGE, AfxSig_v_v, void (CWnd::*)(), OnFontChange)
#define ON_WM_TIMECHANGE() _AFX_ON_WM(WM_TIMECHANGE, AfxSig_v_v, void (CWnd::*)(), OnTimeChange)
#define ON_WM_WININICHANGE() _AFX_ON_WM(WM_WININICHANGE, AfxSig_v_str, void (CWnd::*)(LPCTSTR), OnWinIniChange)
#define ON_WM_SETTINGCHANGE() _AFX_ON_WM(WM_SETTINGCHANGE, AfxSig_v_u_str, void (CWnd::*)(UINT, LPCTSTR), OnSettingChange)
#define ON_WM_DEVMODECHANGE() _AFX_ON_WM(WM_DEVMODECHANGE, AfxSig_v_str, void (CWnd::*)(LPTSTR), OnDevModeChange)
#define ON_WM_DEVICECHANGE() _AFX_ON_WM(WM_DEVICECHANGE, AfxSig_b_u_dw, BOOL (CWnd::*)(UINT, DWORD_PTR), OnDeviceChange)
#define ON_WM_SPOOLERSTATUS() _AFX_ON_WM(WM_SPOOLERSTATUS, AfxSig_v_u_u, void (CWnd::*)(UINT, UINT), OnSpoolerStatus)
#define ON_WM_COMPACTING() _AFX_ON_WM(WM_COMPACTING, AfxSig_v_u, void (CWnd::*)(UINT), OnCompacting)
#define ON_WM_QUERYNEWPALETTE() _AFX_ON_WM(WM_QUERYNEWPALETTE, AfxSig_b_v, BOOL (CWnd::*)(), OnQueryNewPalette)
#define ON_WM_PALETTEISCHANGING() _AFX_ON_WM(WM_PALETTEISCHANGING, AfxSig_v_W, void (CWnd::*)(CWnd*), OnPaletteIsChanging)
#define ON_WM_PALETTECHANGED() _AFX_ON_WM(WM_PALETTECHANGED, AfxSig_v_W, void (CWnd::*)(CWnd*), OnPaletteChanged)
#define ON_WM_INPUTLANGCHANGE() _AFX_ON_WM(WM_INPUTLANGCHANGE, AfxSig_v_u_u, void (CWnd::*)(UINT, UINT), OnInputLangChange)
#define ON_WM_THEMECHANGED() _AFX_ON_WM(WM_THEMECHANGED, AfxSig_l_v, LRESULT (CWnd::*)(), OnThemeChanged)
#define ON_WM_DRAWCLIPBOARD() _AFX_ON_WM(WM_DRAWCLIPBOARD, AfxSig_v_v, void (CWnd::*)(), OnDrawClipboard)
#define ON_WM_DESTROYCLIPBOARD() _AFX_ON_WM(WM_DESTROYCLIPBOARD, AfxSig_v_v, void (CWnd::*)(), OnDestroyClipboard)

// Notification codes of the standard controls.
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
// clang-format on

// A window message without arguments and result.
#define ON_MESSAGE_VOID(message, memberFxn) {message, 0, 0, 0, AfxSig_v_v, _AFX_HANDLER(void(CWnd::*)(), memberFxn)},
