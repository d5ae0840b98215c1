// The editor: commands, what they do to listeners, screen and status bar.
#pragma once

#include "accmd.h"
#include "acedads.h"
#include "acutads.h"
#include "dbmain.h"

// Hears of commands. Register it with acedEditor->addReactor(). Names are global ones.
class ARX_API AcEditorReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEditorReactor);

    virtual ~AcEditorReactor();

    virtual void commandWillStart(const ACHAR* commandName);
    virtual void commandEnded(const ACHAR* commandName);
    virtual void commandCancelled(const ACHAR* commandName);
    virtual void commandFailed(const ACHAR* commandName);
    virtual void unknownCommand(const ACHAR* commandName);
    virtual void pickfirstModified();

protected:
    AcEditorReactor();
};

class ARX_API AcEditor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcEditor);

    virtual ~AcEditor();

    // Null and doubles are ignored; the caller keeps the reactor's ownership.
    virtual void addReactor(AcEditorReactor* reactor) = 0;
    virtual void removeReactor(AcEditorReactor* reactor) = 0;

protected:
    AcEditor();
};

ARX_API AcEditor* acedEditorPtr();
#define acedEditor acedEditorPtr()

// Draws the current document again.
ARX_API void acedUpdateDisplay();

// A progress display in the status bar: label, limits, position, and back to normal. RTNORM, or RTERROR when there is
// no status bar or the limits are crossed.
ARX_API int acedSetStatusBarProgressMeter(const ACHAR* label, int minimum, int maximum);
ARX_API int acedSetStatusBarProgressMeterPos(int position);
ARX_API int acedRestoreStatusBar();
