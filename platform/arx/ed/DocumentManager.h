// The open documents.
#pragma once

#include "Document.h"
#include "arx/db/HighlightSink.h"
#include "arx/rx/ReactorList.h"

#include <vector>

namespace arxed
{

class DocumentManager : public AcApDocManager, private arxdb::IHighlightSink
{
public:
    static DocumentManager& Instance();

    AcApDocument* curDocument() const override { return m_current; }
    AcApDocument* mdiActiveDocument() const override { return m_active; }
    int documentCount() const override { return static_cast<int>(m_documents.size()); }
    AcApDocument* document(const AcDbDatabase* database) const override;
    AcApDocumentIterator* newAcApDocumentIterator() override;

    Acad::ErrorStatus lockDocument(AcApDocument* document, AcAp::DocLockMode mode, const ACHAR* globalCommandName,
                                   const ACHAR* localCommandName, bool prompt) override;
    Acad::ErrorStatus unlockDocument(AcApDocument* document) override;
    Acad::ErrorStatus setCurDocument(AcApDocument* document, AcAp::DocLockMode mode, bool activate) override;
    Acad::ErrorStatus activateDocument(AcApDocument* document) override;
    Acad::ErrorStatus disableDocumentActivation() override;
    Acad::ErrorStatus enableDocumentActivation() override;
    bool isDocumentActivationEnabled() override { return m_activationEnabled; }

    Acad::ErrorStatus sendStringToExecute(AcApDocument* document, const ACHAR* text, bool activate,
                                          bool wrapUpInactiveDoc, bool echoString) override;
    int inputPending(AcApDocument* document) override;
    bool isApplicationContext() const override;
    void executeInApplicationContext(void (*procedure)(void*), void* data) const override;
    Acad::ErrorStatus appContextNewDocument(const ACHAR* templateName) override;
    Acad::ErrorStatus appContextOpenDocument(const ACHAR* drawingName) override;
    Acad::ErrorStatus closeDocument(AcApDocument* document) override;
    Acad::ErrorStatus appContextCloseDocument(AcApDocument* document) override;

    void pushResourceHandle(HINSTANCE instance) override;
    void popResourceHandle() override;
    void addReactor(AcApDocManagerReactor* reactor) override { m_reactors.Add(reactor); }
    void removeReactor(AcApDocManagerReactor* reactor) override { m_reactors.Remove(reactor); }

    // For the host. Null for something that is no document.
    Document* Find(const AcApDocument* document) const;
    Document* Current() const { return m_current; }
    // The document of an object's drawing.
    Document* DocumentOf(AcDbObjectId id) const;
    const std::vector<Document*>& Documents() const { return m_documents; }
    // Adds the document and makes it current and active. An empty title gives the next free one.
    Document& Add(const std::wstring& title, const std::wstring& path, std::unique_ptr<AcDbDatabase> database);
    // The document that shows this file.
    Document* FindFile(const std::wstring& path) const;
    void Reset();

private:
    DocumentManager();

    bool SetHighlight(AcDbObjectId id, bool highlighted) override;
    std::wstring NextTitle();
    void MakeCurrent(Document* document);
    void Activate(Document* document);
    void LeaveLast();
    void TellModules(Document* document, AcRx::AppMsgCode message);
    // False when a reactor vetoed.
    bool AnnounceLock(Document& document, AcAp::DocLockMode mode, const ACHAR* commandName);

    std::vector<Document*> m_documents;
    Document* m_current = nullptr;
    Document* m_active = nullptr;
    bool m_activationEnabled = true;
    int m_lastTitle = 0;
    arxrx::ReactorList<AcApDocManagerReactor> m_reactors;
};

} // namespace arxed
