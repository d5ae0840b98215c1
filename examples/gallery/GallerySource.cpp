#include "GallerySource.h"

#include <AcExtensionModule.h>

namespace
{

// "sort-list" gives "SortListPage".
CString FileName(const wchar_t* name)
{
    CString file;
    bool atStart = true;
    for (; *name != L'\0'; ++name)
    {
        if (*name != L'-')
            file += atStart ? static_cast<wchar_t>(*name - L'a' + L'A') : *name;
        atStart = *name == L'-';
    }
    return file + L"Page";
}

// Resources of the gallery, named after the files; UTF-8.
CString TextOfFile(const CString& file)
{
    const CAcModuleResourceOverride resources;
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC found = ::FindResourceW(module, file, RT_RCDATA);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    if (loaded == nullptr)
        return CString();
    const char* const bytes = static_cast<const char*>(::LockResource(loaded));
    const int size = static_cast<int>(::SizeofResource(module, found));
    CString text;
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, bytes, size, nullptr, 0);
    ::MultiByteToWideChar(CP_UTF8, 0, bytes, size, text.GetBuffer(length), length);
    text.ReleaseBuffer(length);
    return text;
}

} // namespace

CString SourceOfPage(const wchar_t* name)
{
    return TextOfFile(FileName(name) + L".h") + TextOfFile(FileName(name) + L".cpp");
}
