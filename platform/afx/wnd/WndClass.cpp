#include <afxwin.h>

#include <map>
#include <mutex>
#include <set>
#include <string>

namespace
{
// Classes registered by modules. A DLL's classes stay behind when it is unloaded, so that the next load would meet a
// class whose procedure is gone; they are unregistered when the module goes.
class ModuleClasses
{
public:
    void Add(HINSTANCE module, LPCTSTR name)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_names[module].insert(name);
    }
    void Remove(HINSTANCE module, LPCTSTR name)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_names[module].erase(name);
    }
    std::set<std::wstring> Take(HINSTANCE module)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::set<std::wstring> names;
        names.swap(m_names[module]);
        m_names.erase(module);
        return names;
    }

private:
    std::mutex m_mutex;
    std::map<HINSTANCE, std::set<std::wstring>> m_names;
};

ModuleClasses& Classes()
{
    static ModuleClasses classes;
    return classes;
}

bool IsRegistered(HINSTANCE module, LPCTSTR name)
{
    WNDCLASS existing = {};
    return ::GetClassInfo(module, name, &existing) != FALSE;
}
} // namespace

BOOL AFXAPI AfxRegisterClass(WNDCLASS* windowClass)
{
    if (IsRegistered(windowClass->hInstance, windowClass->lpszClassName))
        return TRUE;
    if (::RegisterClass(windowClass) == 0)
        return FALSE;
    if (!IS_INTRESOURCE(windowClass->lpszClassName))
        Classes().Add(windowClass->hInstance, windowClass->lpszClassName);
    return TRUE;
}

BOOL AFXAPI AfxUnregisterClass(LPCTSTR className, HINSTANCE instance)
{
    if (!IS_INTRESOURCE(className))
        Classes().Remove(instance, className);
    return ::UnregisterClass(className, instance);
}

void AFXAPI AfxUnregisterModuleClasses(HINSTANCE instance)
{
    for (const std::wstring& name : Classes().Take(instance))
        ::UnregisterClass(name.c_str(), instance);
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon)
{
    static std::mutex mutex;
    static std::set<std::wstring> names; // the caller keeps the pointer as long as it likes
    const HINSTANCE instance = AfxGetInstanceHandle();

    CString name;
    if (cursor == nullptr && background == nullptr && icon == nullptr)
        name.Format(L"Afx:%p:%x", instance, classStyle);
    else
        name.Format(L"Afx:%p:%x:%p:%p:%p", instance, classStyle, cursor, background, icon);

    WNDCLASS windowClass = {};
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = icon;
    windowClass.hCursor = cursor;
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();

    const std::lock_guard<std::mutex> lock(mutex);
    return names.insert(std::wstring(name)).first->c_str();
}
