// The browser control of a view: turns its events into calls of the view's virtual functions.
#pragma once

#include "afx/html/BrowserHost.h"
#include "afx/html/HtmlView.h"

class HtmlViewBrowser final : private BrowserEvents
{
public:
    explicit HtmlViewBrowser(CHtmlView& view) : m_view(view) {}

    bool Open(HWND window) { return m_host.Open(window, this); }
    BrowserHost& Host() { return m_host; }

private:
    void OnBrowserEvent(DISPID event, const BrowserArguments& arguments) override;

    // The view, and this object with it, may be gone when one of these returns.
    void BeforeNavigate(const BrowserArguments& arguments);
    void NavigateError(const BrowserArguments& arguments);
    void NewWindow(const BrowserArguments& arguments);

    CHtmlView& m_view;
    BrowserHost m_host;
};
