// The application object of a module and its entry point.
//
//     class CMyApp : public AcRxArxApp
//     {
//     public:
//         virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt)
//         {
//             AcRx::AppRetCode result = AcRxArxApp::On_kInitAppMsg(pkt); // must be called
//             return result;
//         }
//         virtual void RegisterServerComponents() {}
//     };
//     IMPLEMENT_ARX_ENTRYPOINT(CMyApp)
//
// The base makes the module unlockable and MDI-aware and registers the commands that the module declares with
// ACED_ARXCOMMAND_ENTRY_AUTO. Everything here is compiled into the module.
#pragma once

#include "accmd.h"
#include "rxdlinkr.h"
#include "rxregsvc.h"

#include "arx/WindowsTypes.h"

#define _RXST(text) ACRX_T(text)

// One command of a module; the entries of one module form a list.
struct AcRxArxCommandEntry
{
    typedef void (*Function)();

    AcRxArxCommandEntry(const ACHAR* groupName, const ACHAR* globalName, const ACHAR* localName,
                        Adesk::Int32 commandFlags, Function commandFunction, AcEdUIContext* context);

    const ACHAR* group;
    const ACHAR* global;
    const ACHAR* local;
    Adesk::Int32 flags;
    Function function;
    AcEdUIContext* uiContext;
    AcRxArxCommandEntry* next;
};

inline AcRxArxCommandEntry*& acrxModuleCommands()
{
    static AcRxArxCommandEntry* first = NULL;
    return first;
}

inline AcRxArxCommandEntry::AcRxArxCommandEntry(const ACHAR* groupName, const ACHAR* globalName, const ACHAR* localName,
                                                Adesk::Int32 commandFlags, Function commandFunction,
                                                AcEdUIContext* context)
    : group(groupName), global(globalName), local(localName), flags(commandFlags), function(commandFunction),
      uiContext(context), next(acrxModuleCommands())
{
    acrxModuleCommands() = this;
}

// Declares a command whose function is the static member `<group><globCmd>` of the application class.
#define ACED_ARXCOMMAND_ENTRY_AUTO(CLASS_NAME, GROUP, GLOBAL_NAME, LOCAL_NAME, FLAGS, UI_CONTEXT)                      \
    static AcRxArxCommandEntry acrxCommand_##GROUP##GLOBAL_NAME(ACRX_T(#GROUP), ACRX_T(#GLOBAL_NAME),                  \
                                                                ACRX_T(#LOCAL_NAME), FLAGS,                            \
                                                                &CLASS_NAME::GROUP##GLOBAL_NAME, UI_CONTEXT);

// One handler a message; each does nothing and answers kRetOK until a derived class does more.
class AcRxDbxApp
{
public:
    AcRxDbxApp() : m_hdllInstance(NULL), m_bUnlocked(true), m_bMDIAware(true) {}
    virtual ~AcRxDbxApp() {}

    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt);
    virtual AcRx::AppRetCode On_kUnloadAppMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kLoadDwgMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kUnloadDwgMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kInvkSubrMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kCfgMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kEndMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kQuitMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kSaveMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kDependencyMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kNoDependencyMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kOleUnloadAppMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kPreQuitMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kInitDialogMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kEndDialogMsg(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode On_kNullMsg(void*) { return AcRx::kRetOK; }

    // Writes what COM servers need into the Windows registry; empty for most modules.
    virtual void RegisterServerComponents() = 0;

    // Hands a message to its handler; kRetOK for messages without one.
    AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt);

protected:
    HINSTANCE m_hdllInstance;
    bool m_bUnlocked;
    bool m_bMDIAware;

private:
    AcRxDbxApp(const AcRxDbxApp&);
    AcRxDbxApp& operator=(const AcRxDbxApp&);
};

// The same for modules that use the editor: registers and removes the module's commands.
class AcRxArxApp : public AcRxDbxApp
{
public:
    virtual AcRx::AppRetCode On_kInitAppMsg(void* pkt);
    virtual AcRx::AppRetCode On_kUnloadAppMsg(void* pkt);
};

inline AcRx::AppRetCode AcRxDbxApp::On_kInitAppMsg(void* pkt)
{
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&acrxModuleCommands()), &m_hdllInstance);
    if (m_bUnlocked)
    {
        acrxDynamicLinker->unlockApplication(pkt);
    }
    if (m_bMDIAware)
    {
        acrxDynamicLinker->registerAppMDIAware(pkt);
    }
    RegisterServerComponents();
    return AcRx::kRetOK;
}

inline AcRx::AppRetCode AcRxDbxApp::acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt)
{
    switch (msg)
    {
    case AcRx::kNullMsg:
        return On_kNullMsg(pkt);
    case AcRx::kInitAppMsg:
        return On_kInitAppMsg(pkt);
    case AcRx::kUnloadAppMsg:
        return On_kUnloadAppMsg(pkt);
    case AcRx::kLoadDwgMsg:
        return On_kLoadDwgMsg(pkt);
    case AcRx::kUnloadDwgMsg:
        return On_kUnloadDwgMsg(pkt);
    case AcRx::kInvkSubrMsg:
        return On_kInvkSubrMsg(pkt);
    case AcRx::kCfgMsg:
        return On_kCfgMsg(pkt);
    case AcRx::kEndMsg:
        return On_kEndMsg(pkt);
    case AcRx::kQuitMsg:
        return On_kQuitMsg(pkt);
    case AcRx::kSaveMsg:
        return On_kSaveMsg(pkt);
    case AcRx::kDependencyMsg:
        return On_kDependencyMsg(pkt);
    case AcRx::kNoDependencyMsg:
        return On_kNoDependencyMsg(pkt);
    case AcRx::kOleUnloadAppMsg:
        return On_kOleUnloadAppMsg(pkt);
    case AcRx::kPreQuitMsg:
        return On_kPreQuitMsg(pkt);
    case AcRx::kInitDialogMsg:
        return On_kInitDialogMsg(pkt);
    case AcRx::kEndDialogMsg:
        return On_kEndDialogMsg(pkt);
    default:
        return AcRx::kRetOK;
    }
}

inline AcRx::AppRetCode AcRxArxApp::On_kInitAppMsg(void* pkt)
{
    const AcRx::AppRetCode result = AcRxDbxApp::On_kInitAppMsg(pkt);
    for (const AcRxArxCommandEntry* entry = acrxModuleCommands(); entry != NULL; entry = entry->next)
    {
        acedRegCmds->addCommand(entry->group, entry->global, entry->local, entry->flags, entry->function,
                                entry->uiContext, -1, m_hdllInstance);
    }
    return result;
}

inline AcRx::AppRetCode AcRxArxApp::On_kUnloadAppMsg(void* pkt)
{
    for (const AcRxArxCommandEntry* entry = acrxModuleCommands(); entry != NULL; entry = entry->next)
    {
        acedRegCmds->removeCmd(entry->group, entry->global);
    }
    return AcRxDbxApp::On_kUnloadAppMsg(pkt);
}

// Makes the one application object and the exported entry point. No semicolon is needed behind it.
#define IMPLEMENT_ARX_ENTRYPOINT(CLASS_NAME)                                                                           \
    static CLASS_NAME acrxApplication;                                                                                 \
    extern "C" __declspec(dllexport) AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt)                  \
    {                                                                                                                  \
        return acrxApplication.acrxEntryPoint(msg, pkt);                                                               \
    }
