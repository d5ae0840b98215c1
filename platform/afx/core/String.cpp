#include "afx/core/String.h"

#include "afx/core/Exceptions.h"

#include <limits.h>
#include <stdlib.h>
#include <wchar.h>

using afx::StringData;

namespace
{
struct NilString
{
    StringData header;
    wchar_t text[1];
};

NilString nilString = {{-1, 0, 0}, {0}};

void AddReference(StringData* data)
{
    if (data->refs >= 0)
        ::InterlockedIncrement(&data->refs);
}

void ReleaseReference(StringData* data)
{
    if (data->refs >= 0 && ::InterlockedDecrement(&data->refs) <= 0)
        free(data);
}

// Half as much again, so that a text built piece by piece is copied a logarithmic number of times.
int GrownCapacity(int capacity, int length)
{
    const int maxLength = INT_MAX / static_cast<int>(sizeof(wchar_t)) - static_cast<int>(sizeof(StringData));
    const int grown = capacity > maxLength / 3 * 2 ? maxLength : capacity + capacity / 2;
    return grown < length ? length : grown;
}

int CheckedLength(int length)
{
    if (length < 0)
        AfxThrowInvalidArgException();
    return length;
}

int CheckedSum(int a, int b)
{
    if (a < 0 || b < 0 || a > INT_MAX - b)
        AfxThrowInvalidArgException();
    return a + b;
}

StringData* NewStringData(int capacity)
{
    const size_t bytes = sizeof(StringData) + (static_cast<size_t>(CheckedLength(capacity)) + 1) * sizeof(wchar_t);
    StringData* data = static_cast<StringData*>(malloc(bytes));
    if (data == NULL)
        AfxThrowMemoryException();
    data->refs = 1;
    data->length = 0;
    data->capacity = capacity;
    data->Text()[0] = 0;
    return data;
}
} // namespace

CString::CString() : m_pszData(nilString.header.Text()) {}

CString::CString(const CString& source) : m_pszData(source.m_pszData)
{
    AddReference(Data());
}

CString::CString(CString&& source) noexcept : m_pszData(source.m_pszData)
{
    source.m_pszData = nilString.header.Text();
}

CString::CString(LPCWSTR text) : m_pszData(nilString.header.Text())
{
    if (text != NULL && IS_INTRESOURCE(text))
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    else
        SetString(text);
}

CString::CString(LPCSTR text) : m_pszData(nilString.header.Text())
{
    if (text != NULL && IS_INTRESOURCE(text))
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    else
        SetNarrow(text, text == NULL ? 0 : lstrlenA(text));
}

CString::CString(const unsigned char* text) : m_pszData(nilString.header.Text())
{
    *this = text;
}

CString::CString(LPCWSTR text, int length) : m_pszData(nilString.header.Text())
{
    SetString(text, length);
}

CString::CString(LPCSTR text, int length) : m_pszData(nilString.header.Text())
{
    SetNarrow(text, length);
}

CString::CString(wchar_t ch, int repeat) : m_pszData(nilString.header.Text())
{
    if (repeat <= 0)
        return;
    wmemset(PrepareWrite(repeat), ch, repeat);
    SetLength(repeat);
}

CString::CString(char ch, int repeat) : m_pszData(nilString.header.Text())
{
    const CString one(&ch, 1);
    for (int i = 0; i < repeat; ++i)
        Append(one);
}

CString::CString(const VARIANT& value) : m_pszData(nilString.header.Text())
{
    SetVariant(value);
}

CString::~CString()
{
    ReleaseReference(Data());
}

CString& CString::operator=(const CString& source)
{
    if (m_pszData == source.m_pszData)
        return *this;
    AddReference(source.Data());
    ReleaseReference(Data());
    m_pszData = source.m_pszData;
    return *this;
}

CString& CString::operator=(CString&& source) noexcept
{
    LPWSTR keep = m_pszData;
    m_pszData = source.m_pszData;
    source.m_pszData = keep;
    return *this;
}

