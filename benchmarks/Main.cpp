// bench.exe [path of the JSON file [subject ...]]: starts the host services in this process, loads the module and
// measures it: all subjects, or the named ones.
#include "Bench.h"

#include <afxwin.h>

#include <acdocman.h>
#include <arx/ed/HostServices.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace
{

CWinApp g_app;

class Frame
{
public:
    Frame()
    {
        CMDIFrameWnd* frame = new CMDIFrameWnd;
        frame->Create(NULL, L"bench", WS_OVERLAPPEDWINDOW, CRect(0, 0, 1200, 900));
        frame->ShowWindow(SW_SHOW);
        AfxGetApp()->m_pMainWnd = frame;
        arxhost::SetMainFrame(frame);
        arxhost::NewDocument(L"bench.dxf");
    }

    ~Frame() { arxhost::Reset(); }
};

struct Subject
{
    const char* name;
    void (*measure)(bench::Report& report);
};

const Subject kSubjects[] = {
    {"message-store", bench::MeasureMessageStore},
    {"message-viewer", bench::MeasureMessageViewer},
    {"sort-list", bench::MeasureSortList},
    {"editable-list", bench::MeasureEditableList},
    {"super-edit", bench::MeasureSuperEdit},
    {"resize", bench::MeasureResize},
    {"follow-tip", bench::MeasureFollowTip},
    {"label", bench::MeasureLabel},
    {"slide", bench::MeasureSlide},
    {"combo-menu", bench::MeasureComboMenu},
    {"trees", bench::MeasureTrees},
    {"rich-edit", bench::MeasureRichEdit},
    {"check-window", bench::MeasureCheckWindow},
    {"callback", bench::MeasureCallback},
    {"drawing-check", bench::MeasureDrawingCheck},
};

bool IsWanted(const char* name, const std::vector<std::string>& wanted)
{
    return wanted.empty() || std::find(wanted.begin(), wanted.end(), name) != wanted.end();
}

// Answers how many subjects were measured.
int MeasureSubjects(bench::Report& report, const std::vector<std::string>& wanted)
{
    int count = 0;
    for (const Subject& subject : kSubjects)
    {
        if (!IsWanted(subject.name, wanted))
            continue;
        subject.measure(report);
        ++count;
    }
    return count;
}

int Measure(const char* path, const std::vector<std::string>& wanted)
{
    bench::Report report;
    if (MeasureSubjects(report, wanted) == 0)
    {
        std::fprintf(stderr, "error: nothing to measure has one of these names; there are:\n");
        for (const Subject& subject : kSubjects)
            std::fprintf(stderr, "  %s\n", subject.name);
        return 1;
    }
    report.Print();
    if (path != nullptr && !report.WriteJson(path))
    {
        std::fprintf(stderr, "error: %s could not be written\n", path);
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandleW(NULL), NULL, ::GetCommandLineW(), SW_SHOW))
        return 1;
    try
    {
        const Frame frame;
        return Measure(argc > 1 ? argv[1] : nullptr, std::vector<std::string>(argv + std::min(argc, 2), argv + argc));
    }
    catch (const std::exception& e)
    {
        std::fprintf(stderr, "error: %s\n", e.what());
    }
    catch (CException* e)
    {
        std::fprintf(stderr, "error: an exception of the framework ended the measuring\n");
        e->Delete();
    }
    return 1;
}
