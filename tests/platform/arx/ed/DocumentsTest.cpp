#include "HostFixture.h"

#include "dbapserv.h"

#include <memory>
#include <set>
#include <vector>

namespace
{

class Documents : public HostTest
{
};

// Writes down what it hears, by document title.
class Journal : public AcApDocManagerReactor
{
public:
    void documentCreateStarted(AcApDocument* d) override { Note(L"start", d); }
    void documentCreated(AcApDocument* d) override { Note(L"created", d); }
    void documentToBeDestroyed(AcApDocument* d) override { Note(L"dying", d); }
    void documentDestroyed(const ACHAR* name) override { text += std::wstring(L"dead:") + name + L" "; }
    void documentBecameCurrent(AcApDocument* d) override { Note(L"current", d); }
    void documentToBeActivated(AcApDocument* d) override { Note(L"activating", d); }
    void documentToBeDeactivated(AcApDocument* d) override { Note(L"leaving", d); }
    void documentActivated(AcApDocument* d) override { Note(L"active", d); }
    void documentActivationModified(bool on) override { text += on ? L"enabled " : L"disabled "; }
    void documentLockModeWillChange(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode, AcAp::DocLockMode,
                                    const ACHAR* command) override
    {
        text += std::wstring(L"will:") + command + L" ";
        if (refuses)
        {
            veto();
        }
    }
    void documentLockModeChangeVetoed(AcApDocument*, const ACHAR*) override { text += L"vetoed "; }
    void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode previous, AcAp::DocLockMode now, AcAp::DocLockMode,
                                 const ACHAR*) override
    {
        text += L"lock:" + std::to_wstring(previous) + L">" + std::to_wstring(now) + L" ";
    }

    std::wstring Take()
    {
        std::wstring taken;
        taken.swap(text);
        return taken;
    }

    bool refuses = false;

private:
    void Note(const wchar_t* what, AcApDocument* document)
    {
        text += std::wstring(what) + L":" + (document == nullptr ? L"-" : document->docTitle()) + L" ";
    }

    std::wstring text;
};

class Observer : public arxhost::IDocumentObserver
{
public:
    void DocumentCreated(AcApDocument*) override { ++created; }
    void DocumentToBeDestroyed(AcApDocument*) override { ++destroyed; }
    void DocumentActivated(AcApDocument* document) override { active = document; }
    void ViewChanged(AcApDocument*) override { ++views; }
    void HighlightChanged(AcApDocument*) override { ++highlights; }
    void PickfirstChanged(AcApDocument*) override { ++pickfirsts; }
    void ContentsChanged(AcApDocument*) override { ++contents; }

    AcApDocument* active = nullptr;
    int created = 0;
    int destroyed = 0;
    int views = 0;
    int highlights = 0;
    int pickfirsts = 0;
    int contents = 0;
};

std::vector<AcApDocument*> Walk()
{
    std::vector<AcApDocument*> documents;
    const std::unique_ptr<AcApDocumentIterator> iterator(acDocManager->newAcApDocumentIterator());
    for (; !iterator->done(); iterator->step())
    {
        documents.push_back(iterator->document());
    }
    return documents;
}

TEST_F(Documents, AreNoneAtFirst)
{
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), nullptr);
    EXPECT_EQ(acDocManager->documentCount(), 0);
    EXPECT_EQ(curDoc(), nullptr);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
    EXPECT_TRUE(acDocManager->isApplicationContext());
    EXPECT_TRUE(Walk().empty());
}

TEST_F(Documents, NewOneIsCurrentAndActive)
{
    AcApDocument* document = arxhost::NewDocument();
    EXPECT_EQ(acDocManager->curDocument(), document);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), document);
    EXPECT_EQ(acDocManager->document(document->database()), document);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), document->database());
    EXPECT_STREQ(document->fileName(), L"Drawing1.dxf");
    EXPECT_FALSE(document->isNamedDrawing());
    EXPECT_STREQ(arxhost::NewDocument()->docTitle(), L"Drawing2.dxf");
}

TEST_F(Documents, AddressIsNeverGivenOutAgain)
{
    std::set<AcApDocument*> addresses;
    for (int i = 0; i < 200; ++i)
    {
        AcApDocument* document = arxhost::NewDocument();
        EXPECT_TRUE(addresses.insert(document).second) << i;
        ASSERT_TRUE(arxhost::CloseDocument(document));
    }
}

