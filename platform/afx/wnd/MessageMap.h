// Message map tables. A class declares its map with DECLARE_MESSAGE_MAP() and fills it between BEGIN_MESSAGE_MAP and
// END_MESSAGE_MAP with the macros of MessageMacros.h:
//
//   class CPane : public CWnd { ... protected: afx_msg void OnPaint(); DECLARE_MESSAGE_MAP() };     // header
//   BEGIN_MESSAGE_MAP(CPane, CWnd)                                                                  // source
//       ON_WM_PAINT()
//   END_MESSAGE_MAP()
//
// The map is reached through the static GetThisMessageMap(), so a base class may live in another DLL. Handlers may be
// protected or private, because the table is built inside a member function of the class.
#pragma once

#include <afx.h>

class CCmdTarget;

// Added to the number of a message that a parent gives back to the control that sent it.
#define WM_REFLECT_BASE 0xBC00

// Stands in message maps for the seven WM_CTLCOLOR... messages; never a real message.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

// Any handler, converted to one type; nSig of the entry tells how to call it.
typedef void (CCmdTarget::*AFX_PMSG)();

// How a handler is called. Named by result and arguments: v void, b BOOL, l LRESULT, i int, u UINT, w WPARAM as UINT,
// p CPoint, s LPTSTR, h handle, W CWnd*, D CDC*, B HBRUSH, M CMenu*.
enum AfxSig
{
    AfxSig_end = 0,

    // Commands and notifications, called by CCmdTarget::OnCmdMsg.
    AfxSigCmd_v,        // void f()
    AfxSigCmd_b,        // BOOL f(): FALSE lets the command travel on
    AfxSigCmd_RANGE,    // void f(UINT id)
    AfxSigCmd_EX,       // BOOL f(UINT id)
    AfxSigNotify_v,     // void f(NMHDR*, LRESULT*)
    AfxSigNotify_b,     // BOOL f(NMHDR*, LRESULT*)
    AfxSigNotify_RANGE, // void f(UINT id, NMHDR*, LRESULT*)
    AfxSigNotify_EX,    // BOOL f(UINT id, NMHDR*, LRESULT*)
    AfxSigCmdUI,        // void f(CCmdUI*); the id of a range is in CCmdUI::m_nID

    // Thread messages, called by CWinThread.
    AfxSigThread, // void f(WPARAM, LPARAM)

