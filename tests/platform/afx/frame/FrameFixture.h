// A frame with a view, a document and bars; all of them count what reaches them.
#pragma once

#include <afxext.h>
#include <afxpriv.h>
#include <afxwin.h>

#include <gtest/gtest.h>

const UINT ID_VIEW_COMMAND = 0x8301;
const UINT ID_DOCUMENT_COMMAND = 0x8302;
const UINT ID_FRAME_COMMAND = 0x8303;
const UINT ID_COMMON_COMMAND = 0x8304; // known to view, document and frame
const UINT ID_NOBODYS_COMMAND = 0x8305;

class TestDocument : public CDocument
{
public:
    TestDocument() { m_bAutoDelete = FALSE; }

    int m_commands = 0;

protected:
    afx_msg void OnOwnCommand() { ++m_commands; }

    DECLARE_MESSAGE_MAP()
};

class TestView : public CView
{
    DECLARE_DYNCREATE(TestView)

public:
    int m_commands = 0;
    int m_updates = 0;
    int m_draws = 0;
    int m_activations = 0;
    static int s_alive;

    TestView() { ++s_alive; }
    ~TestView() override { --s_alive; }

protected:
    void OnDraw(CDC*) override { ++m_draws; }
    void OnUpdate(CView* sender, LPARAM hint, CObject* object) override
    {
        ++m_updates;
        CView::OnUpdate(sender, hint, object);
    }
    void OnActivateView(BOOL activate, CView* activated, CView* deactivated) override
    {
        m_activations += activate ? 1 : 0;
        CView::OnActivateView(activate, activated, deactivated);
    }
    afx_msg void OnOwnCommand() { ++m_commands; }

    DECLARE_MESSAGE_MAP()
};

class TestFrame : public CFrameWnd
{
public:
    int m_commands = 0;
    static int s_alive;

    TestFrame() { ++s_alive; }
    ~TestFrame() override { --s_alive; }

protected:
    afx_msg void OnOwnCommand() { ++m_commands; }
    afx_msg void OnUpdateOwnCommand(CCmdUI* state) { state->SetCheck(1); }

    DECLARE_MESSAGE_MAP()
};

// A bar of a fixed thickness at the edge that its style names.
class TestBar : public CControlBar
{
public:
    int m_thickness = 30;
    int m_updates = 0;
    BOOL m_disable = FALSE;

    BOOL Create(CWnd* parent, UINT id, DWORD barStyle, int thickness)
    {
        m_thickness = thickness;
        SetBarStyle(barStyle);
        return CWnd::Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, id);
    }

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override
    {
        const CSize edge = CControlBar::CalcFixedLayout(stretch, horizontal);
        return horizontal ? CSize(edge.cx, m_thickness) : CSize(m_thickness, edge.cy);
    }

    void OnUpdateCmdUI(CFrameWnd*, BOOL disable) override
    {
        ++m_updates;
        m_disable = disable;
    }

    // The place in the frame's client area.
    CRect Place() const
    {
        CRect rect;
        GetWindowRect(&rect);
        ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
};

class FrameFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        m_document = new TestDocument;
        m_frame = new TestFrame;
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(TestView);
        context.m_pCurrentDoc = m_document;
        context.m_pCurrentFrame = m_frame;
        ASSERT_TRUE(m_frame->Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, CRect(50, 50, 650, 450),
                                    nullptr, nullptr, 0, &context));
        m_view = static_cast<TestView*>(m_frame->GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        ASSERT_NE(nullptr, m_view);
        m_frame->InitialUpdateFrame(m_document, TRUE);
    }

    void TearDown() override
    {
        if (m_frame != nullptr)
            m_frame->DestroyWindow();
        delete m_document;
    }

    CRect Client() const
    {
        CRect rect;
        m_frame->GetClientRect(&rect);
        return rect;
    }

    CRect ViewPlace() const
    {
        CRect rect;
        m_view->GetWindowRect(&rect);
        m_frame->ScreenToClient(&rect);
        return rect;
    }

    TestDocument* m_document = nullptr;
    TestFrame* m_frame = nullptr;
    TestView* m_view = nullptr;
};
