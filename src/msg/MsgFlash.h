// The flash of drawing objects: highlights them, and takes the highlight off at the first tick of its timer after five
// seconds.
#pragma once

#include <afxwin.h>
#include <acarray.h>
#include <dbid.h>

namespace ZnAcadUiBase
{
class CHighlighter;
}

class CMsgFlash
{
public:
    // `owner` gets the ticks as WM_TIMER with ZNKT_TIMER_FLASH and passes them on to OnTick.
    explicit CMsgFlash(CWnd& owner);
    ~CMsgFlash();

    // Highlights these objects in place of those that flash now. A flash that runs goes on with its timer, its five
    // seconds begin again.
    void Start(const AcArray<AcDbObjectId>& ids);

    void OnTick();

    // Nothing happens when nothing flashes.
    void Stop();

    bool IsRunning() const;

private:
    CMsgFlash(const CMsgFlash&);
    CMsgFlash& operator=(const CMsgFlash&);

    void Unhighlight();

    CWnd& m_owner;
    ZnAcadUiBase::CHighlighter* m_highlighter; // owned; null when nothing flashes
    DWORD m_startTime;                         // ticks; 0 when nothing flashes
};
