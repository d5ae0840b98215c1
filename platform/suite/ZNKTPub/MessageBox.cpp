#include "ZNKTPub.h"

#include <stdarg.h>

namespace MFCUtils
{
int ShowMsg(HWND parent, const wchar_t* caption, unsigned int style, const wchar_t* format, ...)
{
    CString text;
    if (format != nullptr)
    {
        va_list arguments;
        va_start(arguments, format);
        text.FormatV(format, arguments);
        va_end(arguments);
    }
    return ::MessageBoxW(::IsWindow(parent) ? parent : nullptr, text, caption == nullptr ? L"" : caption, style);
}
} // namespace MFCUtils
