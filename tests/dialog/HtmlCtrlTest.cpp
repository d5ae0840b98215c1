// The browser control in a dialog: its place, its commands by real navigation, its end.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <exdispid.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "BrokenControl.h"
#include "CountingBrowser.h"
#include "DialogTemplate.h"
#include "Wait.h"
#include "dialog/HtmlCtrl.h"

namespace
{

constexpr UINT kStaticId = 101;
constexpr UINT kEditId = 102;
constexpr UINT kUnknownId = 999;

class TestedHtmlCtrl : public CHtmlCtrl
{
public:
    using CHtmlCtrl::m_pBrowserApp;
    using CHtmlCtrl::m_wndBrowser;

    void OnBeforeNavigate2(const wchar_t* url, DWORD flags, const wchar_t* target, CByteArray& data,
                           const wchar_t* headers, BOOL* cancel) override
    {
        const CString address(url);
        CHtmlCtrl::OnBeforeNavigate2(url, flags, target, data, headers, cancel);
        if (m_onNavigate)
            m_onNavigate();
        (*cancel ? m_cancelled : m_navigated).push_back(address);
    }

    void OnAppCmd(const wchar_t* command) override
    {
        m_commands.push_back(command);
        CHtmlCtrl::OnAppCmd(command);
        if (m_onCommand)
            m_onCommand();
    }

    void OnNavigateError(LPCTSTR url, LPCTSTR, DWORD, BOOL*) override { m_failed.push_back(url); }

    int Activate() { return static_cast<int>(SendMessage(WM_MOUSEACTIVATE, 0, MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN))); }

    std::vector<CString> m_commands;
    std::vector<CString> m_cancelled;
    std::vector<CString> m_navigated;
    std::vector<CString> m_failed; // addresses that the browser tried to load
    std::function<void()> m_onCommand;
    std::function<void()> m_onNavigate;
};

class Form : public CDialog
{
public:
    Form()
    {
        m_template.Label(kStaticId, L"place", 10, 12, 100, 60).Edit(kEditId, 10, 80);
        CreateIndirect(m_template.Get(), NULL);
    }
    ~Form() override { DestroyWindow(); }

    CRect PlaceOf(UINT id) const
    {
        CRect place;
        GetDlgItem(static_cast<int>(id))->GetWindowRect(&place);
        ScreenToClient(&place);
        return place;
    }

private:
    DialogTemplate m_template{L"Form", 150, 110};
};

CString ClassOf(CWnd* window)
{
    TCHAR name[64] = L"";
    ::GetClassName(window->GetSafeHwnd(), name, 64);
    return name;
}

} // namespace

class HtmlCtrl : public testing::Test
{
protected:
    void CreateAndGo(const wchar_t* address)
    {
        ASSERT_TRUE(html.CreateFromStatic(kStaticId, &form));
        html.Navigate2(address);
        ASSERT_TRUE(WaitFor([&] { return !html.m_cancelled.empty() || !html.m_navigated.empty(); }));
    }

    // Declared before the control, which the dialog's end must find alive.
    TestedHtmlCtrl html;
    Form form;
};

// Creation.

TEST_F(HtmlCtrl, TakesThePlaceAndTheIdOfTheStatic)
{
    const CRect place = form.PlaceOf(kStaticId);
    ASSERT_TRUE(html.CreateFromStatic(kStaticId, &form));
    EXPECT_EQ(html.m_hWnd, ::GetDlgItem(form, kStaticId));
    EXPECT_EQ(place, form.PlaceOf(kStaticId));
    EXPECT_EQ(form.m_hWnd, ::GetParent(html.m_hWnd));
    EXPECT_EQ(DWORD(WS_CHILD | WS_VISIBLE), html.GetStyle() & (WS_CHILD | WS_VISIBLE | WS_BORDER | WS_DISABLED));
    EXPECT_NE(nullptr, html.m_wndBrowser.m_hWnd);
}

TEST_F(HtmlCtrl, WithAnUnknownIdNothingIsCreated)
{
    EXPECT_FALSE(html.CreateFromStatic(kUnknownId, &form));
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_EQ(L"Static", ClassOf(form.GetDlgItem(kStaticId)));
}

TEST_F(HtmlCtrl, WithoutAParentNothingIsCreated)
{
    EXPECT_FALSE(html.CreateFromStatic(kStaticId, NULL));
    CWnd noWindow;
    EXPECT_FALSE(html.CreateFromStatic(kStaticId, &noWindow));
    EXPECT_EQ(nullptr, html.m_hWnd);
}

TEST_F(HtmlCtrl, ReplacesAnyControlOfTheDialog)
{
    const CRect place = form.PlaceOf(kEditId);
    ASSERT_TRUE(html.CreateFromStatic(kEditId, &form));
    EXPECT_EQ(html.m_hWnd, ::GetDlgItem(form, kEditId));
    EXPECT_EQ(place, form.PlaceOf(kEditId));
    EXPECT_EQ(L"Static", ClassOf(form.GetDlgItem(kStaticId)));
}

