// The view's connection to the control's events: made once, given back once, also where the control refuses a part, and
// in the middle of any event.
#include "HtmlViewFixture.h"

#include "CountingBrowser.h"

#include <exdispid.h>

namespace
{

// A view that ends inside whichever event comes.
class EndingView : public RecordingHtmlView
{
public:
    void OnBeforeNavigate2(LPCTSTR, DWORD, LPCTSTR, CByteArray&, LPCTSTR, BOOL*) override { End(); }
    void OnNavigateComplete2(LPCTSTR) override { End(); }
    void OnDocumentComplete(LPCTSTR) override { End(); }
    void OnNavigateError(LPCTSTR, LPCTSTR, DWORD, BOOL*) override { End(); }
    void OnTitleChange(LPCTSTR) override { End(); }
    void OnStatusTextChange(LPCTSTR) override { End(); }
    void OnProgressChange(long, long) override { End(); }
    void OnCommandStateChange(long, BOOL) override { End(); }
    void OnDownloadBegin() override { End(); }
    void OnDownloadComplete() override { End(); }
    void OnPropertyChange(LPCTSTR) override { End(); }
    void OnNewWindow2(LPDISPATCH*, BOOL*) override { End(); }
    void OnVisible(BOOL) override { End(); }
    void OnQuit() override { End(); }

    bool m_armed = false;
    int m_ends = 0;

private:
    void End()
    {
        if (!m_armed)
            return; // an event of the control's own
        ++m_ends;
        DestroyWindow();
    }
};

struct EventRow
{
    const char* name;
    DISPID id;
};

const EventRow kEvents[] = {
    {"BeforeNavigate2", DISPID_BEFORENAVIGATE2},
    {"NavigateComplete2", DISPID_NAVIGATECOMPLETE2},
    {"DocumentComplete", DISPID_DOCUMENTCOMPLETE},
    {"NavigateError", DISPID_NAVIGATEERROR},
    {"TitleChange", DISPID_TITLECHANGE},
    {"StatusTextChange", DISPID_STATUSTEXTCHANGE},
    {"ProgressChange", DISPID_PROGRESSCHANGE},
    {"CommandStateChange", DISPID_COMMANDSTATECHANGE},
    {"DownloadBegin", DISPID_DOWNLOADBEGIN},
    {"DownloadComplete", DISPID_DOWNLOADCOMPLETE},
    {"PropertyChange", DISPID_PROPERTYCHANGE},
    {"NewWindow2", DISPID_NEWWINDOW2},
    {"OnVisible", DISPID_ONVISIBLE},
    {"OnQuit", DISPID_ONQUIT},
};

struct RefusalRow
{
    const char* name;
    CountingBrowser::Refusal refusal;
    int advised;
};

const RefusalRow kRefusals[] = {
    {"no connection points", CountingBrowser::Container, 0},
    {"no events", CountingBrowser::Point, 0},
    {"no connection", CountingBrowser::Connection, 0},
    {"no window", CountingBrowser::Activation, 1},
};

} // namespace

class BrowserConnection : public HtmlViewFixture
{
};

TEST_F(BrowserConnection, IsMadeOnceAndGivenBackOnce)
{
    const CountingBrowser browser;
    RecordingHtmlView view;
    ASSERT_TRUE(Create(view));
    EXPECT_EQ(1, browser.Advised());
    EXPECT_EQ(0, browser.Unadvised());
    view.DestroyWindow();
    EXPECT_EQ(1, browser.Advised());
    EXPECT_EQ(1, browser.Unadvised());
    EXPECT_EQ(0, browser.Alive());
}

TEST_F(BrowserConnection, EachNewWindowOfAViewHasItsOwn)
{
    const CountingBrowser browser;
    RecordingHtmlView view;
    for (int i = 1; i <= 3; ++i)
    {
        ASSERT_TRUE(Create(view));
        view.DestroyWindow();
        EXPECT_EQ(i, browser.Advised());
        EXPECT_EQ(i, browser.Unadvised());
        EXPECT_EQ(0, browser.Alive());
    }
}

TEST_F(BrowserConnection, TheEndOfTheObjectGivesItBack)
{
    const CountingBrowser browser;
    {
        RecordingHtmlView view;
        ASSERT_TRUE(Create(view));
        m_parent.DestroyWindow();
    }
    EXPECT_EQ(1, browser.Unadvised());
    EXPECT_EQ(0, browser.Alive());
}

TEST_F(BrowserConnection, AControlThatRefusesAPartFailsTheCreationAndIsGivenBack)
{
    for (const RefusalRow& row : kRefusals)
    {
        const CountingBrowser browser(row.refusal);
        RecordingHtmlView view;
        EXPECT_FALSE(Create(view)) << row.name;
        EXPECT_EQ(nullptr, view.m_hWnd) << row.name;
        EXPECT_EQ(nullptr, view.m_pBrowserApp.p) << row.name;
        EXPECT_EQ(row.advised, browser.Advised()) << row.name;
        EXPECT_EQ(row.advised, browser.Unadvised()) << row.name;
        EXPECT_EQ(0, browser.Alive()) << row.name;
    }
}

TEST_F(BrowserConnection, IsGivenBackInsideAnyEvent)
{
    for (const EventRow& row : kEvents)
    {
        CountingBrowser browser;
        EndingView view;
        ASSERT_TRUE(Create(view)) << row.name;
        view.m_armed = true;
        EXPECT_TRUE(browser.Fire(row.id)) << row.name;
        EXPECT_EQ(1, view.m_ends) << row.name;
        EXPECT_EQ(nullptr, view.m_hWnd) << row.name;
        EXPECT_EQ(1, browser.Unadvised()) << row.name;
        EXPECT_EQ(0, browser.Alive()) << row.name;
        EXPECT_FALSE(browser.Fire(row.id)) << row.name << ": nobody is connected any more";
        EXPECT_EQ(1, view.m_ends) << row.name;
    }
}
