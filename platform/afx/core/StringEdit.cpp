// The part of CString that searches, cuts and changes text.
#include "afx/core/String.h"

#include "afx/core/Exceptions.h"

#include <algorithm>
#include <limits.h>
#include <wchar.h>
#include <wctype.h>

namespace
{
const wchar_t kNoText[] = L"";

LPCWSTR TextOrNone(LPCWSTR text)
{
    return text == NULL ? kNoText : text;
}

bool IsSpace(wchar_t ch)
{
    return iswspace(ch) != 0;
}

int CountLeading(LPCWSTR text, int length, LPCWSTR set)
{
    int count = 0;
    while (count < length && text[count] != 0 && wcschr(set, text[count]) != NULL)
        ++count;
    return count;
}

int CountPieces(LPCWSTR text, int length, LPCWSTR piece, int pieceLength)
{
    int count = 0;
    const LPCWSTR end = text + length;
    while ((text = std::search(text, end, piece, piece + pieceLength)) != end)
    {
        ++count;
        text += pieceLength;
    }
    return count;
}
} // namespace

int CString::Compare(LPCWSTR text) const
{
    return wcscmp(m_pszData, TextOrNone(text));
}

int CString::CompareNoCase(LPCWSTR text) const
{
    return _wcsicmp(m_pszData, TextOrNone(text));
}

int CString::Collate(LPCWSTR text) const
{
    return wcscoll(m_pszData, TextOrNone(text));
}

int CString::CollateNoCase(LPCWSTR text) const
{
    return _wcsicoll(m_pszData, TextOrNone(text));
}

// Not by wcsstr: Wine's finds no empty text in an empty text.
int CString::Find(LPCWSTR text, int start) const
{
    if (text == NULL || start < 0 || start > GetLength())
        return -1;
    const int length = StringLength(text);
    const LPCWSTR end = m_pszData + GetLength();
    const LPCWSTR found = std::search(static_cast<LPCWSTR>(m_pszData) + start, end, text, text + length);
    return found == end && length > 0 ? -1 : static_cast<int>(found - m_pszData);
}

int CString::Find(wchar_t ch, int start) const
{
    if (start < 0 || start >= GetLength())
        return -1;
    const LPCWSTR found = wcschr(m_pszData + start, ch);
    return found == NULL ? -1 : static_cast<int>(found - m_pszData);
}

int CString::FindOneOf(LPCWSTR set) const
{
    const LPCWSTR found = wcspbrk(m_pszData, TextOrNone(set));
    return found == NULL ? -1 : static_cast<int>(found - m_pszData);
}

int CString::ReverseFind(wchar_t ch) const
{
    const LPCWSTR found = wcsrchr(m_pszData, ch);
    return found == NULL || ch == 0 ? -1 : static_cast<int>(found - m_pszData);
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const int length = GetLength();
    first = std::min(std::max(first, 0), length);
    count = std::min(std::max(count, 0), length - first);
    return count == length ? *this : CString(m_pszData + first, count);
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    const int length = GetLength();
    return Mid(length - std::min(std::max(count, 0), length));
}

CString CString::SpanIncluding(LPCWSTR set) const
{
    return Left(static_cast<int>(wcsspn(m_pszData, TextOrNone(set))));
}

CString CString::SpanExcluding(LPCWSTR set) const
{
    return Left(static_cast<int>(wcscspn(m_pszData, TextOrNone(set))));
}

CString CString::Tokenize(LPCWSTR separators, int& start) const
{
    if (start < 0)
        AfxThrowInvalidArgException();
    const LPCWSTR set = TextOrNone(separators);
    const int length = GetLength();
    const int first = start + (start < length ? static_cast<int>(wcsspn(m_pszData + start, set)) : 0);
    if (first >= length)
    {
        start = -1;
        return CString();
    }
    const int count = static_cast<int>(wcscspn(m_pszData + first, set));
    start = first + count + 1;
    return Mid(first, count);
}

// The system's functions fold every script; the runtime's only that of its current locale.
CString& CString::MakeUpper()
{
    ::CharUpperBuffW(GetBuffer(), GetLength());
    return *this;
}

