// One document: its drawing, what is highlighted and selected in it, its view and its locks.
//
// Documents are never freed, so that the address of a closed one is never met again; a closed one has given up
// everything it held.
#pragma once

#include "HostServices.h"
#include "InputPointManager.h"
#include "ObjectSet.h"

#include <memory>
#include <string>
#include <vector>

namespace arxed
{

class Document : public AcApDocument, private AcDbDatabaseReactor
{
public:
    // `path` is empty for a drawing that was never stored.
    Document(const std::wstring& title, const std::wstring& path, std::unique_ptr<AcDbDatabase> database);

    const ACHAR* fileName() const override { return m_path.empty() ? m_title.c_str() : m_path.c_str(); }
    const ACHAR* docTitle() const override { return m_title.c_str(); }
    bool isNamedDrawing() const override { return !m_path.empty(); }
    bool isReadOnly() const override { return false; }
    AcDbDatabase* database() const override { return m_database.get(); }
    CDocument* cDoc() const override { return nullptr; }
    AcAp::DocLockMode lockMode(bool includeMyLocks) const override;
    AcAp::DocLockMode myLockMode() const override;
    bool isQuiescent() const override { return m_runningCommands == 0; }
    InputPointManager* inputPointManager() const override { return m_pointManager.get(); }

    // Gives up the drawing and all state.
    void Close();

    void PushLock(AcAp::DocLockMode mode) { m_locks.push_back(mode); }
    // False when nothing is locked.
    bool PopLock();
    void CommandStarted() { ++m_runningCommands; }
    void CommandEnded() { --m_runningCommands; }

    arxhost::ViewState view;
    ObjectSet highlighted;
    ObjectSet pickfirst;
    // What acedSSGet(L"_P") gives.
    std::vector<AcDbObjectId> previousSelection;
    // Text of sendStringToExecute() that was not run yet.
    std::wstring pendingInput;

private:
    void objectAppended(const AcDbDatabase* database, const AcDbObject* object) override;
    void objectModified(const AcDbDatabase* database, const AcDbObject* object) override;
    void objectErased(const AcDbDatabase* database, const AcDbObject* object, bool erased) override;

    const std::wstring m_title;
    const std::wstring m_path;
    std::unique_ptr<AcDbDatabase> m_database;
    const std::unique_ptr<InputPointManager> m_pointManager{new InputPointManager};
    std::vector<AcAp::DocLockMode> m_locks;
    int m_runningCommands = 0;
};

} // namespace arxed