TEST_F(Documents, ClosedOneIsNoDocument)
{
    AcApDocument* document = arxhost::NewDocument();
    AcDbDatabase* database = document->database();
    ASSERT_TRUE(arxhost::CloseDocument(document));
    EXPECT_FALSE(arxhost::IsDocument(document));
    EXPECT_FALSE(arxhost::CloseDocument(document));
    EXPECT_FALSE(arxhost::SetCurrentDocument(document));
    EXPECT_EQ(acDocManager->lockDocument(document), Acad::eInvalidInput);
    EXPECT_EQ(acDocManager->document(database), nullptr);
    EXPECT_EQ(document->database(), nullptr);
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST_F(Documents, ClosingTheActiveOneActivatesTheLast)
{
    AcApDocument* first = arxhost::NewDocument();
    AcApDocument* second = arxhost::NewDocument();
    AcApDocument* third = arxhost::NewDocument();
    arxhost::SetCurrentDocument(second);
    arxhost::CloseDocument(second);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), third);
    arxhost::CloseDocument(first);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), third);
    EXPECT_EQ(Walk(), std::vector<AcApDocument*>{third});
}

TEST_F(Documents, CurrentMayDifferFromActive)
{
    AcApDocument* first = arxhost::NewDocument();
    AcApDocument* second = arxhost::NewDocument();
    EXPECT_EQ(acDocManager->setCurDocument(first), Acad::eOk);
    EXPECT_EQ(acDocManager->curDocument(), first);
    EXPECT_EQ(acDocManager->mdiActiveDocument(), second);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), first->database());
    EXPECT_EQ(acDocManager->setCurDocument(nullptr), Acad::eInvalidInput);
}

TEST_F(Documents, IteratorPassesOverThoseThatCloseMeanwhile)
{
    AcApDocument* first = arxhost::NewDocument();
    AcApDocument* second = arxhost::NewDocument();
    AcApDocument* third = arxhost::NewDocument();
    const std::unique_ptr<AcApDocumentIterator> iterator(acDocManager->newAcApDocumentIterator());
    EXPECT_EQ(iterator->document(), first);
    arxhost::CloseDocument(second);
    iterator->step();
    EXPECT_EQ(iterator->document(), third);
    iterator->step();
    EXPECT_TRUE(iterator->done());
    EXPECT_EQ(iterator->document(), nullptr);
    iterator->step();
    EXPECT_TRUE(iterator->done());
}

TEST_F(Documents, ReactorsHearTheWholeLife)
{
    Journal journal;
    acDocManager->addReactor(&journal);
    AcApDocument* a = arxhost::NewDocument(L"A");
    EXPECT_EQ(journal.Take(), L"start:A created:A activating:A current:A active:A ");
    AcApDocument* b = arxhost::NewDocument(L"B");
    EXPECT_EQ(journal.Take(), L"start:B created:B leaving:A activating:B current:B active:B ");
    arxhost::CloseDocument(b);
    EXPECT_EQ(journal.Take(), L"dying:B activating:A current:A active:A dead:B ");
    arxhost::CloseDocument(a);
    EXPECT_EQ(journal.Take(), L"dying:A current:- dead:A ");
    acDocManager->removeReactor(&journal);
    arxhost::NewDocument();
    EXPECT_EQ(journal.Take(), L"");
}

TEST_F(Documents, ActivationCanBeDisabled)
{
    Journal journal;
    AcApDocument* first = arxhost::NewDocument();
    arxhost::NewDocument();
    acDocManager->addReactor(&journal);
    EXPECT_EQ(acDocManager->disableDocumentActivation(), Acad::eOk);
    EXPECT_EQ(acDocManager->disableDocumentActivation(), Acad::eNotApplicable);
    EXPECT_EQ(acDocManager->activateDocument(first), Acad::eDocumentSwitchDisabled);
    EXPECT_EQ(acDocManager->enableDocumentActivation(), Acad::eOk);
    EXPECT_EQ(journal.Take(), L"disabled enabled ");
    EXPECT_EQ(acDocManager->activateDocument(first), Acad::eOk);
    acDocManager->removeReactor(&journal);
}

