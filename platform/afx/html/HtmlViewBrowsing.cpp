// What a program asks of the browser control.
#include <afxhtml.h>

#include "afx/app/Resource.h"

#include <oleauto.h>

namespace
{
// An argument of the control: text, or nothing.
class Argument
{
public:
    explicit Argument(LPCTSTR text) : Argument()
    {
        if (text == nullptr)
            return;
        m_value.vt = VT_BSTR;
        m_value.bstrVal = ::SysAllocString(text);
    }
    explicit Argument(DWORD number) : Argument()
    {
        m_value.vt = VT_I4;
        m_value.lVal = static_cast<LONG>(number);
    }
    Argument(const void* data, DWORD size) : Argument()
    {
        SAFEARRAY* const array = data == nullptr || size == 0 ? nullptr : ::SafeArrayCreateVector(VT_UI1, 0, size);
        if (array == nullptr)
            return;
        memcpy(array->pvData, data, size);
        m_value.vt = VT_ARRAY | VT_UI1;
        m_value.parray = array;
    }
    ~Argument() { ::VariantClear(&m_value); }
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;

    VARIANT* Get() { return &m_value; }

private:
    Argument() { ::VariantInit(&m_value); }

    VARIANT m_value;
};

// A text that the control gives.
class OwnText
{
public:
    OwnText() = default;
    ~OwnText() { ::SysFreeString(m_text); }
    OwnText(const OwnText&) = delete;
    OwnText& operator=(const OwnText&) = delete;

    BSTR* Out() { return &m_text; }
    CString Get() const { return CString(m_text, static_cast<int>(::SysStringLen(m_text))); }

private:
    BSTR m_text = nullptr;
};

CString ModulePath()
{
    CString path;
    ::GetModuleFileName(AfxGetResourceHandle(), path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    return path;
}
} // namespace

void CHtmlView::Navigate(LPCTSTR url, DWORD flags, LPCTSTR target, LPCTSTR headers, LPVOID postData, DWORD postSize)
{
    Navigate2(url, flags, target, headers, postData, postSize);
}

void CHtmlView::Navigate2(LPCTSTR url, DWORD flags, LPCTSTR target, LPCTSTR headers, LPVOID postData, DWORD postSize)
{
    // An event on the way may end the view: this reference keeps the control until the call is through.
    const CComPtr<IWebBrowser2> browser(m_pBrowserApp);
    if (browser == nullptr || url == nullptr)
        return;
    browser->Navigate2(Argument(url).Get(), Argument(flags).Get(), Argument(target).Get(),
                       Argument(postData, postSize).Get(), Argument(headers).Get());
}

void CHtmlView::Navigate2(LPCTSTR url, DWORD flags, CByteArray& postData, LPCTSTR target, LPCTSTR headers)
{
    Navigate2(url, flags, target, headers, postData.GetData(), static_cast<DWORD>(postData.GetSize()));
}

BOOL CHtmlView::LoadFromResource(LPCTSTR resource)
{
    if (m_pBrowserApp == nullptr || resource == nullptr)
        return FALSE;
    if (IS_INTRESOURCE(resource))
        return LoadFromResource(static_cast<UINT>(reinterpret_cast<UINT_PTR>(resource)));
    Navigate2(L"res://" + ModulePath() + L"/" + resource);
    return TRUE;
}

BOOL CHtmlView::LoadFromResource(UINT id)
{
    if (m_pBrowserApp == nullptr)
        return FALSE;
    CString number;
    number.Format(L"/%u", id);
    Navigate2(L"res://" + ModulePath() + number);
    return TRUE;
}

void CHtmlView::GoBack()
{
    const CComPtr<IWebBrowser2> browser(m_pBrowserApp);
    if (browser != nullptr)
        browser->GoBack();
}

void CHtmlView::GoForward()
{
    const CComPtr<IWebBrowser2> browser(m_pBrowserApp);
    if (browser != nullptr)
        browser->GoForward();
}

void CHtmlView::GoHome()
{
    const CComPtr<IWebBrowser2> browser(m_pBrowserApp);
    if (browser != nullptr)
        browser->GoHome();
}

void CHtmlView::Refresh()
{
    const CComPtr<IWebBrowser2> browser(m_pBrowserApp);
    if (browser != nullptr)
        browser->Refresh();
}

void CHtmlView::Stop()
{
    const CComPtr<IWebBrowser2> browser(m_pBrowserApp);
    if (browser != nullptr)
        browser->Stop();
}

CString CHtmlView::GetLocationURL() const
{
    OwnText text;
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->get_LocationURL(text.Out());
    return text.Get();
}

CString CHtmlView::GetLocationName() const
{
    OwnText text;
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->get_LocationName(text.Out());
    return text.Get();
}

BOOL CHtmlView::GetBusy() const
{
    VARIANT_BOOL busy = VARIANT_FALSE;
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->get_Busy(&busy);
    return busy != VARIANT_FALSE;
}

READYSTATE CHtmlView::GetReadyState() const
{
    READYSTATE state = READYSTATE_UNINITIALIZED;
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->get_ReadyState(&state);
    return state;
}

LPDISPATCH CHtmlView::GetHtmlDocument() const
{
    IDispatch* document = nullptr;
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->get_Document(&document);
    return document;
}

void CHtmlView::SetSilent(BOOL silent)
{
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->put_Silent(silent ? VARIANT_TRUE : VARIANT_FALSE);
}

BOOL CHtmlView::GetSilent() const
{
    VARIANT_BOOL silent = VARIANT_FALSE;
    if (m_pBrowserApp != nullptr)
        m_pBrowserApp->get_Silent(&silent);
    return silent != VARIANT_FALSE;
}

void CHtmlView::OnBeforeNavigate2(LPCTSTR, DWORD, LPCTSTR, CByteArray&, LPCTSTR, BOOL*) {}

void CHtmlView::OnNavigateComplete2(LPCTSTR) {}

void CHtmlView::OnDocumentComplete(LPCTSTR) {}

void CHtmlView::OnNavigateError(LPCTSTR, LPCTSTR, DWORD, BOOL*) {}

void CHtmlView::OnTitleChange(LPCTSTR) {}

void CHtmlView::OnStatusTextChange(LPCTSTR) {}

void CHtmlView::OnProgressChange(long, long) {}

void CHtmlView::OnCommandStateChange(long, BOOL) {}

void CHtmlView::OnDownloadBegin() {}

void CHtmlView::OnDownloadComplete() {}

void CHtmlView::OnPropertyChange(LPCTSTR) {}

void CHtmlView::OnNewWindow2(LPDISPATCH*, BOOL*) {}

void CHtmlView::OnVisible(BOOL) {}

void CHtmlView::OnQuit() {}
