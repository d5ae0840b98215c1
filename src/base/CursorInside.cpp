#include "base/CursorInside.h"

bool IsCursorInside(const CWnd& wnd)
{
    CPoint cursor;
    CRect rect;
    return ::GetCursorPos(&cursor) && wnd.GetSafeHwnd() != NULL && ::GetWindowRect(wnd.GetSafeHwnd(), &rect) &&
           rect.PtInRect(cursor);
}
