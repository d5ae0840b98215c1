// The documented classes around documents and the editor: what they do until somebody derives from them.
#include "acdocman.h"
#include "aced.h"

#include "HostState.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocument, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocManager, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocManagerReactor, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcEditor, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcEditorReactor, AcRxObject)

AcApDocument::AcApDocument() {}

AcApDocument::~AcApDocument() {}

AcApDocumentIterator::~AcApDocumentIterator() {}

AcApDocManager::AcApDocManager() {}

AcApDocManager::~AcApDocManager() {}

AcApDocManagerReactor::AcApDocManagerReactor() : m_vetoed(false) {}

AcApDocManagerReactor::~AcApDocManagerReactor() {}

Acad::ErrorStatus AcApDocManagerReactor::veto()
{
    m_vetoed = true;
    return Acad::eOk;
}

void AcApDocManagerReactor::documentCreateStarted(AcApDocument* /*document*/) {}

void AcApDocManagerReactor::documentCreated(AcApDocument* /*document*/) {}

void AcApDocManagerReactor::documentToBeDestroyed(AcApDocument* /*document*/) {}

void AcApDocManagerReactor::documentDestroyed(const ACHAR* /*fileName*/) {}

void AcApDocManagerReactor::documentCreateCanceled(AcApDocument* /*document*/) {}

void AcApDocManagerReactor::documentLockModeWillChange(AcApDocument* /*document*/, AcAp::DocLockMode /*myCurrentMode*/,
                                                       AcAp::DocLockMode /*myNewMode*/,
                                                       AcAp::DocLockMode /*currentMode*/,
                                                       const ACHAR* /*globalCommandName*/)
{
}

void AcApDocManagerReactor::documentLockModeChangeVetoed(AcApDocument* /*document*/, const ACHAR* /*globalCommandName*/)
{
}

void AcApDocManagerReactor::documentLockModeChanged(AcApDocument* /*document*/, AcAp::DocLockMode /*myPreviousMode*/,
                                                    AcAp::DocLockMode /*myCurrentMode*/,
                                                    AcAp::DocLockMode /*currentMode*/,
                                                    const ACHAR* /*globalCommandName*/)
{
}

void AcApDocManagerReactor::documentBecameCurrent(AcApDocument* /*document*/) {}

void AcApDocManagerReactor::documentToBeActivated(AcApDocument* /*activatingDocument*/) {}

void AcApDocManagerReactor::documentToBeDeactivated(AcApDocument* /*deactivatedDocument*/) {}

void AcApDocManagerReactor::documentActivationModified(bool /*activation*/) {}

void AcApDocManagerReactor::documentActivated(AcApDocument* /*activatedDocument*/) {}

AcEditor::AcEditor() {}

AcEditor::~AcEditor() {}

AcEditorReactor::AcEditorReactor() {}

AcEditorReactor::~AcEditorReactor() {}

void AcEditorReactor::commandWillStart(const ACHAR* /*commandName*/) {}

void AcEditorReactor::commandEnded(const ACHAR* /*commandName*/) {}

void AcEditorReactor::commandCancelled(const ACHAR* /*commandName*/) {}

void AcEditorReactor::commandFailed(const ACHAR* /*commandName*/) {}

void AcEditorReactor::unknownCommand(const ACHAR* /*commandName*/) {}

void AcEditorReactor::pickfirstModified() {}

namespace
{

class Editor : public AcEditor
{
public:
    void addReactor(AcEditorReactor* reactor) override { arxed::HostState::Instance().editorReactors.Add(reactor); }
    void removeReactor(AcEditorReactor* reactor) override
    {
        arxed::HostState::Instance().editorReactors.Remove(reactor);
    }
};

} // namespace

AcEditor* acedEditorPtr()
{
    // Never destroyed: modules take their reactors away until they are unloaded.
    static AcEditor* const editor = new Editor;
    return editor;
}
