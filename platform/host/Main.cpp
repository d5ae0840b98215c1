// The host program: arxhost [drawing.dxf ...] [/ld module.arx ...] [/b script.scr]
#include "host/HostApp.h"

namespace
{

arxhost::HostApp theApp;

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR /*commandLine*/, int show)
{
    if (!AfxWinInit(instance, previous, GetCommandLineW(), show))
        return 1;
    return theApp.InitInstance() ? theApp.Run() : theApp.ExitInstance();
}
