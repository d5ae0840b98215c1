#include "afx/gdi/ScreenDC.h"

#include "arx/ui/UiFont.h"

#include "arx/ui/GdiGuards.h"

#include <cwchar>

namespace arxui
{
namespace
{

const int pointSize = 9;
const int pointsPerInch = 72;

HFONT MakeFont(const wchar_t* face, BYTE pitch)
{
    const CScreenDC screen;
    LOGFONTW font{};
    font.lfHeight = -MulDiv(pointSize, GetDeviceCaps(screen.Get(), LOGPIXELSY), pointsPerInch);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfQuality = CLEARTYPE_QUALITY;
    font.lfPitchAndFamily = pitch;
    std::wcsncpy(font.lfFaceName, face, LF_FACESIZE - 1);
    return CreateFontIndirectW(&font);
}

} // namespace

HFONT UiFont()
{
    static const GdiObject<HFONT> font(MakeFont(L"微软雅黑", VARIABLE_PITCH));
    return font.Get();
}

HFONT FixedFont()
{
    static const GdiObject<HFONT> font(MakeFont(L"新宋体", FIXED_PITCH));
    return font.Get();
}

} // namespace arxui
