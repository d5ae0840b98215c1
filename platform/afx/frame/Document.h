// CDocument: the contents that one or several views show.
#pragma once

#include <afxcoll.h>

#include "afx/wnd/CmdTarget.h"

class CView;

class AFX_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();
    ~CDocument() override;

    const CString& GetTitle() const { return m_strTitle; }
    virtual void SetTitle(LPCTSTR title);
    const CString& GetPathName() const { return m_strPathName; }
    // The title becomes the file's name.
    virtual void SetPathName(LPCTSTR path, BOOL addToRecent = TRUE);
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL modified = TRUE) { m_bModified = modified; }

    // Views, borrowed. A document deletes itself with its last view, unless m_bAutoDelete is FALSE.
    void AddView(CView* view);
    void RemoveView(CView* view);
    virtual POSITION GetFirstViewPosition() const;
    virtual CView* GetNextView(POSITION& position) const;
    void UpdateAllViews(CView* sender, LPARAM hint = 0, CObject* hintObject = nullptr);

    BOOL m_bAutoDelete = TRUE;

    // Overridables. The base ones make the document empty and give it the path.
    virtual void DeleteContents();
    virtual BOOL OnNewDocument();
    virtual BOOL OnOpenDocument(LPCTSTR path);
    // Destroys the frames of all views, then (m_bAutoDelete) the document.
    virtual void OnCloseDocument();
    virtual void OnChangedViewList();

protected:
    CString m_strTitle;
    CString m_strPathName;
    BOOL m_bModified = FALSE;
    CPtrList m_viewList;
};
