#include "afx/wnd/MessageCall.h"

#include <afxwin.h>

// Each case takes the message apart as the documentation of the message describes. A handler whose last argument is a
// pointer to some structure is called through void*: all object pointers travel alike.
namespace
{
class Call
{
public:
    Call(CWnd* target, const AFX_MSGMAP_ENTRY& entry, const MSG& message, LRESULT* result)
        : m_target(target), m_entry(entry), m_w(message.wParam), m_l(message.lParam), m_message(message.message),
          m_result(result)
    {
    }

    BOOL Dispatch()
    {
        BOOL handled = FALSE;
        const bool known = DispatchPlain(handled) || DispatchMouseAndKeys(handled) || DispatchStructures(handled) ||
                           DispatchMenus(handled) || DispatchColours(handled);
        return known && handled;
    }

private:
    template<class... ARGS>
    bool Void(ARGS... args)
    {
        (m_target->*AfxRestoreHandler<void (CWnd::*)(ARGS...)>(m_entry.pfn))(args...);
        return true;
    }
    template<class RESULT, class... ARGS>
    bool Value(ARGS... args)
    {
        *m_result = LRESULT((m_target->*AfxRestoreHandler<RESULT (CWnd::*)(ARGS...)>(m_entry.pfn))(args...));
        return true;
    }

    UINT Low() const { return LOWORD(m_w); }
    UINT High() const { return HIWORD(m_w); }
    UINT LowL() const { return LOWORD(m_l); }
    UINT HighL() const { return HIWORD(m_l); }
    int XOfL() const { return static_cast<short>(LOWORD(m_l)); }
    int YOfL() const { return static_cast<short>(HIWORD(m_l)); }
    CPoint Point() const { return CPoint(XOfL(), YOfL()); }
    void* Structure() const { return reinterpret_cast<void*>(m_l); }
    CWnd* WndOfW() const { return CWnd::FromHandle(reinterpret_cast<HWND>(m_w)); }
    CWnd* WndOfL() const { return CWnd::FromHandle(reinterpret_cast<HWND>(m_l)); }
    CMenu* MenuOfW() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(m_w)); }

    bool DispatchPlain(BOOL& handled);
    bool DispatchMouseAndKeys(BOOL& handled);
    bool DispatchStructures(BOOL& handled);
    bool DispatchMenus(BOOL& handled);
    bool DispatchColours(BOOL& handled);

    CWnd* const m_target;
    const AFX_MSGMAP_ENTRY& m_entry;
    const WPARAM m_w;
    const LPARAM m_l;
    const UINT m_message;
    LRESULT* const m_result;
};

bool Call::DispatchPlain(BOOL& handled)
{
    handled = TRUE;
    switch (m_entry.nSig)
    {
    case AfxSig_l_wl:
        return Value<LRESULT, WPARAM, LPARAM>(m_w, m_l);
    case AfxSig_v_v:
        return Void<>();
    case AfxSig_v_u:
        return Void<UINT>(static_cast<UINT>(m_w));
    case AfxSig_v_uptr:
        return Void<UINT_PTR>(m_w);
    case AfxSig_v_b:
        return Void<BOOL>(static_cast<BOOL>(m_w));
    case AfxSig_v_b_u:
        return Void<BOOL, UINT>(static_cast<BOOL>(m_w), static_cast<UINT>(m_l));
    case AfxSig_v_b_dw:
        return Void<BOOL, DWORD>(static_cast<BOOL>(m_w), static_cast<DWORD>(m_l));
    case AfxSig_v_u_u:
        return Void<UINT, UINT>(static_cast<UINT>(m_w), static_cast<UINT>(m_l));
    case AfxSig_v_u_l:
        return Void<UINT, LPARAM>(static_cast<UINT>(m_w), m_l);
    case AfxSig_v_h:
        return Void<HANDLE>(reinterpret_cast<HANDLE>(m_w));
    case AfxSig_b_v:
        return Value<BOOL>();
    case AfxSig_b_b:
        return Value<BOOL, BOOL>(static_cast<BOOL>(m_w));
    case AfxSig_b_u_dw:
        return Value<BOOL, UINT, DWORD_PTR>(static_cast<UINT>(m_w), static_cast<DWORD_PTR>(m_l));
    case AfxSig_u_v:
        return Value<UINT>();
    case AfxSig_l_v:
        return Value<LRESULT>();
    case AfxSig_h_v:
        return Value<HANDLE>();
    case AfxSig_v_W:
        // WM_CAPTURECHANGED is the one message of this form that names its window in lParam.
        return Void<CWnd*>(m_message == WM_CAPTURECHANGED ? WndOfL() : WndOfW());
    case AfxSig_v_u_W:
        return Void<UINT, CWnd*>(static_cast<UINT>(m_w), WndOfL());
    case AfxSig_v_u_W_b:
        return Void<UINT, CWnd*, BOOL>(Low(), WndOfL(), static_cast<BOOL>(High()));
    case AfxSig_v_b_W_W:
        return Void<BOOL, CWnd*, CWnd*>(m_target->m_hWnd == reinterpret_cast<HWND>(m_l), WndOfL(), WndOfW());
    default:
        return false;
    }
}

