#include "ControlFixture.h"

namespace
{
class DrawnTab : public CTabCtrl
{
public:
    int m_draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_draws += item->CtlType == ODT_TAB; }
};

class DrawnHeader : public CHeaderCtrl
{
public:
    int m_draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_draws += item->CtlType == ODT_HEADER; }
};

// A window that is asked for the text of a tip.
class TipWindow : public CWnd
{
public:
    int m_asked = 0;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        NMTTDISPINFO* const info = reinterpret_cast<NMTTDISPINFO*>(lParam);
        if (info->hdr.code != TTN_GETDISPINFO)
            return CWnd::OnNotify(wParam, lParam, result);
        ++m_asked;
        ::lstrcpy(info->szText, L"called back");
        info->lpszText = info->szText;
        return TRUE;
    }
};
} // namespace

class CommonControls : public ControlFixture
{
};

// Tabs.

TEST_F(CommonControls, TabsAreInsertedSelectedAndDeleted)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(Visible, m_place, &m_parent, ControlId));
    EXPECT_EQ(0, tabs.InsertItem(0, L"first"));
    EXPECT_EQ(1, tabs.InsertItem(1, L"second", 0));
    EXPECT_EQ(1, tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 1, L"between", 0, 33));
    EXPECT_EQ(3, tabs.GetItemCount());
    EXPECT_EQ(0, tabs.GetCurSel());
    EXPECT_EQ(0, tabs.SetCurSel(2));
    EXPECT_EQ(2, tabs.GetCurSel());
    TCITEM item = {};
    TCHAR text[16] = L"";
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(tabs.GetItem(1, &item));
    EXPECT_STREQ(L"between", text);
    EXPECT_EQ(33, item.lParam);
    EXPECT_TRUE(tabs.DeleteItem(1));
    EXPECT_FALSE(tabs.DeleteItem(9));
    EXPECT_TRUE(tabs.DeleteAllItems());
    EXPECT_EQ(0, tabs.GetItemCount());
}

TEST_F(CommonControls, TabsLieWhereHitTestsFindThem)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(Visible | TCS_FIXEDWIDTH, m_place, &m_parent, ControlId));
    tabs.SetItemSize(CSize(70, 25));
    EXPECT_EQ(CSize(70, 25), tabs.SetItemSize(CSize(60, 25)));
    tabs.InsertItem(0, L"a");
    tabs.InsertItem(1, L"b");
    CRect rect;
    ASSERT_TRUE(tabs.GetItemRect(1, &rect));
    TCHITTESTINFO info = {};
    info.pt = rect.CenterPoint();
    EXPECT_EQ(1, tabs.HitTest(&info));
    CRect page;
    tabs.GetClientRect(&page);
    tabs.AdjustRect(FALSE, &page);
    EXPECT_GE(page.top, rect.bottom);
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(nullptr, tabs.SetImageList(&images));
    EXPECT_EQ(&images, tabs.GetImageList());
    tabs.SetImageList(nullptr);
}

TEST_F(CommonControls, OwnerDrawnTabsAndHeadersDrawThemselves)
{
    DrawnTab tabs;
    ASSERT_TRUE(tabs.Create(Visible | TCS_OWNERDRAWFIXED, CRect(0, 0, 200, 60), &m_parent, ControlId));
    tabs.InsertItem(0, L"a");
    tabs.RedrawWindow();
    EXPECT_GE(tabs.m_draws, 1);

    DrawnHeader header;
    ASSERT_TRUE(header.Create(Visible | HDS_HORZ, CRect(0, 100, 200, 125), &m_parent, ControlId + 1));
    HDITEM item = {};
    item.mask = HDI_FORMAT | HDI_WIDTH;
    item.fmt = HDF_OWNERDRAW;
    item.cxy = 80;
    EXPECT_EQ(0, header.InsertItem(0, &item));
    header.RedrawWindow();
    EXPECT_GE(header.m_draws, 1);
}

// Headers.

TEST_F(CommonControls, AHeaderKnowsItsItemsAndTheirOrder)
{
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(Visible | HDS_HORZ | HDS_DRAGDROP, CRect(0, 0, 300, 25), &m_parent, ControlId));
    for (int index = 0; index < 3; ++index)
    {
        HDITEM item = {};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = const_cast<LPTSTR>(L"column");
        item.cxy = 50 + 10 * index;
        EXPECT_EQ(index, header.InsertItem(index, &item));
    }
    EXPECT_EQ(3, header.GetItemCount());
    CRect rect;
    ASSERT_TRUE(header.GetItemRect(1, &rect));
    EXPECT_EQ(60, rect.Width());
    HDHITTESTINFO hit = {};
    hit.pt = rect.CenterPoint();
    EXPECT_EQ(1, header.HitTest(&hit));
    int order[3] = {2, 0, 1};
    EXPECT_TRUE(header.SetOrderArray(3, order));
    EXPECT_EQ(2, header.OrderToIndex(0));
    int back[3] = {};
    EXPECT_TRUE(header.GetOrderArray(back));
    EXPECT_EQ(1, back[2]);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(2, header.GetItemCount());
}

