// The host program: arxhost [drawing.dxf ...] [/ld module.arx ...] [/b script.scr]
#include "host/HostApp.h"

namespace
{

arxhost::HostApp theApp;

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int show)
{
    if (!AfxWinInit(instance, previous, commandLine, show))
        return 1;
    const int exitCode = theApp.InitInstance() ? theApp.Run() : theApp.ExitInstance();
    return exitCode;
}
