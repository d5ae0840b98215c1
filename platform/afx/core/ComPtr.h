// CComPtr: holds one reference of a COM interface and gives it back at the end of its life.
//
//   CComPtr<IWebBrowser2> browser;
//   source->QueryInterface(IID_IWebBrowser2, reinterpret_cast<void**>(&browser));  // & needs an empty pointer
//   browser.Release();                                                             // early; empties the pointer
//
// The arrow hands out the interface without AddRef and Release: only the pointer may count.
#pragma once

#include "afx/core/Debug.h"

#include <objbase.h>

template<class INTERFACE>
class _NoAddRefReleaseOnCComPtr : public INTERFACE
{
private:
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;
};

template<class INTERFACE>
class CComPtr
{
public:
    CComPtr() : p(nullptr) {}
    CComPtr(INTERFACE* object) : p(object)
    {
        if (p != nullptr)
            p->AddRef();
    }
    CComPtr(const CComPtr& other) : CComPtr(other.p) {}
    ~CComPtr() { Release(); }

    INTERFACE* operator=(INTERFACE* object)
    {
        CComPtr taken(object);
        INTERFACE* const former = p;
        p = taken.p;
        taken.p = former;
        return p;
    }
    INTERFACE* operator=(const CComPtr& other) { return *this = other.p; }

    operator INTERFACE*() const { return p; }
    INTERFACE& operator*() const { return *p; }
    INTERFACE** operator&()
    {
        ASSERT(p == nullptr);
        return &p;
    }
    _NoAddRefReleaseOnCComPtr<INTERFACE>* operator->() const
    {
        return static_cast<_NoAddRefReleaseOnCComPtr<INTERFACE>*>(p);
    }
    bool operator!() const { return p == nullptr; }

    void Release()
    {
        INTERFACE* const former = p;
        p = nullptr; // whoever runs in the last Release finds an empty pointer
        if (former != nullptr)
            former->Release();
    }
    void Attach(INTERFACE* object) // takes the reference over
    {
        Release();
        p = object;
    }
    INTERFACE* Detach()
    {
        INTERFACE* const object = p;
        p = nullptr;
        return object;
    }
    HRESULT CopyTo(INTERFACE** target) const
    {
        if (target == nullptr)
            return E_POINTER;
        *target = p;
        if (p != nullptr)
            p->AddRef();
        return S_OK;
    }
    template<class OTHER>
    HRESULT QueryInterface(OTHER** other) const
    {
        return p == nullptr ? E_POINTER : p->QueryInterface(__uuidof(OTHER), reinterpret_cast<void**>(other));
    }
    HRESULT CoCreateInstance(REFCLSID classId, LPUNKNOWN outer = nullptr, DWORD context = CLSCTX_ALL)
    {
        ASSERT(p == nullptr);
        return ::CoCreateInstance(classId, outer, context, __uuidof(INTERFACE), reinterpret_cast<void**>(&p));
    }

    INTERFACE* p;
};
