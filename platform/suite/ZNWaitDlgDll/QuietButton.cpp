#include "suite/ZNWaitDlgDll/QuietButton.h"

#include <windowsx.h>

namespace wait
{
namespace
{
const wchar_t kFormerProcedure[] = L"ZNWaitFormerProcedure";

bool IsInside(HWND button, LPARAM point)
{
    RECT client = {};
    GetClientRect(button, &client);
    return PtInRect(&client, {GET_X_LPARAM(point), GET_Y_LPARAM(point)}) != FALSE;
}

void Press(HWND button)
{
    SetCapture(button);
    SendMessageW(button, BM_SETSTATE, TRUE, 0);
}

void Release(HWND button, LPARAM point)
{
    if (GetCapture() != button)
        return;
    ReleaseCapture();
    const WPARAM clicked = MAKEWPARAM(GetDlgCtrlID(button), BN_CLICKED);
    if (IsInside(button, point))
        SendMessageW(GetParent(button), WM_COMMAND, clicked, reinterpret_cast<LPARAM>(button));
}

LRESULT CALLBACK Procedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC former = reinterpret_cast<WNDPROC>(GetPropW(button, kFormerProcedure));
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        Press(button);
        return 0;
    case WM_MOUSEMOVE:
        if (GetCapture() == button)
            SendMessageW(button, BM_SETSTATE, IsInside(button, lParam), 0);
        return 0;
    case WM_LBUTTONUP:
        Release(button, lParam);
        return 0;
    case WM_CAPTURECHANGED:
        SendMessageW(button, BM_SETSTATE, FALSE, 0);
        return 0;
    case WM_NCDESTROY:
        RemovePropW(button, kFormerProcedure);
        break;
    default:
        break;
    }
    return CallWindowProcW(former, button, message, wParam, lParam);
}
} // namespace

void MakeQuiet(HWND button)
{
    const LONG_PTR former = GetWindowLongPtrW(button, GWLP_WNDPROC);
    SetPropW(button, kFormerProcedure, reinterpret_cast<HANDLE>(former));
    SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
}
} // namespace wait
