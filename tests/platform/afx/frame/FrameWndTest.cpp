#include "FrameFixture.h"

#include "FrameIds.h"

class FrameWnd : public FrameFixture
{
protected:
    void Command(UINT id) { m_frame->SendMessage(WM_COMMAND, id); }
};

// Commands go to the active view, its document, the frame, the application: the first that knows one takes it.

TEST_F(FrameWnd, CommandsReachWhoKnowsThem)
{
    Command(ID_VIEW_COMMAND);
    EXPECT_EQ(1, m_view->m_commands);
    Command(ID_DOCUMENT_COMMAND);
    EXPECT_EQ(1, m_document->m_commands);
    Command(ID_FRAME_COMMAND);
    EXPECT_EQ(1, m_frame->m_commands);
}

TEST_F(FrameWnd, TheViewComesFirst)
{
    Command(ID_COMMON_COMMAND);
    EXPECT_EQ(1, m_view->m_commands);
    EXPECT_EQ(0, m_document->m_commands);
    EXPECT_EQ(0, m_frame->m_commands);
}

TEST_F(FrameWnd, WithoutAnActiveViewTheFrameIsAsked)
{
    m_frame->SetActiveView(nullptr);
    Command(ID_COMMON_COMMAND);
    EXPECT_EQ(0, m_view->m_commands);
    EXPECT_EQ(1, m_frame->m_commands);
}

TEST_F(FrameWnd, TheApplicationIsAskedLast)
{
    ASSERT_NE(nullptr, AfxGetApp());
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(m_frame->OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(AfxGetApp(), info.pTarget);
    EXPECT_FALSE(m_frame->OnCmdMsg(ID_NOBODYS_COMMAND, CN_COMMAND, nullptr, &info));
}

// LoadFrame takes from the resources of its number what there is.

TEST_F(FrameWnd, LoadsTheIconOfItsNumber)
{
    TestFrame* const frame = new TestFrame; // deletes itself with its window
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME_WITH_ICON));
    const HICON icon = ::LoadIcon(AfxGetInstanceHandle(), MAKEINTRESOURCE(IDR_FRAME_WITH_ICON));
    ASSERT_NE(nullptr, icon);
    EXPECT_EQ(icon, reinterpret_cast<HICON>(::GetClassLongPtr(frame->m_hWnd, GCLP_HICON)));
    EXPECT_NE(0u, ::GetClassLongPtr(frame->m_hWnd, GCLP_HICONSM));
    frame->DestroyWindow();
}

TEST_F(FrameWnd, WithoutAnIconOfItsNumberItHasNone)
{
    TestFrame* const frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME_WITH_ICON + 1));
    EXPECT_EQ(0u, ::GetClassLongPtr(frame->m_hWnd, GCLP_HICON));
    frame->DestroyWindow();
}

// Menus are brought up to date before they are shown.

TEST_F(FrameWnd, AMenuIsUpdatedWhenItOpens)
{
    CMenu menu;
    menu.CreatePopupMenu();
    for (const UINT id : {ID_VIEW_COMMAND, ID_FRAME_COMMAND, ID_NOBODYS_COMMAND})
        menu.AppendMenu(MF_STRING, id, L"item");
    m_frame->SendMessage(WM_INITMENUPOPUP, WPARAM(menu.m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_EQ(static_cast<UINT>(MF_ENABLED), menu.GetMenuState(ID_VIEW_COMMAND, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), menu.GetMenuState(ID_FRAME_COMMAND, MF_BYCOMMAND));
    EXPECT_TRUE(menu.GetMenuState(ID_NOBODYS_COMMAND, MF_BYCOMMAND) & MF_GRAYED);
}

TEST_F(FrameWnd, TheSystemMenuIsLeftAlone)
{
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_NOBODYS_COMMAND, L"item");
    m_frame->SendMessage(WM_INITMENUPOPUP, WPARAM(menu.m_hMenu), MAKELPARAM(0, TRUE));
    EXPECT_FALSE(menu.GetMenuState(ID_NOBODYS_COMMAND, MF_BYCOMMAND) & MF_GRAYED);
    m_frame->m_bAutoMenuEnable = FALSE;
    m_frame->SendMessage(WM_INITMENUPOPUP, WPARAM(menu.m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_FALSE(menu.GetMenuState(ID_NOBODYS_COMMAND, MF_BYCOMMAND) & MF_GRAYED);
}

// View and document.

TEST_F(FrameWnd, TheFirstUpdateMakesTheViewActive)
{
    EXPECT_EQ(m_view, m_frame->GetActiveView());
    EXPECT_EQ(m_document, m_frame->GetActiveDocument());
    EXPECT_EQ(m_document, m_view->GetDocument());
    EXPECT_EQ(1, m_view->m_updates);
    EXPECT_GE(m_view->m_activations, 1);
    EXPECT_EQ(m_view->m_hWnd, ::GetFocus());
    EXPECT_EQ(Client(), ViewPlace());
    EXPECT_EQ(m_frame, m_view->GetParentFrame());
}

TEST_F(FrameWnd, AChangedDocumentUpdatesItsOtherViews)
{
    m_document->UpdateAllViews(nullptr);
    EXPECT_EQ(2, m_view->m_updates);
    m_document->UpdateAllViews(m_view);
    EXPECT_EQ(2, m_view->m_updates);
    const int draws = m_view->m_draws;
    m_view->UpdateWindow();
    EXPECT_EQ(draws + 1, m_view->m_draws);
}

TEST_F(FrameWnd, TheDocumentsNameStandsInTheTitle)
{
    m_document->SetPathName(L"C:\\parts\\plan.dxf");
    EXPECT_STREQ(L"plan.dxf", m_document->GetTitle());
    CString title;
    m_frame->GetWindowText(title);
    EXPECT_STREQ(L"Frame - plan.dxf", title);
}

TEST_F(FrameWnd, FrameAndViewDeleteThemselvesWithTheirWindows)
{
    EXPECT_EQ(1, TestFrame::s_alive);
    EXPECT_EQ(1, TestView::s_alive);
    m_frame->SendMessage(WM_CLOSE);
    m_frame = nullptr;
    EXPECT_EQ(0, TestFrame::s_alive);
    EXPECT_EQ(0, TestView::s_alive);
    EXPECT_EQ(nullptr, m_document->GetFirstViewPosition());
}

TEST_F(FrameWnd, ClosingTheDocumentDestroysItsFrames)
{
    m_document->OnCloseDocument();
    m_frame = nullptr;
    EXPECT_EQ(0, TestFrame::s_alive);
    EXPECT_EQ(0, TestView::s_alive);
}

TEST_F(FrameWnd, TheFocusGoesOnToTheView)
{
    m_frame->SetFocus();
    EXPECT_EQ(m_view->m_hWnd, ::GetFocus());
}
