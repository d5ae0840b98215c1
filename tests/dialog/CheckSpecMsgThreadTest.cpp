// The check window's thread and its clients: two real threads, real posted messages.
#include "CheckMsgFixture.h"

#include "base/ModuleThreads.h"
#include "dialog/CheckMsgBlock.h"

namespace
{

const wchar_t kNoAttributes[] = L"\r\n\r\n\r\n无属性显示";

// A window's thread with a menu to open, as the edit menu of its text would be.
class MenuThread : public HeldThread
{
public:
    static constexpr UINT kOpenMenu = WM_APP + 2; // wParam: the owner

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->hwnd == NULL && message->message == kOpenMenu)
            OpenMenu(reinterpret_cast<HWND>(message->wParam));
        return HeldThread::PreTranslateMessage(message);
    }

private:
    static void OpenMenu(HWND owner)
    {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 1, L"Copy");
        ::TrackPopupMenu(menu.m_hMenu, TPM_RETURNCMD, 0, 0, 0, owner, NULL);
    }
};

class CheckSpecMsgThread : public CheckMsgFixture
{
protected:
    // The thread frees a block after it has shown its texts.
    bool BlocksAreGone()
    {
        return WaitFor([this] { return LiveArrays() == m_idle; });
    }

    // Whether the thread works at one of the system's own loops.
    bool IsInLoop(DWORD loop) const
    {
        GUITHREADINFO info = {};
        info.cbSize = sizeof(info);
        return ::GetGUIThreadInfo(m_thread->m_nThreadID, &info) && (info.flags & loop) != 0;
    }
    bool IsInMoveLoop() const { return IsInLoop(GUI_INMOVESIZE); }

    bool OpenMenu()
    {
        m_thread->ShowWindow(SW_SHOW);
        if (!WaitUntilShown(true))
            return false;
        m_thread->PostThreadMessage(MenuThread::kOpenMenu, reinterpret_cast<WPARAM>(Dialog()), 0);
        return WaitFor([this] { return IsInLoop(GUI_INMENUMODE); });
    }

    // As the user does who chooses "move" with the keyboard.
    bool EnterMoveLoop()
    {
        m_thread->ShowWindow(SW_SHOW);
        if (!WaitUntilShown(true))
            return false;
        ::PostMessageW(Dialog(), WM_SYSCOMMAND, SC_MOVE, 0);
        return WaitFor([this] { return IsInMoveLoop(); });
    }
};

// Posts that find the queue full as long as a test wants.
bool g_full = false;

BOOL WINAPI PostUnlessFull(DWORD thread, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!g_full)
        return ::PostThreadMessageW(thread, message, wParam, lParam);
    ::SetLastError(ERROR_NOT_ENOUGH_QUOTA);
    return FALSE;
}

} // namespace

