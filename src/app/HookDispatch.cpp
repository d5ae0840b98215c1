#include "app/HookDispatch.h"

#include "app/DySubclassWnd.h"

CHookDispatch* CHookDispatch::s_innermost = NULL;

CHookDispatch::CHookDispatch(HWND hwnd) : m_outer(s_innermost), m_hwnd(hwnd)
{
    s_innermost = this;
}

CHookDispatch::~CHookDispatch()
{
    s_innermost = m_outer;
}

void CHookDispatch::Leave(CDySubclassWnd& hook)
{
    for (CHookDispatch* dispatch = s_innermost; dispatch != NULL; dispatch = dispatch->m_outer)
    {
        if (dispatch->m_hwnd == hook.m_hooked)
            dispatch->Keep(hook);
    }
}

void CHookDispatch::Forget(const CDySubclassWnd& hook)
{
    for (CHookDispatch* dispatch = s_innermost; dispatch != NULL; dispatch = dispatch->m_outer)
    {
        const Place* const place = dispatch->PlaceOf(hook);
        if (place != NULL)
            dispatch->m_left.erase(dispatch->m_left.begin() + (place - &dispatch->m_left[0]));
    }
}

void CHookDispatch::EndOf(HWND hwnd)
{
    for (CHookDispatch* dispatch = s_innermost; dispatch != NULL; dispatch = dispatch->m_outer)
    {
        if (dispatch->m_hwnd == hwnd)
            dispatch->m_hwnd = NULL;
    }
}

bool CHookDispatch::PassOn(const CDySubclassWnd& hook, UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    const Place* const place = s_innermost == NULL ? NULL : s_innermost->PlaceOf(hook);
    if (place == NULL)
        return false;
    // The place may be moved in memory while the others run.
    const Place kept = *place;
    const HWND hwnd = s_innermost->m_hwnd;
    if (kept.next != NULL)
        result = kept.next->WindowProc(msg, wParam, lParam);
    else
        result = hwnd == NULL ? 0 : ::CallWindowProc(kept.previous, hwnd, msg, wParam, lParam);
    return true;
}

const CHookDispatch::Place* CHookDispatch::PlaceOf(const CDySubclassWnd& hook) const
{
    for (size_t i = 0; i < m_left.size(); ++i)
    {
        if (m_left[i].hook == &hook)
            return &m_left[i];
    }
    return NULL;
}

void CHookDispatch::Keep(CDySubclassWnd& hook)
{
    for (size_t i = 0; i < m_left.size(); ++i)
    {
        if (m_left[i].next == &hook)
            m_left[i].next = hook.m_next;
    }
    // A hook that came back and leaves again had its place with regard to this message before.
    if (PlaceOf(hook) == NULL)
    {
        const Place place = {&hook, hook.m_next, hook.m_previous};
        m_left.push_back(place);
    }
}
