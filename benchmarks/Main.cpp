// bench.exe [path of the JSON file [subject ...]]: starts the host services in this process, loads the module and
// measures it: all subjects, or the named ones.
#include "Bench.h"

#include <afxwin.h>

#include <acdocman.h>
#include <arx/ed/HostServices.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>
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

bool IsSubject(const std::string& name)
{
    return std::any_of(std::begin(kSubjects), std::end(kSubjects),
                       [&](const Subject& subject) { return name == subject.name; });
}

void ListSubjects(const std::string& unknown)
{
    std::fprintf(stderr, "error: nothing to measure is named %s; there are:\n", unknown.c_str());
    for (const Subject& subject : kSubjects)
        std::fprintf(stderr, "  %s\n", subject.name);
}

int Measure(const char* path, const std::vector<std::string>& wanted)
{
    const auto unknown = std::find_if_not(wanted.begin(), wanted.end(), &IsSubject);
    if (unknown != wanted.end())
    {
        ListSubjects(*unknown);
        return 1;
    }
    bench::Report report;
    for (const Subject& subject : kSubjects)
    {
        if (IsWanted(subject.name, wanted))
            subject.measure(report);
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