TEST_F(HtmlCtrl, ASecondCreationFailsAndLeavesTheOtherControlAlone)
{
    ASSERT_TRUE(html.CreateFromStatic(kStaticId, &form));
    const HWND window = html.m_hWnd;
    EXPECT_FALSE(html.CreateFromStatic(kEditId, &form));
    EXPECT_FALSE(html.CreateFromStatic(kStaticId, &form));
    EXPECT_EQ(window, html.m_hWnd);
    EXPECT_EQ(window, ::GetDlgItem(form, kStaticId));
    EXPECT_EQ(L"Edit", ClassOf(form.GetDlgItem(kEditId)));
}

TEST_F(HtmlCtrl, CanBeCreatedAgainOnceItsWindowIsGone)
{
    ASSERT_TRUE(html.CreateFromStatic(kStaticId, &form));
    html.DestroyWindow();
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_TRUE(html.CreateFromStatic(kEditId, &form));
}

TEST_F(HtmlCtrl, AMissingBrowserFailsTheCreation)
{
    const BrokenControl missing(BrokenControl::Missing);
    EXPECT_FALSE(html.CreateFromStatic(kStaticId, &form));
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_EQ(nullptr, form.GetDlgItem(kStaticId)) << "the static went before the browser was asked for";
    html.Navigate2(L"app:open");
    EXPECT_TRUE(html.m_commands.empty());
}

TEST_F(HtmlCtrl, ABrokenBrowserFailsTheCreation)
{
    const BrokenControl broken(BrokenControl::NoBrowser);
    EXPECT_FALSE(html.CreateFromStatic(kStaticId, &form));
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_EQ(0, broken.Alive());
}

TEST_F(HtmlCtrl, ABrowserThatRefusesAPartFailsTheCreation)
{
    for (const CountingBrowser::Refusal refusal :
         {CountingBrowser::Container, CountingBrowser::Point, CountingBrowser::Connection, CountingBrowser::Activation})
    {
        Form dialog;
        const CountingBrowser browser(refusal);
        EXPECT_FALSE(html.CreateFromStatic(kStaticId, &dialog)) << refusal;
        EXPECT_EQ(nullptr, html.m_hWnd) << refusal;
        EXPECT_EQ(nullptr, dialog.GetDlgItem(kStaticId)) << refusal;
        EXPECT_EQ(browser.Advised(), browser.Unadvised()) << refusal;
        EXPECT_EQ(0, browser.Alive()) << refusal;
    }
}

// Commands.

TEST_F(HtmlCtrl, AnAppAddressIsACommandAndDoesNotNavigate)
{
    CreateAndGo(L"app:open?id=3");
    EXPECT_EQ(std::vector<CString>{L"open?id=3"}, html.m_commands);
    EXPECT_EQ(std::vector<CString>{L"app:open?id=3"}, html.m_cancelled);
    EXPECT_TRUE(html.m_navigated.empty());
}

TEST_F(HtmlCtrl, AnAddressInCapitalsIsCaughtLikeOneInSmallLetters)
{
    CreateAndGo(L"APP:open?id=3");
    EXPECT_EQ(std::vector<CString>{L"open?id=3"}, html.m_commands);
    EXPECT_EQ(1u, html.m_cancelled.size());
}

TEST_F(HtmlCtrl, AnAddressThatOnlyBeginsLikeThePrefixNavigates)
{
    CreateAndGo(L"application.html");
    EXPECT_TRUE(html.m_commands.empty());
    EXPECT_TRUE(html.m_cancelled.empty());
    EXPECT_EQ(std::vector<CString>{L"application.html"}, html.m_navigated);
}

TEST_F(HtmlCtrl, ACommandIsNotLoadedAndTheNextPageIs)
{
    CreateAndGo(L"app:first");
    html.Navigate2(L"C:\\missing\\second.html");
    ASSERT_TRUE(WaitFor([&] { return !html.m_failed.empty(); })) << "the missing page was looked for";
    for (const CString& address : html.m_failed)
        EXPECT_LT(address.Find(L"first"), 0) << CStringA(address).GetString();
}

TEST_F(HtmlCtrl, CommandsFollowEachOther)
{
    CreateAndGo(L"app:one");
    html.Navigate2(L"app:two");
    ASSERT_TRUE(WaitFor([&] { return html.m_commands.size() == 2; }));
    EXPECT_EQ(L"two", html.m_commands[1]);
}

TEST_F(HtmlCtrl, APageMayNavigateOnInsideItsCommand)
{
    html.m_onCommand = [&] {
        if (html.m_commands.size() == 1)
            html.Navigate2(L"app:second");
    };
    CreateAndGo(L"app:first");
    ASSERT_TRUE(WaitFor([&] { return html.m_commands.size() == 2; }));
    EXPECT_EQ(L"second", html.m_commands[1]);
}

