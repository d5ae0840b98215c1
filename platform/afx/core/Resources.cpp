#include "afx/core/Resources.h"

#include "afx/core/String.h"
#include "afx/core/ThreadResources.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace
{
const WORD kNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);

struct Modules
{
    std::mutex mutex;
    HINSTANCE current = NULL;
    std::vector<HINSTANCE> extensions;
};

// Never destroyed: extension modules leave late, some after this DLL's own statics are gone.
Modules& TheModules()
{
    static Modules& modules = *new Modules;
    return modules;
}

thread_local HINSTANCE g_threadModule = NULL;

// The current module and the extensions, in search order.
std::vector<HINSTANCE> SearchOrder()
{
    const HINSTANCE current = AfxGetResourceHandle();
    Modules& modules = TheModules();
    const std::lock_guard<std::mutex> lock(modules.mutex);
    std::vector<HINSTANCE> order(1, current);
    order.insert(order.end(), modules.extensions.begin(), modules.extensions.end());
    return order;
}

template<class HAS>
HINSTANCE FirstWith(HAS has)
{
    const std::vector<HINSTANCE> order = SearchOrder();
    const auto found = std::find_if(order.begin(), order.end(), has);
    return found == order.end() ? order.front() : *found;
}
} // namespace

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    if (g_threadModule != NULL)
        return g_threadModule;
    Modules& modules = TheModules();
    const std::lock_guard<std::mutex> lock(modules.mutex);
    return modules.current == NULL ? ::GetModuleHandleW(NULL) : modules.current;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE module)
{
    if (g_threadModule != NULL)
    {
        g_threadModule = module;
        return;
    }
    Modules& modules = TheModules();
    const std::lock_guard<std::mutex> lock(modules.mutex);
    modules.current = module;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR name, LPCWSTR type)
{
    return FirstWith([=](HINSTANCE module) { return ::FindResourceW(module, name, type) != NULL; });
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT id)
{
    return FirstWith([=](HINSTANCE module) { return afx::FindStringResource(module, id, kNeutral) != NULL; });
}

int AFXAPI AfxLoadString(UINT id, LPWSTR text, UINT maxCount)
{
    CString loaded;
    if (!loaded.LoadString(id) || text == NULL || maxCount == 0)
        return 0;
    lstrcpynW(text, loaded, static_cast<int>(maxCount));
    return lstrlenW(text);
}

namespace afx
{
HINSTANCE ThreadResourceHandle()
{
    return g_threadModule;
}

void SetThreadResourceHandle(HINSTANCE module)
{
    g_threadModule = module;
}

void AddExtensionModule(HINSTANCE module)
{
    Modules& modules = TheModules();
    const std::lock_guard<std::mutex> lock(modules.mutex);
    if (std::find(modules.extensions.begin(), modules.extensions.end(), module) == modules.extensions.end())
        modules.extensions.push_back(module);
}

void RemoveExtensionModule(HINSTANCE module)
{
    Modules& modules = TheModules();
    const std::lock_guard<std::mutex> lock(modules.mutex);
    modules.extensions.erase(std::remove(modules.extensions.begin(), modules.extensions.end(), module),
                             modules.extensions.end());
}

// Strings lie in blocks of 16.
const WORD* FindStringResource(HINSTANCE module, UINT id, WORD language)
{
    const UINT kBlockSize = 16;
    const LPCWSTR blockName = MAKEINTRESOURCEW(id / kBlockSize + 1);
    const HRSRC block = ::FindResourceExW(module, RT_STRING, blockName, language);
    const HGLOBAL loaded = block == NULL ? NULL : ::LoadResource(module, block);
    const WORD* entry = loaded == NULL ? NULL : static_cast<const WORD*>(::LockResource(loaded));
    if (entry == NULL)
        return NULL;
    const WORD* const end = entry + ::SizeofResource(module, block) / sizeof(WORD);
    for (UINT skip = id % kBlockSize; skip > 0 && entry < end; --skip)
        entry += *entry + 1;
    return entry<end&& * entry> 0 ? entry : NULL;
}
} // namespace afx
