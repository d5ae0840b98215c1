// Documents: the open drawings and which of them is current.
//
// "Active" is the document whose window has the focus; "current" is the one that commands work on. They differ only
// while a program has switched the current one by setCurDocument(). Both are null in the zero-document state.
#pragma once

#include "dbmain.h"

#include "arx/WindowsTypes.h"

class AcEdInputPointManager;
class CDocument;

struct AcAp
{
    enum DocLockMode
    {
        kNone = 0x00,
        kAutoWrite = 0x01,
        kNotLocked = 0x02,
        kWrite = 0x04,
        kProtectedAutoWrite = 0x14,
        kRead = 0x20,
        kXWrite = 0x40
    };
};

class ARX_API AcApDocument : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocument);

    virtual ~AcApDocument();

    // Full path, or the title of a drawing that was never stored. Valid while the document lives.
    virtual const ACHAR* fileName() const = 0;
    virtual const ACHAR* docTitle() const = 0;
    virtual bool isNamedDrawing() const = 0;
    virtual bool isReadOnly() const = 0;

    // Belongs to the document.
    virtual AcDbDatabase* database() const = 0;

    // The framework's document; null, because the host keeps none.
    virtual CDocument* cDoc() const = 0;

    // Strongest lock of all, and of the caller. Commands hold kWrite while they run.
    virtual AcAp::DocLockMode lockMode(bool includeMyLocks = false) const = 0;
    virtual AcAp::DocLockMode myLockMode() const = 0;
    // True while no command runs in it.
    virtual bool isQuiescent() const = 0;

    // Belongs to the document.
    virtual AcEdInputPointManager* inputPointManager() const = 0;

protected:
    AcApDocument();
};

// Hears of documents that come, go and become current. Register it with acDocManager->addReactor().
class ARX_API AcApDocManagerReactor : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManagerReactor);

    virtual ~AcApDocManagerReactor();

    virtual void documentCreateStarted(AcApDocument* document);
    virtual void documentCreated(AcApDocument* document);
    virtual void documentToBeDestroyed(AcApDocument* document);
    virtual void documentDestroyed(const ACHAR* fileName);
    virtual void documentCreateCanceled(AcApDocument* document);

    virtual void documentLockModeWillChange(AcApDocument* document, AcAp::DocLockMode myCurrentMode,
                                            AcAp::DocLockMode myNewMode, AcAp::DocLockMode currentMode,
                                            const ACHAR* globalCommandName);
    // Told by the manager to the others after one reactor called veto() in documentLockModeWillChange().
    virtual void documentLockModeChangeVetoed(AcApDocument* document, const ACHAR* globalCommandName);
    virtual void documentLockModeChanged(AcApDocument* document, AcAp::DocLockMode myPreviousMode,
                                         AcAp::DocLockMode myCurrentMode, AcAp::DocLockMode currentMode,
                                         const ACHAR* globalCommandName);

    virtual void documentBecameCurrent(AcApDocument* document);
    virtual void documentToBeActivated(AcApDocument* activatingDocument);
    virtual void documentToBeDeactivated(AcApDocument* deactivatedDocument);
    virtual void documentActivationModified(bool activation);
    virtual void documentActivated(AcApDocument* activatedDocument);

protected:
    AcApDocManagerReactor();
    // Refuses the lock that is being announced.
    Acad::ErrorStatus veto();

private:
    friend class AcApDocManagerReactorAccess;
    bool m_vetoed;
};

// Walks the documents in the order in which they were opened. Deleted by the caller. Documents that close meanwhile are
// left out.
class ARX_API AcApDocumentIterator
{
public:
    virtual ~AcApDocumentIterator();
    virtual bool done() const = 0;
    virtual void step() = 0;
    // Null when done.
    virtual AcApDocument* document() = 0;
};

class ARX_API AcApDocManager : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcApDocManager);

    virtual ~AcApDocManager();

    virtual AcApDocument* curDocument() const = 0;
    virtual AcApDocument* mdiActiveDocument() const = 0;
    virtual int documentCount() const = 0;
    // The document of a drawing; null for drawings without one.
    virtual AcApDocument* document(const AcDbDatabase* database) const = 0;
    virtual AcApDocumentIterator* newAcApDocumentIterator() = 0;

    // Results: eInvalidInput for something that is no document, eLockViolation when a reactor vetoed or nothing is
    // locked, eDocumentSwitchDisabled while activation is disabled, eNotApplicable while a command runs.
    virtual Acad::ErrorStatus lockDocument(AcApDocument* document, AcAp::DocLockMode mode = AcAp::kWrite,
                                           const ACHAR* globalCommandName = NULL, const ACHAR* localCommandName = NULL,
                                           bool prompt = true) = 0;
    virtual Acad::ErrorStatus unlockDocument(AcApDocument* document) = 0;
    // Also activates the document when `activate`. Locks it when a mode is given.
    virtual Acad::ErrorStatus setCurDocument(AcApDocument* document, AcAp::DocLockMode mode = AcAp::kNone,
                                             bool activate = false) = 0;
    virtual Acad::ErrorStatus activateDocument(AcApDocument* document) = 0;
    virtual Acad::ErrorStatus disableDocumentActivation() = 0;
    virtual Acad::ErrorStatus enableDocumentActivation() = 0;
    virtual bool isDocumentActivationEnabled() = 0;

    // Text that is taken as if it were typed, once the running command and the current handler are over. A space or
    // an end of line ends an answer.
    virtual Acad::ErrorStatus sendStringToExecute(AcApDocument* document, const ACHAR* text, bool activate = true,
                                                  bool wrapUpInactiveDoc = false, bool echoString = true) = 0;
    virtual int inputPending(AcApDocument* document) = 0;

    // True outside commands: in palettes, modeless dialogs and their timers.
    virtual bool isApplicationContext() const = 0;
    // Calls the procedure in the application context.
    virtual void executeInApplicationContext(void (*procedure)(void*), void* data) const = 0;
    virtual Acad::ErrorStatus appContextNewDocument(const ACHAR* templateName) = 0;
    // eFileNotFound or the reader's code; the reason is printed.
    virtual Acad::ErrorStatus appContextOpenDocument(const ACHAR* drawingName) = 0;
    virtual Acad::ErrorStatus closeDocument(AcApDocument* document) = 0;
    virtual Acad::ErrorStatus appContextCloseDocument(AcApDocument* document) = 0;

    // A stack of resource modules: push remembers the framework's resource handle and sets another one, pop goes back.
    // A pop without a push does nothing.
    virtual void pushResourceHandle(HINSTANCE instance) = 0;
    virtual void popResourceHandle() = 0;

    // Null and doubles are ignored; the caller keeps the reactor's ownership.
    virtual void addReactor(AcApDocManagerReactor* reactor) = 0;
    virtual void removeReactor(AcApDocManagerReactor* reactor) = 0;

protected:
    AcApDocManager();
};

ARX_API AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()

inline AcApDocument* curDoc()
{
    return acDocManager->curDocument();
}
