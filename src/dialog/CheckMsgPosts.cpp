#include "dialog/CheckMsgPosts.h"

#include "dialog/CheckMsgBlock.h"

namespace
{

const LONG kNoShow = -1;

} // namespace

// Guard: a post is going on, unless the thread ends already.
class CCheckMsgPosts::CPosting
{
public:
    explicit CPosting(CCheckMsgPosts& posts) : m_posts(posts)
    {
        ::InterlockedIncrement(&m_posts.m_posting);
        // Read after the count went up, so that Close either is seen here or waits for this post.
        m_open = ::InterlockedCompareExchange(&m_posts.m_closed, 0, 0) == 0;
    }
    ~CPosting() { ::InterlockedDecrement(&m_posts.m_posting); }

    bool IsOpen() const { return m_open; }

private:
    CPosting(const CPosting&);
    CPosting& operator=(const CPosting&);

    CCheckMsgPosts& m_posts;
    bool m_open;
};

CCheckMsgPosts::CCheckMsgPosts(PostFunction post)
    : m_post(post), m_text(NULL), m_show(kNoShow), m_end(0), m_posting(0), m_closed(0)
{
}

CCheckMsgPosts::~CCheckMsgPosts()
{
    KeepText(NULL);
}

void CCheckMsgPosts::PostText(DWORD thread, const CStringArray& texts)
{
    CCheckMsgBlock block(texts);
    const CPosting posting(*this);
    if (!posting.IsOpen())
        return;
    KeepText(NULL); // what is kept is older than this one
    switch (Post(thread, UM_CHECKMSG_SETTEXT, reinterpret_cast<WPARAM>(block.Get())))
    {
    case POSTED:
        block.Release();
        break;
    case FULL:
        KeepText(block.Release());
        // The queue may have been worked off meanwhile; while it is full, the thread looks here anyway.
        Post(thread, WM_NULL, 0);
        break;
    case NOBODY:
        break;
    }
}

void CCheckMsgPosts::PostShow(DWORD thread, int command)
{
    const CPosting posting(*this);
    if (!posting.IsOpen())
        return;
    ::InterlockedExchange(&m_show, kNoShow);
    if (Post(thread, UM_CHECKMSG_SHOW, static_cast<WPARAM>(command)) != FULL)
        return;
    ::InterlockedExchange(&m_show, command);
    Post(thread, WM_NULL, 0);
}

void CCheckMsgPosts::PostEnd(DWORD thread)
{
    const CPosting posting(*this);
    if (thread == 0 || !posting.IsOpen() || Post(thread, WM_QUIT, 0) == POSTED)
        return;
    // A thread that has no queue yet would never hear of its end either.
    KeepEnd();
    Post(thread, WM_NULL, 0);
}

bool CCheckMsgPosts::HasKept() const
{
    return m_text != NULL || m_show != kNoShow || m_end != 0;
}

wchar_t* CCheckMsgPosts::TakeText()
{
    return static_cast<wchar_t*>(::InterlockedExchangePointer(&m_text, NULL));
}

bool CCheckMsgPosts::TakeShow(int& command)
{
    command = ::InterlockedExchange(&m_show, kNoShow);
    return command != kNoShow;
}

bool CCheckMsgPosts::TakeEnd()
{
    return ::InterlockedExchange(&m_end, 0) != 0;
}

void CCheckMsgPosts::KeepEnd()
{
    ::InterlockedExchange(&m_end, 1);
}

void CCheckMsgPosts::Close()
{
    ::InterlockedExchange(&m_closed, 1);
    // A post takes microseconds; the poster, which must not wait, never waits for this thread.
    while (::InterlockedCompareExchange(&m_posting, 0, 0) != 0)
        ::SwitchToThread();
}

CCheckMsgPosts::Result CCheckMsgPosts::Post(DWORD thread, UINT message, WPARAM wParam) const
{
    if (thread == 0)
        return NOBODY;
    if (m_post(thread, message, wParam, 0))
        return POSTED;
    return ::GetLastError() == ERROR_NOT_ENOUGH_QUOTA ? FULL : NOBODY;
}

void CCheckMsgPosts::KeepText(wchar_t* block)
{
    const CCheckMsgBlock former(static_cast<wchar_t*>(::InterlockedExchangePointer(&m_text, block)));
}
