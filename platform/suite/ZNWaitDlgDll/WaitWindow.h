// The wait dialog's window: heading, lines of text, a moving bar, the time, a Cancel button. It never becomes active,
// so nothing is ever sent to the busy thread, not even when its button is pressed.
//
// Everything is fetched from the shared state at each beat of a timer; the calling thread sends nothing.
#pragma once

#include <windows.h>

#include <string>

#include "arx/ui/GdiGuards.h"
#include "suite/ZNWaitDlgDll/WaitLayout.h"
#include "suite/ZNWaitDlgDll/WaitState.h"

class WaitWindow
{
public:
    enum ControlId
    {
        HeadingId = 101,
        LinesId = 102,
        BarId = 103,
        ElapsedId = 104,
        CancelId = IDCANCEL
    };

    // `start`: since when time counts, GetTickCount64.
    WaitWindow(wait::State& state, ULONGLONG start);
    ~WaitWindow();
    WaitWindow(const WaitWindow&) = delete;
    WaitWindow& operator=(const WaitWindow&) = delete;

    // Shows the window; false when the system refuses.
    bool Create();

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    void MakeControls();
    HWND MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, int id, HFONT font);
    HWND Control(int id) const { return GetDlgItem(m_window, id); }
    int HeightOf(HFONT font) const;

    void OnBeat();
    void TakeText();
    void ShowTime();
    void ShowCancel();
    void MakeRoom(int lineCount);
    void Place();
    void BeginDrag(POINT grip);
    void FollowMouse();
    void Drag();
    void OnCancel();

    void PaintBackground(HDC dc) const;
    void Draw(const DRAWITEMSTRUCT& item) const;
    void DrawLines(HDC dc, const RECT& area) const;
    void DrawBar(HDC dc, const RECT& area) const;

    wait::State& m_state;
    const ULONGLONG m_start;
    const arxui::GdiObject<HFONT> m_font;
    const arxui::GdiObject<HFONT> m_headingFont;
    HWND m_window = nullptr;
    wait::Metrics m_metrics;
    wait::Layout m_layout;
    std::wstring m_text;
    std::wstring m_elapsed;
    int m_room = 0;       // lines that the window has room for; it never shrinks, or it would jump at every line
    unsigned m_beats = 0; // since the window was made
    POINT m_grip = {};    // where the user holds the window, client coordinates
    bool m_moved = false; // by the user
};
