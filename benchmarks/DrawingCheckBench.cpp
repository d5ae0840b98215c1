// The drawing check as a client of the callback: how long it goes on after the user has cancelled.
#include "Bench.h"

#include "drawing_check/CheckReport.h"

#include <KTMsgWnd.h>
#include <MsgCallbackImp.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace bench
{

namespace
{

constexpr std::size_t kLines = 200000;
constexpr double kMilliseconds = 1e3;
constexpr double kMostMilliseconds = 100;

using Clock = std::chrono::steady_clock;

// Cancelled at a chosen question; notes when.
class CancelledProgress : public CMsgCallbackImp
{
public:
    explicit CancelledProgress(int cancelAt) : CMsgCallbackImp(NULL), m_cancelAt(cancelAt) {}

    bool IsCanceled() const override
    {
        if (++m_asked == m_cancelAt)
            m_cancelled = Clock::now();
        return m_asked >= m_cancelAt;
    }

    bool WasCancelled() const { return m_asked >= m_cancelAt; }
    double SecondsSince() const { return std::chrono::duration<double>(Clock::now() - m_cancelled).count(); }

private:
    int m_cancelAt;
    mutable int m_asked = 0;
    mutable Clock::time_point m_cancelled;
};

// The worst that there is: every line is a finding of several checks.
drawing_check::Drawing FaultyDrawing()
{
    drawing_check::Drawing drawing;
    drawing.ids.resize(kLines);
    drawing.hasSheet = true;
    drawing.sheet = {{0, 0}, {1000, 1000}};
    for (std::size_t i = 0; i < kLines; ++i)
    {
        const double x = static_cast<double>(i / 2) * 0.1; // each line twice
        const drawing_check::OpenCurve line = {i, {x, 2000}, {x, 2000}};
        drawing.descriptions.push_back(std::to_string(i / 2));
        drawing.lines.push_back(line);
        drawing.ends.push_back(line);
        drawing.boxes.push_back({line.start, line.end});
        drawing.boxed.push_back(i);
    }
    return drawing;
}

} // namespace

void MeasureDrawingCheck(Report& report)
{
    const drawing_check::Drawing drawing = FaultyDrawing();
    double longest = 0;
    bool reached = true;
    // At ever later questions, until the check is done before.
    for (int question = 1; reached; question += 1 + question / 4)
    {
        KTMsgWnd::RemoveAllMsg();
        CancelledProgress progress(question);
        drawing_check::ReportFindings(drawing, progress);
        reached = progress.WasCancelled();
        if (reached)
            longest = std::max(longest, progress.SecondsSince());
    }
    KTMsgWnd::RemoveAllMsg();
    report.Add({"drawing check: 200,000 faults, from Cancel to the end", "ms", longest * kMilliseconds, 0,
                kMostMilliseconds, "the longest of many places"});
}

} // namespace bench
