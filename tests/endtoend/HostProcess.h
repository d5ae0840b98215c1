// The host program as a process of its own, looked at from outside as a user would: its windows, their texts and rows.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class HostProcess
{
public:
    // Starts arxhost.exe beside the test program with these arguments.
    explicit HostProcess(const std::wstring& arguments);
    // Ends the process if it still runs.
    ~HostProcess();
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;

    bool IsRunning() const;
    // The exit code; STILL_ACTIVE when the process did not end within the time-out (milliseconds).
    DWORD WaitForEnd(DWORD timeout);

    // A visible control of the process by its class and identifier, in whichever window it is; null when there is none.
    HWND FindControl(const wchar_t* className, int id) const;

    // Every cell of a list view in report mode, row by row.
    std::vector<std::vector<std::wstring>> RowsOf(HWND list, int columns) const;

private:
    std::wstring CellText(HWND list, int row, int column) const;

    PROCESS_INFORMATION m_process;
    void* m_remote; // memory inside the process, for texts that it hands over
};

// The text of a window of any process, however long.
std::wstring TextOf(HWND window);

// The view of a drawing in the host's main window; null when none is open.
HWND FindDrawingView(HWND frame);
