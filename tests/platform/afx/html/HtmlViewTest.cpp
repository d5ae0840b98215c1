// The view over the system's browser control. The control is the real one; what it shows is its own business, so the
// tests are about events, navigation and the end of things.
#include "HtmlViewFixture.h"

#include <afxdisp.h>

class HtmlView : public HtmlViewFixture
{
protected:
    RecordingHtmlView view;
};

TEST_F(HtmlView, HostsTheControlInItsClientArea)
{
    ASSERT_TRUE(Create(view));
    EXPECT_EQ(view.m_hWnd, ::GetDlgItem(m_parent, ViewId));
    ASSERT_NE(nullptr, view.m_wndBrowser.m_hWnd);
    EXPECT_EQ(view.m_hWnd, ::GetParent(view.m_wndBrowser.m_hWnd));
    CRect control;
    view.m_wndBrowser.GetWindowRect(&control);
    view.ScreenToClient(&control);
    EXPECT_EQ(CRect(0, 0, 200, 100), control);
    EXPECT_NE(nullptr, view.m_pBrowserApp.p);
}

TEST_F(HtmlView, TheControlFollowsItsSize)
{
    ASSERT_TRUE(Create(view));
    view.MoveWindow(0, 0, 320, 240);
    CRect control;
    view.m_wndBrowser.GetClientRect(&control);
    EXPECT_EQ(CSize(320, 240), control.Size());
}

TEST_F(HtmlView, TellsTheAddressBeforeItNavigates)
{
    ASSERT_TRUE(Create(view));
    view.Navigate2(L"app:open?id=3");
    ASSERT_TRUE(WaitFor([&] { return view.Came(L"app:open?id=3"); }));
    EXPECT_FALSE(view.m_cancelBefore);
    EXPECT_EQ(1u, view.m_addresses.size());
}

TEST_F(HtmlView, ACancelledNavigationGoesNoFurther)
{
    ASSERT_TRUE(Create(view));
    view.Navigate2(L"C:\\missing\\first.html");
    ASSERT_TRUE(WaitFor([&] { return view.Came(L"C:\\missing\\first.html"); }));
    view.m_cancel = FALSE;
    view.Navigate2(L"C:\\missing\\second.html");
    ASSERT_TRUE(WaitFor([&] { return !view.m_errors.empty(); }));
    for (const CString& address : view.m_errors)
        EXPECT_LT(address.Find(L"first"), 0) << CStringA(address).GetString();
}

TEST_F(HtmlView, TellsTargetHeadersAndPostedData)
{
    ASSERT_TRUE(Create(view));
    CByteArray data;
    for (const BYTE byte : {BYTE('a'), BYTE(0), BYTE('z')})
        data.Add(byte);
    view.Navigate2(L"http://localhost/form", 0, data, nullptr, L"X-Test: yes\r\n");
    ASSERT_TRUE(WaitFor([&] { return !view.m_addresses.empty(); }));
    EXPECT_EQ(L"X-Test: yes\r\n", view.m_headers);
    // Wine's control hands on as many bytes as were posted, but others; HtmlEventsTest looks at the bytes.
    EXPECT_EQ(3u, view.m_posted.size());
}

TEST_F(HtmlView, IgnoresANullAddress)
{
    ASSERT_TRUE(Create(view));
    view.Navigate2(nullptr);
    view.Navigate(nullptr);
    EXPECT_FALSE(view.LoadFromResource(nullptr));
    view.Navigate2(L"app:after");
    ASSERT_TRUE(WaitFor([&] { return view.Came(L"app:after"); }));
    EXPECT_EQ(1u, view.m_addresses.size());
}

TEST_F(HtmlView, LoadsPagesOfTheResourceModule)
{
    const UINT kPage = 123;
    ASSERT_TRUE(Create(view));
    EXPECT_TRUE(view.LoadFromResource(kPage));
    ASSERT_TRUE(WaitFor([&] { return !view.m_addresses.empty(); }));
    EXPECT_EQ(0, view.m_addresses.back().Find(L"res://"));
    EXPECT_EQ(L"/123", view.m_addresses.back().Right(4));
    EXPECT_TRUE(view.LoadFromResource(L"help.html"));
    ASSERT_TRUE(WaitFor([&] { return view.m_addresses.size() == 2; }));
    EXPECT_EQ(L"/help.html", view.m_addresses.back().Right(10));
}

TEST_F(HtmlView, AnswersNothingWithoutAControl)
{
    EXPECT_EQ(L"", view.GetLocationURL());
    EXPECT_EQ(L"", view.GetLocationName());
    EXPECT_FALSE(view.GetBusy());
    EXPECT_EQ(READYSTATE_UNINITIALIZED, view.GetReadyState());
    EXPECT_EQ(nullptr, view.GetHtmlDocument());
    EXPECT_FALSE(view.GetSilent());
    EXPECT_FALSE(view.LoadFromResource(1u));
    view.Navigate2(L"app:nowhere");
    view.GoBack();
    view.GoForward();
    view.GoHome();
    view.Refresh();
    view.Stop();
    view.SetSilent(TRUE);
    EXPECT_TRUE(view.m_addresses.empty());
}