    // Window messages, called by CWnd::OnWndMsg.
    AfxSig_l_wl,              // LRESULT f(WPARAM, LPARAM)
    AfxSig_b_D,               // BOOL f(CDC*)
    AfxSig_b_b,               // BOOL f(BOOL)
    AfxSig_b_W_uu,            // BOOL f(CWnd*, UINT, UINT)
    AfxSig_b_W_COPYDATA,      // BOOL f(CWnd*, COPYDATASTRUCT*)
    AfxSig_b_HELPINFO,        // BOOL f(HELPINFO*)
    AfxSig_b_u_s_p,           // BOOL f(UINT, short, CPoint)
    AfxSig_b_v,               // BOOL f()
    AfxSig_B_D_W_u,           // HBRUSH f(CDC*, CWnd*, UINT)
    AfxSig_B_D_u,             // HBRUSH f(CDC*, UINT)
    AfxSig_i_u_W_u,           // int f(UINT, CWnd*, UINT)
    AfxSig_i_uu,              // int f(UINT, UINT)
    AfxSig_i_W_uu,            // int f(CWnd*, UINT, UINT)
    AfxSig_i_lp,              // int f(LPVOID): WM_CREATE's LPCREATESTRUCT
    AfxSig_b_lp,              // BOOL f(LPCREATESTRUCT): WM_NCCREATE
    AfxSig_l_v,               // LRESULT f()
    AfxSig_l_p,               // LRESULT f(CPoint)
    AfxSig_l_u_u_M,           // LRESULT f(UINT, UINT, CMenu*)
    AfxSig_u_v,               // UINT f()
    AfxSig_h_v,               // HANDLE f(): WM_QUERYDRAGICON
    AfxSig_v_h,               // void f(HANDLE)
    AfxSig_v_b_u,             // void f(BOOL, UINT)
    AfxSig_v_b_NCCALC,        // void f(BOOL, NCCALCSIZE_PARAMS*)
    AfxSig_v_v,               // void f()
    AfxSig_v_u,               // void f(UINT)
    AfxSig_v_uptr,            // void f(UINT_PTR)
    AfxSig_v_b,               // void f(BOOL)
    AfxSig_v_u_u,             // void f(UINT, UINT)
    AfxSig_v_uuu,             // void f(UINT, UINT, UINT): character, repeat count, flags
    AfxSig_v_u_ii,            // void f(UINT, int, int): WM_SIZE
    AfxSig_v_ii,              // void f(int, int): WM_MOVE
    AfxSig_v_u_p,             // void f(UINT, CPoint)
    AfxSig_v_u_l,             // void f(UINT, LPARAM): WM_SYSCOMMAND
    AfxSig_v_u_RECT,          // void f(UINT, LPRECT): WM_SIZING, WM_MOVING
    AfxSig_v_u_str,           // void f(UINT, LPCTSTR): WM_SETTINGCHANGE
    AfxSig_v_str,             // void f(LPTSTR)
    AfxSig_v_i_lp,            // void f(int, struct*): WM_DRAWITEM, WM_MEASUREITEM, WM_DELETEITEM, WM_STYLECHANGED
    AfxSig_i_i_lp,            // int f(int, struct*): WM_COMPAREITEM
    AfxSig_v_lp,              // void f(struct*): WM_WINDOWPOSCHANGED, WM_GETMINMAXINFO
    AfxSig_v_W,               // void f(CWnd*)
    AfxSig_v_W_p,             // void f(CWnd*, CPoint)
    AfxSig_v_u_W_b,           // void f(UINT, CWnd*, BOOL): WM_ACTIVATE
    AfxSig_v_u_u_W,           // void f(UINT, UINT, CScrollBar*)
    AfxSig_v_u_u_REFLECT,     // void f(UINT, UINT): reflected scroll message
    AfxSig_v_b_W_W,           // void f(BOOL, CWnd*, CWnd*): WM_MDIACTIVATE
    AfxSig_v_M_u_b,           // void f(CMenu*, UINT, BOOL): WM_INITMENUPOPUP
    AfxSig_v_M,               // void f(CMenu*)
    AfxSig_v_u_u_M,           // void f(UINT, UINT, HMENU): WM_MENUSELECT
    AfxSig_v_DRAW_REFLECT,    // void f(LPDRAWITEMSTRUCT)
    AfxSig_i_COMPARE_REFLECT, // int f(LPCOMPAREITEMSTRUCT)
    AfxSig_v_b_dw,            // void f(BOOL, DWORD): WM_ACTIVATEAPP
    AfxSig_b_u_dw,            // BOOL f(UINT, DWORD_PTR): WM_DEVICECHANGE
    AfxSig_v_u_W,             // void f(UINT, CWnd*): WM_ENTERIDLE
    AfxSig_v_M_u,             // void f(CMenu*, UINT): WM_UNINITMENUPOPUP
    AfxSig_count
};

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;
    UINT nCode;    // notification code of WM_COMMAND and WM_NOTIFY, else 0
    UINT nID;      // control id, 0 for window messages
    UINT nLastID;  // last id of a range
    UINT_PTR nSig; // an AfxSig; for a registered message the address of the UINT that holds its number
    AFX_PMSG pfn;
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)(); // null in the map of CCmdTarget
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Value of AFX_MSGMAP_ENTRY::nMessage that marks a registered message: the first number RegisterWindowMessage gives.
const UINT AFX_REGISTERED_MESSAGE = 0xC000;

// The first entry of the class's map or of a map above it that fits, else null. Window messages only have nMessage.
AFX_API const AFX_MSGMAP_ENTRY* AFXAPI AfxFindMessageEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);
// The first entry for a registered message (number 0xC000 and above).
AFX_API const AFX_MSGMAP_ENTRY* AFXAPI AfxFindRegisteredEntry(const AFX_MSGMAP* map, UINT message);

// Handlers of every signature are kept as AFX_PMSG and converted back before the call, which the language allows.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
template<class HANDLER>
inline AFX_PMSG AfxEraseHandler(HANDLER handler)
{
    return reinterpret_cast<AFX_PMSG>(handler);
}
template<class HANDLER>
inline HANDLER AfxRestoreHandler(AFX_PMSG handler)
{
    return reinterpret_cast<HANDLER>(handler);
}
#pragma GCC diagnostic pop

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                               \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define _AFX_BEGIN_MESSAGE_TABLE(theClass, baseClass)                                                                  \
    typedef theClass ThisClass __attribute__((unused));                                                                \
    typedef baseClass TheBaseClass;                                                                                    \
    static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                             \
    {                                                                                                                  \
        _AFX_BEGIN_MESSAGE_TABLE(theClass, baseClass)

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template<typename type_name>                                                                                       \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                                                       \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    template<typename type_name>                                                                                       \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap()                                                  \
    {                                                                                                                  \
        _AFX_BEGIN_MESSAGE_TABLE(theClass<type_name>, baseClass)

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0                                                                            \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};                      \
    return &messageMap;                                                                                                \
    }