// Tool tips.

TEST_F(CommonControls, ToolsAreWindowsOrRectangles)
{
    CButton button;
    button.Create(L"", Visible, CRect(0, 0, 50, 20), &m_parent, ControlId);
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent));
    EXPECT_TRUE(tips.AddTool(&button, L"of the button"));
    EXPECT_TRUE(tips.AddTool(&m_parent, L"of the place", CRect(10, 50, 30, 70), 7));
    EXPECT_EQ(2, tips.GetToolCount());

    CString text;
    tips.GetText(text, &button);
    EXPECT_STREQ(L"of the button", text);
    tips.GetText(text, &m_parent, 7);
    EXPECT_STREQ(L"of the place", text);
    tips.UpdateTipText(L"changed", &m_parent, 7);
    tips.GetText(text, &m_parent, 7);
    EXPECT_STREQ(L"changed", text);

    CToolInfo info;
    ASSERT_TRUE(tips.GetToolInfo(info, &m_parent, 7));
    EXPECT_EQ(CRect(10, 50, 30, 70), CRect(info.rect));
    tips.SetToolRect(&m_parent, 7, CRect(1, 2, 3, 4));
    tips.GetToolInfo(info, &m_parent, 7);
    EXPECT_EQ(CRect(1, 2, 3, 4), CRect(info.rect));

    tips.DelTool(&button);
    EXPECT_EQ(1, tips.GetToolCount());
    EXPECT_FALSE(tips.GetToolInfo(info, &button));
}

TEST_F(CommonControls, TipsHaveDelaysColoursAndWidth)
{
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent, TTS_ALWAYSTIP | TTS_NOPREFIX));
    EXPECT_TRUE(tips.GetStyle() & TTS_NOPREFIX);
    tips.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(123, tips.GetDelayTime(TTDT_INITIAL));
    EXPECT_EQ(-1, tips.GetMaxTipWidth());
    tips.SetMaxTipWidth(200);
    EXPECT_EQ(200, tips.GetMaxTipWidth());
    tips.SetTipBkColor(RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), tips.GetTipBkColor());
    tips.SetTipTextColor(RGB(4, 5, 6));
    EXPECT_EQ(RGB(4, 5, 6), tips.GetTipTextColor());
    CRect margin(1, 2, 3, 4);
    tips.SetMargin(&margin);
    CRect back;
    tips.GetMargin(&back);
    EXPECT_EQ(margin, back);
    EXPECT_TRUE(tips.SetTitle(TTI_INFO, L"Title"));
}

TEST_F(CommonControls, ATextCallbackAsksTheWindow)
{
    TipWindow window;
    ASSERT_TRUE(window.Create(AfxRegisterWndClass(0), L"", Visible, m_place, &m_parent, ControlId));
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent));
    EXPECT_TRUE(tips.AddTool(&window, LPSTR_TEXTCALLBACK, CRect(0, 0, 100, 100), 1));
    CString text;
    tips.GetText(text, &window, 1);
    EXPECT_STREQ(L"called back", text);
    EXPECT_GE(window.m_asked, 1);
}

TEST_F(CommonControls, ARelayedMoveOverAToolStartsItsTip)
{
    TipWindow window;
    ASSERT_TRUE(window.Create(AfxRegisterWndClass(0), L"", Visible, m_place, &m_parent, ControlId));
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent, TTS_ALWAYSTIP));
    tips.AddTool(&window, L"tip", CRect(0, 0, 100, 100), 1);
    TOOLINFO hit = {};
    hit.cbSize = TTTOOLINFOW_V2_SIZE;
    EXPECT_TRUE(tips.HitTest(&window, CPoint(20, 20), &hit));
    EXPECT_EQ(1u, hit.uId);
    EXPECT_FALSE(tips.HitTest(&window, CPoint(150, 20), &hit));
    tips.Activate(TRUE);
    EXPECT_FALSE(tips.GetCurrentTool(&hit)); // nothing shown yet
}

TEST_F(CommonControls, TheObjectDestroysItsTip)
{
    HWND window = nullptr;
    {
        CToolTipCtrl tips;
        ASSERT_TRUE(tips.Create(&m_parent));
        window = tips.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}
