// CHtmlView: a view that shows web pages in the system's WebBrowser control.
//
// Derive from it, create it as a child of a frame or any other window, and override what interests you of the events.
// OLE is started for the thread when it was not. Create: FALSE when the control is missing or broken; the window is
// gone then. Operations do nothing, and answers are empty, while there is no control: before Create, and after
// m_pBrowserApp was released. An event may end the window, and with it the view.
//
// Addresses of events are given as the control tells them: files as paths of the system.
#pragma once

#include "afx/core/ComPtr.h"
#include "afx/frame/FormView.h"

#include <exdisp.h>

class HtmlViewBrowser;

class AFX_API CHtmlView : public CFormView
{
    DECLARE_DYNCREATE(CHtmlView)

public:
    BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                CCreateContext* context = nullptr) override;

    // Navigation. The address may be NULL: nothing happens. flags: BrowserNavConstants. Posted data makes it a POST.
    void Navigate(LPCTSTR url, DWORD flags = 0, LPCTSTR target = nullptr, LPCTSTR headers = nullptr,
                  LPVOID postData = nullptr, DWORD postSize = 0);
    void Navigate2(LPCTSTR url, DWORD flags = 0, LPCTSTR target = nullptr, LPCTSTR headers = nullptr,
                   LPVOID postData = nullptr, DWORD postSize = 0);
    void Navigate2(LPCTSTR url, DWORD flags, CByteArray& postData, LPCTSTR target = nullptr, LPCTSTR headers = nullptr);
    // A page of the current resource module (type HTML). FALSE: there is no control.
    BOOL LoadFromResource(LPCTSTR resource);
    BOOL LoadFromResource(UINT id);
    void GoBack();
    void GoForward();
    void GoHome();
    void Refresh();
    void Stop();

    CString GetLocationURL() const;
    CString GetLocationName() const;
    BOOL GetBusy() const;
    READYSTATE GetReadyState() const;
    LPDISPATCH GetHtmlDocument() const; // the caller releases it; NULL: none
    void SetSilent(BOOL silent);        // no message boxes of scripts
    BOOL GetSilent() const;

    // Events.
    virtual void OnBeforeNavigate2(LPCTSTR url, DWORD flags, LPCTSTR target, CByteArray& postedData, LPCTSTR headers,
                                   BOOL* cancel);
    virtual void OnNavigateComplete2(LPCTSTR url);
    virtual void OnDocumentComplete(LPCTSTR url);
    virtual void OnNavigateError(LPCTSTR url, LPCTSTR frame, DWORD error, BOOL* cancel);
    virtual void OnTitleChange(LPCTSTR text);
    virtual void OnStatusTextChange(LPCTSTR text);
    virtual void OnProgressChange(long progress, long progressMax);
    virtual void OnCommandStateChange(long command, BOOL enable); // 1: forward, 2: back
    virtual void OnDownloadBegin();
    virtual void OnDownloadComplete();
    virtual void OnPropertyChange(LPCTSTR property);
    virtual void OnNewWindow2(LPDISPATCH* object, BOOL* cancel);
    virtual void OnVisible(BOOL visible);
    virtual void OnQuit();

    void OnDraw(CDC* dc) override;
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    CHtmlView();
    ~CHtmlView() override;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()

    CComPtr<IWebBrowser2> m_pBrowserApp; // null: no control
    CWnd m_wndBrowser;                   // the control's window

private:
    friend class HtmlViewBrowser;

    BOOL CreateBrowser();
    void CloseBrowser();

    HtmlViewBrowser* m_browser = nullptr; // owned
};