TEST(HtmlCtrlAddresses, ANullAddressIsNoCommand)
{
    struct Control : public CHtmlCtrl
    {
        void OnAppCmd(const wchar_t*) override { ++commands; }
        int commands = 0;
    } control;
    CByteArray none;
    BOOL cancel = FALSE;
    control.OnBeforeNavigate2(NULL, 0, NULL, none, NULL, &cancel);
    EXPECT_FALSE(cancel);
    EXPECT_EQ(0, control.commands);
    control.OnBeforeNavigate2(L"app:x", 0, NULL, none, NULL, NULL);
    EXPECT_EQ(1, control.commands);
}

// The end.

TEST_F(HtmlCtrl, TheWindowMayEndInsideACommand)
{
    html.m_onCommand = [&] { html.DestroyWindow(); };
    CreateAndGo(L"app:close");
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_EQ(nullptr, html.m_pBrowserApp.p);
}

TEST_F(HtmlCtrl, TheDialogMayEndInsideACommand)
{
    html.m_onCommand = [&] { form.DestroyWindow(); };
    CreateAndGo(L"app:close");
    EXPECT_EQ(nullptr, form.m_hWnd);
    EXPECT_EQ(nullptr, html.m_hWnd);
}

TEST_F(HtmlCtrl, TheWindowMayEndWhileAPageIsBeingAskedFor)
{
    html.m_onNavigate = [&] { html.DestroyWindow(); };
    CreateAndGo(L"C:\\missing\\page.html");
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_TRUE(html.m_failed.empty());
}

TEST(HtmlCtrlObject, MayEndInsideItsCommand)
{
    struct Owner
    {
        Form form;
        TestedHtmlCtrl html;
    };
    std::unique_ptr<Owner> owner(new Owner);
    ASSERT_TRUE(owner->html.CreateFromStatic(kStaticId, &owner->form));
    // The posted message ends the objects right after the command, with the browser's own work still queued.
    bool commanded = false;
    owner->html.m_onCommand = [&] {
        owner->form.DestroyWindow();
        commanded = true;
    };
    owner->html.Navigate2(L"app:close");
    ASSERT_TRUE(WaitFor([&] { return commanded; }));
    owner.reset();
    MSG message;
    while (::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
        ::DispatchMessage(&message);
    SUCCEED() << "nothing of the browser reaches an object that is gone";
}

TEST_F(HtmlCtrl, ReleasesTheBrowserWithItsWindow)
{
    CreateAndGo(L"app:open");
    IWebBrowser2* const browser = html.m_pBrowserApp;
    browser->AddRef();
    html.DestroyWindow();
    EXPECT_EQ(nullptr, html.m_pBrowserApp.p);
    EXPECT_EQ(0u, browser->Release());
}

TEST_F(HtmlCtrl, GivesItsConnectionToTheBrowserBackWithItsWindow)
{
    CountingBrowser browser;
    for (int i = 1; i <= 2; ++i)
    {
        Form dialog;
        ASSERT_TRUE(html.CreateFromStatic(kStaticId, &dialog));
        EXPECT_EQ(i, browser.Advised());
        EXPECT_EQ(i - 1, browser.Unadvised());
        dialog.DestroyWindow();
        EXPECT_EQ(i, browser.Unadvised());
        EXPECT_EQ(0, browser.Alive());
        EXPECT_FALSE(browser.Fire(DISPID_TITLECHANGE)) << "nobody is connected any more";
    }
}

TEST_F(HtmlCtrl, LivesOnAsAMemberWhenItsWindowGoes)
{
    ASSERT_TRUE(html.CreateFromStatic(kStaticId, &form));
    form.DestroyWindow();
    EXPECT_EQ(nullptr, html.m_hWnd);
    EXPECT_TRUE(html.IsKindOf(RUNTIME_CLASS(CHtmlCtrl)));
    EXPECT_TRUE(html.IsKindOf(RUNTIME_CLASS(CHtmlView)));
}

namespace
{

// A frame that notices when a view makes itself the active one.
class NoticingFrame : public CFrameWnd
{
public:
    NoticingFrame() { Create(NULL, L"Frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)); }
    void PostNcDestroy() override {}
};

} // namespace

TEST_F(HtmlCtrl, AClickDoesNotMakeItTheActiveViewOfAFrame)
{
    NoticingFrame frame;
    CStatic place;
    place.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &frame, kStaticId);
    ::SetWindowLongPtr(place.Detach(), GWLP_ID, kStaticId);
    ASSERT_TRUE(html.CreateFromStatic(kStaticId, &frame));
    EXPECT_NE(0, html.Activate());
    EXPECT_EQ(nullptr, frame.GetActiveView());
    frame.DestroyWindow();
}
