// Loads the good module before itself and unloads it behind itself, by the wizard's pattern.
#include "MessageLog.h"
#include "arxEntryPoint.h"

class ParentApp : public AcRxArxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt)
    {
        if (!acrxLoadModule(ACRX_T("LoaderGood.arx"), false))
        {
            return AcRx::kRetError;
        }
        const AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(pkt);
        LogMessage(ACRX_T("Parent"), AcRx::kInitAppMsg);
        return result;
    }

    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* pkt)
    {
        const AcRx::AppRetCode result = AcRxArxApp::On_kUnloadAppMsg(pkt);
        LogMessage(ACRX_T("Parent"), AcRx::kUnloadAppMsg);
        acrxUnloadModule(ACRX_T("LoaderGood.arx"));
        return result;
    }

    virtual void RegisterServerComponents() { acutPrintf(ACRX_T("Parent:registers ")); }
};

IMPLEMENT_ARX_ENTRYPOINT(ParentApp)
