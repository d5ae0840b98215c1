// What a list box and a combo box whose items their owner draws have in common.
#pragma once

#include "afx/wnd/Wnd.h"

namespace afx
{

// Hands a message about an item to the control's own virtual; FALSE when it is another message.
template<class CONTROL>
BOOL RouteItemMessage(CONTROL& control, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *result = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace afx
