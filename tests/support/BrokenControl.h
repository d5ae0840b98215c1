// Puts itself in the place of the system's browser control for this process while it lives.
#pragma once

#include <windows.h>

#include <exdisp.h>
#include <ole2.h>

class BrokenControl : public IClassFactory
{
public:
    enum Kind
    {
        Missing,  // nothing can be created
        NoBrowser // what is created is an object without any interface of a browser
    };

    explicit BrokenControl(Kind kind) : m_kind(kind)
    {
        ::OleInitialize(nullptr);
        ::CoRegisterClassObject(CLSID_WebBrowser, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_cookie);
    }
    ~BrokenControl()
    {
        ::CoRevokeClassObject(m_cookie);
        ::OleUninitialize();
    }
    BrokenControl(const BrokenControl&) = delete;
    BrokenControl& operator=(const BrokenControl&) = delete;

    int Created() const { return m_created; }
    int Alive() const { return m_alive; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *object == nullptr ? E_NOINTERFACE : S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) override;
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    // An embedded object that answers every request with a failure.
    class Object;

    Kind m_kind;
    DWORD m_cookie = 0;
    int m_created = 0;
    int m_alive = 0;
};
