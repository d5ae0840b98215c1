#include "msg/MsgFlash.h"

#include <ZnAcadUiBase.h>

#include "base/PrivateMessages.h"

namespace
{

// Guard: a highlighter that nobody owns yet.
class CNewHighlighter
{
public:
    CNewHighlighter() : m_highlighter(new ZnAcadUiBase::CHighlighter) {}
    ~CNewHighlighter() { delete m_highlighter; }

    void Add(const AcDbObjectId& id) { m_highlighter->Add(id); }

    ZnAcadUiBase::CHighlighter* Release()
    {
        ZnAcadUiBase::CHighlighter* const released = m_highlighter;
        m_highlighter = NULL;
        return released;
    }

private:
    CNewHighlighter(const CNewHighlighter&);
    CNewHighlighter& operator=(const CNewHighlighter&);

    ZnAcadUiBase::CHighlighter* m_highlighter;
};

const UINT kTickMilliseconds = 3000;
const DWORD kFlashMilliseconds = 5000;

} // namespace

CMsgFlash::CMsgFlash(CWnd& owner) : m_owner(owner), m_highlighter(NULL), m_startTime(0) {}

CMsgFlash::~CMsgFlash()
{
    Unhighlight();
}

void CMsgFlash::Start(const AcArray<AcDbObjectId>& ids)
{
    // The old highlight goes first: an object of both would lose the new one otherwise.
    Unhighlight();
    // Whoever is told of the highlight may refresh the viewer, which stops what flashes until then.
    CNewHighlighter highlighter;
    for (int i = 0; i < ids.length(); ++i)
        highlighter.Add(ids[i]);
    Unhighlight();
    m_highlighter = highlighter.Release();
    if (!IsRunning())
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
    m_startTime = 0;
    Unhighlight();
}

bool CMsgFlash::IsRunning() const
{
    return m_startTime != 0;
}

// The pointer goes first: whoever is told that the highlight goes may come back here.
void CMsgFlash::Unhighlight()
{
    ZnAcadUiBase::CHighlighter* const former = m_highlighter;
    m_highlighter = NULL;
    delete former;
}
