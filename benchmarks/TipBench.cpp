// The mouse-following tip beside a bare popup that is moved the same way.
#include <afxwin.h>

#include "Bench.h"

#include <FollowMouseTipWnd.h>

#include <algorithm>
#include <stdexcept>

namespace bench
{

namespace
{

constexpr int kRuns = 200;
constexpr double kMicroseconds = 1e6;
constexpr double kMostMicroseconds = 200;
const CRect kPlace(200, 200, 600, 500);
const wchar_t* const kText = L"X: 1234.5678\nY: 8765.4321";

// What the tip's mouse hook calls.
class MovedTip : public CFollowMouseTipWnd
{
public:
    static MovedTip& Show(CWnd& watched)
    {
        SetWatchWnd(&watched);
        MovedTip* const tip = new MovedTip;
        if (!Open(tip, NULL))
            throw std::runtime_error("the tip could not be made");
        ShowMsg(kText, 600, NULL);
        return *tip;
    }

    using CFollowMouseTipWnd::OnMouseMove;

private:
    MovedTip() : CFollowMouseTipWnd(kText, 600) {}
};

class Popup : public CWnd
{
public:
    Popup(const CRect& place, DWORD exStyle)
    {
        if (!CreateEx(exStyle, AfxRegisterWndClass(0), NULL, WS_POPUP, place, NULL, 0))
            throw std::runtime_error("a window could not be made");
        ShowWindow(SW_SHOWNOACTIVATE);
        UpdateWindow();
    }

    ~Popup() override { DestroyWindow(); }
};

// A new place for each run, so that every move is one.
CPoint NextPlace()
{
    static int step = 0;
    step = (step + 1) % 100;
    return kPlace.TopLeft() + CPoint(50 + step, 80 + step);
}

} // namespace

void MeasureFollowTip(Report& report)
{
    Popup watched(kPlace, WS_EX_TOOLWINDOW);
    MovedTip& tip = MovedTip::Show(watched);
    CRect tipPlace;
    tip.GetWindowRect(&tipPlace);
    Popup bare(tipPlace, WS_EX_TOOLWINDOW);
    const Work move = {nullptr, [&] { tip.OnMouseMove(watched.m_hWnd, NextPlace()); }, nullptr};
    const Work bareMove = {nullptr,
                           [&] {
                               const CPoint place = NextPlace();
                               bare.SetWindowPos(NULL, place.x, place.y, 0, 0,
                                                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
                           },
                           nullptr};
    const Pair pair = MedianSeconds(kRuns, move, bareMove);
    CFollowMouseTipWnd::Destroy();
    report.Add({"follow tip: a mouse move with the tip visible", "us", pair.ours * kMicroseconds,
                pair.bare * kMicroseconds, 2, "bare SetWindowPos of a popup of that size"});
    report.Add({"follow tip: what a mouse move costs beyond that", "us",
                std::max(0.0, pair.ours - pair.bare) * kMicroseconds, 0, kMostMicroseconds, ""});
}

} // namespace bench
