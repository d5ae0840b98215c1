// The application object: answers the host's application messages.
//
// Start-up loads the companion module ZNKTPub.arx before anything else and lets the host refuse the module when that
// fails. Shut-down takes down the message palette, then the message store that it reads, then lets the companion go.
#pragma once

#include <afxwin.h>
#include <arxEntryPoint.h>

class CZNKTControlsApp : public AcRxArxApp
{
public:
    CZNKTControlsApp();

    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt);
    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* pkt);
    virtual void RegisterServerComponents();
};
