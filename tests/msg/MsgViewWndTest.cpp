// The palette set: when it is made, shown, hidden and destroyed, and where it stands.
#include "ViewerFixture.h"

#include "GdiCount.h"
#include "MessageBoxAnswer.h"

#include <cstring>
#include <memory>

namespace
{

class MessagePalette : public ViewerFixture
{
protected:
    static CMsgViewWnd* Set() { return CMsgViewWnd::Instance(false); }

    static CRect SetRect()
    {
        CRect rect;
        Set()->GetWindowRect(&rect);
        return rect;
    }

    static CRect ClientOf(const CWnd& wnd)
    {
        CRect rect;
        wnd.GetClientRect(&rect);
        return rect;
    }

    static void ExpectViewerFillsThePalette()
    {
        CMsgPalette& palette = Set()->GetPalette();
        CRect viewer;
        Dialog().GetWindowRect(&viewer);
        palette.ScreenToClient(&viewer);
        EXPECT_EQ(ClientOf(palette), viewer);
    }
};

} // namespace

TEST_F(MessagePalette, HidingOrUpdatingBeforeItWasShownCreatesNothing)
{
    EXPECT_FALSE(KTMsgWnd::ShowMsgWnd(false));
    EXPECT_TRUE(Set() == NULL);
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_TRUE(Set() == NULL);
}

TEST_F(MessagePalette, ShowingCreatesItOnce)
{
    EXPECT_TRUE(KTMsgWnd::ShowMsgWnd(true));
    CMsgViewWnd* const set = Set();
    ASSERT_TRUE(set != NULL);
    EXPECT_TRUE(set->IsWindowVisible());
    EXPECT_TRUE(KTMsgWnd::ShowMsgWnd(true));
    EXPECT_EQ(set, Set());
}

TEST_F(MessagePalette, AddingShowsNothing)
{
    Add(L"g", L"text");
    EXPECT_TRUE(Set() == NULL);
    Show();
    Add(L"g", L"text");
    EXPECT_EQ(1, Rows());
}

TEST_F(MessagePalette, HidingTellsWhetherItWasVisible)
{
    Show();
    EXPECT_TRUE(KTMsgWnd::ShowMsgWnd(false));
    EXPECT_FALSE(Set()->IsWindowVisible());
    EXPECT_FALSE(KTMsgWnd::ShowMsgWnd(false));
    EXPECT_TRUE(Set() != NULL);
    EXPECT_TRUE(KTMsgWnd::ShowMsgWnd(true));
    EXPECT_TRUE(Set()->IsWindowVisible());
}

TEST_F(MessagePalette, UpdatingDoesNotShowAHiddenPalette)
{
    Show();
    KTMsgWnd::ShowMsgWnd(false);
    Add(L"g", L"text");
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_FALSE(Set()->IsWindowVisible());
    EXPECT_EQ(1, Rows());
}

TEST_F(MessagePalette, HasItsNameStyleAndIdentifier)
{
    Show();
    EXPECT_STREQ(L"消息查看", Set()->GetName());
    EXPECT_EQ(30u, Set()->GetPaletteSetStyle());
    const CLSID expected = {0xAADCE2AE, 0x4100, 0x4567, {0xA7, 0x4A, 0xF3, 0x33, 0x9F, 0xF7, 0x26, 0x34}};
    ASSERT_TRUE(Set()->GetToolID() != NULL);
    EXPECT_EQ(0, std::memcmp(&expected, Set()->GetToolID(), sizeof(expected)));
    EXPECT_EQ(100, Set()->GetOpacity());
    EXPECT_EQ(1, Set()->GetPaletteCount());
    EXPECT_STREQ(L"消息查看", Set()->GetPalette().GetName());
}

TEST_F(MessagePalette, DocksAtTheLeftWithoutASavedLayout)
{
    Show();
    EXPECT_FALSE(Set()->IsFloating());
    EXPECT_EQ(static_cast<UINT>(AFX_IDW_DOCKBAR_LEFT), Set()->GetDockBarID());
    ExpectViewerFillsThePalette();
}

// The user double-clicks the caption of the docked set.
TEST_F(MessagePalette, FloatsAtItsFirstPlaceWithoutASavedLayout)
{
    Show();
    const LPARAM inCaption = MAKELPARAM(30, 6);
    Set()->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, inCaption);
    ASSERT_TRUE(Set()->IsFloating());
    CRect frame;
    Set()->GetFloatingFrame()->GetWindowRect(&frame);
    EXPECT_EQ(CRect(200, 200, 840, 390), frame);
    ExpectViewerFillsThePalette();
}

