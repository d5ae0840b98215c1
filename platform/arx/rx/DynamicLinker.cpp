#include "DynamicLinker.h"

#include "Names.h"
#include "acdocman.h"
#include "acutads.h"
#include "arx/ed/CommandStack.h"

#include <algorithm>

namespace arxrx
{

namespace
{

// Tells one module about every open drawing, each being current while it is told.
void TellDrawings(const ModuleFile& file, AcRx::AppMsgCode message)
{
    AcApDocument* const current = acDocManager->curDocument();
    const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
    for (; !documents->done(); documents->step())
    {
        acDocManager->setCurDocument(documents->document());
        file.Send(message, nullptr);
    }
    if (current != nullptr)
    {
        acDocManager->setCurDocument(current);
    }
}

std::wstring NotFoundText(const std::wstring& name, const std::vector<std::wstring>& folders)
{
    if (!FolderOf(name).empty() || name.empty())
    {
        return L"找不到文件";
    }
    std::wstring text = L"找不到文件，找过的文件夹：";
    for (size_t i = 0; i < folders.size(); ++i)
    {
        text += (i == 0 ? L"" : L"、") + folders[i];
    }
    return text;
}

} // namespace

DynamicLinker& DynamicLinker::Instance()
{
    // Never destroyed: modules are unloaded by the host, not by the end of this library.
    static DynamicLinker* const linker = new DynamicLinker;
    return *linker;
}

bool DynamicLinker::loadApp(const ACHAR* appName, AcadApp::LoadReasons /*reason*/, bool printit, bool asCmd)
{
    return loadModule(appName, printit, asCmd);
}

bool DynamicLinker::unloadApp(const ACHAR* appName, bool asCmd)
{
    return unloadModule(appName, asCmd);
}

bool DynamicLinker::loadModule(const ACHAR* fileName, bool printit, bool asCmd)
{
    if (Module* module = Find(fileName))
    {
        const bool counted = !asCmd && !module->unloading;
        module->references += counted ? 1 : 0;
        return counted;
    }
    std::wstring reason;
    const std::wstring name = WithExtension(fileName == nullptr ? L"" : fileName);
    if (LoadNew(name, reason))
    {
        return true;
    }
    if (printit)
    {
        acutPrintf(L"\n无法加载模块 %s：%s。\n", name.c_str(), reason.c_str());
    }
    return false;
}

bool DynamicLinker::LoadNew(const std::wstring& name, std::wstring& reason)
{
    const std::wstring path = FindModuleFile(name, SearchFolders());
    if (path.empty())
    {
        reason = NotFoundText(name, SearchFolders());
        return false;
    }
    m_reactors.Tell([&](AcRxDLinkerReactor& reactor) { reactor.rxAppWillBeLoaded(path.c_str()); });
    ModulePtr module(new Module);
    module->path = path;
    if (module->file.Open(path, reason) && Start(std::move(module), reason))
    {
        m_reactors.Tell([&](AcRxDLinkerReactor& reactor) { reactor.rxAppLoaded(path.c_str()); });
        return true;
    }
    m_reactors.Tell([&](AcRxDLinkerReactor& reactor) { reactor.rxAppLoadAborted(path.c_str()); });
    return false;
}

bool DynamicLinker::Start(ModulePtr starting, std::wstring& reason)
{
    Module* const module = starting.get();
    m_starting.push_back(std::move(starting));
    const bool accepted = module->file.Send(AcRx::kInitAppMsg, module) != AcRx::kRetError;
    const auto place = std::find_if(m_starting.begin(), m_starting.end(),
                                    [&](const ModulePtr& other) { return other.get() == module; });
    ModulePtr owned = std::move(*place);
    m_starting.erase(place);
    if (!accepted)
    {
        arxed::CommandStack::Instance().RemoveFrom(owned->file);
        reason = L"它拒绝启动（对初始化消息答复了错误）";
        return false;
    }
    // Behind the modules that it loaded itself, so that it is told to end before them.
    m_modules.push_back(std::move(owned));
    TellDrawings(module->file, AcRx::kLoadDwgMsg);
    return true;
}

bool DynamicLinker::unloadModule(const ACHAR* fileName, bool asCmd)
{
    Module* module = Find(fileName);
    if (module == nullptr || module->unloading)
    {
        return false;
    }
    if (module->references > 1)
    {
        module->references -= asCmd ? 0 : 1;
        return !asCmd;
    }
    // A module that is still in kInitAppMsg runs on when the caller returns.
    const bool complete = std::none_of(m_starting.begin(), m_starting.end(),
                                       [&](const ModulePtr& starting) { return starting.get() == module; });
    return complete && !module->locked && Stop(*module);
}

bool DynamicLinker::Stop(Module& module)
{
    const std::wstring path = module.path;
    module.unloading = true;
    m_reactors.Tell([&](AcRxDLinkerReactor& reactor) { reactor.rxAppWillBeUnloaded(path.c_str()); });
    TellDrawings(module.file, AcRx::kUnloadDwgMsg);
    if (module.file.Send(AcRx::kUnloadAppMsg, nullptr) == AcRx::kRetError)
    {
        module.unloading = false;
        TellDrawings(module.file, AcRx::kLoadDwgMsg);
        m_reactors.Tell([&](AcRxDLinkerReactor& reactor) { reactor.rxAppUnloadAborted(path.c_str()); });
        return false;
    }
    Remove(module);
    m_reactors.Tell([&](AcRxDLinkerReactor& reactor) { reactor.rxAppUnloaded(path.c_str()); });
    return true;
}

void DynamicLinker::Remove(Module& module)
{
    // What a module forgot to remove would be called into nothing.
    arxed::CommandStack::Instance().RemoveFrom(module.file);
    m_modules.erase(std::find_if(m_modules.begin(), m_modules.end(),
                                 [&](const ModulePtr& other) { return other.get() == &module; }));
}

bool DynamicLinker::lockApplication(void* appId) const
{
    Module* module = FindById(appId);
    if (module != nullptr)
    {
        module->locked = true;
    }
    return module != nullptr;
}

bool DynamicLinker::unlockApplication(void* appId) const
{
    Module* module = FindById(appId);
    if (module != nullptr)
    {
        module->locked = false;
    }
    return module != nullptr;
}

bool DynamicLinker::isApplicationLocked(const ACHAR* name) const
{
    const Module* module = Find(name);
    return module != nullptr && module->locked;
}

bool DynamicLinker::registerAppMDIAware(void* appId) const
{
    Module* module = FindById(appId);
    if (module != nullptr)
    {
        module->mdiAware = true;
    }
    return module != nullptr;
}

bool DynamicLinker::registerAppNotMDIAware(void* appId) const
{
    Module* module = FindById(appId);
    if (module != nullptr)
    {
        module->mdiAware = false;
    }
    return module != nullptr;
}

bool DynamicLinker::isAppMDIAware(const ACHAR* name) const
{
    const Module* module = Find(name);
    return module != nullptr && module->mdiAware;
}

void DynamicLinker::addReactor(AcRxDLinkerReactor* reactor)
{
    m_reactors.Add(reactor);
}

void DynamicLinker::removeReactor(AcRxDLinkerReactor* reactor)
{
    m_reactors.Remove(reactor);
}

bool DynamicLinker::IsLoaded(const ACHAR* name) const
{
    const Module* module = Find(name);
    return module != nullptr && !module->unloading;
}

std::vector<std::wstring> DynamicLinker::Paths() const
{
    std::vector<std::wstring> paths;
    for (const ModulePtr& module : m_modules)
    {
        paths.push_back(module->path);
    }
    return paths;
}

void DynamicLinker::Send(AcRx::AppMsgCode message)
{
    // By identity, because a module may unload others when it is told.
    std::vector<Module*> audience;
    for (const ModulePtr& module : m_modules)
    {
        audience.push_back(module.get());
    }
    for (Module* module : audience)
    {
        if (FindById(module) != nullptr && !module->unloading)
        {
            module->file.Send(message, nullptr);
        }
    }
}

void DynamicLinker::UnloadAll()
{
    Send(AcRx::kQuitMsg);
    while (!m_modules.empty())
    {
        Module& last = *m_modules.back();
        last.unloading = true;
        TellDrawings(last.file, AcRx::kUnloadDwgMsg);
        last.file.Send(AcRx::kUnloadAppMsg, nullptr);
        Remove(last);
    }
}

DynamicLinker::Module* DynamicLinker::Find(const ACHAR* name) const
{
    const std::wstring wanted = WithExtension(name == nullptr ? L"" : name);
    const bool hasFolder = !FolderOf(wanted).empty();
    const std::wstring path = hasFolder ? FindModuleFile(wanted, {}) : wanted;
    for (const Modules* list : {&m_starting, &m_modules})
    {
        for (const ModulePtr& module : *list)
        {
            const std::wstring candidate = hasFolder ? module->path : FileNameOf(module->path);
            if (SameName(candidate.c_str(), path.c_str()))
            {
                return module.get();
            }
        }
    }
    return nullptr;
}

DynamicLinker::Module* DynamicLinker::FindById(const void* appId) const
{
    for (const Modules* list : {&m_starting, &m_modules})
    {
        for (const ModulePtr& module : *list)
        {
            if (module.get() == appId)
            {
                return module.get();
            }
        }
    }
    return nullptr;
}

std::vector<std::wstring> DynamicLinker::SearchFolders() const
{
    std::vector<std::wstring> folders;
    if (!m_starting.empty())
    {
        folders.push_back(FolderOf(m_starting.back()->path));
    }
    folders.push_back(ProgramFolder());
    return folders;
}

} // namespace arxrx