TEST_F(CheckSpecMsgThread, IsCreatedByItsRunTimeClassAndDeletesItself)
{
    EXPECT_TRUE(RUNTIME_CLASS(CCheckSpecMsgThread)->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    CWinThread* const thread = AfxBeginThread(RUNTIME_CLASS(CCheckSpecMsgThread));
    ASSERT_TRUE(thread != NULL);
    HANDLE handle = NULL;
    ::DuplicateHandle(::GetCurrentProcess(), thread->m_hThread, ::GetCurrentProcess(), &handle, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    // The thread takes posts once it has a queue.
    EXPECT_TRUE(WaitFor([&] { return ::PostThreadMessageW(thread->m_nThreadID, WM_NULL, 0, 0) != FALSE; }));
    static_cast<CCheckSpecMsgThread*>(thread)->End();
    EXPECT_TRUE(WaitFor([&] { return ::WaitForSingleObject(handle, 0) == WAIT_OBJECT_0; }));
    ::CloseHandle(handle);
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckSpecMsgThread, TheWindowIsHiddenAtFirstAndOwnedByTheFrame)
{
    StartThread();
    EXPECT_FALSE(IsShown());
    EXPECT_FALSE(::IsWindowVisible(Dialog()));
    EXPECT_EQ(Frame().m_hWnd, ::GetWindow(Dialog(), GW_OWNER));
    EXPECT_EQ(m_thread->m_nThreadID, ::GetWindowThreadProcessId(Dialog(), NULL));
}

TEST_F(CheckSpecMsgThread, TheResourcesOfTheMainThreadStayItsOwn)
{
    const HINSTANCE before = AfxGetResourceHandle();
    StartThread();
    EXPECT_EQ(before, AfxGetResourceHandle());
}

TEST_F(CheckSpecMsgThread, TextsAreShownALineEachAndBringTheWindowUp)
{
    StartThread();
    ShowMsg({L"图层: 0", L"颜色: 红"});
    EXPECT_TRUE(WaitUntilShown(true));
    EXPECT_EQ(L"图层: 0\r\n颜色: 红\r\n", Text());
}

TEST_F(CheckSpecMsgThread, AnEmptyArrayShowsTheNoAttributesTextAndDoesNotPopUp)
{
    StartThread();
    ShowMsg({});
    EXPECT_TRUE(ShowsText(kNoAttributes)) << testing::PrintToString(Text());
    EXPECT_EQ(FALSE, ::KillTimer(Dialog(), 1));
    EXPECT_FALSE(IsShown());
}

TEST_F(CheckSpecMsgThread, AnEmptyStringInsideTheListEndsIt)
{
    StartThread();
    ShowMsg({L"a", L"", L"b"});
    EXPECT_TRUE(ShowsText(L"a\r\n"));
}

TEST_F(CheckSpecMsgThread, ABlockThatHoldsNoStringIsShownAsNoneAndReleased)
{
    StartThread();
    ShowMsg({L"", L"b"});
    EXPECT_TRUE(ShowsText(kNoAttributes));
    EXPECT_TRUE(BlocksAreGone());
}

TEST_F(CheckSpecMsgThread, ANullStringReadsAsAnEmptyOne)
{
    StartThread();
    CStringArray texts;
    texts.Add(L"a");
    texts.Add(static_cast<const wchar_t*>(NULL));
    m_thread->ShowMsg(texts);
    EXPECT_TRUE(ShowsText(L"a\r\n"));
}

TEST_F(CheckSpecMsgThread, ANullBlockShowsThatThereIsNothing)
{
    StartThread();
    m_thread->PostThreadMessage(1226, 0, 0);
    EXPECT_TRUE(ShowsText(kNoAttributes));
}

TEST_F(CheckSpecMsgThread, HugeTextsAreShownWhole)
{
    StartThread();
    const int lines = 1100; // together more than users may type
    const std::wstring line(60, L'x');
    std::vector<std::wstring> texts(lines, line);
    texts.push_back(L"last");
    ShowMsg(texts);
    const int length = lines * (60 + 2) + 6; // with the ends of lines
    EXPECT_TRUE(WaitFor([&] { return ::GetWindowTextLengthW(Item(kTextId)) == length; }, 20000));
    EXPECT_EQ(L"x\r\nlast\r\n", Text().substr(length - 9));
}

TEST_F(CheckSpecMsgThread, BracesAndBackslashesInsideATextStayThemselves)
{
    StartThread();
    ShowMsg({L"a {\\rtf1 \\b b} c\\par"});
    EXPECT_TRUE(ShowsText(L"a {\\rtf1 \\b b} c\\par\r\n")) << testing::PrintToString(Text());
}

TEST_F(CheckSpecMsgThread, TheWindowIsShownAndHiddenByCommand)
{
    StartThread();
    m_thread->ShowWindow(SW_SHOW);
    EXPECT_TRUE(WaitUntilShown(true));
    m_thread->ShowWindow(SW_HIDE);
    EXPECT_TRUE(WaitUntilShown(false));
}

// Numbers of thread messages mean something else to windows.
TEST_F(CheckSpecMsgThread, TheSameNumbersPostedToAWindowAreNotTaken)
{
    StartThread();
    ShowMsg({L"a"});
    ASSERT_TRUE(WaitUntilShown(true));
    ::PostMessageW(Dialog(), 1225, SW_HIDE, 0);
    ::PostMessageW(Dialog(), 1226, 1, 0); // would be a block at the address 1
    m_thread->Hold();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(m_idle, LiveArrays());
    m_thread->LetGo();
    EXPECT_TRUE(ShowsText(L"a\r\n"));
}

TEST_F(CheckSpecMsgThread, EscapeHidesTheWindowWhenItIsShownAndGoesOn)
{
    StartThread();
    m_thread->ShowWindow(SW_SHOW);
    ASSERT_TRUE(WaitUntilShown(true));
    ::PostMessageW(Item(kTextId), WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(WaitUntilShown(false));
    EXPECT_TRUE(WaitFor([this] { return m_thread->keysTaken == 1; })); // by the dialog, as its cancel key
}

TEST_F(CheckSpecMsgThread, EscapeWhileTheWindowIsHiddenStillReachesTheDialog)
{
    StartThread();
    ::PostMessageW(Item(kTextId), WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(WaitFor([this] { return m_thread->keysTaken == 1; }));
    EXPECT_FALSE(IsShown());
}

TEST_F(CheckSpecMsgThread, EscapeOfAThreadMessageHidesTheWindowToo)
{
    StartThread();
    m_thread->ShowWindow(SW_SHOW);
    ASSERT_TRUE(WaitUntilShown(true));
    m_thread->PostThreadMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_TRUE(WaitUntilShown(false));
    EXPECT_TRUE(WaitFor([this] { return m_thread->keysLeft == 1; })); // nobody else wants it
}

TEST_F(CheckSpecMsgThread, OtherKeysLeaveTheWindowShown)
{
    StartThread();
    m_thread->ShowWindow(SW_SHOW);
    ASSERT_TRUE(WaitUntilShown(true));
    m_thread->PostThreadMessage(WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_TRUE(WaitFor([this] { return m_thread->keysLeft == 1; }));
    EXPECT_TRUE(IsShown());
}

TEST_F(CheckSpecMsgThread, PostsBeforeTheThreadStartsAreFreed)
{
    m_thread.reset(new HeldThread);
    ShowMsg({L"a"});
    m_thread->ShowWindow(SW_SHOW);
    m_thread->End();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckSpecMsgThread, PostsBeforeTheThreadHasAQueueAreFreed)
{
    m_thread.reset(new HeldThread);
    ASSERT_TRUE(m_thread->CreateThread(CREATE_SUSPENDED));
    ShowMsg({L"a"});
    EXPECT_EQ(m_before, LiveArrays());
    m_thread->ResumeThread();
    EXPECT_TRUE(WaitFor([this] { return Dialog() != NULL; }));
}

TEST_F(CheckSpecMsgThread, AnEndBeforeTheThreadHasAQueueEndsItOnceItRuns)
{
    m_thread.reset(new HeldThread);
    ASSERT_TRUE(m_thread->CreateThread(CREATE_SUSPENDED));
    m_thread->End();
    m_thread->ResumeThread();
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
}

TEST_F(CheckSpecMsgThread, PostsAfterTheEndAreFreed)
{
    StartThread();
    m_thread->End();
    ASSERT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
    ShowMsg({L"a"});
    m_thread->ShowWindow(SW_SHOW);
    m_thread->End();
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckSpecMsgThread, TextsThatAreStillQueuedAtTheEndAreFreed)
{
    StartThread();
    m_thread->Hold();
    m_thread->End();
    const int queued = 50;
    for (int i = 0; i < queued; ++i)
        ShowMsg({L"a"});
    EXPECT_EQ(m_idle + queued, LiveArrays());
    m_thread->LetGo();
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckSpecMsgThread, AFewThousandTextsShowTheLastOne)
{
    StartThread();
    m_thread->Hold();
    const int count = 12000; // more than a queue of the system takes
    for (int i = 0; i <= count; ++i)
        ShowMsg({std::to_wstring(i)});
    m_thread->LetGo();
    constexpr DWORD patience = 60000;
    EXPECT_TRUE(WaitFor([&] { return Text() == std::to_wstring(count) + L"\r\n"; }, patience));
    EXPECT_TRUE(BlocksAreGone());
}

// Other threads may post as long as they have the object.
TEST_F(CheckSpecMsgThread, PostsAndTheEndAtTheSameTimeLeakNothing)
{
    StartThread();
    std::atomic<bool> stop{false};
    std::atomic<int> posted{0};
    const auto post = [&] {
        CStringArray texts;
        texts.Add(L"a");
        for (; !stop; ++posted)
            m_thread->ShowMsg(texts);
    };
    const std::unique_ptr<HANDLE, void (*)(HANDLE*)> poster(
        new HANDLE(::CreateThread(
            NULL, 0,
            [](LPVOID function) -> DWORD {
                (*static_cast<decltype(post)*>(function))();
                return 0;
            },
            const_cast<void*>(static_cast<const void*>(&post)), 0, NULL)),
        [](HANDLE* handle) {
            ::CloseHandle(*handle);
            delete handle;
        });
    EXPECT_TRUE(WaitFor([&] { return posted > 100; }));
    m_thread->End();
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }, 60000));
    const int atTheEnd = posted;
    EXPECT_TRUE(WaitFor([&] { return posted > atTheEnd + 100; }));
    stop = true;
    ::WaitForSingleObject(*poster, INFINITE);
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckSpecMsgThread, ATextThatFoundTheQueueFullIsShownOnceItIsWorkedOff)
{
    StartThread(new HeldThread(new CCheckMsgPosts(&PostUnlessFull)));
    m_thread->Hold();
    ShowMsg({L"of the queue"});
    g_full = true;
    ShowMsg({L"the last"});
    m_thread->ShowWindow(SW_SHOWNA);
    g_full = false;
    m_thread->LetGo();
    EXPECT_TRUE(ShowsText(L"the last\r\n"));
    EXPECT_TRUE(WaitUntilShown(true));
    EXPECT_TRUE(BlocksAreGone());
}

TEST_F(CheckSpecMsgThread, AnEndThatFoundTheQueueFullComesOnceItIsWorkedOff)
{
    StartThread(new HeldThread(new CCheckMsgPosts(&PostUnlessFull)));
    m_thread->Hold();
    g_full = true;
    m_thread->End();
    g_full = false;
    m_thread->LetGo();
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
}

TEST_F(CheckSpecMsgThread, TextsAreShownWhileTheUserMovesTheWindow)
{
    StartThread();
    ASSERT_TRUE(EnterMoveLoop());
    ShowMsg({L"while it moves"});
    EXPECT_TRUE(ShowsText(L"while it moves\r\n"));
    EXPECT_TRUE(IsInMoveLoop());
    EXPECT_TRUE(BlocksAreGone());
}

TEST_F(CheckSpecMsgThread, TheEndComesWhileTheUserMovesTheWindow)
{
    StartThread();
    ASSERT_TRUE(EnterMoveLoop());
    m_thread->End();
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
}

TEST_F(CheckSpecMsgThread, TextsAreShownWhileAMenuOfTheWindowIsOpen)
{
    StartThread(new MenuThread);
    ASSERT_TRUE(OpenMenu());
    ShowMsg({L"under the menu"});
    EXPECT_TRUE(ShowsText(L"under the menu\r\n"));
    m_thread->ShowWindow(SW_HIDE);
    EXPECT_TRUE(WaitUntilShown(false));
    EXPECT_TRUE(IsInLoop(GUI_INMENUMODE));
    EXPECT_TRUE(BlocksAreGone());
    ::PostMessageW(Dialog(), WM_CANCELMODE, 0, 0);
    EXPECT_TRUE(WaitFor([this] { return !IsInLoop(GUI_INMENUMODE); }));
    ShowMsg({L"after it"});
    EXPECT_TRUE(ShowsText(L"after it\r\n"));
}

TEST_F(CheckSpecMsgThread, TheEndComesWhileAMenuOfTheWindowIsOpen)
{
    StartThread(new MenuThread);
    ASSERT_TRUE(OpenMenu());
    m_thread->End();
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
}

// The main thread only posts: it is not waited for before it dispatches again.
TEST_F(CheckSpecMsgThread, TheEndComesThroughAfterTheMainThreadWasBusy)
{
    StartThread();
    ShowMsg({L"a"});
    ASSERT_TRUE(WaitUntilShown(true));
    m_thread->End();
    ::WaitForSingleObject(m_thread->m_hThread, 300); // busy
    EXPECT_TRUE(WaitFor([this] { return m_thread->HasEnded(); }));
    EXPECT_FALSE(IsShown());
}

TEST_F(CheckSpecMsgThread, TheModulesEndEndsAThreadThatTheClientForgot)
{
    StartThread();
    ShowMsg({L"a"});
    ASSERT_TRUE(WaitUntilShown(true));
    EndModuleThreads();
    EXPECT_TRUE(m_thread->HasEnded());
    EndModuleThreads(); // there is none left
}

TEST_F(CheckSpecMsgThread, TheModulesEndWaitsForAThreadThatTheClientEnded)
{
    StartThread();
    const int queued = 200; // keep it at work
    for (int i = 0; i < queued; ++i)
        ShowMsg({L"a"});
    m_thread->End();
    EndModuleThreads();
    EXPECT_TRUE(m_thread->HasEnded());
}

TEST_F(CheckSpecMsgThread, AFrameThatGoesFirstHarmsNobody)
{
    StartThread();
    ShowMsg({L"a"});
    ASSERT_TRUE(WaitUntilShown(true));
    DestroyFrame();
    ShowMsg({L"b"});
    m_thread->ShowWindow(SW_HIDE);
    EXPECT_TRUE(WaitUntilShown(false));
    EndThread();
}

TEST_F(CheckSpecMsgThread, WithoutAFrameTheWindowComesAsWell)
{
    DestroyFrame();
    StartThread();
    ShowMsg({L"a"});
    EXPECT_TRUE(ShowsText(L"a\r\n"));
}
