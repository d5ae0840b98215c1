#include <afxwin.h>

#include <acui.h>
#include <aduiPaletteSet.h>

#include "host/FocusKeeper.h"

namespace arxhost
{
namespace
{

bool LetsGo(HWND window)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (CAdUiDockControlBar* bar = DYNAMIC_DOWNCAST(CAdUiDockControlBar, object))
        return bar->CanFrameworkTakeFocus();
    if (CAdUiPalette* palette = DYNAMIC_DOWNCAST(CAdUiPalette, object))
        return palette->CanFrameworkTakeFocus();
    return ::SendMessage(window, WM_ACAD_KEEPFOCUS, 0, 0) == 0;
}

} // namespace

bool CanTakeFocusFrom(HWND focus)
{
    for (HWND window = focus; window != NULL; window = ::GetAncestor(window, GA_PARENT))
    {
        if (window == ::GetDesktopWindow())
            break;
        if (!LetsGo(window))
            return false;
    }
    return true;
}

} // namespace arxhost
