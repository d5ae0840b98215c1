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
    // `companion`: the module that must be loaded before this one works; the text must live as long as the object.
    explicit CZNKTControlsApp(const wchar_t* companion = L"ZNKTPub.arx");

    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt);
    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* pkt);
    virtual void RegisterServerComponents();

private:
    const wchar_t* m_companion;
};