TEST_F(HtmlView, AsksTheControl)
{
    ASSERT_TRUE(Create(view));
    view.SetSilent(TRUE);
    EXPECT_TRUE(view.GetSilent());
    view.SetSilent(FALSE);
    EXPECT_FALSE(view.GetSilent());
    EXPECT_EQ(nullptr, view.GetHtmlDocument()) << "no page was loaded";
    view.Stop();
    view.GoBack();
    view.GoForward();
}

// The end.

TEST_F(HtmlView, NothingHoldsTheControlWhenTheWindowIsGone)
{
    ASSERT_TRUE(Create(view));
    view.Navigate2(L"app:something");
    ASSERT_TRUE(WaitFor([&] { return view.Came(L"app:something"); }));
    IWebBrowser2* const browser = view.m_pBrowserApp;
    browser->AddRef();
    view.DestroyWindow();
    EXPECT_EQ(nullptr, view.m_pBrowserApp.p);
    EXPECT_EQ(nullptr, view.m_wndBrowser.m_hWnd);
    EXPECT_EQ(0u, browser->Release()) << "the last reference is the test's";
    EXPECT_EQ(1, view.m_lastCalls);
}

TEST_F(HtmlView, CanBeCreatedAgain)
{
    for (int i = 0; i < 5; ++i)
    {
        ASSERT_TRUE(Create(view)) << i;
        view.DestroyWindow();
    }
    ASSERT_TRUE(Create(view));
    view.Navigate2(L"app:again");
    EXPECT_TRUE(WaitFor([&] { return view.Came(L"app:again"); }));
}

TEST_F(HtmlView, MayEndInsideAnEvent)
{
    ASSERT_TRUE(Create(view));
    view.m_onNavigate = [&] { view.DestroyWindow(); };
    view.Navigate2(L"app:close");
    ASSERT_TRUE(WaitFor([&] { return view.m_hWnd == nullptr; }));
    EXPECT_EQ(1, view.m_lastCalls);
    view.Navigate2(L"app:nothing");
    EXPECT_EQ(1u, view.m_addresses.size());
}

TEST_F(HtmlView, MayEndInsideAnEventOfANavigationThatGoesOn)
{
    ASSERT_TRUE(Create(view));
    view.m_cancel = FALSE;
    view.m_onNavigate = [&] { view.DestroyWindow(); };
    view.Navigate2(L"C:\\missing\\page.html");
    ASSERT_TRUE(WaitFor([&] { return view.m_hWnd == nullptr; }));
    EXPECT_TRUE(view.m_errors.empty()) << "no event after the end";
}

namespace
{

// A view as the framework means it: on the heap, ending itself with its window.
class OwnView : public CHtmlView
{
public:
    explicit OwnView(bool& ended) : m_ended(ended) {}
    ~OwnView() override { m_ended = true; }

    void OnBeforeNavigate2(LPCTSTR, DWORD, LPCTSTR, CByteArray&, LPCTSTR, BOOL* cancel) override
    {
        *cancel = TRUE;
        DestroyWindow();
    }

private:
    bool& m_ended;
};

} // namespace

TEST_F(HtmlView, AViewThatEndsItselfMayDoSoInsideAnEvent)
{
    bool ended = false;
    OwnView* const own = new OwnView(ended);
    ASSERT_TRUE(Create(*own));
    own->Navigate2(L"app:close");
    EXPECT_TRUE(WaitFor([&] { return ended; }));
}

TEST_F(HtmlView, EndsWithItsParent)
{
    bool ended = false;
    OwnView* const own = new OwnView(ended);
    ASSERT_TRUE(Create(*own));
    m_parent.DestroyWindow();
    EXPECT_TRUE(ended);
}

TEST_F(HtmlView, HasTheDocumentedAncestors)
{
    CObject* const made = RUNTIME_CLASS(CHtmlView)->CreateObject();
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CFormView)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CScrollView)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CView)));
    static_cast<CWnd*>(made)->DestroyWindow();
    delete made;
}

TEST(OleStart, MayBeRepeated)
{
    EXPECT_TRUE(AfxOleInit());
    EXPECT_TRUE(AfxOleInit());
    EXPECT_EQ(S_FALSE, ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    ::CoUninitialize();
}

namespace
{

DWORD WINAPI StartInAMultithreadedApartment(void* result)
{
    ::CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    *static_cast<BOOL*>(result) = AfxOleInit();
    ::CoUninitialize();
    return 0;
}

} // namespace

TEST(OleStart, FailsInAThreadOfAnotherModel)
{
    BOOL started = TRUE;
    const HANDLE thread = ::CreateThread(nullptr, 0, &StartInAMultithreadedApartment, &started, 0, nullptr);
    ::WaitForSingleObject(thread, INFINITE);
    ::CloseHandle(thread);
    EXPECT_FALSE(started);
}
