// A keystroke into the validating edit beside one into a plain edit that repaints itself after every change.
#include <afxwin.h>

#include "Bench.h"

#include <SuperEdit.h>

#include <stdexcept>
#include <string>

namespace bench
{

namespace
{

constexpr int kKeys = 100;
constexpr int kRuns = 31; // many short ones, taken in turn, so that a busy machine hits both edits alike
constexpr double kMicroseconds = 1e6;
constexpr int kOursId = 1;
constexpr int kBareId = 2;
const CRect kPlace(0, 0, 400, 100);
const CRect kOursRect(10, 10, 310, 34);
const CRect kBareRect(10, 44, 310, 68);

// The owner of both edits; repaints the bare one after every change, as any edit must whose background shows a verdict.
class Owner : public CWnd
{
public:
    Owner()
    {
        if (!CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, kPlace, NULL, 0))
            throw std::runtime_error("the window of the edits could not be made");
    }

    ~Owner() override { DestroyWindow(); }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (LOWORD(wParam) == kBareId && HIWORD(wParam) == EN_CHANGE)
        {
            const HWND edit = reinterpret_cast<HWND>(lParam);
            ::InvalidateRect(edit, NULL, TRUE);
            ::UpdateWindow(edit);
        }
        return CWnd::OnCommand(wParam, lParam);
    }
};

// Every tenth key begins a new text, so that the texts stay short enough to be valid.
void Type(CEdit& edit, wchar_t key)
{
    constexpr int kLongest = 10;
    for (int i = 0; i < kKeys; ++i)
    {
        if (i % kLongest == 0)
            edit.SetSel(0, -1);
        edit.SendMessage(WM_CHAR, key, 1);
    }
}

void MeasureKeys(Report& report, const char* name, CSuperEdit& ours, CEdit& bare, wchar_t key)
{
    const Work keys = {[&] { ours.SetFocus(); }, [&] { Type(ours, key); }, nullptr};
    const Work bareKeys = {[&] { bare.SetFocus(); }, [&] { Type(bare, key); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, keys, bareKeys);
    report.Add({name, "us", pair.ours * kMicroseconds / kKeys, pair.bare * kMicroseconds / kKeys, 1.5,
                "plain edit, repainted after every change"});
}

} // namespace

void MeasureSuperEdit(Report& report)
{
    Owner owner;
    CSuperEdit ours;
    CEdit bare;
    const DWORD style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
    if (!ours.Create(style, kOursRect, &owner, kOursId) || !bare.Create(style, kBareRect, &owner, kBareId))
        throw std::runtime_error("the edits could not be made");
    ours.SetInputFloat(1, 0, 1e12, FALSE, TRUE, NULL);
    MeasureKeys(report, "edit: a key into a number with limits and tip", ours, bare, L'1');
    ours.SetInputInt(1, 0, 2000000000, FALSE, TRUE, NULL);
    MeasureKeys(report, "edit: a key into a whole number with limits and tip", ours, bare, L'1');
    ours.SetEableValueCheck(0);
    ours.SetValidCharSet(VVE_ALPHANUM, NULL);
    MeasureKeys(report, "edit: a key into a text of letters and digits", ours, bare, L'a');
}

} // namespace bench