TEST_F(Documents, LocksAreCounted)
{
    AcApDocument* document = arxhost::NewDocument();
    EXPECT_EQ(document->myLockMode(), AcAp::kNone);
    EXPECT_EQ(acDocManager->unlockDocument(document), Acad::eLockViolation);
    EXPECT_EQ(acDocManager->lockDocument(document, AcAp::kRead), Acad::eOk);
    EXPECT_EQ(acDocManager->lockDocument(document, AcAp::kXWrite), Acad::eOk);
    EXPECT_EQ(document->myLockMode(), AcAp::kXWrite);
    EXPECT_EQ(document->lockMode(true), AcAp::kXWrite);
    acDocManager->unlockDocument(document);
    EXPECT_EQ(document->myLockMode(), AcAp::kRead);
    acDocManager->unlockDocument(document);
    EXPECT_EQ(document->myLockMode(), AcAp::kNone);
}

TEST_F(Documents, LockCanBeVetoed)
{
    AcApDocument* document = arxhost::NewDocument();
    Journal journal;
    acDocManager->addReactor(&journal);
    journal.refuses = true;
    EXPECT_EQ(acDocManager->lockDocument(document, AcAp::kWrite, L"CMD"), Acad::eLockViolation);
    EXPECT_EQ(journal.Take(), L"will:CMD vetoed ");
    EXPECT_EQ(document->myLockMode(), AcAp::kNone);
    journal.refuses = false;
    EXPECT_EQ(acDocManager->lockDocument(document, AcAp::kWrite, L"CMD"), Acad::eOk);
    EXPECT_EQ(journal.Take(), L"will:CMD lock:0>4 ");
    acDocManager->removeReactor(&journal);
}

TEST_F(Documents, ViewIsKeptForEach)
{
    Observer observer;
    arxhost::AddObserver(&observer);
    AcApDocument* first = arxhost::NewDocument();
    AcApDocument* second = arxhost::NewDocument();
    arxhost::ViewState view;
    view.centre = AcGePoint2d(3, 4);
    view.height = 50;
    EXPECT_TRUE(arxhost::SetView(first, view));
    EXPECT_EQ(arxhost::GetView(first).centre.y, 4);
    EXPECT_GT(arxhost::GetView(second).height, 50);
    EXPECT_EQ(observer.views, 1);
    view.height = 0;
    EXPECT_FALSE(arxhost::SetView(first, view));
    view.height = -1;
    EXPECT_FALSE(arxhost::SetView(first, view));
    EXPECT_EQ(arxhost::GetView(first).height, 50);
    arxhost::RemoveObserver(&observer);
}

TEST_F(Documents, ObserversSeeDocumentsAndContents)
{
    Observer observer;
    arxhost::AddObserver(&observer);
    AcApDocument* document = arxhost::NewDocument();
    EXPECT_EQ(observer.created, 1);
    EXPECT_EQ(observer.active, document);
    const AcDbObjectId id = AddToModelSpace(*document->database(), new BoxEntity);
    EXPECT_GT(observer.contents, 0);
    const int before = observer.contents;
    EXPECT_EQ(arxhost::Erase({id, id}), 1);
    EXPECT_EQ(observer.contents, before + 1);
    arxhost::CloseDocument(document);
    EXPECT_EQ(observer.destroyed, 1);
    EXPECT_EQ(observer.active, nullptr);
    arxhost::RemoveObserver(&observer);
}

TEST_F(Documents, MissingFileIsNotOpened)
{
    arxhost::OpenResult result;
    EXPECT_EQ(arxhost::OpenDocument(L"C:\\no such folder\\drawing.dxf", result), nullptr);
    EXPECT_EQ(result.status, Acad::eFileNotFound);
    EXPECT_EQ(result.message, L"找不到文件：“C:\\no such folder\\drawing.dxf”。");
    EXPECT_EQ(arxhost::OpenDocument(nullptr, result), nullptr);
    EXPECT_EQ(acDocManager->documentCount(), 0);
    EXPECT_EQ(acDocManager->appContextOpenDocument(L"C:\\none.dxf"), Acad::eFileNotFound);
    EXPECT_NE(Take().find(L"none.dxf"), std::wstring::npos);
}

