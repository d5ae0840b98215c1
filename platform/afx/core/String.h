// CString: UTF-16 text, reference counted, copied on write.
//
// A CString is one pointer to its characters; a header of 12 bytes stands before them in the same allocation. Copies
// share the characters until one of them is changed; the count is atomic, so copies may live on different threads. All
// empty strings share one static text. Positions and lengths count UTF-16 units.
//
// Pass a CString to a function with "..." as (LPCTSTR)text, as portable code does: GCC hands a class over by address
// there. Format and its kin take a CString as it is.
//
// Errors: a bad index, a negative length and an impossible format throw CInvalidArgException.
#pragma once

#include "afx/core/Api.h"

#include <oaidl.h>
#include <stdarg.h>

namespace afx
{
// Header in front of the characters.
struct StringData
{
    volatile LONG refs; // owners; below zero: the static empty string
    int length;
    int capacity; // characters that fit, without the terminator

    wchar_t* Text() { return reinterpret_cast<wchar_t*>(this + 1); }
    bool IsShared() const { return refs != 1; }
};
} // namespace afx

class AFX_API CString
{
public:
    typedef wchar_t XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;
    typedef char YCHAR;
    typedef LPSTR PYSTR;
    typedef LPCSTR PCYSTR;

    // Construction. Narrow text is in the ANSI code page. A MAKEINTRESOURCE value loads that string resource.
    CString();
    CString(const CString& source);
    CString(CString&& source) noexcept;
    CString(LPCWSTR text);
    CString(LPCSTR text);
    CString(const unsigned char* text);
    CString(LPCWSTR text, int length);
    CString(LPCSTR text, int length);
    explicit CString(wchar_t ch, int repeat = 1);
    explicit CString(char ch, int repeat = 1);
    explicit CString(const VARIANT& value);
    ~CString();

    CString& operator=(const CString& source);
    CString& operator=(CString&& source) noexcept;
    CString& operator=(LPCWSTR text);
    CString& operator=(LPCSTR text);
    CString& operator=(const unsigned char* text);
    CString& operator=(wchar_t ch);
    CString& operator=(char ch);
    CString& operator=(const VARIANT& value);

    // Reading.
    int GetLength() const { return Data()->length; }
    bool IsEmpty() const { return GetLength() == 0; }
    int GetAllocLength() const { return Data()->capacity; }
    LPCWSTR GetString() const { return m_pszData; }
    operator LPCWSTR() const { return m_pszData; }
    // The terminator may be read: 0 <= index <= GetLength().
    wchar_t GetAt(int index) const;
    wchar_t operator[](int index) const { return GetAt(index); }

    // Writing in place.
    void SetAt(int index, wchar_t ch);
    void Empty();
    // The characters for writing, room for at least minLength of them; ReleaseBuffer must follow. A negative length
    // there measures up to the terminator.
    LPWSTR GetBuffer();
    LPWSTR GetBuffer(int minLength);
    LPWSTR GetBufferSetLength(int length);
    void ReleaseBuffer(int newLength = -1);
    void ReleaseBufferSetLength(int newLength);
    void Truncate(int newLength);
    void FreeExtra();
    void Preallocate(int length);
    void SetString(LPCWSTR text);
    void SetString(LPCWSTR text, int length);
    void Append(LPCWSTR text);
    void Append(LPCWSTR text, int length);
    void Append(const CString& text);
    void AppendChar(wchar_t ch);

    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(wchar_t ch);
    CString& operator+=(char ch);
    CString& operator+=(unsigned char ch);

    // Comparison by code unit; CompareNoCase folds as the C runtime's locale says; Collate uses the locale's order.
    int Compare(LPCWSTR text) const;
    int CompareNoCase(LPCWSTR text) const;
    int Collate(LPCWSTR text) const;
    int CollateNoCase(LPCWSTR text) const;

    // Searching: index or -1.
    int Find(LPCWSTR text, int start = 0) const;
    int Find(wchar_t ch, int start = 0) const;
    int FindOneOf(LPCWSTR set) const;
    int ReverseFind(wchar_t ch) const;

    // Parts. Positions and counts outside the text are clipped.
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    CString SpanIncluding(LPCWSTR set) const;
    CString SpanExcluding(LPCWSTR set) const;
    // Next part between characters of the set from start on; start moves behind it, and is -1 when nothing is left.
    CString Tokenize(LPCWSTR separators, int& start) const;

    // Changing.
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim();
    CString& Trim(wchar_t ch);
    CString& Trim(LPCWSTR set);
    CString& TrimLeft();
    CString& TrimLeft(wchar_t ch);
    CString& TrimLeft(LPCWSTR set);
    CString& TrimRight();
    CString& TrimRight(wchar_t ch);
    CString& TrimRight(LPCWSTR set);
    // Results: number of replaced or removed pieces; Insert and Delete: new length.
    int Replace(wchar_t from, wchar_t to);
    int Replace(LPCWSTR from, LPCWSTR to);
    int Remove(wchar_t ch);
    int Insert(int index, wchar_t ch);
    int Insert(int index, LPCWSTR text);
    int Delete(int index, int count = 1);

