#include "host/DialogSearch.h"

namespace arxhost
{
namespace
{

struct DialogSearch
{
    HWND frame;
    std::wstring title;
    HWND found;
};

// An enumeration ends with FALSE.
BOOL CALLBACK TakeDialog(HWND window, LPARAM parameter)
{
    DialogSearch& search = *reinterpret_cast<DialogSearch*>(parameter);
    CString title;
    CWnd::FromHandle(window)->GetWindowText(title);
    const bool isDialog = GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
    if (isDialog && IsWindowVisible(window) && search.title == title.GetString())
        search.found = window;
    return search.found == nullptr;
}

BOOL CALLBACK SearchPopup(HWND window, LPARAM parameter)
{
    DialogSearch& search = *reinterpret_cast<DialogSearch*>(parameter);
    if (IsPopupOf(window, search.frame) && TakeDialog(window, parameter))
        EnumChildWindows(window, &TakeDialog, parameter);
    return search.found == nullptr;
}

// The dialog that takes the input while its owner is disabled.
BOOL CALLBACK TakeModal(HWND window, LPARAM parameter)
{
    DialogSearch& search = *reinterpret_cast<DialogSearch*>(parameter);
    const bool takesInput = IsWindowVisible(window) && IsWindowEnabled(window);
    if (takesInput && IsPopupOf(window, search.frame) && !IsWindowEnabled(GetWindow(window, GW_OWNER)))
        search.found = window;
    return search.found == nullptr;
}

} // namespace

bool IsPopupOf(HWND window, HWND frame)
{
    return window != frame && GetAncestor(window, GA_ROOTOWNER) == frame;
}

HWND FindDialog(HWND frame, const std::wstring& title)
{
    DialogSearch search{frame, title, nullptr};
    EnumWindows(&SearchPopup, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND FindModalDialog(HWND frame)
{
    DialogSearch search{frame, std::wstring(), nullptr};
    EnumWindows(&TakeModal, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace arxhost
