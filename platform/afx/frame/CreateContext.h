// CCreateContext: what a frame passes down to the view that is being created in it.
#pragma once

struct CRuntimeClass;
class CDocument;
class CFrameWnd;
class CView;

struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};