CString& CString::operator=(LPCWSTR text)
{
    SetString(text);
    return *this;
}

CString& CString::operator=(LPCSTR text)
{
    SetNarrow(text, text == NULL ? 0 : lstrlenA(text));
    return *this;
}

CString& CString::operator=(const unsigned char* text)
{
    return *this = reinterpret_cast<LPCSTR>(text);
}

CString& CString::operator=(wchar_t ch)
{
    SetString(&ch, 1);
    return *this;
}

CString& CString::operator=(char ch)
{
    SetNarrow(&ch, 1);
    return *this;
}

CString& CString::operator=(const VARIANT& value)
{
    SetVariant(value);
    return *this;
}

wchar_t CString::GetAt(int index) const
{
    if (index < 0 || index > GetLength())
        AfxThrowInvalidArgException();
    return m_pszData[index];
}

void CString::SetAt(int index, wchar_t ch)
{
    const int length = GetLength();
    if (index < 0 || index >= length)
        AfxThrowInvalidArgException();
    PrepareWrite(length)[index] = ch;
}

void CString::Empty()
{
    AdoptData(&nilString.header);
}

LPWSTR CString::GetBuffer()
{
    return PrepareWrite(GetLength());
}

LPWSTR CString::GetBuffer(int minLength)
{
    const int length = GetLength();
    return PrepareWrite(CheckedLength(minLength) > length ? minLength : length);
}

LPWSTR CString::GetBufferSetLength(int length)
{
    GetBuffer(length);
    SetLength(length);
    return m_pszData;
}

void CString::ReleaseBuffer(int newLength)
{
    if (newLength < 0)
        newLength = static_cast<int>(wcsnlen(m_pszData, GetAllocLength()));
    SetLength(newLength);
}

void CString::ReleaseBufferSetLength(int newLength)
{
    SetLength(CheckedLength(newLength));
}

void CString::Truncate(int newLength)
{
    if (newLength < 0 || newLength > GetLength())
        AfxThrowInvalidArgException();
    GetBuffer();
    SetLength(newLength);
}

void CString::FreeExtra()
{
    const int length = GetLength();
    if (Data()->IsShared() || GetAllocLength() == length)
        return;
    if (length == 0)
    {
        Empty();
        return;
    }
    CString tight(m_pszData, length);
    *this = tight;
}

void CString::Preallocate(int length)
{
    const int current = GetLength();
    PrepareWrite(CheckedLength(length) < current ? current : length);
}

void CString::SetString(LPCWSTR text)
{
    SetString(text, StringLength(text));
}

void CString::SetString(LPCWSTR text, int length)
{
    if (CheckedLength(length) == 0)
    {
        Empty();
        return;
    }
    if (text == NULL)
        AfxThrowInvalidArgException();
    if (text >= m_pszData && text <= m_pszData + GetLength())
    {
        StringData* data = NewStringData(length);
        wmemcpy(data->Text(), text, length);
        AdoptData(data);
    }
    else
    {
        if (Data()->IsShared() || GetAllocLength() < length)
            AdoptData(NewStringData(length));
        wmemcpy(m_pszData, text, length);
    }
    SetLength(length);
}

void CString::Append(LPCWSTR text)
{
    Append(text, StringLength(text));
}

void CString::Append(LPCWSTR text, int length)
{
    if (CheckedLength(length) == 0)
        return;
    if (text == NULL)
        AfxThrowInvalidArgException();
    const int oldLength = GetLength();
    const bool inside = text >= m_pszData && text <= m_pszData + oldLength;
    const ptrdiff_t offset = inside ? text - m_pszData : 0;
    LPWSTR buffer = PrepareWrite(CheckedSum(oldLength, length));
    wmemmove(buffer + oldLength, inside ? buffer + offset : text, length);
    SetLength(oldLength + length);
}

void CString::Append(const CString& text)
{
    if (GetLength() == 0)
        *this = text;
    else
        Append(text.m_pszData, text.GetLength());
}

