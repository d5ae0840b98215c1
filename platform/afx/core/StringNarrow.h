// Narrow text: CStringA for conversions, and the helpers CT2A, CW2A, CA2T, CA2W that convert for one expression.
// The code page is the system's (CP_ACP) unless another is given.
#pragma once

#include "afx/core/String.h"

#include <string>

class CStringA
{
public:
    CStringA() {}
    CStringA(LPCSTR text) : m_text(text == NULL ? "" : text) {}
    CStringA(LPCSTR text, int length) : m_text(text, length) {}
    CStringA(LPCWSTR text, UINT codePage = CP_ACP) { Convert(text, CString::StringLength(text), codePage); }
    CStringA(const CString& text, UINT codePage = CP_ACP) { Convert(text, text.GetLength(), codePage); }

    operator LPCSTR() const { return m_text.c_str(); }
    LPCSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    char GetAt(int index) const { return m_text.at(index); }
    void Empty() { m_text.clear(); }
    CStringA& operator+=(LPCSTR text)
    {
        m_text += text;
        return *this;
    }
    bool operator==(LPCSTR text) const { return m_text == text; }
    bool operator!=(LPCSTR text) const { return m_text != text; }

private:
    void Convert(LPCWSTR text, int length, UINT codePage)
    {
        if (length <= 0)
            return;
        m_text.resize(::WideCharToMultiByte(codePage, 0, text, length, NULL, 0, NULL, NULL));
        if (!m_text.empty())
            ::WideCharToMultiByte(codePage, 0, text, length, &m_text[0], static_cast<int>(m_text.size()), NULL, NULL);
    }

    std::string m_text;
};

class CW2A
{
public:
    CW2A(LPCWSTR text, UINT codePage = CP_ACP) : m_null(text == NULL), m_text(text, codePage) {}
    operator LPSTR() const { return m_null ? NULL : const_cast<LPSTR>(m_text.GetString()); }

private:
    bool m_null;
    CStringA m_text;
};

class CA2W
{
public:
    CA2W(LPCSTR text, UINT codePage = CP_ACP) : m_null(text == NULL)
    {
        const int length = text == NULL ? 0 : ::MultiByteToWideChar(codePage, 0, text, -1, NULL, 0);
        m_text.resize(length);
        if (length > 0)
            ::MultiByteToWideChar(codePage, 0, text, -1, &m_text[0], length);
    }
    operator LPWSTR() const { return m_null ? NULL : const_cast<LPWSTR>(m_text.c_str()); }

private:
    bool m_null;
    std::wstring m_text;
};

typedef CW2A CT2A;
typedef CW2A CT2CA;
typedef CW2A CW2CA;
typedef CA2W CA2T;
typedef CA2W CA2CT;
typedef CA2W CA2CW;
