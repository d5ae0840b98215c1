// The way of texts and commands from other threads to the thread of the check window: posted messages, which never
// wait, and a place for what found the thread's queue full.
//
// The system takes 10,000 messages a thread. A text that finds no room is kept here instead, in place of one kept
// earlier, and is shown once the queue is worked off: of any number of texts the last one is shown. A thread that has
// no queue yet, or has ended, gets nothing, and the text is freed; only its end is kept, so that it ends once it runs.
#pragma once

#include <afxwin.h>

enum
{
    UM_CHECKMSG_SHOW = 1225,   // wParam: show command
    UM_CHECKMSG_SETTEXT = 1226 // wParam: block of texts (CheckMsgBlock.h), which becomes the receiver's
};

class CCheckMsgPosts
{
public:
    typedef BOOL(WINAPI* PostFunction)(DWORD thread, UINT message, WPARAM wParam, LPARAM lParam);

    explicit CCheckMsgPosts(PostFunction post);
    ~CCheckMsgPosts();

    // By any thread. Thread 0 is one that was never started.
    void PostText(DWORD thread, const CStringArray& texts);
    void PostShow(DWORD thread, int command);
    void PostEnd(DWORD thread);

    // By the window's thread.

    // Whether anything was kept.
    bool HasKept() const;

    // The kept block, which becomes the caller's; null when there is none.
    wchar_t* TakeText();

    // The kept show command; false when there is none.
    bool TakeShow(int& command);

    // Whether an end was kept.
    bool TakeEnd();

    // An end that the thread met where it could not follow it.
    void KeepEnd();

    // When it returns, no other thread will post any more.
    void Close();

private:
    CCheckMsgPosts(const CCheckMsgPosts&);
    CCheckMsgPosts& operator=(const CCheckMsgPosts&);

    class CPosting;
    enum Result
    {
        POSTED,
        FULL,
        NOBODY // there is no such queue
    };

    Result Post(DWORD thread, UINT message, WPARAM wParam) const;
    void KeepText(wchar_t* block);

    PostFunction m_post;
    void* volatile m_text;
    volatile LONG m_show; // -1: none
    volatile LONG m_end;
    volatile LONG m_posting; // how many threads are posting
    volatile LONG m_closed;
};
