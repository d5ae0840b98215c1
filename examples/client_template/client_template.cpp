// A module with one command, SAYHELLO: puts a message into the message palette and shows it.
#include <afxwin.h>

#include <arxEntryPoint.h>

#include <KTMsgWnd.h>

class CClientTemplateApp : public AcRxArxApp
{
public:
    void RegisterServerComponents() override {}

    static void ClientTemplateSAYHELLO();
};

void CClientTemplateApp::ClientTemplateSAYHELLO()
{
    const wchar_t* group = L"模块示例";
    // The messages of an earlier run of the command.
    KTMsgWnd::RemoveMsg(group, true);
    KTMsgWnd::AddMsg(KTMsgWnd::eInfo, group, L"你好，这是一条来自模块的消息", true, nullptr, nullptr);
    KTMsgWnd::ShowMsgWnd(true);
}

// Registered when the module is loaded, removed when it is unloaded.
ACED_ARXCOMMAND_ENTRY_AUTO(CClientTemplateApp, ClientTemplate, SAYHELLO, SAYHELLO, ACRX_CMD_MODAL, nullptr)

IMPLEMENT_ARX_ENTRYPOINT(CClientTemplateApp)
