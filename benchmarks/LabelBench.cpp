// The label beside a bare window that draws the same runs by DrawText.
#include <afxwin.h>

#include "Bench.h"

#include <ZNKTLabel.h>

#include <stdexcept>
#include <string>

namespace bench
{

namespace
{

constexpr int kPairsOfRuns = 10; // a normal and a small one each
constexpr int kPaints = 50;      // one alone is too short to be measured well
constexpr int kRuns = 9;
constexpr double kMicroseconds = 1e6;
constexpr UINT kTextFormat = DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP;
const CRect kPlace(200, 200, 800, 240);
const CRect kInside(0, 0, 600, 40);

std::wstring LabelText()
{
    std::wstring text;
    for (int i = 0; i < kPairsOfRuns; ++i)
        text += i % 2 == 0 ? L"abc{U2}" : L"xyz{B3}";
    return text;
}

class Owner : public CWnd
{
public:
    Owner()
    {
        if (!CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, kPlace, NULL, 0))
            throw std::runtime_error("the window of the labels could not be made");
    }

    ~Owner() override { DestroyWindow(); }
};

// Draws the runs with two fonts that it keeps, on the colour of dialogs.
class BareLabel : public CStatic
{
public:
    BareLabel()
    {
        m_normal.CreateStockObject(DEFAULT_GUI_FONT);
        LOGFONT description = {};
        m_normal.GetLogFont(&description);
        description.lfHeight = description.lfHeight * 3 / 4;
        m_small.CreateFontIndirect(&description);
    }

protected:
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CRect rect;
        GetClientRect(&rect);
        ::FillRect(dc, &rect, ::GetSysColorBrush(COLOR_BTNFACE));
        dc.SetBkMode(TRANSPARENT);
        CFont* const before = dc.SelectObject(&m_normal);
        for (int i = 0; i < kPairsOfRuns; ++i)
        {
            Draw(dc, rect, m_normal, i % 2 == 0 ? L"abc" : L"xyz");
            Draw(dc, rect, m_small, i % 2 == 0 ? L"2" : L"3");
        }
        dc.SelectObject(before);
    }

    DECLARE_MESSAGE_MAP()

private:
    // Measures and draws, as somebody would who knows where the next run begins only then.
    static void Draw(CDC& dc, CRect& rect, CFont& font, const wchar_t* text)
    {
        dc.SelectObject(&font);
        CRect run(rect);
        dc.DrawText(text, -1, &run, kTextFormat | DT_CALCRECT);
        dc.DrawText(text, -1, &rect, kTextFormat);
        rect.left = run.right;
    }

    CFont m_normal;
    CFont m_small;
};

BEGIN_MESSAGE_MAP(BareLabel, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void PaintOften(CWnd& window)
{
    for (int i = 0; i < kPaints; ++i)
        window.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
}

void ShowOnly(CWnd& shown, CWnd& hidden)
{
    hidden.ShowWindow(SW_HIDE);
    shown.ShowWindow(SW_SHOW);
    shown.UpdateWindow();
}

} // namespace

void MeasureLabel(Report& report)
{
    Owner owner;
    CZNKTLabel ours;
    BareLabel bare;
    const std::wstring text = LabelText();
    if (!ours.Create(L"STATIC", text.c_str(), WS_CHILD, kInside, &owner, 1) ||
        !bare.Create(L"", WS_CHILD, kInside, &owner, 2))
        throw std::runtime_error("the labels could not be made");
    const Work paint = {[&] { ShowOnly(ours, bare); }, [&] { PaintOften(ours); }, nullptr};
    const Work barePaint = {[&] { ShowOnly(bare, ours); }, [&] { PaintOften(bare); }, nullptr};
    const Pair pair = MedianSeconds(kRuns, paint, barePaint);
    report.Add({"label: painting 20 runs", "us", pair.ours * kMicroseconds / kPaints,
                pair.bare * kMicroseconds / kPaints, 2, "bare DrawText of the runs"});
}

} // namespace bench
