// The message loop: who may filter a posted message, what idle time does, how loops end.
#include <afxpriv.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace
{
const UINT WM_PROBE = WM_APP + 20;
std::string g_log;

class Filter : public CWnd
{
public:
    explicit Filter(const char* name) : m_name(name) {}
    bool take = false;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_PROBE)
        {
            g_log += m_name;
            g_log += take ? "! " : " ";
            return take;
        }
        return CWnd::PreTranslateMessage(message);
    }

protected:
    afx_msg LRESULT OnProbe(WPARAM, LPARAM)
    {
        g_log += "(";
        g_log += m_name;
        g_log += ") ";
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    const char* m_name;
};

BEGIN_MESSAGE_MAP(Filter, CWnd)
    ON_MESSAGE(WM_PROBE, &Filter::OnProbe)
END_MESSAGE_MAP()

// The program's main window for one test; its end mustn't end the program.
class MainWindow
{
public:
    explicit MainWindow(CWnd* window) : m_previous(AfxGetApp()->m_pMainWnd) { AfxGetApp()->m_pMainWnd = window; }
    ~MainWindow() { AfxGetApp()->m_pMainWnd = m_previous; }

private:
    CWnd* m_previous;
};

class MessageLoop : public ::testing::Test
{
protected:
    void SetUp() override
    {
        g_log.clear();
        ASSERT_TRUE(m_top.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0));
        ASSERT_TRUE(m_middle.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &m_top, 1));
        ASSERT_TRUE(m_inner.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 20, 20), &m_middle, 2));
    }
    void TearDown() override { m_top.DestroyWindow(); }

    // Pumps until the posted message has passed; other messages of the queue may come before.
    void PumpProbe()
    {
        do
        {
            ASSERT_TRUE(AfxPumpMessage());
        } while (AfxGetCurrentMessage()->message != WM_PROBE);
    }

    Filter m_top{"top"};
    Filter m_middle{"middle"};
    Filter m_inner{"inner"};
};

class IdleCounter : public CWnd
{
public:
    int updates = 0;
    BOOL disable = FALSE;

protected:
    afx_msg LRESULT OnUpdate(WPARAM disableIfNoHandler, LPARAM)
    {
        ++updates;
        disable = static_cast<BOOL>(disableIfNoHandler);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(IdleCounter, CWnd)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &IdleCounter::OnUpdate)
END_MESSAGE_MAP()
} // namespace

TEST_F(MessageLoop, APostedMessageWalksFromItsWindowUp)
{
    const MainWindow main(&m_top);
    m_inner.PostMessage(WM_PROBE);
    PumpProbe();
    EXPECT_EQ("inner middle top (inner) ", g_log);
}

TEST_F(MessageLoop, TheFirstThatTakesItEndsTheWalk)
{
    const MainWindow main(&m_top);
    m_middle.take = true;
    m_inner.PostMessage(WM_PROBE);
    PumpProbe();
    EXPECT_EQ("inner middle! ", g_log);
}

TEST_F(MessageLoop, ASentMessagePassesNoFilter)
{
    m_inner.SendMessage(WM_PROBE);
    EXPECT_EQ("(inner) ", g_log);
}

TEST_F(MessageLoop, TheMainWindowFiltersMessagesOfOtherTopLevelWindows)
{
    Filter other("main");
    ASSERT_TRUE(other.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    const MainWindow main(&other);
    m_top.PostMessage(WM_PROBE);
    PumpProbe();
    EXPECT_EQ("top main (top) ", g_log);
}

TEST_F(MessageLoop, QuitEndsThePumpBeforeAnyFilter)
{
    ::PostQuitMessage(5);
    bool ended = false;
    while (!ended)
        ended = !AfxPumpMessage();
    EXPECT_EQ(UINT(WM_QUIT), AfxGetCurrentMessage()->message);
    EXPECT_EQ(WPARAM(5), AfxGetCurrentMessage()->wParam);
    EXPECT_EQ("", g_log);
}

TEST_F(MessageLoop, TheFirstIdleCallUpdatesWindowsTheSecondEndsTemporaries)
{
    IdleCounter window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 10, 10), nullptr, 0));
    IdleCounter child;
    ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &window, 1));
    const MainWindow main(&window);
    EXPECT_TRUE(AfxGetApp()->OnIdle(0));
    EXPECT_EQ(1, window.updates);
    EXPECT_EQ(1, child.updates);
    EXPECT_TRUE(child.disable);
    EXPECT_FALSE(AfxGetApp()->OnIdle(1));
    EXPECT_EQ(1, window.updates);
}

TEST_F(MessageLoop, AStillMouseAndPaintingAreNoCauseForIdleWork)
{
    MSG message = {};
    message.message = WM_MOUSEMOVE;
    message.pt.x = 12345;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    EXPECT_FALSE(AfxIsIdleMessage(&message));
    message.pt.x = 12346;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    message.message = WM_PAINT;
    EXPECT_FALSE(AfxIsIdleMessage(&message));
    message.message = WM_KEYDOWN;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
}

TEST_F(MessageLoop, TheEndOfTheMainWindowEndsTheProgram)
{
    Filter window("main");
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    const MainWindow main(&window);
    window.DestroyWindow();
    EXPECT_EQ(nullptr, AfxGetApp()->m_pMainWnd);
    bool ended = false;
    while (!ended)
        ended = !AfxPumpMessage();
    EXPECT_EQ(UINT(WM_QUIT), AfxGetCurrentMessage()->message);
}
