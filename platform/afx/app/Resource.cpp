#include "afx/app/Resource.h"

#include <afxwin.h>

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    const HINSTANCE instance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return instance == nullptr ? ::GetModuleHandle(nullptr) : instance;
}

BOOL AFXAPI AfxExtractSubString(CString& result, LPCTSTR text, int part, TCHAR separator)
{
    result.Empty();
    if (text == nullptr)
        return FALSE;
    for (; part > 0; --part)
    {
        text = wcschr(text, separator);
        if (text == nullptr)
            return FALSE;
        ++text;
    }
    const wchar_t* const end = wcschr(text, separator);
    result = end == nullptr ? CString(text) : CString(text, static_cast<int>(end - text));
    return TRUE;
}
