// The way of texts to the thread of the check window: no text is lost that the user would see last, none leaks.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <thread>
#include <vector>

#include "ArrayCount.h"
#include "dialog/CheckMsgBlock.h"
#include "dialog/CheckMsgPosts.h"

namespace
{

constexpr DWORD kThread = 4711;

struct Posted
{
    DWORD thread;
    UINT message;
    WPARAM wParam;
};

// The system's queue, of which the test says whether there is one and how much it takes.
class Queue
{
public:
    Queue()
    {
        s_posted.clear();
        s_room = 100;
        s_error = ERROR_NOT_ENOUGH_QUOTA;
        s_afterFailure = nullptr;
    }
    ~Queue()
    {
        while (!s_posted.empty())
            Take();
    }

    static BOOL WINAPI Post(DWORD thread, UINT message, WPARAM wParam, LPARAM lParam)
    {
        EXPECT_EQ(0, lParam);
        if (s_posted.size() < s_room)
        {
            s_posted.push_back({thread, message, wParam});
            return TRUE;
        }
        if (s_afterFailure != nullptr)
            s_afterFailure();
        ::SetLastError(s_error);
        return FALSE;
    }

    // The first message; the text of one that has texts.
    static std::wstring Take()
    {
        const Posted posted = s_posted.front();
        s_posted.pop_front();
        return posted.message == UM_CHECKMSG_SETTEXT ? TextOf(reinterpret_cast<wchar_t*>(posted.wParam)) : L"";
    }

    static std::wstring TextOf(wchar_t* block)
    {
        CStringArray texts;
        CCheckMsgBlock(block).Unpack(texts);
        return texts.IsEmpty() ? L"" : texts[0].GetString();
    }

    static std::deque<Posted> s_posted;
    static size_t s_room;
    static DWORD s_error;
    static void (*s_afterFailure)();
};

std::deque<Posted> Queue::s_posted;
size_t Queue::s_room;
DWORD Queue::s_error;
void (*Queue::s_afterFailure)();

class CheckMsgPosts : public testing::Test
{
protected:
    void PostText(const wchar_t* text)
    {
        CStringArray texts;
        texts.Add(text);
        m_posts.PostText(kThread, texts);
    }

    std::wstring Kept() { return Queue::TextOf(m_posts.TakeText()); }

    const long m_before = LiveArrays();
    Queue m_queue;
    CCheckMsgPosts m_posts{&Queue::Post};
};

} // namespace

TEST_F(CheckMsgPosts, TextsGoInOrderAsMessage1226)
{
    PostText(L"a");
    PostText(L"b");
    ASSERT_EQ(2u, Queue::s_posted.size());
    EXPECT_EQ(kThread, Queue::s_posted[0].thread);
    EXPECT_EQ(1226u, Queue::s_posted[0].message);
    EXPECT_EQ(L"a", Queue::Take());
    EXPECT_EQ(L"b", Queue::Take());
    EXPECT_FALSE(m_posts.HasKept());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckMsgPosts, AShowCommandGoesAsMessage1225)
{
    m_posts.PostShow(kThread, SW_SHOWNA);
    ASSERT_EQ(1u, Queue::s_posted.size());
    EXPECT_EQ(1225u, Queue::s_posted[0].message);
    EXPECT_EQ(static_cast<WPARAM>(SW_SHOWNA), Queue::s_posted[0].wParam);
}

TEST_F(CheckMsgPosts, TheEndGoesAsQuit)
{
    m_posts.PostEnd(kThread);
    ASSERT_EQ(1u, Queue::s_posted.size());
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), Queue::s_posted[0].message);
}

TEST_F(CheckMsgPosts, AThreadThatWasNeverStartedGetsNothing)
{
    CStringArray texts;
    m_posts.PostText(0, texts);
    m_posts.PostShow(0, SW_SHOW);
    m_posts.PostEnd(0);
    EXPECT_TRUE(Queue::s_posted.empty());
    EXPECT_FALSE(m_posts.HasKept());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckMsgPosts, AThreadWithoutAQueueGetsNothingAndTheTextIsFreed)
{
    Queue::s_room = 0;
    Queue::s_error = ERROR_INVALID_THREAD_ID;
    PostText(L"a");
    m_posts.PostShow(kThread, SW_SHOW);
    EXPECT_FALSE(m_posts.HasKept());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckMsgPosts, TheEndOfAThreadWithoutAQueueIsKept)
{
    Queue::s_room = 0;
    Queue::s_error = ERROR_INVALID_THREAD_ID;
    m_posts.PostEnd(kThread);
    EXPECT_TRUE(m_posts.TakeEnd());
}

