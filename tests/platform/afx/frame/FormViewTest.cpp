// Views that scroll, and views made of a dialog template.
#include <afxwin.h>
#include <afxhtml.h>

#include <gtest/gtest.h>

namespace
{

class LargeView : public CScrollView
{
public:
    explicit LargeView(CWnd& parent)
    {
        Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 80), &parent, AFX_IDW_PANE_FIRST);
    }
    using CScrollView::OnPrepareDC;
    void PostNcDestroy() override {}
};

class MissingForm : public CFormView
{
public:
    MissingForm() : CFormView(31998u) {}
    void PostNcDestroy() override { ++m_lastCalls; }
    int m_lastCalls = 0;
};

class ScrollingView : public testing::Test
{
protected:
    ScrollingView()
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                          CRect(50, 50, 450, 350), nullptr, 0);
    }
    ~ScrollingView() override { m_parent.DestroyWindow(); }

    CSize ClientOf(CWnd& view)
    {
        CRect client;
        view.GetClientRect(&client);
        return client.Size();
    }

    CWnd m_parent;
};

} // namespace

TEST_F(ScrollingView, ShowsBarsOnlyWhereItIsLargerThanItsWindow)
{
    LargeView view(m_parent);
    view.SetScrollSizes(MM_TEXT, CSize(50, 500));
    EXPECT_TRUE(view.GetStyle() & WS_VSCROLL);
    EXPECT_FALSE(view.GetStyle() & WS_HSCROLL);
    view.MoveWindow(0, 0, 100, 600);
    EXPECT_FALSE(view.GetStyle() & WS_VSCROLL);
}

TEST_F(ScrollingView, ScrollsByCommandsAndStopsAtTheEnds)
{
    LargeView view(m_parent);
    view.SetScrollSizes(MM_TEXT, CSize(50, 500), CSize(0, 60), CSize(0, 7));
    view.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(CPoint(0, 7), view.GetScrollPosition());
    view.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(CPoint(0, 67), view.GetScrollPosition());
    view.SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(CPoint(0, 500 - ClientOf(view).cy), view.GetScrollPosition());
    view.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(CPoint(0, 500 - ClientOf(view).cy), view.GetScrollPosition());
    view.SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(CPoint(0, 0), view.GetScrollPosition());
    view.SendMessage(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(CPoint(0, 0), view.GetScrollPosition());
}

TEST_F(ScrollingView, DrawsWithItsOriginMoved)
{
    LargeView view(m_parent);
    view.SetScrollSizes(MM_TEXT, CSize(500, 500));
    view.ScrollToPosition(CPoint(11, 22));
    CClientDC dc(&view);
    view.OnPrepareDC(&dc);
    EXPECT_EQ(CPoint(-11, -22), dc.GetViewportOrg());
}

TEST_F(ScrollingView, GrowingScrollsBackToTheEnd)
{
    LargeView view(m_parent);
    view.SetScrollSizes(MM_TEXT, CSize(50, 300));
    view.SendMessage(WM_VSCROLL, SB_BOTTOM);
    view.MoveWindow(0, 0, 100, 250);
    EXPECT_EQ(CPoint(0, 50), view.GetScrollPosition());
}

TEST_F(ScrollingView, AFormWithoutTemplateIsNotCreated)
{
    MissingForm form;
    EXPECT_FALSE(form.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 10, 10), &m_parent, 1));
    EXPECT_EQ(nullptr, form.m_hWnd);
}
