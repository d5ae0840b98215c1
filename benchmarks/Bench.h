// Measuring beside bare Win32: every figure is the median of several runs after a warm-up, printed with the same work
// done without this library in the same process, and their ratio.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench
{

struct Figure
{
    std::string name;
    std::string unit;     // of value and reference: "ms", "us", "ns", "bytes"
    double value = 0;     // ours
    double reference = 0; // what it stands beside; 0 when the figure stands alone
    double limit = 0;     // the ratio (or, standing alone, the value) that we want to stay below
    std::string beside;   // what the reference is
};

// Seconds that `work` takes: the median of `runs` after one warm-up. `prepare` and `finish` are not measured.
double MedianSeconds(int runs, const std::function<void()>& prepare, const std::function<void()>& work,
                     const std::function<void()>& finish);

// Two pieces of work in turn, so that whatever else the machine does hits both alike. Answers the two medians.
struct Pair
{
    double ours = 0;
    double bare = 0;
};

struct Work
{
    std::function<void()> prepare;
    std::function<void()> run;
    std::function<void()> finish;
};

Pair MedianSeconds(int runs, const Work& ours, const Work& bare);

class Report
{
public:
    void Add(const Figure& figure);

    // The table for people, on standard output.
    void Print() const;

    // The same for programs. Answers false when the file cannot be written.
    bool WriteJson(const std::string& path) const;

private:
    std::vector<Figure> m_figures;
};

// One file for each subject adds its figures.
void MeasureMessageStore(Report& report);
void MeasureMessageViewer(Report& report);
void MeasureCallback(Report& report);
void MeasureDrawingCheck(Report& report);
void MeasureSortList(Report& report);
void MeasureEditableList(Report& report);
void MeasureSuperEdit(Report& report);
void MeasureResize(Report& report);
void MeasureFollowTip(Report& report);
void MeasureLabel(Report& report);
void MeasureSlide(Report& report);
void MeasureComboMenu(Report& report);
void MeasureTrees(Report& report);
void MeasureRichEdit(Report& report);
void MeasureCheckWindow(Report& report);

} // namespace bench
