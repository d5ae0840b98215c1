#include "tip/TipWindow.h"

namespace
{

const wchar_t kFace[] = L"宋体";

} // namespace

void RegisterTipClass(const wchar_t* name, UINT style, HBRUSH background)
{
    WNDCLASS windowClass = {};
    if (::GetClassInfo(AfxGetInstanceHandle(), name, &windowClass))
        return;
    windowClass.style = style;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = ::LoadCursor(NULL, IDC_ARROW);
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
}

void CreateTipFont(CFont& font, int height)
{
    font.DeleteObject();
    font.CreateFont(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, 0, GB2312_CHARSET, OUT_STROKE_PRECIS, CLIP_STROKE_PRECIS,
                    DRAFT_QUALITY, VARIABLE_PITCH, kFace);
}