void CString::AppendChar(wchar_t ch)
{
    const int length = GetLength();
    PrepareWrite(CheckedSum(length, 1))[length] = ch;
    SetLength(length + 1);
}

CString& CString::operator+=(const CString& text)
{
    Append(text);
    return *this;
}

CString& CString::operator+=(LPCWSTR text)
{
    Append(text);
    return *this;
}

CString& CString::operator+=(LPCSTR text)
{
    AppendNarrow(text, text == NULL ? 0 : lstrlenA(text));
    return *this;
}

CString& CString::operator+=(wchar_t ch)
{
    AppendChar(ch);
    return *this;
}

CString& CString::operator+=(char ch)
{
    AppendNarrow(&ch, 1);
    return *this;
}

CString& CString::operator+=(unsigned char ch)
{
    return *this += static_cast<char>(ch);
}

void CString::AdoptData(StringData* data)
{
    ReleaseReference(Data());
    m_pszData = data->Text();
}

// Makes the characters this string's own, with room for the length; the text stays.
LPWSTR CString::PrepareWrite(int length)
{
    StringData* old = Data();
    if (!old->IsShared() && old->capacity >= length)
        return m_pszData;
    const int capacity = old->IsShared() ? length : GrownCapacity(old->capacity, length);
    StringData* data = NewStringData(capacity < old->length ? old->length : capacity);
    wmemcpy(data->Text(), old->Text(), old->length + 1);
    data->length = old->length;
    AdoptData(data);
    return m_pszData;
}

void CString::SetLength(int length)
{
    StringData* data = Data();
    if (length > data->capacity)
        AfxThrowInvalidArgException();
    if (data->refs < 0)
        return;
    data->length = length;
    m_pszData[length] = 0;
}

void CString::AppendNarrow(LPCSTR text, int length)
{
    if (CheckedLength(length) == 0)
        return;
    const int wide = ::MultiByteToWideChar(CP_ACP, 0, text, length, NULL, 0);
    const int oldLength = GetLength();
    LPWSTR buffer = PrepareWrite(CheckedSum(oldLength, wide));
    ::MultiByteToWideChar(CP_ACP, 0, text, length, buffer + oldLength, wide);
    SetLength(oldLength + wide);
}

void CString::SetNarrow(LPCSTR text, int length)
{
    CString result;
    result.AppendNarrow(text, length);
    *this = result;
}

void CString::SetVariant(const VARIANT& value)
{
    VARIANT text;
    ::VariantInit(&text);
    if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&value), 0, VT_BSTR)))
        AfxThrowInvalidArgException();
    SetString(text.bstrVal, static_cast<int>(::SysStringLen(text.bstrVal)));
    ::VariantClear(&text);
}

namespace
{
CString Joined(LPCWSTR a, int aLength, LPCWSTR b, int bLength)
{
    CString result;
    result.Preallocate(CheckedSum(aLength, bLength));
    result.Append(a, aLength);
    result.Append(b, bLength);
    return result;
}
} // namespace

CString operator+(const CString& a, const CString& b)
{
    return Joined(a, a.GetLength(), b, b.GetLength());
}

CString operator+(const CString& a, LPCWSTR b)
{
    return Joined(a, a.GetLength(), b, CString::StringLength(b));
}

CString operator+(LPCWSTR a, const CString& b)
{
    return Joined(a, CString::StringLength(a), b, b.GetLength());
}

CString operator+(const CString& a, LPCSTR b)
{
    return a + CString(b);
}

CString operator+(LPCSTR a, const CString& b)
{
    return CString(a) + b;
}

CString operator+(const CString& a, wchar_t b)
{
    return Joined(a, a.GetLength(), &b, 1);
}

CString operator+(wchar_t a, const CString& b)
{
    return Joined(&a, 1, b, b.GetLength());
}

CString operator+(const CString& a, char b)
{
    return a + CString(b);
}

CString operator+(char a, const CString& b)
{
    return CString(a) + b;
}
