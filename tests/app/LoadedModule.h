// ZNKTControls.arx as the host loads it, with its exported functions looked up by name: nothing of it is linked, so
// that it really leaves the process when it is unloaded.
#pragma once

#include "msg/KTMsgWnd.h"

#include <rxregsvc.h>

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

    bool Add(const wchar_t* group, const wchar_t* text) const
    {
        const auto add = Find<decltype(&KTMsgWnd::AddMsg)>(
            "_ZN8KTMsgWnd6AddMsgENS_8EMsgTypeEPKwS2_bPK7AcArrayI12AcDbObjectId24AcArrayMemCopyReallocatorIS4_"
            "EEPK11AcDbExtents");
        return add != NULL && add(KTMsgWnd::eInfo, group, text, false, NULL, NULL);
    }

    int Count(const wchar_t* group) const
    {
        return Find<decltype(&KTMsgWnd::GetMsgCount)>("_ZN8KTMsgWnd11GetMsgCountEPKw")(group);
    }

    bool Show(bool show) const { return Find<decltype(&KTMsgWnd::ShowMsgWnd)>("_ZN8KTMsgWnd10ShowMsgWndEb")(show); }

    template<class FUNCTION>
    FUNCTION Find(const char* name) const
    {
        // By way of void*, because the compiler warns of casts between function types.
        return reinterpret_cast<FUNCTION>(reinterpret_cast<void*>(::GetProcAddress(Handle(), name)));
    }

private:
    bool m_loaded;
};