    // printf of the Microsoft runtime: %s wide, %S narrow, %I64d. The string itself may be an argument.
    template<class... Args>
    void Format(LPCWSTR format, Args... args)
    {
        FormatArgs(format, AsArgument(args)...);
    }
    template<class... Args>
    void Format(UINT formatId, Args... args)
    {
        CString format;
        format.LoadFormat(formatId);
        FormatArgs(format.GetString(), AsArgument(args)...);
    }
    template<class... Args>
    void AppendFormat(LPCWSTR format, Args... args)
    {
        AppendFormatArgs(format, AsArgument(args)...);
    }
    template<class... Args>
    void AppendFormat(UINT formatId, Args... args)
    {
        CString format;
        format.LoadFormat(formatId);
        AppendFormatArgs(format.GetString(), AsArgument(args)...);
    }
    void FormatV(LPCWSTR format, va_list args);
    void AppendFormatV(LPCWSTR format, va_list args);
    // Numbered insertions (%1, %2!d!) of the system's message function.
    template<class... Args>
    void FormatMessage(LPCWSTR format, Args... args)
    {
        FormatMessageArgs(format, AsArgument(args)...);
    }
    void FormatMessageV(LPCWSTR format, va_list* args);

    // String resources: FALSE and unchanged when there is none. Without a module: the current resource module.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);
    BOOL LoadString(HINSTANCE module, UINT id, WORD language);
    BOOL GetEnvironmentVariable(LPCWSTR name);

    // A new BSTR, owned by the caller.
    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* text) const;

    static int StringLength(LPCWSTR text) { return text == NULL ? 0 : lstrlenW(text); }

private:
    afx::StringData* Data() const { return reinterpret_cast<afx::StringData*>(m_pszData) - 1; }
    void AdoptData(afx::StringData* data);
    LPWSTR PrepareWrite(int length);
    void SetLength(int length);
    void AppendNarrow(LPCSTR text, int length);
    void SetNarrow(LPCSTR text, int length);
    void SetVariant(const VARIANT& value);
    void LoadFormat(UINT id);
    void AFX_CDECL FormatArgs(LPCWSTR format, ...);
    void AFX_CDECL AppendFormatArgs(LPCWSTR format, ...);
    void AFX_CDECL FormatMessageArgs(LPCWSTR format, ...);

    template<class T>
    static T AsArgument(T value)
    {
        return value;
    }
    static LPCWSTR AsArgument(const CString& text) { return text.GetString(); }

    LPWSTR m_pszData;
};

typedef CString CStringW;

inline bool operator==(const CString& a, const CString& b)
{
    return a.GetLength() == b.GetLength() && a.Compare(b) == 0;
}
inline bool operator==(const CString& a, LPCWSTR b)
{
    return a.Compare(b) == 0;
}
inline bool operator==(LPCWSTR a, const CString& b)
{
    return b.Compare(a) == 0;
}
inline bool operator==(const CString& a, LPCSTR b)
{
    return a == CString(b);
}
inline bool operator==(LPCSTR a, const CString& b)
{
    return b == CString(a);
}
inline bool operator==(const CString& a, wchar_t b)
{
    return a.GetLength() == 1 && a.GetAt(0) == b;
}
inline bool operator==(wchar_t a, const CString& b)
{
    return b == a;
}
inline bool operator!=(const CString& a, const CString& b)
{
    return !(a == b);
}
inline bool operator!=(const CString& a, LPCWSTR b)
{
    return !(a == b);
}
inline bool operator!=(LPCWSTR a, const CString& b)
{
    return !(a == b);
}
inline bool operator!=(const CString& a, LPCSTR b)
{
    return !(a == b);
}
inline bool operator!=(LPCSTR a, const CString& b)
{
    return !(a == b);
}
inline bool operator!=(const CString& a, wchar_t b)
{
    return !(a == b);
}
inline bool operator!=(wchar_t a, const CString& b)
{
    return !(a == b);
}
inline bool operator<(const CString& a, const CString& b)
{
    return a.Compare(b) < 0;
}
inline bool operator<(const CString& a, LPCWSTR b)
{
    return a.Compare(b) < 0;
}
inline bool operator<(LPCWSTR a, const CString& b)
{
    return b.Compare(a) > 0;
}
inline bool operator>(const CString& a, const CString& b)
{
    return a.Compare(b) > 0;
}
inline bool operator>(const CString& a, LPCWSTR b)
{
    return a.Compare(b) > 0;
}
inline bool operator>(LPCWSTR a, const CString& b)
{
    return b.Compare(a) < 0;
}
inline bool operator<=(const CString& a, const CString& b)
{
    return a.Compare(b) <= 0;
}
inline bool operator<=(const CString& a, LPCWSTR b)
{
    return a.Compare(b) <= 0;
}
inline bool operator<=(LPCWSTR a, const CString& b)
{
    return b.Compare(a) >= 0;
}
inline bool operator>=(const CString& a, const CString& b)
{
    return a.Compare(b) >= 0;
}
inline bool operator>=(const CString& a, LPCWSTR b)
{
    return a.Compare(b) >= 0;
}
inline bool operator>=(LPCWSTR a, const CString& b)
{
    return b.Compare(a) <= 0;
}

AFX_API CString operator+(const CString& a, const CString& b);
AFX_API CString operator+(const CString& a, LPCWSTR b);
AFX_API CString operator+(LPCWSTR a, const CString& b);
AFX_API CString operator+(const CString& a, LPCSTR b);
AFX_API CString operator+(LPCSTR a, const CString& b);
AFX_API CString operator+(const CString& a, wchar_t b);
AFX_API CString operator+(wchar_t a, const CString& b);
AFX_API CString operator+(const CString& a, char b);
AFX_API CString operator+(char a, const CString& b);