TEST_F(CheckMsgPosts, OfTextsThatFindTheQueueFullTheLastIsKept)
{
    Queue::s_room = 1;
    PostText(L"a");
    PostText(L"b");
    PostText(L"c");
    EXPECT_TRUE(m_posts.HasKept());
    EXPECT_EQ(m_before + 2, LiveArrays());
    EXPECT_EQ(L"a", Queue::Take());
    EXPECT_EQ(L"c", Kept());
    EXPECT_FALSE(m_posts.HasKept());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckMsgPosts, ATextThatFindsRoomAgainTakesThePlaceOfTheKeptOne)
{
    Queue::s_room = 1;
    PostText(L"a");
    PostText(L"b");
    Queue::s_room = 2;
    PostText(L"c");
    EXPECT_FALSE(m_posts.HasKept());
    EXPECT_EQ(L"a", Queue::Take());
    EXPECT_EQ(L"c", Queue::Take());
    EXPECT_EQ(m_before, LiveArrays());
}

// Else nothing would tell the thread to look for what is kept.
TEST_F(CheckMsgPosts, AQueueThatIsWorkedOffMeanwhileIsTold)
{
    Queue::s_room = 0;
    Queue::s_afterFailure = [] { Queue::s_room = 1; };
    PostText(L"a");
    ASSERT_EQ(1u, Queue::s_posted.size());
    EXPECT_EQ(static_cast<UINT>(WM_NULL), Queue::s_posted[0].message);
    EXPECT_EQ(L"a", Kept());
}

TEST_F(CheckMsgPosts, AShowCommandThatFindsTheQueueFullIsKept)
{
    int command = -1;
    Queue::s_room = 0;
    m_posts.PostShow(kThread, SW_SHOW);
    m_posts.PostShow(kThread, SW_HIDE); // which is 0
    EXPECT_TRUE(m_posts.HasKept());
    EXPECT_TRUE(m_posts.TakeShow(command));
    EXPECT_EQ(SW_HIDE, command);
    EXPECT_FALSE(m_posts.TakeShow(command));
}

TEST_F(CheckMsgPosts, AShowCommandThatFindsRoomTakesThePlaceOfTheKeptOne)
{
    Queue::s_room = 0;
    m_posts.PostShow(kThread, SW_HIDE);
    Queue::s_room = 1;
    m_posts.PostShow(kThread, SW_SHOW);
    EXPECT_FALSE(m_posts.HasKept());
}

TEST_F(CheckMsgPosts, AnEndThatFindsTheQueueFullIsKept)
{
    Queue::s_room = 0;
    m_posts.PostEnd(kThread);
    EXPECT_TRUE(m_posts.HasKept());
    EXPECT_TRUE(m_posts.TakeEnd());
    EXPECT_FALSE(m_posts.TakeEnd());
}

TEST_F(CheckMsgPosts, NothingIsPostedOnceClosed)
{
    m_posts.Close();
    PostText(L"a");
    m_posts.PostShow(kThread, SW_SHOW);
    m_posts.PostEnd(kThread);
    EXPECT_TRUE(Queue::s_posted.empty());
    EXPECT_FALSE(m_posts.HasKept());
    EXPECT_EQ(m_before, LiveArrays());
}

TEST_F(CheckMsgPosts, WhatIsStillKeptAtTheEndIsFreed)
{
    Queue::s_room = 0;
    {
        CCheckMsgPosts posts(&Queue::Post);
        CStringArray texts;
        posts.PostText(kThread, texts);
        EXPECT_EQ(m_before + 1, LiveArrays());
    }
    EXPECT_EQ(m_before, LiveArrays());
}

// Several threads post while the window's thread takes and at last closes: no block is lost, none is taken twice.
TEST(CheckMsgPostsRace, EveryBlockIsTakenOrFreed)
{
    const long before = LiveArrays();
    {
        CCheckMsgPosts posts([](DWORD, UINT, WPARAM, LPARAM) -> BOOL {
            ::SetLastError(ERROR_NOT_ENOUGH_QUOTA);
            return FALSE;
        });
        const int each = 2000;
        std::vector<std::thread> posters;
        for (int i = 0; i < 3; ++i)
        {
            posters.emplace_back([&posts] {
                CStringArray texts;
                texts.Add(L"a text");
                for (int k = 0; k < each; ++k)
                    posts.PostText(kThread, texts);
            });
        }
        int taken = 0;
        for (int i = 0; i < each || taken == 0; ++i)
            taken += Queue::TextOf(posts.TakeText()) == L"a text";
        posts.Close();
        const bool kept = posts.HasKept();
        EXPECT_EQ(kept, Queue::TextOf(posts.TakeText()) == L"a text");
        EXPECT_FALSE(posts.HasKept());
        for (std::thread& poster : posters)
            poster.join();
        EXPECT_FALSE(posts.HasKept());
    }
    EXPECT_EQ(before, LiveArrays());
}