CString& CString::MakeLower()
{
    ::CharLowerBuffW(GetBuffer(), GetLength());
    return *this;
}

CString& CString::MakeReverse()
{
    const LPWSTR buffer = GetBuffer();
    std::reverse(buffer, buffer + GetLength());
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(wchar_t ch)
{
    return TrimRight(ch).TrimLeft(ch);
}

CString& CString::Trim(LPCWSTR set)
{
    return TrimRight(set).TrimLeft(set);
}

CString& CString::TrimLeft()
{
    int count = 0;
    while (IsSpace(m_pszData[count]))
        ++count;
    Delete(0, count);
    return *this;
}

CString& CString::TrimLeft(wchar_t ch)
{
    const wchar_t set[] = {ch, 0};
    return TrimLeft(set);
}

CString& CString::TrimLeft(LPCWSTR set)
{
    Delete(0, CountLeading(m_pszData, GetLength(), TextOrNone(set)));
    return *this;
}

CString& CString::TrimRight()
{
    int length = GetLength();
    while (length > 0 && IsSpace(m_pszData[length - 1]))
        --length;
    if (length < GetLength())
        Truncate(length);
    return *this;
}

CString& CString::TrimRight(wchar_t ch)
{
    const wchar_t set[] = {ch, 0};
    return TrimRight(set);
}

CString& CString::TrimRight(LPCWSTR set)
{
    set = TextOrNone(set);
    int length = GetLength();
    while (length > 0 && m_pszData[length - 1] != 0 && wcschr(set, m_pszData[length - 1]) != NULL)
        --length;
    if (length < GetLength())
        Truncate(length);
    return *this;
}

int CString::Replace(wchar_t from, wchar_t to)
{
    const int length = GetLength();
    const int count = static_cast<int>(std::count(m_pszData, m_pszData + length, from));
    if (count == 0 || from == to)
        return 0;
    const LPWSTR buffer = GetBuffer();
    std::replace(buffer, buffer + length, from, to);
    return count;
}

int CString::Replace(LPCWSTR from, LPCWSTR to)
{
    const int fromLength = StringLength(from);
    const int count = fromLength == 0 ? 0 : CountPieces(m_pszData, GetLength(), from, fromLength);
    if (count == 0)
        return 0;
    const LONGLONG newLength = GetLength() + static_cast<LONGLONG>(count) * (StringLength(to) - fromLength);
    if (newLength > INT_MAX)
        AfxThrowInvalidArgException();
    CString result;
    result.Preallocate(static_cast<int>(newLength));
    LPCWSTR at = m_pszData;
    const LPCWSTR end = m_pszData + GetLength();
    for (int left = count; left > 0; --left)
    {
        const LPCWSTR found = std::search(at, end, from, from + fromLength);
        result.Append(at, static_cast<int>(found - at));
        result.Append(to);
        at = found + fromLength;
    }
    result.Append(at, static_cast<int>(end - at));
    *this = result;
    return count;
}

int CString::Remove(wchar_t ch)
{
    const int length = GetLength();
    if (std::find(m_pszData, m_pszData + length, ch) == m_pszData + length)
        return 0;
    const LPWSTR buffer = GetBuffer();
    const int newLength = static_cast<int>(std::remove(buffer, buffer + length, ch) - buffer);
    SetLength(newLength);
    return length - newLength;
}

int CString::Insert(int index, wchar_t ch)
{
    const wchar_t text[] = {ch, 0};
    return Insert(index, text);
}

int CString::Insert(int index, LPCWSTR text)
{
    index = std::min(std::max(index, 0), GetLength());
    if (StringLength(text) > 0)
        *this = Left(index) + text + Mid(index);
    return GetLength();
}

int CString::Delete(int index, int count)
{
    const int length = GetLength();
    index = std::max(index, 0);
    count = std::min(count, length - index);
    if (count <= 0)
        return length;
    const LPWSTR buffer = GetBuffer();
    wmemmove(buffer + index, buffer + index + count, length - index - count);
    SetLength(length - count);
    return length - count;
}
