#include "msg/MsgFlash.h"

#include <ZnAcadUiBase.h>

#include "base/PrivateMessages.h"

namespace
{

const UINT kTickMilliseconds = 3000;
const DWORD kFlashMilliseconds = 5000;

} // namespace

CMsgFlash::CMsgFlash(CWnd& owner) : m_owner(owner), m_highlighter(NULL), m_startTime(0) {}

CMsgFlash::~CMsgFlash()
{
    delete m_highlighter;
}

void CMsgFlash::Start(const AcArray<AcDbObjectId>& ids)
{
    const bool timerRuns = IsRunning();
    // The old highlight goes first: an object of both would lose the new one otherwise.
    delete m_highlighter;
    m_highlighter = NULL;
    m_highlighter = new ZnAcadUiBase::CHighlighter;
    for (int i = 0; i < ids.length(); ++i)
        m_highlighter->Add(ids[i]);
    if (!timerRuns)
        m_owner.SetTimer(ZNKT_TIMER_FLASH, kTickMilliseconds, NULL);
    m_startTime = ::GetTickCount();
}

void CMsgFlash::OnTick()
{
    if (IsRunning() && ::GetTickCount() - m_startTime > kFlashMilliseconds)
        Stop();
}

void CMsgFlash::Stop()
{
    if (!IsRunning())
        return;
    m_owner.KillTimer(ZNKT_TIMER_FLASH);
    delete m_highlighter;
    m_highlighter = NULL;
    m_startTime = 0;
}

bool CMsgFlash::IsRunning() const
{
    return m_highlighter != NULL;
}
