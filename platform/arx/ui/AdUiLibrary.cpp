#include "acui.h"

#include "arx/ui/DockBarRegistry.h"

void InitAdUiDLL()
{
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof(classes);
    classes.dwICC = ICC_WIN95_CLASSES | ICC_DATE_CLASSES;
    InitCommonControlsEx(&classes);
}

void InitAcUiDLL()
{
    InitAdUiDLL();
}

void AdUiSaveDockingToolPositions()
{
    for (CAdUiDockControlBar* bar : arxui::DockBars())
        bar->SaveLayout();
}
