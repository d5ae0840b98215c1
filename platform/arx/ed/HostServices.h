// What the host program and tests need beside the documented interface: documents, view and selection state, command
// execution. Everything works without a window; the program plugs its frame in by the interfaces below. Call from the
// main thread only.
#pragma once

#include "acdocman.h"
#include "aced.h"
#include "acarray.h"
#include "arx/dxf/DxfResult.h"
#include "gepnt2d.h"

#include <string>
#include <vector>

class CMDIFrameWnd;
class CView;

namespace arxhost
{

typedef std::vector<AcDbObjectId> ObjectIds;

// Where acutPrintf() goes. The text may hold line ends and parts of lines.
class IPrintSink
{
public:
    virtual ~IPrintSink() = default;
    virtual void Print(const wchar_t* text) = 0;
};

// How the user answered the question for a point.
enum class PointReply
{
    GivenUp,
    Typed, // a text, empty for Enter alone
    Picked
};

// The parts of the frame that the C interface reaches.
class IHostUi
{
public:
    virtual ~IHostUi() = default;

    // Asks the user; false when given up. `wholeLine`: a space does not end the answer.
    virtual bool GetString(const wchar_t* /*prompt*/, bool /*wholeLine*/, std::wstring& /*answer*/) { return false; }
    // Asks for a point in the current drawing, which is picked in its view or typed.
    virtual PointReply GetPoint(const wchar_t* /*prompt*/, std::wstring& /*typed*/, AcGePoint2d& /*picked*/)
    {
        return PointReply::GivenUp;
    }
    // Of the current drawing; null when it has none.
    virtual CView* CurrentView() { return nullptr; }
    // Lets the user select objects; false when given up.
    virtual bool SelectObjects(ObjectIds& /*ids*/) { return false; }
    // Text waits to be run: call RunPendingInput() once the current message is dealt with.
    virtual void InputPending() {}
    virtual void PostCommandPrompt() {}
    virtual void UpdateDisplay() {}
    // False when there is no status bar.
    virtual bool SetProgressMeter(const wchar_t* /*label*/, int /*minimum*/, int /*maximum*/) { return false; }
    virtual bool SetProgressPosition(int /*position*/) { return false; }
    virtual bool RestoreStatusBar() { return false; }
};

class IDocumentObserver
{
public:
    virtual ~IDocumentObserver() = default;
    virtual void DocumentCreated(AcApDocument* /*document*/) {}
    virtual void DocumentToBeDestroyed(AcApDocument* /*document*/) {}
    // Null: the last document went.
    virtual void DocumentActivated(AcApDocument* /*document*/) {}
    virtual void ViewChanged(AcApDocument* /*document*/) {}
    virtual void HighlightChanged(AcApDocument* /*document*/) {}
    virtual void PickfirstChanged(AcApDocument* /*document*/) {}
    // Objects were added, changed or erased. Comes once for each object.
    virtual void ContentsChanged(AcApDocument* /*document*/) {}
};

// The visible part of model space: its centre and its height in drawing units.
struct ViewState
{
    AcGePoint2d centre;
    double height = 0;
};

struct OpenResult
{
    Acad::ErrorStatus status = Acad::eOk;
    // Of the file, from 1; 0 when the failure belongs to no line.
    int line = 0;
    // Chinese text for the user; empty after success.
    std::wstring message;
    // What the reader counted and warned of. Empty for a drawing that was open already.
    arxdxf::DxfResult drawing;
};

// Program parts. Null takes them away again; the caller keeps their ownership. The frame must have its window.
ARX_API void SetMainFrame(CMDIFrameWnd* frame);
ARX_API void SetPrintSink(IPrintSink* sink);
ARX_API void SetHostUi(IHostUi* ui);
ARX_API void AddObserver(IDocumentObserver* observer);
ARX_API void RemoveObserver(IDocumentObserver* observer);

// Documents. A new one becomes current and active. The address of a document is never given out again in a process.
// An empty title gives "Drawing1.dxf" and so on.
ARX_API AcApDocument* NewDocument(const wchar_t* title = L"");
// Null after a failure; nothing half-read stays. A file that is open already is activated.
ARX_API AcApDocument* OpenDocument(const wchar_t* path, OpenResult& result);
// False for something that is no document, and while a command runs in it.
ARX_API bool CloseDocument(AcApDocument* document);
// Current and active. False for something that is no document.
ARX_API bool SetCurrentDocument(AcApDocument* document);
ARX_API std::vector<AcApDocument*> Documents();
ARX_API bool IsDocument(const AcApDocument* document);

// View. A new document shows all of its drawing, an empty one a sheet of paper. A height that is not a positive number
// is refused with false.
ARX_API ViewState GetView(const AcApDocument* document);
ARX_API bool SetView(AcApDocument* document, const ViewState& view);

// Whether a client wants to know what is under the cursor. False for something that is no document.
ARX_API bool IsPickForced(const AcApDocument* document);
// The cursor moved over the view, in drawing units: tells the document's input point monitors, and what the cursor is
// over when that is wanted. Nothing for something that is no document.
ARX_API void TellCursor(AcApDocument* document, const AcGePoint2d& place, const ObjectIds& picked = ObjectIds());

// Highlighting and the pickfirst selection, in the order in which objects came in. Erased objects are left out.
// Highlighting is a state of its own: the host shows the union of both.
ARX_API ObjectIds GetHighlighted(const AcApDocument* document);
ARX_API bool IsHighlighted(const AcDbObjectId& id);
ARX_API void ClearHighlight(AcApDocument* document);
ARX_API ObjectIds GetPickfirst(const AcApDocument* document);
ARX_API void SetPickfirst(AcApDocument* document, const ObjectIds& ids);

// Erases the entities that can be erased; returns their number.
ARX_API int Erase(const ObjectIds& ids);
// Entities of model space in drawing order that are neither erased nor invisible nor on a layer that is off or frozen.
ARX_API ObjectIds VisibleEntities(const AcApDocument* document);

// Commands. ExecuteCommand() runs one command without answers; false when there is no such command. ExecuteLine() takes
// a line as typed: the command's name, then answers for acedGetString() and its kin; answers that no command asked for
// are dropped at the end of the line.
ARX_API bool ExecuteCommand(const wchar_t* name);
ARX_API bool ExecuteLine(const wchar_t* line);
// Runs what sendStringToExecute() left; returns the number of lines. Does nothing while a command runs.
ARX_API int RunPendingInput();
ARX_API bool IsCommandActive();
// Global names, sorted.
ARX_API std::vector<std::wstring> CommandNames();

// Loader. Full paths, in the order of loading.
ARX_API std::vector<std::wstring> LoadedModules();
// kQuitMsg to every module, then all of them unloaded, locked ones too, the last first.
ARX_API void UnloadAllModules();

// Back to the state at program start for tests: documents, selection sets, reactors, commands, sinks. Modules stay.
ARX_API void Reset();

} // namespace arxhost
