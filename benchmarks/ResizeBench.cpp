// The resizer beside bare calls: laying out a dialog of many controls.
#include <afxwin.h>

#include "Bench.h"

#include <CtrlResize.h>

#include <stdexcept>

namespace bench
{

namespace
{

constexpr int kControls = 200;
constexpr int kFirstId = 1000;
constexpr int kColumns = 10;
constexpr int kRuns = 9;
constexpr int kGrowth = 20;
constexpr double kMilliseconds = 1e3;
const CSize kCell(90, 30);
const CSize kControl(80, 22);
const CRect kPlace(0, 0, 900, 600);

CRect PlaceOf(int index)
{
    return CRect(CPoint(index % kColumns * kCell.cx, index / kColumns * kCell.cy), kControl);
}

// A window with many visible controls, which a layout moves by half of the growth.
class Form : public CWnd
{
public:
    Form()
    {
        if (!CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, kPlace, NULL, 0))
            throw std::runtime_error("the window of the controls could not be made");
        for (int i = 0; i < kControls; ++i)
        {
            const CRect place = PlaceOf(i);
            ::CreateWindowExW(0, WC_BUTTONW, L"按钮", WS_CHILD | WS_VISIBLE, place.left, place.top, place.Width(),
                              place.Height(), m_hWnd, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstId + i)), NULL,
                              NULL);
        }
    }

    ~Form() override { DestroyWindow(); }

    void LayOutBare(int growth)
    {
        for (int i = 0; i < kControls; ++i)
        {
            const CRect place = PlaceOf(i);
            ::MoveWindow(::GetDlgItem(m_hWnd, kFirstId + i), place.left + growth / 2, place.top + growth / 2,
                         place.Width(), place.Height(), TRUE);
        }
    }
};

} // namespace

void MeasureResize(Report& report)
{
    Form form;
    CCtrlResize resize;
    resize.InitDlg(&form);
    for (int id = kFirstId; id < kFirstId + kControls; ++id)
        resize.AddCtrl(id, 0.5, 0.5, 0, 0);
    const auto ours = [&](int growth) { resize.ResizeAllCtrl(kPlace.Width() + growth, kPlace.Height() + growth); };
    const auto paint = [&] { form.UpdateWindow(); };
    const Work layout = {[&] {
                             ours(0);
                             paint();
                         },
                         [&] {
                             ours(kGrowth);
                             paint();
                         },
                         nullptr};
    const Work bareLayout = {[&] {
                                 form.LayOutBare(0);
                                 paint();
                             },
                             [&] {
                                 form.LayOutBare(kGrowth);
                                 paint();
                             },
                             nullptr};
    const Pair pair = MedianSeconds(kRuns, layout, bareLayout);
    report.Add({"resizer: laying out 200 controls", "ms", pair.ours * kMilliseconds, pair.bare * kMilliseconds, 1.2,
                "200 bare MoveWindow calls"});
}

} // namespace bench
