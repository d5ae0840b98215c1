// ZNKTControls.arx as the host loads it, with its exported functions looked up by name: nothing of it is linked, so
// that it really leaves the process when it is unloaded.
#pragma once

#include "msg/KTMsgWnd.h"

#include <rxregsvc.h>

#include <cstring>
#include <stdexcept>
#include <string>

class LoadedModule
{
public:
    LoadedModule() : m_loaded(acrxLoadModule(Name(), false, false)) {}
    ~LoadedModule() { Unload(); }

    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    bool IsLoaded() const { return m_loaded; }

    void Unload()
    {
        if (m_loaded)
            acrxUnloadModule(Name(), false);
        m_loaded = false;
    }

    static HMODULE Handle() { return ::GetModuleHandleW(Name()); }
    static const wchar_t* Name() { return L"ZNKTControls.arx"; }

    AcRx::AppRetCode Send(int message, void* packet = NULL) const
    {
        typedef AcRx::AppRetCode (*EntryPoint)(AcRx::AppMsgCode, void*);
        return Find<EntryPoint>("acrxEntryPoint")(static_cast<AcRx::AppMsgCode>(message), packet);
    }

    int ApiVersion() const { return Find<int (*)()>("acrxGetApiVersion")(); }

    bool Add(const wchar_t* group, const wchar_t* text, int times = 1) const
    {
        const auto add = Find<decltype(&KTMsgWnd::AddMsg)>("_ZN8KTMsgWnd6AddMsgE");
        bool added = true;
        for (int i = 0; i < times; ++i)
            added = add(KTMsgWnd::eInfo, group, text, false, NULL, NULL) && added;
        return added;
    }

    int Count(const wchar_t* group) const
    {
        return Find<decltype(&KTMsgWnd::GetMsgCount)>("_ZN8KTMsgWnd11GetMsgCountE")(group);
    }

    bool Show(bool show) const { return Find<decltype(&KTMsgWnd::ShowMsgWnd)>("_ZN8KTMsgWnd10ShowMsgWndE")(show); }

    // The export whose name begins so: what follows in the compiler's names are the parameters.
    template<class FUNCTION>
    FUNCTION Find(const std::string& begin) const
    {
        const BYTE* const base = reinterpret_cast<const BYTE*>(Handle());
        const auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
        const auto headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const DWORD table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
        const auto exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + table);
        const auto names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
        for (DWORD i = 0; i < exports->NumberOfNames; ++i)
        {
            const char* const name = reinterpret_cast<const char*>(base + names[i]);
            // By way of void*, because the compiler warns of casts between function types.
            if (std::strncmp(name, begin.c_str(), begin.size()) == 0)
                return reinterpret_cast<FUNCTION>(reinterpret_cast<void*>(::GetProcAddress(Handle(), name)));
        }
        throw std::runtime_error("the module does not export " + begin);
    }

private:
    bool m_loaded;
};
