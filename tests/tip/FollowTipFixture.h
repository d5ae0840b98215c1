// The mouse-following tip with a clock of its own.
#pragma once

#include "TipFixture.h"

#include "tip/FollowMouseTipWnd.h"

const wchar_t* const kFollowTipClass = L"ZNKTFollowMouseTipWnd";

class ClockedTip : public CFollowMouseTipWnd
{
public:
    // As ShowMsg does it.
    static ClockedTip& Show(const wchar_t* text, unsigned long seconds = 0, CWnd* parent = NULL)
    {
        ClockedTip* const tip = new ClockedTip(text, seconds);
        Open(tip, parent);
        ShowMsg(text, seconds, parent);
        return *tip;
    }

    using CFollowMouseTipWnd::CalWndSize;
    using CFollowMouseTipWnd::OnMouseMove;

    DWORD now = 1000;
    std::function<void()> onTimer; // in place of the tip's own timer

protected:
    ClockedTip(const wchar_t* text, unsigned long seconds) : CFollowMouseTipWnd(text, seconds) {}

    DWORD TickCount() const override { return now; }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_TIMER || !onTimer)
            return CFollowMouseTipWnd::WindowProc(message, wParam, lParam);
        const std::function<void()> action = onTimer; // the object may end
        action();
        return 0;
    }
};

class FollowTipFixture : public testing::Test
{
protected:
    FollowTipFixture() { ::SetCursorPos(600, 400); }
    ~FollowTipFixture() override { CFollowMouseTipWnd::Destroy(); }

    // The tip's window, wherever it hangs.
    HWND Tip() const
    {
        const HWND top = ::FindWindowW(kFollowTipClass, NULL);
        return top != NULL ? top : ::FindWindowExW(m_owner.m_hWnd, NULL, kFollowTipClass, NULL);
    }

    bool IsVisible() const { return Tip() != NULL && ::IsWindowVisible(Tip()); }

    static CPoint Pointer()
    {
        CPoint pointer;
        ::GetCursorPos(&pointer);
        return pointer;
    }

    // Where the tip belongs for the pointer and its own height.
    CPoint PlaceByPointer() const
    {
        const CPoint pointer = Pointer();
        return CPoint(pointer.x + 15, pointer.y - ScreenRect(Tip()).Height() - 10);
    }

    OwnerWindow m_owner;
};
