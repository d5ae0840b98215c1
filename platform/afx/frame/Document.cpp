#include "afx/frame/Document.h"

#include "afx/frame/FrameWnd.h"
#include "afx/frame/View.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

CDocument::CDocument() = default;

CDocument::~CDocument()
{
    while (!m_viewList.IsEmpty())
        static_cast<CView*>(m_viewList.RemoveHead())->m_pDocument = nullptr;
}

void CDocument::SetTitle(LPCTSTR title)
{
    m_strTitle = title;
    POSITION position = GetFirstViewPosition();
    while (position != nullptr)
        if (CFrameWnd* const frame = GetNextView(position)->GetParentFrame())
            frame->OnUpdateFrameTitle(TRUE);
}

void CDocument::SetPathName(LPCTSTR path, BOOL)
{
    m_strPathName = path;
    const int separator = std::max(m_strPathName.ReverseFind('\\'), m_strPathName.ReverseFind('/'));
    SetTitle(m_strPathName.Mid(separator + 1));
}

void CDocument::AddView(CView* view)
{
    m_viewList.AddTail(view);
    view->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* view)
{
    const POSITION position = m_viewList.Find(view);
    if (position != nullptr)
        m_viewList.RemoveAt(position);
    view->m_pDocument = nullptr;
    OnChangedViewList(); // may delete this document
}

POSITION CDocument::GetFirstViewPosition() const
{
    return m_viewList.GetHeadPosition();
}

CView* CDocument::GetNextView(POSITION& position) const
{
    return static_cast<CView*>(m_viewList.GetNext(position));
}

void CDocument::UpdateAllViews(CView* sender, LPARAM hint, CObject* hintObject)
{
    POSITION position = GetFirstViewPosition();
    while (position != nullptr)
    {
        CView* const view = GetNextView(position);
        if (view != sender)
            view->OnUpdate(sender, hint, hintObject);
    }
}

void CDocument::DeleteContents() {}

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    m_strPathName.Empty();
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnOpenDocument(LPCTSTR path)
{
    DeleteContents();
    SetPathName(path);
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::OnCloseDocument()
{
    // The last view that goes must not delete this document in the middle of the loop.
    const BOOL autoDelete = m_bAutoDelete;
    m_bAutoDelete = FALSE;
    while (!m_viewList.IsEmpty())
    {
        CView* const view = static_cast<CView*>(m_viewList.GetHead());
        CFrameWnd* const frame = view->GetParentFrame();
        if (frame != nullptr)
            frame->DestroyWindow();
        else
            view->DestroyWindow();
    }
    m_bAutoDelete = autoDelete;
    DeleteContents();
    if (m_bAutoDelete)
        delete this;
}

void CDocument::OnChangedViewList()
{
    if (m_viewList.IsEmpty() && m_bAutoDelete)
        OnCloseDocument();
}
