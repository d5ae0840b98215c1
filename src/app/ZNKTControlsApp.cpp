#include "app/ZNKTControlsApp.h"

#include <rxregsvc.h>
#include <ZnQFCBaseU.h>

#include "base/ModuleThreads.h"
#include "msg/MsgViewWnd.h"
#include "msg/ZNMsgManager.h"
#include "tip/FollowMouseTipWnd.h"

namespace
{

// What the suite's log readers look for: the handler and its line at the time the log format was settled.
const wchar_t kUnloadHandler[] = L"CZNKTControlsApp::On_kUnloadAppMsg";
const int kUnloadLine = 41;

} // namespace

CZNKTControlsApp::CZNKTControlsApp(const wchar_t* companion) : m_companion(companion) {}

AcRx::AppRetCode CZNKTControlsApp::On_kInitAppMsg(void* pkt)
{
    if (!acrxLoadModule(m_companion, false, false))
        return AcRx::kRetError;
    return AcRxArxApp::On_kInitAppMsg(pkt);
}

AcRx::AppRetCode CZNKTControlsApp::On_kUnloadAppMsg(void* pkt)
{
    Tevrin::Trace(L"%s-%d", kUnloadHandler, kUnloadLine);
    const AcRx::AppRetCode result = AcRxArxApp::On_kUnloadAppMsg(pkt);

    // Its window and its mouse hook must not outlive the code that they call.
    CFollowMouseTipWnd::Destroy();
    // A client ends its check window without waiting for the thread, mostly when it is unloaded itself.
    EndModuleThreads();
    // The palette's viewer reads the store, and both call into the companion: this order.
    CMsgViewWnd::DestroyInstance();
    CZNMsgManager::DestroyInstance();
    acrxUnloadModule(m_companion, false);
    return result;
}

void CZNKTControlsApp::RegisterServerComponents() {}

IMPLEMENT_ARX_ENTRYPOINT(CZNKTControlsApp)
