// Every event of the browser control, given to the receiver that the view has connected to it: also those that the
// control sends only with a page to show.
#include "HtmlViewFixture.h"

#include <exdispid.h>
#include <olectl.h>
#include <oleauto.h>

namespace
{

// A view that writes each event down as text.
class TellingView : public CHtmlView
{
public:
    ~TellingView() override = default;
    using CHtmlView::m_pBrowserApp;

    void OnBeforeNavigate2(LPCTSTR url, DWORD flags, LPCTSTR target, CByteArray& data, LPCTSTR headers,
                           BOOL* cancel) override
    {
        m_data.assign(data.GetData(), data.GetData() + data.GetSize());
        m_told.Format(L"before %s %u %s %s %d", url, flags, target, headers, *cancel);
        *cancel = m_cancel;
    }
    void OnNavigateComplete2(LPCTSTR url) override { m_told.Format(L"navigated %s", url); }
    void OnDocumentComplete(LPCTSTR url) override { m_told.Format(L"document %s", url); }
    void OnNavigateError(LPCTSTR url, LPCTSTR frame, DWORD error, BOOL* cancel) override
    {
        m_told.Format(L"error %s %s %u", url, frame, error);
        *cancel = m_cancel;
    }
    void OnTitleChange(LPCTSTR text) override { m_told.Format(L"title %s", text); }
    void OnStatusTextChange(LPCTSTR text) override { m_told.Format(L"status %s", text); }
    void OnProgressChange(long progress, long progressMax) override
    {
        m_told.Format(L"progress %ld %ld", progress, progressMax);
    }
    void OnCommandStateChange(long command, BOOL enable) override { m_told.Format(L"command %ld %d", command, enable); }
    void OnDownloadBegin() override { m_told = L"begin"; }
    void OnDownloadComplete() override { m_told = L"complete"; }
    void OnPropertyChange(LPCTSTR property) override { m_told.Format(L"property %s", property); }
    void OnNewWindow2(LPDISPATCH* object, BOOL* cancel) override
    {
        m_told.Format(L"window %d", *object == nullptr);
        *cancel = m_cancel;
    }
    void OnVisible(BOOL visible) override { m_told.Format(L"visible %d", visible); }
    void OnQuit() override { m_told = L"quit"; }
    void PostNcDestroy() override {}

    CString m_told;
    std::vector<BYTE> m_data;
    BOOL m_cancel = FALSE;
};

// Arguments in the order of the documentation; the system wants them reversed.
class Arguments
{
public:
    ~Arguments()
    {
        for (VARIANT& value : m_values)
            ::VariantClear(&value);
    }

    Arguments& Text(const wchar_t* text)
    {
        VARIANT& value = Add(VT_BSTR);
        value.bstrVal = ::SysAllocString(text);
        return *this;
    }
    Arguments& Number(long number)
    {
        Add(VT_I4).lVal = number;
        return *this;
    }
    Arguments& Flag(bool flag)
    {
        Add(VT_BOOL).boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
        return *this;
    }
    Arguments& FlagOut(VARIANT_BOOL& flag)
    {
        Add(VT_BOOL | VT_BYREF).pboolVal = &flag;
        return *this;
    }
    Arguments& ObjectOut(IDispatch*& object)
    {
        Add(VT_DISPATCH | VT_BYREF).ppdispVal = &object;
        return *this;
    }
    Arguments& Reference(VARIANT& other)
    {
        Add(VT_VARIANT | VT_BYREF).pvarVal = &other;
        return *this;
    }
    Arguments& Nothing()
    {
        Add(VT_EMPTY);
        return *this;
    }

    DISPPARAMS Get()
    {
        m_reversed.assign(m_values.rbegin(), m_values.rend());
        DISPPARAMS params = {};
        params.cArgs = static_cast<UINT>(m_reversed.size());
        params.rgvarg = m_reversed.data();
        return params;
    }

private:
    VARIANT& Add(int type)
    {
        VARIANT value;
        ::VariantInit(&value);
        value.vt = static_cast<VARTYPE>(type);
        m_values.push_back(value);
        return m_values.back();
    }

    std::vector<VARIANT> m_values;
    std::vector<VARIANT> m_reversed; // copies that own nothing
};

} // namespace

class HtmlEvents : public HtmlViewFixture
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(Create(view));
        // The receiver of events is the site of the control; asking the connection point for it fails under Wine.
        CComPtr<IOleObject> object;
        CComPtr<IOleClientSite> site;
        ASSERT_EQ(S_OK, view.m_pBrowserApp.QueryInterface(&object));
        ASSERT_EQ(S_OK, object->GetClientSite(&site));
        ASSERT_EQ(S_OK, site.QueryInterface(&receiver));
    }

    CString Tell(DISPID event, Arguments& arguments)
    {
        view.m_told.Empty();
        DISPPARAMS params = arguments.Get();
        receiver->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
        return view.m_told;
    }

    CString Tell(DISPID event, Arguments&& arguments) { return Tell(event, arguments); }

    TellingView view;
    CComPtr<IDispatch> receiver;
};

