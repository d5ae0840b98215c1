#include "HostServices.h"

#include "CommandRunner.h"
#include "DocumentManager.h"
#include "FileTrouble.h"
#include "HostState.h"
#include "SelectionSets.h"
#include "arx/db/Visibility.h"
#include "arx/dxf/DxfReader.h"
#include "arx/rx/DynamicLinker.h"
#include "dbobjptr.h"
#include "dbsymtb.h"

#include <cmath>
#include <memory>

using arxed::CommandRunner;
using arxed::Document;
using arxed::DocumentManager;
using arxed::HostState;
using arxrx::DynamicLinker;

namespace arxhost
{

namespace
{

void Fail(OpenResult& result, Acad::ErrorStatus status, const std::wstring& message)
{
    result.status = status;
    result.message = message;
}

bool EraseOne(AcDbObjectId id)
{
    const AcDbEntityPointer entity(id, AcDb::kForWrite);
    if (entity.openStatus() != Acad::eOk)
    {
        return false;
    }
    const AcDbObjectPointer<AcDbLayerTableRecord> layer(entity->layerId());
    const bool locked = layer.openStatus() == Acad::eOk && layer->isLocked();
    return !locked && entity->erase() == Acad::eOk;
}

} // namespace

void SetMainFrame(CMDIFrameWnd* frame)
{
    HostState::Instance().SetMainFrame(frame);
}

void SetPrintSink(IPrintSink* sink)
{
    HostState::Instance().SetPrintSink(sink);
}

void SetHostUi(IHostUi* ui)
{
    HostState::Instance().SetUi(ui);
}

void AddObserver(IDocumentObserver* observer)
{
    HostState::Instance().observers.Add(observer);
}

void RemoveObserver(IDocumentObserver* observer)
{
    HostState::Instance().observers.Remove(observer);
}

AcApDocument* NewDocument(const wchar_t* title)
{
    std::unique_ptr<AcDbDatabase> database(new AcDbDatabase);
    return &DocumentManager::Instance().Add(title == nullptr ? L"" : title, L"", std::move(database));
}

AcApDocument* OpenDocument(const wchar_t* path, OpenResult& result)
{
    result = OpenResult();
    const std::wstring fullPath = arxrx::FullPath(path == nullptr ? L"" : path);
    if (!arxrx::IsFile(fullPath))
    {
        Fail(result, Acad::eFileNotFound, ReadTrouble(fullPath) + L"：“" + fullPath + L"”。");
        return nullptr;
    }
    if (Document* open = DocumentManager::Instance().FindFile(fullPath))
    {
        DocumentManager::Instance().activateDocument(open);
        return open;
    }
    std::unique_ptr<AcDbDatabase> database(new AcDbDatabase);
    if (!arxdxf::ReadDxf(fullPath.c_str(), *database, result.drawing))
    {
        Fail(result, Acad::eDwgObjectImproperlyRead, result.drawing.error);
        result.line = result.drawing.errorLine;
        return nullptr;
    }
    database->setFilename(fullPath.c_str());
    return &DocumentManager::Instance().Add(arxrx::FileNameOf(fullPath), fullPath, std::move(database));
}

bool CloseDocument(AcApDocument* document)
{
    return DocumentManager::Instance().closeDocument(document) == Acad::eOk;
}

bool SetCurrentDocument(AcApDocument* document)
{
    return DocumentManager::Instance().activateDocument(document) == Acad::eOk;
}

std::vector<AcApDocument*> Documents()
{
    const std::vector<Document*>& documents = DocumentManager::Instance().Documents();
    return std::vector<AcApDocument*>(documents.begin(), documents.end());
}

bool IsDocument(const AcApDocument* document)
{
    return DocumentManager::Instance().Find(document) != nullptr;
}

ViewState GetView(const AcApDocument* document)
{
    const Document* found = DocumentManager::Instance().Find(document);
    return found == nullptr ? ViewState() : found->view;
}

bool SetView(AcApDocument* document, const ViewState& view)
{
    Document* found = DocumentManager::Instance().Find(document);
    const bool usable =
        std::isfinite(view.height) && view.height > 0 && std::isfinite(view.centre.x) && std::isfinite(view.centre.y);
    if (found == nullptr || !usable)
    {
        return false;
    }
    found->view = view;
    HostState::Instance().TellViewChanged(found);
    return true;
}

bool IsPickForced(const AcApDocument* document)
{
    const Document* found = DocumentManager::Instance().Find(document);
    return found != nullptr && found->inputPointManager()->IsPickForced();
}

void TellCursor(AcApDocument* document, const AcGePoint2d& place, const ObjectIds& picked)
{
    const Document* found = DocumentManager::Instance().Find(document);
    if (found == nullptr)
    {
        return;
    }
    AcDbObjectIdArray entities;
    for (const AcDbObjectId& id : picked)
    {
        entities.append(id);
    }
    found->inputPointManager()->Tell(AcEdInputPoint(document, AcGePoint3d(place.x, place.y, 0), entities));
}

ObjectIds GetHighlighted(const AcApDocument* document)
{
    const Document* found = DocumentManager::Instance().Find(document);
    return found == nullptr ? ObjectIds() : found->highlighted.LivingIds();
}

bool IsHighlighted(const AcDbObjectId& id)
{
    const Document* found = DocumentManager::Instance().DocumentOf(id);
    return found != nullptr && found->highlighted.Has(id) && !id.isErased();
}

void ClearHighlight(AcApDocument* document)
{
    Document* found = DocumentManager::Instance().Find(document);
    if (found != nullptr && !found->highlighted.IsEmpty())
    {
        found->highlighted.Clear();
        HostState::Instance().TellHighlightChanged(found);
    }
}

ObjectIds GetPickfirst(const AcApDocument* document)
{
    const Document* found = DocumentManager::Instance().Find(document);
    return found == nullptr ? ObjectIds() : found->pickfirst.LivingIds();
}

void SetPickfirst(AcApDocument* document, const ObjectIds& ids)
{
    Document* found = DocumentManager::Instance().Find(document);
    if (found == nullptr)
    {
        return;
    }
    arxed::ObjectSet chosen;
    for (const AcDbObjectId& id : ids)
    {
        if (id.database() == found->database() && !id.isErased())
        {
            chosen.Add(id);
        }
    }
    if (chosen.Ids() != found->pickfirst.Ids())
    {
        found->pickfirst = chosen;
        HostState::Instance().TellPickfirstChanged(found);
    }
}

int Erase(const ObjectIds& ids)
{
    int erased = 0;
    for (const AcDbObjectId& id : ids)
    {
        erased += EraseOne(id) ? 1 : 0;
    }
    return erased;
}

ObjectIds VisibleEntities(const AcApDocument* document)
{
    ObjectIds visible;
    const Document* found = DocumentManager::Instance().Find(document);
    if (found == nullptr)
    {
        return visible;
    }
    const AcDbObjectPointer<AcDbBlockTableRecord> space(found->database()->currentSpaceId());
    for (int i = 0; space.openStatus() == Acad::eOk && i < space->entityIds().length(); ++i)
    {
        const AcDbEntityPointer entity(space->entityIds()[i]);
        if (entity.openStatus() == Acad::eOk && arxdb::IsShown(*entity.object()))
        {
            visible.push_back(entity->objectId());
        }
    }
    return visible;
}

bool ExecuteCommand(const wchar_t* name)
{
    return name != nullptr && CommandRunner::Instance().RunCommand(name, L"");
}

bool ExecuteLine(const wchar_t* line)
{
    return line != nullptr && CommandRunner::Instance().RunLine(line);
}

int RunPendingInput()
{
    return CommandRunner::Instance().RunPending();
}

bool IsCommandActive()
{
    return CommandRunner::Instance().IsActive();
}

std::vector<std::wstring> CommandNames()
{
    return arxed::CommandStack::Instance().GlobalNames();
}

std::vector<std::wstring> LoadedModules()
{
    return DynamicLinker::Instance().Paths();
}

void UnloadAllModules()
{
    DynamicLinker::Instance().UnloadAll();
}

void Reset()
{
    HostState::Instance().Reset();
    DynamicLinker::Instance().ForgetReactors();
    DocumentManager::Instance().Reset();
    arxed::SelectionSets::Instance().Clear();
    arxed::CommandStack::Instance().Clear();
}

} // namespace arxhost
