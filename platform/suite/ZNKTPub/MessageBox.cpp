#include "ZNKTPub.h"

#include "afx/core/TextFormat.h"

namespace MFCUtils
{
int ShowMsgArguments(HWND parent, const wchar_t* caption, unsigned int style, const wchar_t* format,
                     afx::FormatArguments arguments)
{
    CString text;
    afx::FormatText(text, format, arguments);
    return ::MessageBoxW(::IsWindow(parent) ? parent : nullptr, text, caption == nullptr ? L"" : caption, style);
}
} // namespace MFCUtils
