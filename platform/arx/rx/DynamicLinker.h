// The loader of modules: one entry a module with its reference count, lock and declarations.
#pragma once

#include "rxdlinkr.h"

#include "ModuleFile.h"
#include "ReactorList.h"

#include <memory>
#include <string>
#include <vector>

namespace arxrx
{

class DynamicLinker : public AcRxDynamicLinker
{
public:
    static DynamicLinker& Instance();

    bool loadApp(const ACHAR* appName, AcadApp::LoadReasons reason, bool printit, bool asCmd = false) override;
    bool unloadApp(const ACHAR* appName, bool asCmd = false) override;
    bool loadModule(const ACHAR* fileName, bool printit, bool asCmd = false) override;
    bool unloadModule(const ACHAR* fileName, bool asCmd = false) override;

    bool lockApplication(void* appId) const override;
    bool unlockApplication(void* appId) const override;
    bool isApplicationLocked(const ACHAR* name) const override;
    bool registerAppMDIAware(void* appId) const override;
    bool registerAppNotMDIAware(void* appId) const override;
    bool isAppMDIAware(const ACHAR* name) const override;

    void addReactor(AcRxDLinkerReactor* reactor) override;
    void removeReactor(AcRxDLinkerReactor* reactor) override;

    // For the host.
    bool IsLoaded(const ACHAR* name) const;
    std::vector<std::wstring> Paths() const;
    void Send(AcRx::AppMsgCode message);
    // Locks and reference counts are ignored.
    void UnloadAll();
    void ForgetReactors() { m_reactors.Clear(); }

private:
    // Its address is the packet of kInitAppMsg and the appId.
    struct Module
    {
        std::wstring path;
        ModuleFile file;
        int references = 1;
        bool locked = true;
        bool mdiAware = false;
        bool unloading = false;
    };
    typedef std::unique_ptr<Module> ModulePtr;
    typedef std::vector<ModulePtr> Modules;

    DynamicLinker() = default;

    Module* Find(const ACHAR* name) const;
    Module* FindById(const void* appId) const;
    std::vector<std::wstring> SearchFolders() const;
    bool LoadNew(const std::wstring& name, std::wstring& reason);
    bool Start(ModulePtr module, std::wstring& reason);
    bool Stop(Module& module);
    void Remove(Module& module);

    // Complete modules in the order of their completion; those in kInitAppMsg, the innermost last.
    Modules m_modules;
    Modules m_starting;
    ReactorList<AcRxDLinkerReactor> m_reactors;
};

} // namespace arxrx
