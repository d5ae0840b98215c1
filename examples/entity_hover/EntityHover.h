// Shows the properties of the entity that the mouse rests on, in the message window beside the cursor.
//
// Nothing is posted while the mouse moves, while a button is down or while a command runs. Over nothing the window
// keeps what it says and hides by its own rules.
#pragma once

#include <acdocman.h>
#include <acedinpt.h>

#include "HoverMemory.h"

class CCheckSpecMsgThread;

namespace entity_hover
{

class CEntityHover : private AcEdInputPointMonitor, private AcApDocManagerReactor
{
public:
    CEntityHover() = default;
    ~CEntityHover() override { Stop(); }
    CEntityHover(const CEntityHover&) = delete;
    CEntityHover& operator=(const CEntityHover&) = delete;

    bool IsOn() const { return m_window != nullptr; }
    // Watches every document, those to come as well. One object at a time.
    void Start();
    // Takes the window away and waits for its thread: its code may be unloaded afterwards.
    void Stop();

private:
    Acad::ErrorStatus monitorInputPoint(const AcEdInputPoint& input, AcEdInputPointMonitorResult& output) override;
    void documentCreated(AcApDocument* document) override;
    void documentToBeDestroyed(AcApDocument* document) override;

    static void CALLBACK OnRest(HWND, UINT, UINT_PTR, DWORD);
    static void CALLBACK OnFocusCheck(HWND, UINT, UINT_PTR, DWORD);

    void Watch(AcApDocument* document);
    void Unwatch(AcApDocument* document);
    void SetRestTimer(bool on);
    void SetFocusTimer(bool on);
    void Rested();
    bool IsUserBusy() const;
    void Post(const Lines& lines);
    void ReturnFocus();

    static CEntityHover* s_running;

    CCheckSpecMsgThread* m_window = nullptr;
    CHoverMemory m_memory;
    AcApDocument* m_document = nullptr; // of the entity
    AcDbObjectId m_entity;              // under the cursor; null for none
    CPoint m_cursor;                    // where it was over the entity, on the screen
    UINT_PTR m_restTimer = 0;
    UINT_PTR m_focusTimer = 0;
    int m_focusChecks = 0;
    HWND m_focus = nullptr; // had it before the window came up
};

} // namespace entity_hover
