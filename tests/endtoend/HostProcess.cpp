#include "HostProcess.h"

#include <commctrl.h>

namespace
{

constexpr int g_firstPane = 0xE900; // of every frame of the framework
constexpr int g_longestText = 512;

// What the list view of the other process reads and writes: one block of its memory.
struct RemoteItem
{
    LVITEMW item;
    wchar_t text[g_longestText];
};

struct Search
{
    DWORD process;
    const wchar_t* className;
    int id;
    HWND found;
};

BOOL CALLBACK TakeMatchingControl(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    wchar_t className[64] = L"";
    GetClassNameW(window, className, 64);
    if (GetDlgCtrlID(window) == search.id && _wcsicmp(className, search.className) == 0 && IsWindowVisible(window))
        search.found = window;
    return search.found == NULL;
}

BOOL CALLBACK SearchWindowsOfProcess(HWND window, LPARAM parameter)
{
    Search& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == search.process)
        EnumChildWindows(window, &TakeMatchingControl, parameter);
    return search.found == NULL;
}

BOOL CALLBACK TakeView(HWND window, LPARAM found)
{
    // The frame's client window has the same identifier as the views in it.
    wchar_t className[64] = L"";
    GetClassNameW(GetParent(GetParent(window)), className, 64);
    if (GetDlgCtrlID(window) == g_firstPane && _wcsicmp(className, L"MDIClient") == 0)
        *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

} // namespace

HostProcess::HostProcess(const std::wstring& arguments) : m_process(), m_remote(NULL)
{
    std::wstring commandLine = L"arxhost.exe " + arguments;
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    if (CreateProcessW(L"arxhost.exe", commandLine.data(), NULL, NULL, FALSE, 0, NULL, NULL, &start, &m_process))
        m_remote = VirtualAllocEx(m_process.hProcess, NULL, sizeof(RemoteItem), MEM_COMMIT, PAGE_READWRITE);
}

HostProcess::~HostProcess()
{
    if (IsRunning())
        TerminateProcess(m_process.hProcess, 1);
    CloseHandle(m_process.hThread);
    CloseHandle(m_process.hProcess);
}

bool HostProcess::IsRunning() const
{
    return m_process.hProcess != NULL && WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD HostProcess::WaitForEnd(DWORD timeout)
{
    WaitForSingleObject(m_process.hProcess, timeout);
    DWORD code = STILL_ACTIVE;
    GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

HWND HostProcess::FindControl(const wchar_t* className, int id) const
{
    Search search = {m_process.dwProcessId, className, id, NULL};
    EnumWindows(&SearchWindowsOfProcess, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<std::vector<std::wstring>> HostProcess::RowsOf(HWND list, int columns) const
{
    std::vector<std::vector<std::wstring>> rows;
    const int count = ListView_GetItemCount(list);
    for (int row = 0; row < count; ++row)
    {
        std::vector<std::wstring> cells;
        for (int column = 0; column < columns; ++column)
            cells.push_back(CellText(list, row, column));
        rows.push_back(cells);
    }
    return rows;
}

std::wstring HostProcess::CellText(HWND list, int row, int column) const
{
    RemoteItem* const remote = static_cast<RemoteItem*>(m_remote);
    RemoteItem local = {};
    local.item.iSubItem = column;
    local.item.pszText = remote->text;
    local.item.cchTextMax = g_longestText;
    WriteProcessMemory(m_process.hProcess, remote, &local, sizeof(local), NULL);
    SendMessageW(list, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&remote->item));
    ReadProcessMemory(m_process.hProcess, remote, &local, sizeof(local), NULL);
    return local.text;
}

std::wstring TextOf(HWND window)
{
    std::wstring text(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
    text.resize(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(&text[0])));
    return text;
}

HWND FindDrawingView(HWND frame)
{
    HWND view = NULL;
    EnumChildWindows(frame, &TakeView, reinterpret_cast<LPARAM>(&view));
    return view;
}
