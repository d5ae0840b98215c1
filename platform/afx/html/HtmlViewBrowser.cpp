#include "afx/html/HtmlViewBrowser.h"

#include <exdispid.h>

namespace
{
// The answer of a handler to an event that can be cancelled. The event's flag belongs to the control and outlives the
// view.
class CancelFlag
{
public:
    explicit CancelFlag(VARIANT_BOOL* flag) : m_flag(flag)
    {
        if (m_flag != nullptr)
            m_cancel = *m_flag != VARIANT_FALSE;
    }
    ~CancelFlag()
    {
        if (m_flag != nullptr)
            *m_flag = m_cancel ? VARIANT_TRUE : VARIANT_FALSE;
    }
    CancelFlag(const CancelFlag&) = delete;
    CancelFlag& operator=(const CancelFlag&) = delete;

    BOOL* Get() { return &m_cancel; }

private:
    VARIANT_BOOL* m_flag;
    BOOL m_cancel = FALSE;
};
} // namespace

void HtmlViewBrowser::OnBrowserEvent(DISPID event, const BrowserArguments& arguments)
{
    switch (event)
    {
    case DISPID_BEFORENAVIGATE2:
        return BeforeNavigate(arguments);
    case DISPID_NAVIGATECOMPLETE2:
        return m_view.OnNavigateComplete2(arguments.Text(1));
    case DISPID_DOCUMENTCOMPLETE:
        return m_view.OnDocumentComplete(arguments.Text(1));
    case DISPID_NAVIGATEERROR:
        return NavigateError(arguments);
    case DISPID_TITLECHANGE:
        return m_view.OnTitleChange(arguments.Text(0));
    case DISPID_STATUSTEXTCHANGE:
        return m_view.OnStatusTextChange(arguments.Text(0));
    case DISPID_PROGRESSCHANGE:
        return m_view.OnProgressChange(arguments.Number(0), arguments.Number(1));
    case DISPID_COMMANDSTATECHANGE:
        return m_view.OnCommandStateChange(arguments.Number(0), arguments.Flag(1));
    case DISPID_DOWNLOADBEGIN:
        return m_view.OnDownloadBegin();
    case DISPID_DOWNLOADCOMPLETE:
        return m_view.OnDownloadComplete();
    case DISPID_PROPERTYCHANGE:
        return m_view.OnPropertyChange(arguments.Text(0));
    case DISPID_NEWWINDOW2:
        return NewWindow(arguments);
    case DISPID_ONVISIBLE:
        return m_view.OnVisible(arguments.Flag(0));
    case DISPID_ONQUIT:
        return m_view.OnQuit();
    default:
        return;
    }
}

void HtmlViewBrowser::BeforeNavigate(const BrowserArguments& arguments)
{
    CByteArray postedData;
    arguments.Bytes(4, postedData);
    CancelFlag cancel(arguments.FlagByReference(6));
    m_view.OnBeforeNavigate2(arguments.Text(1), static_cast<DWORD>(arguments.Number(2)), arguments.Text(3), postedData,
                             arguments.Text(5), cancel.Get());
}

void HtmlViewBrowser::NavigateError(const BrowserArguments& arguments)
{
    CancelFlag cancel(arguments.FlagByReference(4));
    m_view.OnNavigateError(arguments.Text(1), arguments.Text(2), static_cast<DWORD>(arguments.Number(3)), cancel.Get());
}

void HtmlViewBrowser::NewWindow(const BrowserArguments& arguments)
{
    IDispatch** const object = arguments.ObjectByReference(0);
    IDispatch* ignored = nullptr;
    CancelFlag cancel(arguments.FlagByReference(1));
    m_view.OnNewWindow2(object == nullptr ? &ignored : object, cancel.Get());
    if (ignored != nullptr)
        ignored->Release();
}