TEST_F(Documents, HighlightIsKeptPerDocument)
{
    Observer observer;
    arxhost::AddObserver(&observer);
    AcApDocument* document = arxhost::NewDocument();
    const AcDbObjectId id = AddToModelSpace(*document->database(), new BoxEntity);
    const AcDbObjectId other = AddToModelSpace(*document->database(), new BoxEntity);
    {
        const AcDbEntityPointer entity(id);
        EXPECT_EQ(entity->highlight(), Acad::eOk);
        EXPECT_EQ(entity->highlight(), Acad::eOk);
        const AcDbEntityPointer second(other);
        second->highlight();
    }
    EXPECT_EQ(observer.highlights, 2);
    EXPECT_TRUE(arxhost::IsHighlighted(id));
    EXPECT_EQ(arxhost::GetHighlighted(document), (arxhost::ObjectIds{id, other}));
    EraseEntity(id);
    EXPECT_FALSE(arxhost::IsHighlighted(id));
    EXPECT_EQ(arxhost::GetHighlighted(document), arxhost::ObjectIds{other});
    arxhost::ClearHighlight(document);
    EXPECT_TRUE(arxhost::GetHighlighted(document).empty());
    arxhost::RemoveObserver(&observer);
}

TEST_F(Documents, DrawingWithoutDocumentIsNotHighlighted)
{
    AcDbDatabase database;
    const AcDbEntityPointer entity(AddToModelSpace(database, new BoxEntity));
    EXPECT_EQ(entity->highlight(), Acad::eNoDocument);
}

TEST_F(Documents, PickfirstTakesLivingObjectsOfTheDocumentOnce)
{
    Observer observer;
    arxhost::AddObserver(&observer);
    AcApDocument* document = arxhost::NewDocument();
    const AcDbObjectId id = AddToModelSpace(*document->database(), new BoxEntity);
    const AcDbObjectId erased = AddToModelSpace(*document->database(), new BoxEntity);
    EraseEntity(erased);
    AcDbDatabase elsewhere;
    const AcDbObjectId foreign = AddToModelSpace(elsewhere, new BoxEntity);
    arxhost::SetPickfirst(document, {id, erased, foreign, id, AcDbObjectId::kNull});
    EXPECT_EQ(arxhost::GetPickfirst(document), arxhost::ObjectIds{id});
    arxhost::SetPickfirst(document, {id});
    EXPECT_EQ(observer.pickfirsts, 1);
    EraseEntity(id);
    EXPECT_TRUE(arxhost::GetPickfirst(document).empty());
    EXPECT_EQ(observer.pickfirsts, 2);
    arxhost::RemoveObserver(&observer);
}

TEST_F(Documents, LockedLayersKeepTheirEntities)
{
    AcApDocument* document = arxhost::NewDocument();
    const AcDbObjectId layer = AddLayer(*document->database(), L"Locked");
    const AcDbObjectId id = AddToModelSpace(*document->database(), new BoxEntity);
    {
        const AcDbEntityPointer entity(id, AcDb::kForWrite);
        entity->setLayer(layer);
        const AcDbObjectPointer<AcDbLayerTableRecord> record(layer, AcDb::kForWrite);
        record->setIsLocked(true);
    }
    EXPECT_EQ(arxhost::Erase({id}), 0);
    EXPECT_FALSE(id.isErased());
}

TEST_F(Documents, VisibleEntitiesLeaveOutWhatIsNotShown)
{
    AcApDocument* document = arxhost::NewDocument();
    AcDbDatabase& database = *document->database();
    const AcDbObjectId shown = AddToModelSpace(database, new BoxEntity);
    const AcDbObjectId invisible = AddToModelSpace(database, new BoxEntity);
    const AcDbObjectId frozen = AddToModelSpace(database, new BoxEntity);
    EraseEntity(AddToModelSpace(database, new BoxEntity));
    const AcDbObjectId layer = AddLayer(database, L"Frozen");
    {
        const AcDbEntityPointer first(invisible, AcDb::kForWrite);
        first->setVisibility(AcDb::kInvisible);
        const AcDbEntityPointer second(frozen, AcDb::kForWrite);
        second->setLayer(layer);
        const AcDbObjectPointer<AcDbLayerTableRecord> record(layer, AcDb::kForWrite);
        record->setIsFrozen(true);
    }
    EXPECT_EQ(arxhost::VisibleEntities(document), arxhost::ObjectIds{shown});
}

} // namespace
