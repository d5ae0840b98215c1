#include "BrokenControl.h"

#include "ComObject.h"

class BrokenControl::Object : public ComObject<IOleObject>
{
public:
    explicit Object(BrokenControl& owner) : ComObject(0), m_owner(owner)
    {
        ++m_owner.m_created;
        ++m_owner.m_alive;
    }
    ~Object() override { --m_owner.m_alive; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IOleObject ? static_cast<IOleObject*>(this) : nullptr;
        if (*object == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP SetClientSite(IOleClientSite*) override { return E_FAIL; }
    STDMETHODIMP GetClientSite(IOleClientSite**) override { return E_FAIL; }
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return E_FAIL; }
    STDMETHODIMP Close(DWORD) override { return E_FAIL; }
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_FAIL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_FAIL; }
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_FAIL; }
    STDMETHODIMP GetClipboardData(DWORD, IDataObject**) override { return E_FAIL; }
    STDMETHODIMP DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override { return E_FAIL; }
    STDMETHODIMP EnumVerbs(IEnumOLEVERB**) override { return E_FAIL; }
    STDMETHODIMP Update() override { return E_FAIL; }
    STDMETHODIMP IsUpToDate() override { return E_FAIL; }
    STDMETHODIMP GetUserClassID(CLSID*) override { return E_FAIL; }
    STDMETHODIMP GetUserType(DWORD, LPOLESTR*) override { return E_FAIL; }
    STDMETHODIMP SetExtent(DWORD, SIZEL*) override { return E_FAIL; }
    STDMETHODIMP GetExtent(DWORD, SIZEL*) override { return E_FAIL; }
    STDMETHODIMP Advise(IAdviseSink*, DWORD*) override { return E_FAIL; }
    STDMETHODIMP Unadvise(DWORD) override { return E_FAIL; }
    STDMETHODIMP EnumAdvise(IEnumSTATDATA**) override { return E_FAIL; }
    STDMETHODIMP GetMiscStatus(DWORD, DWORD*) override { return E_FAIL; }
    STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_FAIL; }

private:
    BrokenControl& m_owner;
};

STDMETHODIMP BrokenControl::CreateInstance(IUnknown*, REFIID id, void** object)
{
    *object = nullptr;
    if (m_kind == Missing)
        return CLASS_E_CLASSNOTAVAILABLE;
    Object* const made = new Object(*this);
    const HRESULT result = made->QueryInterface(id, object);
    if (FAILED(result))
        delete made;
    return result;
}