TEST_F(HtmlEvents, ReachTheirVirtualFunctions)
{
    IDispatch* object = nullptr;
    VARIANT_BOOL flag = VARIANT_FALSE;
    EXPECT_EQ(L"navigated u", Tell(DISPID_NAVIGATECOMPLETE2, Arguments().Nothing().Text(L"u")));
    EXPECT_EQ(L"document u", Tell(DISPID_DOCUMENTCOMPLETE, Arguments().Nothing().Text(L"u")));
    EXPECT_EQ(L"error u f 404",
              Tell(DISPID_NAVIGATEERROR, Arguments().Nothing().Text(L"u").Text(L"f").Number(404).FlagOut(flag)));
    EXPECT_EQ(L"title 标题", Tell(DISPID_TITLECHANGE, Arguments().Text(L"标题")));
    EXPECT_EQ(L"status 完成", Tell(DISPID_STATUSTEXTCHANGE, Arguments().Text(L"完成")));
    EXPECT_EQ(L"progress 3 10", Tell(DISPID_PROGRESSCHANGE, Arguments().Number(3).Number(10)));
    EXPECT_EQ(L"command 2 1", Tell(DISPID_COMMANDSTATECHANGE, Arguments().Number(2).Flag(true)));
    EXPECT_EQ(L"begin", Tell(DISPID_DOWNLOADBEGIN, Arguments()));
    EXPECT_EQ(L"complete", Tell(DISPID_DOWNLOADCOMPLETE, Arguments()));
    EXPECT_EQ(L"property p", Tell(DISPID_PROPERTYCHANGE, Arguments().Text(L"p")));
    EXPECT_EQ(L"window 1", Tell(DISPID_NEWWINDOW2, Arguments().ObjectOut(object).FlagOut(flag)));
    EXPECT_EQ(L"visible 0", Tell(DISPID_ONVISIBLE, Arguments().Flag(false)));
    EXPECT_EQ(L"quit", Tell(DISPID_ONQUIT, Arguments()));
}

TEST_F(HtmlEvents, CarryTheAnswerBack)
{
    IDispatch* object = nullptr;
    VARIANT_BOOL flag = VARIANT_FALSE;
    view.m_cancel = TRUE;
    Tell(DISPID_NAVIGATEERROR, Arguments().Nothing().Text(L"u").Text(L"f").Number(404).FlagOut(flag));
    EXPECT_EQ(VARIANT_TRUE, flag);
    flag = VARIANT_FALSE;
    Tell(DISPID_NEWWINDOW2, Arguments().ObjectOut(object).FlagOut(flag));
    EXPECT_EQ(VARIANT_TRUE, flag);
}

TEST_F(HtmlEvents, ACancellationBySomebodyElseIsSeenAndCanBeTakenBack)
{
    VARIANT_BOOL flag = VARIANT_TRUE;
    Arguments arguments;
    arguments.Nothing().Text(L"u").Number(64).Text(L"t").Nothing().Text(L"h").FlagOut(flag);
    EXPECT_EQ(L"before u 64 t h 1", Tell(DISPID_BEFORENAVIGATE2, arguments));
    EXPECT_EQ(VARIANT_FALSE, flag);
}

TEST_F(HtmlEvents, TellThePostedBytes)
{
    SAFEARRAY* array = ::SafeArrayCreateVector(VT_UI1, 0, 3);
    memcpy(array->pvData, "a\0z", 3);
    VARIANT bytes;
    bytes.vt = VT_ARRAY | VT_UI1;
    bytes.parray = array;
    VARIANT_BOOL flag = VARIANT_FALSE;
    Arguments arguments;
    arguments.Nothing().Text(L"u").Number(0).Nothing().Reference(bytes).Nothing().FlagOut(flag);
    EXPECT_EQ(L"before u 0   0", Tell(DISPID_BEFORENAVIGATE2, arguments));
    EXPECT_EQ((std::vector<BYTE>{'a', 0, 'z'}), view.m_data);
    bytes.vt = VT_ARRAY | VT_UI1 | VT_BYREF;
    bytes.pparray = &array;
    view.m_data.clear();
    Tell(DISPID_BEFORENAVIGATE2, arguments);
    EXPECT_EQ((std::vector<BYTE>{'a', 0, 'z'}), view.m_data);
    ::SafeArrayDestroy(array);
}

TEST_F(HtmlEvents, MissingOrStrangeArgumentsReadAsNothing)
{
    EXPECT_EQ(L"before  0   0", Tell(DISPID_BEFORENAVIGATE2, Arguments()));
    EXPECT_TRUE(view.m_data.empty());
    EXPECT_EQ(L"title ", Tell(DISPID_TITLECHANGE, Arguments().Nothing()));
    EXPECT_EQ(L"progress 0 0", Tell(DISPID_PROGRESSCHANGE, Arguments().Text(L"none")));
    EXPECT_EQ(L"window 1", Tell(DISPID_NEWWINDOW2, Arguments()));
    EXPECT_EQ(L"title 5", Tell(DISPID_TITLECHANGE, Arguments().Number(5)));
}

TEST_F(HtmlEvents, QuestionsAndUnknownEventsAreLeft)
{
    DISPPARAMS none = {};
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, receiver->Invoke(DISPID_AMBIENT_USERMODE, IID_NULL, 0, DISPATCH_PROPERTYGET, &none,
                                                      nullptr, nullptr, nullptr));
    EXPECT_EQ(S_OK, receiver->Invoke(4711, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr));
    EXPECT_EQ(L"", view.m_told);
}

TEST_F(HtmlEvents, AReceiverThatIsKeptOutlivesTheView)
{
    view.DestroyWindow();
    EXPECT_EQ(L"", Tell(DISPID_TITLECHANGE, Arguments().Text(L"late")));
    CComPtr<IOleInPlaceSite> site;
    HWND window = nullptr;
    ASSERT_EQ(S_OK, receiver.QueryInterface(&site));
    EXPECT_EQ(E_FAIL, site->GetWindow(&window));
}
