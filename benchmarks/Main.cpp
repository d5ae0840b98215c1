// bench.exe [path of the JSON file]: starts the host services in this process, loads the module and measures it.
#include "Bench.h"

#include <afxwin.h>

#include <acdocman.h>
#include <arx/ed/HostServices.h>

#include <cstdio>
#include <exception>

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

int Measure(const char* path)
{
    bench::Report report;
    bench::MeasureMessageStore(report);
    bench::MeasureMessageViewer(report);
    bench::MeasureSortList(report);
    bench::MeasureSuperEdit(report);
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
        return Measure(argc > 1 ? argv[1] : nullptr);
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