TEST_F(MessagePalette, DocksAtEverySideAndFillsIt)
{
    Show();
    for (const UINT side : {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_RIGHT, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT})
    {
        EXPECT_TRUE(Set()->DockControlBar(side));
        EXPECT_EQ(side, Set()->GetDockBarID());
        EXPECT_TRUE(Set()->IsWindowVisible());
        ExpectViewerFillsThePalette();
    }
}

TEST_F(MessagePalette, FloatsAndFillsTheFrame)
{
    Show();
    Set()->FloatControlBar(CRect(200, 200, 840, 390));
    EXPECT_TRUE(Set()->IsFloating());
    EXPECT_TRUE(Set()->IsWindowVisible());
    ExpectViewerFillsThePalette();
}

TEST_F(MessagePalette, ShowingAVisibleSetKeepsDockingAndSize)
{
    Show();
    Set()->DockControlBar(AFX_IDW_DOCKBAR_BOTTOM);
    Set()->SetDockedSize(210);
    const CRect before = SetRect();
    Show();
    EXPECT_EQ(static_cast<UINT>(AFX_IDW_DOCKBAR_BOTTOM), Set()->GetDockBarID());
    EXPECT_EQ(before, SetRect());
}

TEST_F(MessagePalette, HidingAndShowingKeepsDockingAndSize)
{
    Show();
    Set()->DockControlBar(AFX_IDW_DOCKBAR_RIGHT);
    Set()->SetDockedSize(410);
    const CRect before = SetRect();
    KTMsgWnd::ShowMsgWnd(false);
    Show();
    EXPECT_EQ(before, SetRect());
}

TEST_F(MessagePalette, ComesBackWhereItWasLeft)
{
    Show();
    Set()->DockControlBar(AFX_IDW_DOCKBAR_BOTTOM);
    Set()->SetDockedSize(230);
    const CRect before = SetRect();
    AdUiSaveDockingToolPositions();
    CMsgViewWnd::DestroyInstance();
    Show();
    EXPECT_EQ(static_cast<UINT>(AFX_IDW_DOCKBAR_BOTTOM), Set()->GetDockBarID());
    EXPECT_EQ(before, SetRect());
}

TEST_F(MessagePalette, ComesBackFloatingAndLaidOut)
{
    Show();
    Set()->FloatControlBar(CRect(250, 220, 850, 500));
    AdUiSaveDockingToolPositions();
    CMsgViewWnd::DestroyInstance();
    Add(L"g", L"text");
    Show();
    EXPECT_TRUE(Set()->IsFloating());
    ExpectViewerFillsThePalette();
    EXPECT_EQ(1, Rows());
}

// A floating set that comes back grows by a pixel, which makes it lay out its contents.
TEST_F(MessagePalette, GrowsByOnePixelWhenItComesBackFloating)
{
    Show();
    Set()->FloatControlBar(CRect(250, 220, 850, 500));
    const CRect before = SetRect();
    AdUiSaveDockingToolPositions();
    CMsgViewWnd::DestroyInstance();
    Show();
    ASSERT_TRUE(Set()->IsFloating());
    EXPECT_EQ(before.Height() + 1, SetRect().Height());
    EXPECT_EQ(before.TopLeft(), SetRect().TopLeft());
}

TEST_F(MessagePalette, MinimumSizeIs300By120)
{
    Show();
    CSize size;
    Set()->GetMinimumSize(size);
    EXPECT_EQ(CSize(300, 120), size);
}

TEST_F(MessagePalette, ViewerFollowsTheSizeOfThePalette)
{
    Show();
    Set()->SetDockedSize(450);
    ExpectViewerFillsThePalette();
    Set()->SetDockedSize(350);
    ExpectViewerFillsThePalette();
}

TEST_F(MessagePalette, ClosingByTheUserHidesItOnly)
{
    Add(L"g", L"text");
    Show();
    Set()->FloatControlBar(CRect(200, 200, 840, 390));
    Set()->GetFloatingFrame()->SendMessage(WM_CLOSE);
    ASSERT_TRUE(Set() != NULL);
    EXPECT_FALSE(Set()->IsWindowVisible());
    EXPECT_EQ(1, Store().GetCount());
    EXPECT_TRUE(Show());
}

