#include "afx/html/BrowserHost.h"

#include "afx/html/OleInit.h"

#include <olectl.h>

bool BrowserHost::Open(HWND window, BrowserEvents* events)
{
    // OLE must outlive an event that ends this object, so it stays started for the thread.
    if (!AfxOleInit())
        return false;
    m_window = window;
    m_site.Attach(new BrowserSite(window, events));
    const bool opened = Create() && Connect() && Activate();
    if (!opened)
        Close();
    return opened;
}

void BrowserHost::Close()
{
    if (m_site != nullptr)
        m_site->Disconnect();
    Disconnect();
    m_browser.Release();
    // Closing may run messages and come back here: it finds empty members.
    CComPtr<IOleObject> object;
    object.Attach(m_object.Detach());
    if (object != nullptr)
    {
        CComPtr<IOleInPlaceObject> inPlace;
        if (SUCCEEDED(object.QueryInterface(&inPlace)))
            inPlace->InPlaceDeactivate();
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    m_site.Release();
    m_window = nullptr;
}

HWND BrowserHost::Window() const
{
    CComPtr<IOleInPlaceObject> inPlace;
    HWND window = nullptr;
    if (FAILED(m_object.QueryInterface(&inPlace)) || FAILED(inPlace->GetWindow(&window)))
        return nullptr;
    return window;
}

void BrowserHost::Resize(const RECT& place)
{
    CComPtr<IOleInPlaceObject> inPlace;
    if (SUCCEEDED(m_object.QueryInterface(&inPlace)))
        inPlace->SetObjectRects(&place, &place);
}

bool BrowserHost::TranslateKey(MSG* message)
{
    CComPtr<IOleInPlaceActiveObject> active;
    return SUCCEEDED(m_object.QueryInterface(&active)) && active->TranslateAccelerator(message) == S_OK;
}

bool BrowserHost::Create()
{
    return SUCCEEDED(m_object.CoCreateInstance(CLSID_WebBrowser, nullptr, CLSCTX_INPROC_SERVER)) &&
           SUCCEEDED(m_object.QueryInterface(&m_browser)) && SUCCEEDED(m_object->SetClientSite(m_site));
}

bool BrowserHost::Connect()
{
    CComPtr<IConnectionPointContainer> container;
    return SUCCEEDED(m_object.QueryInterface(&container)) &&
           SUCCEEDED(container->FindConnectionPoint(DIID_DWebBrowserEvents2, &m_connection)) &&
           SUCCEEDED(m_connection->Advise(static_cast<IDispatch*>(m_site), &m_cookie));
}

void BrowserHost::Disconnect()
{
    CComPtr<IConnectionPoint> connection;
    connection.Attach(m_connection.Detach());
    if (connection != nullptr && m_cookie != 0)
        connection->Unadvise(m_cookie);
    m_cookie = 0;
}

bool BrowserHost::Activate()
{
    RECT place = {};
    ::GetClientRect(m_window, &place);
    return SUCCEEDED(m_object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, m_site, 0, m_window, &place)) &&
           Window() != nullptr;
}
