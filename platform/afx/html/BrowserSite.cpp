#include "afx/html/BrowserSite.h"

#include "afx/core/ComPtr.h"

void BrowserSite::Disconnect()
{
    m_events = nullptr;
    m_window = nullptr;
}

STDMETHODIMP BrowserSite::QueryInterface(REFIID id, void** object)
{
    if (object == nullptr)
        return E_POINTER;
    if (id == IID_IUnknown || id == IID_IOleClientSite)
        *object = static_cast<IOleClientSite*>(this);
    else if (id == IID_IOleInPlaceSite || id == IID_IOleWindow)
        *object = static_cast<IOleInPlaceSite*>(this);
    else if (id == IID_IOleInPlaceFrame || id == IID_IOleInPlaceUIWindow)
        *object = static_cast<IOleInPlaceFrame*>(this);
    else if (id == IID_IDispatch || id == DIID_DWebBrowserEvents2)
        *object = static_cast<IDispatch*>(this);
    else
        *object = nullptr;
    if (*object == nullptr)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) BrowserSite::AddRef()
{
    return ++m_references;
}

STDMETHODIMP_(ULONG) BrowserSite::Release()
{
    const ULONG left = --m_references;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP BrowserSite::GetMoniker(DWORD, DWORD, IMoniker** moniker)
{
    *moniker = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP BrowserSite::GetContainer(IOleContainer** container)
{
    *container = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP BrowserSite::GetWindow(HWND* window)
{
    *window = m_window;
    return m_window == nullptr ? E_FAIL : S_OK;
}

STDMETHODIMP BrowserSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place,
                                           LPRECT clip, LPOLEINPLACEFRAMEINFO info)
{
    *frame = this;
    AddRef();
    *document = nullptr;
    ::GetClientRect(m_window, place);
    *clip = *place;
    info->fMDIApp = FALSE;
    info->hwndFrame = ::GetAncestor(m_window, GA_ROOT);
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

STDMETHODIMP BrowserSite::GetTypeInfoCount(UINT* count)
{
    *count = 0;
    return S_OK;
}

STDMETHODIMP BrowserSite::Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT*, EXCEPINFO*,
                                 UINT*)
{
    // Questions for properties of the surroundings (colours, fonts) come here as well: the control knows what is usual.
    if (!(flags & DISPATCH_METHOD) || params == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    const CComPtr<IOleClientSite> self(this); // the event may end the control that holds this object
    if (m_events != nullptr)
        m_events->OnBrowserEvent(member, BrowserArguments(*params));
    return S_OK;
}