bool Call::DispatchMouseAndKeys(BOOL& handled)
{
    handled = TRUE;
    switch (m_entry.nSig)
    {
    case AfxSig_v_u_p:
        return Void<UINT, CPoint>(static_cast<UINT>(m_w), Point());
    case AfxSig_v_uuu:
        return Void<UINT, UINT, UINT>(static_cast<UINT>(m_w), LowL(), HighL());
    case AfxSig_v_W_p:
        return Void<CWnd*, CPoint>(WndOfW(), Point());
    case AfxSig_l_p:
        return Value<LRESULT, CPoint>(Point());
    case AfxSig_b_W_uu:
        return Value<BOOL, CWnd*, UINT, UINT>(WndOfW(), LowL(), HighL());
    case AfxSig_i_W_uu:
        return Value<int, CWnd*, UINT, UINT>(WndOfW(), LowL(), HighL());
    case AfxSig_b_u_s_p:
        Value<BOOL, UINT, short, CPoint>(Low(), static_cast<short>(High()), Point());
        handled = *m_result != 0;
        return true;
    case AfxSig_i_uu:
        return Value<int, UINT, UINT>(Low(), High());
    case AfxSig_i_u_W_u:
        return Value<int, UINT, CWnd*, UINT>(Low(), WndOfL(), High());
    case AfxSig_v_u_u_W:
        return Void<UINT, UINT, CWnd*>(Low(), High(), WndOfL());
    case AfxSig_v_u_u_REFLECT:
        return Void<UINT, UINT>(Low(), High());
    default:
        return false;
    }
}

bool Call::DispatchStructures(BOOL& handled)
{
    handled = TRUE;
    switch (m_entry.nSig)
    {
    case AfxSig_i_lp:
        return Value<int, void*>(Structure());
    case AfxSig_b_lp:
        return Value<BOOL, void*>(Structure());
    case AfxSig_v_lp:
    case AfxSig_v_DRAW_REFLECT:
        return Void<void*>(Structure());
    case AfxSig_i_COMPARE_REFLECT:
        return Value<int, void*>(Structure());
    case AfxSig_v_i_lp:
        return Void<int, void*>(static_cast<int>(m_w), Structure());
    case AfxSig_i_i_lp:
        return Value<int, int, void*>(static_cast<int>(m_w), Structure());
    case AfxSig_v_b_NCCALC:
        return Void<BOOL, void*>(static_cast<BOOL>(m_w), Structure());
    case AfxSig_b_HELPINFO:
        Value<BOOL, void*>(Structure());
        handled = *m_result != 0;
        return true;
    case AfxSig_b_W_COPYDATA:
        return Value<BOOL, CWnd*, void*>(WndOfW(), Structure());
    case AfxSig_v_str:
        return Void<void*>(Structure());
    case AfxSig_v_u_str:
    case AfxSig_v_u_RECT:
        return Void<UINT, void*>(static_cast<UINT>(m_w), Structure());
    case AfxSig_v_u_ii:
        return Void<UINT, int, int>(static_cast<UINT>(m_w), static_cast<int>(LowL()), static_cast<int>(HighL()));
    case AfxSig_v_ii:
        return Void<int, int>(XOfL(), YOfL());
    default:
        return false;
    }
}

bool Call::DispatchMenus(BOOL& handled)
{
    handled = TRUE;
    switch (m_entry.nSig)
    {
    case AfxSig_v_M:
        return Void<CMenu*>(MenuOfW());
    case AfxSig_v_M_u:
        return Void<CMenu*, UINT>(MenuOfW(), HighL());
    case AfxSig_v_M_u_b:
        return Void<CMenu*, UINT, BOOL>(MenuOfW(), LowL(), static_cast<BOOL>(HighL()));
    case AfxSig_v_u_u_M:
        return Void<UINT, UINT, HMENU>(Low(), High(), reinterpret_cast<HMENU>(m_l));
    case AfxSig_l_u_u_M:
        return Value<LRESULT, UINT, UINT, CMenu*>(Low(), High(), CMenu::FromHandle(reinterpret_cast<HMENU>(m_l)));
    default:
        return false;
    }
}

// The reflected form may decline: a null brush leaves the colour to the parent.
bool Call::DispatchColours(BOOL& handled)
{
    handled = TRUE;
    const AFX_CTLCOLOR* const colour = static_cast<const AFX_CTLCOLOR*>(Structure());
    switch (m_entry.nSig)
    {
    case AfxSig_b_D:
        return Value<BOOL, CDC*>(CDC::FromHandle(reinterpret_cast<HDC>(m_w)));
    case AfxSig_B_D_W_u:
        return Value<HBRUSH, CDC*, CWnd*, UINT>(CDC::FromHandle(colour->hDC), CWnd::FromHandle(colour->hWnd),
                                                colour->nCtlType);
    case AfxSig_B_D_u:
        Value<HBRUSH, CDC*, UINT>(CDC::FromHandle(colour->hDC), colour->nCtlType);
        handled = *m_result != 0;
        return true;
    default:
        return false;
    }
}
} // namespace

BOOL AfxCallMessageHandler(CWnd* target, const AFX_MSGMAP_ENTRY& entry, const MSG& message, LRESULT* result)
{
    LRESULT ignored = 0;
    return Call(target, entry, message, result == nullptr ? &ignored : result).Dispatch();
}
