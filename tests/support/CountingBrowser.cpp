#include "CountingBrowser.h"

#include "ComObject.h"

#include <olectl.h>

// The control's own connection point, counted.
class CountingBrowser::ConnectionPoint : public ComObject<IConnectionPoint>
{
public:
    ConnectionPoint(CountingBrowser& owner, IConnectionPoint* real) : ComObject(1), m_owner(owner), m_real(real) {}
    ~ConnectionPoint() override { m_real->Release(); }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IConnectionPoint ? this : nullptr;
        if (*object == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP GetConnectionInterface(IID* id) override { return m_real->GetConnectionInterface(id); }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override
    {
        return m_real->GetConnectionPointContainer(container);
    }
    STDMETHODIMP Advise(IUnknown* receiver, DWORD* cookie) override
    {
        if (m_owner.m_refusal == Connection)
            return CONNECT_E_ADVISELIMIT;
        const HRESULT result = m_real->Advise(receiver, cookie);
        if (FAILED(result))
            return result;
        ++m_owner.m_advised;
        m_owner.m_receiverCookie = *cookie;
        receiver->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&m_owner.m_receiver));
        return result;
    }
    STDMETHODIMP Unadvise(DWORD cookie) override
    {
        if (m_owner.m_receiver != nullptr && cookie == m_owner.m_receiverCookie)
        {
            ++m_owner.m_unadvised;
            m_owner.m_receiver->Release();
            m_owner.m_receiver = nullptr;
        }
        return m_real->Unadvise(cookie);
    }
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override
    {
        return m_real->EnumConnections(connections);
    }

private:
    CountingBrowser& m_owner;
    IConnectionPoint* m_real;
};

// What the container of the control holds. Interfaces that are not counted are the bare control's.
class CountingBrowser::Shell : public ComObject<IOleObject, IConnectionPointContainer>
{
public:
    Shell(CountingBrowser& owner, IOleObject* real) : ComObject(0), m_owner(owner), m_real(real) { ++m_owner.m_alive; }
    ~Shell() override
    {
        m_real->Release();
        --m_owner.m_alive;
    }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        if (id == IID_IUnknown || id == IID_IOleObject)
            *object = static_cast<IOleObject*>(this);
        else if (id == IID_IConnectionPointContainer && m_owner.m_refusal != Container)
            *object = static_cast<IConnectionPointContainer*>(this);
        else if (id == IID_IConnectionPointContainer)
            *object = nullptr;
        else
            return m_real->QueryInterface(id, object);
        if (*object == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** point) override
    {
        *point = nullptr;
        IConnectionPointContainer* real = nullptr;
        if (m_owner.m_refusal == Point ||
            FAILED(m_real->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&real))))
            return CONNECT_E_NOCONNECTION;
        const HRESULT result = real->FindConnectionPoint(id, point);
        real->Release();
        if (SUCCEEDED(result) && id == DIID_DWebBrowserEvents2)
            *point = new ConnectionPoint(m_owner, *point);
        return result;
    }

    STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent, LPCRECT place) override
    {
        return m_owner.m_refusal == Activation ? E_FAIL : m_real->DoVerb(verb, message, site, index, parent, place);
    }
    STDMETHODIMP SetClientSite(IOleClientSite* site) override { return m_real->SetClientSite(site); }
    STDMETHODIMP GetClientSite(IOleClientSite** site) override { return m_real->GetClientSite(site); }
    STDMETHODIMP SetHostNames(LPCOLESTR program, LPCOLESTR object) override
    {
        return m_real->SetHostNames(program, object);
    }
    STDMETHODIMP Close(DWORD option) override { return m_real->Close(option); }
    STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) override { return m_real->SetMoniker(which, moniker); }
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override
    {
        return m_real->GetMoniker(assign, which, moniker);
    }
    STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override
    {
        return m_real->InitFromData(data, creation, reserved);
    }
    STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) override
    {
        return m_real->GetClipboardData(reserved, data);
    }
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override { return m_real->EnumVerbs(verbs); }
    STDMETHODIMP Update() override { return m_real->Update(); }
    STDMETHODIMP IsUpToDate() override { return m_real->IsUpToDate(); }
    STDMETHODIMP GetUserClassID(CLSID* id) override { return m_real->GetUserClassID(id); }
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR* type) override { return m_real->GetUserType(form, type); }
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override { return m_real->SetExtent(aspect, size); }
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override { return m_real->GetExtent(aspect, size); }
    STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) override { return m_real->Advise(sink, connection); }
    STDMETHODIMP Unadvise(DWORD connection) override { return m_real->Unadvise(connection); }
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** sinks) override { return m_real->EnumAdvise(sinks); }
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override { return m_real->GetMiscStatus(aspect, status); }
    STDMETHODIMP SetColorScheme(LOGPALETTE* palette) override { return m_real->SetColorScheme(palette); }

private:
    CountingBrowser& m_owner;
    IOleObject* m_real;
};

CountingBrowser::CountingBrowser(Refusal refusal) : m_refusal(refusal)
{
    ::OleInitialize(nullptr);
    // The bare control's factory, which nobody finds any more once this one is registered.
    ::CoGetClassObject(CLSID_WebBrowser, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                       reinterpret_cast<void**>(&m_real));
    ::CoRegisterClassObject(CLSID_WebBrowser, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_cookie);
}

CountingBrowser::~CountingBrowser()
{
    ::CoRevokeClassObject(m_cookie);
    if (m_receiver != nullptr)
        m_receiver->Release();
    if (m_real != nullptr)
        m_real->Release();
    ::OleUninitialize();
}

bool CountingBrowser::Fire(DISPID event)
{
    IDispatch* const receiver = m_receiver;
    if (receiver == nullptr)
        return false;
    receiver->AddRef(); // it may be disconnected inside its event
    DISPPARAMS none = {};
    receiver->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
    receiver->Release();
    return true;
}

STDMETHODIMP CountingBrowser::QueryInterface(REFIID id, void** object)
{
    *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
}

STDMETHODIMP CountingBrowser::CreateInstance(IUnknown*, REFIID id, void** object)
{
    *object = nullptr;
    IOleObject* real = nullptr;
    if (m_real == nullptr || FAILED(m_real->CreateInstance(nullptr, IID_IOleObject, reinterpret_cast<void**>(&real))))
        return CLASS_E_CLASSNOTAVAILABLE;
    Shell* const made = new Shell(*this, real);
    made->AddRef();
    const HRESULT result = made->QueryInterface(id, object);
    made->Release();
    return result;
}
