#include "afx/core/Debug.h"

#include "afx/core/Object.h"

#include <stdarg.h>
#include <stdio.h>
#include <vector>

namespace
{
const int kAssertLineMax = 1024;

void WriteTrace(const wchar_t* text)
{
    ::OutputDebugStringW(text);
}

// PAGE_ bits that let a program read or write.
const DWORD kReadable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE |
                        PAGE_EXECUTE_WRITECOPY;
const DWORD kWritable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
} // namespace

void AFX_CDECL AfxTrace(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    va_list copy;
    va_copy(copy, args);
    const int length = _vscwprintf(format, copy);
    va_end(copy);
    if (length >= 0)
    {
        std::vector<wchar_t> text(length + 1);
        _vsnwprintf(text.data(), text.size(), format, args);
        text[length] = 0;
        WriteTrace(text.data());
    }
    va_end(args);
}

void AFX_CDECL AfxTrace(LPCSTR format, ...)
{
    va_list args;
    va_start(args, format);
    va_list copy;
    va_copy(copy, args);
    const int length = _vscprintf(format, copy);
    va_end(copy);
    if (length >= 0)
    {
        std::vector<char> text(length + 1);
        _vsnprintf(text.data(), text.size(), format, args);
        text[length] = 0;
        ::OutputDebugStringA(text.data());
    }
    va_end(args);
}

void AFXAPI AfxAssertFailedLine(LPCSTR file, int line)
{
    char text[kAssertLineMax];
    snprintf(text, sizeof(text), "Assertion failed: %s(%d)\n", file, line);
    ::OutputDebugStringA(text);
    fputs(text, stderr);
    fflush(stderr);
    ::DebugBreak();
}

BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR size, BOOL readWrite)
{
    const char* at = static_cast<const char*>(address);
    const char* const end = at + (size == 0 ? 1 : size);
    while (at < end)
    {
        MEMORY_BASIC_INFORMATION page;
        if (::VirtualQuery(at, &page, sizeof(page)) == 0 || page.State != MEM_COMMIT)
            return FALSE;
        if ((page.Protect & PAGE_GUARD) != 0 || (page.Protect & (readWrite ? kWritable : kReadable)) == 0)
            return FALSE;
        at = static_cast<const char*>(page.BaseAddress) + page.RegionSize;
    }
    return TRUE;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR text, int length)
{
    if (text == NULL)
        return FALSE;
    if (length >= 0)
        return AfxIsValidAddress(text, length * sizeof(wchar_t), FALSE);
    for (;; ++text)
    {
        if (!AfxIsValidAddress(text, sizeof(wchar_t), FALSE))
            return FALSE;
        if (*text == 0)
            return TRUE;
    }
}

void AFXAPI AfxAssertValidObject(const CObject* object, LPCSTR file, int line)
{
    if (object == NULL || !AfxIsValidAddress(object, sizeof(CObject), FALSE))
    {
        AfxAssertFailedLine(file, line);
        return;
    }
    object->AssertValid();
}
