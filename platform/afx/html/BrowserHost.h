// The system's browser control in a window: created, activated in place, resized and closed here.
#pragma once

#include "afx/core/ComPtr.h"
#include "afx/html/BrowserSite.h"

class BrowserHost
{
public:
    BrowserHost() = default;
    ~BrowserHost() { Close(); }
    BrowserHost(const BrowserHost&) = delete;
    BrowserHost& operator=(const BrowserHost&) = delete;

    // False when the control is not there or does not do its part; nothing is left of it then.
    bool Open(HWND window, BrowserEvents* events);
    // May be called inside an event. No event comes afterwards.
    void Close();

    IWebBrowser2* Browser() const { return m_browser; } // null before Open and after Close
    HWND Window() const;                                // of the control
    void Resize(const RECT& place);
    // Offers a key to the control; true when it took it.
    bool TranslateKey(MSG* message);

private:
    bool Create();
    bool Connect();
    void Disconnect();
    bool Activate();

    HWND m_window = nullptr;
    CComPtr<BrowserSite> m_site;
    CComPtr<IOleObject> m_object;
    CComPtr<IWebBrowser2> m_browser;
    CComPtr<IConnectionPoint> m_connection;
    DWORD m_cookie = 0;
};
