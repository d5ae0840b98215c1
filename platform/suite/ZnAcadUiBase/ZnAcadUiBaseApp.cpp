#include <afxwin.h>
#include <arxEntryPoint.h>

// The functions of the module need no set-up of their own: loading and unloading is all.
class CZnAcadUiBaseApp : public AcRxArxApp
{
public:
    void RegisterServerComponents() override {}
};

IMPLEMENT_ARX_ENTRYPOINT(CZnAcadUiBaseApp)