TEST_F(MessagePalette, PersistenceOfThePaletteIsTheBases)
{
    Show();
    EXPECT_TRUE(Set()->GetPalette().Load(NULL));
    EXPECT_TRUE(Set()->GetPalette().Save(NULL));
}

TEST_F(MessagePalette, DestroyingLeavesNoWindowAndTheMessages)
{
    Add(L"g", L"text");
    Show();
    const HWND set = Set()->m_hWnd;
    const HWND viewer = Viewer();
    CMsgViewWnd::DestroyInstance();
    EXPECT_TRUE(Set() == NULL);
    EXPECT_FALSE(::IsWindow(set));
    EXPECT_FALSE(::IsWindow(viewer));
    CMsgViewWnd::DestroyInstance();
    EXPECT_EQ(1, Store().GetCount());
    EXPECT_TRUE(Show());
    EXPECT_EQ(1, Rows());
}

TEST_F(MessagePalette, CreatingAndDestroyingLeavesNoGdiObject)
{
    for (int i = 0; i < 3; ++i)
    {
        Show();
        CMsgViewWnd::DestroyInstance();
    }
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
    {
        Add(L"g", L"text");
        Show();
        CMsgViewWnd::DestroyInstance();
    }
    EXPECT_EQ(before, CountGdiObjects());
}

// A library without any dialog template stands for the host.
TEST_F(MessagePalette, FindsItsTemplateWhileTheHostsResourcesAreCurrent)
{
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE host = ::GetModuleHandleW(L"kernel32.dll");
    AfxSetResourceHandle(host);
    MessageBoxAnswer answer(IDOK);
    Show();
    EXPECT_EQ(host, AfxGetResourceHandle()) << "the host's are current again";
    AfxSetResourceHandle(before);
    EXPECT_TRUE(answer.Boxes().empty());
    EXPECT_TRUE(Viewer() != NULL);
}

TEST_F(MessagePalette, OutlivesTheFrameThatItStoodIn)
{
    std::unique_ptr<HostFrame> frame(new HostFrame);
    Add(L"g", L"text");
    ASSERT_TRUE(Show());
    frame.reset();
    EXPECT_FALSE(KTMsgWnd::ShowMsgWnd(false));
    KTMsgWnd::UpdateMsgWnd();
    CMsgViewWnd::DestroyInstance();
    EXPECT_TRUE(Set() == NULL);
    EXPECT_EQ(1, Store().GetCount());
    arxhost::SetMainFrame(&m_frame.Wnd());
    EXPECT_TRUE(Show());
}

TEST_F(MessagePalette, WithoutAMainFrameNothingIsShown)
{
    arxhost::SetMainFrame(NULL);
    EXPECT_FALSE(KTMsgWnd::ShowMsgWnd(true));
    KTMsgWnd::UpdateMsgWnd();
    EXPECT_FALSE(KTMsgWnd::ShowMsgWnd(false));
    CMsgViewWnd::DestroyInstance();
    arxhost::SetMainFrame(&m_frame.Wnd());
    EXPECT_TRUE(Show());
}

// In a library without the dialog template the viewer cannot be made.
TEST_F(MessagePalette, TellsThatTheViewerCouldNotBeCreated)
{
    const HINSTANCE own = _hdllInstance;
    const HINSTANCE before = AfxGetResourceHandle();
    _hdllInstance = ::GetModuleHandleW(L"kernel32.dll");
    AfxSetResourceHandle(_hdllInstance);
    MessageBoxAnswer answer(IDOK);
    EXPECT_TRUE(Show());
    _hdllInstance = own;
    AfxSetResourceHandle(before);
    ASSERT_EQ(1u, answer.Boxes().size());
    EXPECT_EQ(L"错误", answer.Boxes()[0].caption);
    EXPECT_EQ(L"创建失败！", answer.Boxes()[0].text);
    EXPECT_EQ(1, answer.Boxes()[0].buttons);
    EXPECT_EQ(::LoadIconW(NULL, IDI_ERROR), answer.Boxes()[0].icon);
    // The empty palette takes every request.
    EXPECT_TRUE(Viewer() == NULL);
    KTMsgWnd::UpdateMsgWnd();
    Set()->SetDockedSize(350);
    EXPECT_TRUE(KTMsgWnd::ShowMsgWnd(false));
}
