// The part of CString that formats text and reads it from resources and the system.
#include "afx/core/String.h"

#include "afx/core/Exceptions.h"
#include "afx/core/Resources.h"

#include <stdio.h>
#include <wchar.h>

namespace
{
// Frees what the system allocated.
class LocalText
{
public:
    LocalText() : m_text(NULL) {}
    ~LocalText() { ::LocalFree(m_text); }
    LPWSTR* Receive() { return &m_text; }
    LPCWSTR Get() const { return m_text; }

private:
    LocalText(const LocalText&);
    void operator=(const LocalText&);

    LPWSTR m_text;
};
} // namespace

// The result is built aside: the arguments may point into this string.
void CString::FormatV(LPCWSTR format, va_list args)
{
    CString result;
    result.AppendFormatV(format, args);
    *this = result;
}

void CString::AppendFormatV(LPCWSTR format, va_list args)
{
    if (format == NULL)
        AfxThrowInvalidArgException();
    va_list measure;
    va_copy(measure, args);
    const int length = _vscwprintf(format, measure);
    va_end(measure);
    if (length < 0)
        AfxThrowInvalidArgException();
    CString piece;
    _vsnwprintf(piece.GetBuffer(length), length + 1, format, args);
    piece.ReleaseBufferSetLength(length);
    Append(piece);
}

void AFX_CDECL CString::FormatArgs(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void AFX_CDECL CString::AppendFormatArgs(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    AppendFormatV(format, args);
    va_end(args);
}

void CString::FormatMessageV(LPCWSTR format, va_list* args)
{
    LocalText text;
    const DWORD flags = FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER;
    const DWORD length = ::FormatMessageW(flags, format, 0, 0, reinterpret_cast<LPWSTR>(text.Receive()), 0, args);
    if (length == 0 && format != NULL && *format != 0)
        AfxThrowMemoryException();
    SetString(text.Get(), static_cast<int>(length));
}

void AFX_CDECL CString::FormatMessageArgs(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatMessageV(format, &args);
    va_end(args);
}

BOOL CString::LoadString(UINT id)
{
    return LoadString(AfxFindStringResourceHandle(id), id);
}

BOOL CString::LoadString(HINSTANCE module, UINT id)
{
    return LoadString(module, id, MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL));
}

BOOL CString::LoadString(HINSTANCE module, UINT id, WORD language)
{
    const WORD* entry = afx::FindStringResource(module, id, language);
    if (entry == NULL)
        return FALSE;
    SetString(reinterpret_cast<LPCWSTR>(entry + 1), *entry);
    return TRUE;
}

void CString::LoadFormat(UINT id)
{
    if (!LoadString(id))
        AfxThrowInvalidArgException();
}

BOOL CString::GetEnvironmentVariable(LPCWSTR name)
{
    const DWORD room = ::GetEnvironmentVariableW(name, NULL, 0);
    if (room == 0)
    {
        Empty();
        return FALSE;
    }
    const DWORD length = ::GetEnvironmentVariableW(name, GetBuffer(static_cast<int>(room)), room);
    ReleaseBufferSetLength(length < room ? static_cast<int>(length) : 0);
    return length < room;
}

BSTR CString::AllocSysString() const
{
    BSTR text = ::SysAllocStringLen(m_pszData, static_cast<UINT>(GetLength()));
    if (text == NULL)
        AfxThrowMemoryException();
    return text;
}

BSTR CString::SetSysString(BSTR* text) const
{
    if (!::SysReAllocStringLen(text, m_pszData, static_cast<UINT>(GetLength())))
        AfxThrowMemoryException();
    return *text;
}
