// What the pages of the tips and display controls do when they are used.
#include "GalleryFixture.h"

#include "gallery/GalleryIds.h"

#include <commctrl.h>

#include <set>

namespace
{

const wchar_t kTipClass[] = L"ZNKTFollowMouseTipWnd";

class GalleryTipPages : public GalleryFixture
{
protected:
    static bool IsTipShown()
    {
        const HWND tip = ::FindWindowW(kTipClass, NULL);
        return tip != NULL && ::IsWindowVisible(tip);
    }
};

} // namespace

TEST_F(GalleryTipPages, TheMessageOfTheFollowingTipIsShownAndEndsWithThePage)
{
    Run(L"GALLERYPAGE follow-tip");
    ::SendMessageW(PageControl(IDC_FOLLOW_TIP_SHOW), BM_CLICK, 0, 0);
    EXPECT_TRUE(IsTipShown());
    Run(L"GALLERYPAGE label");
    EXPECT_EQ(NULL, ::FindWindowW(kTipClass, NULL));
}

TEST_F(GalleryTipPages, AMoveOverTheAreaShowsItsCoordinates)
{
    Run(L"GALLERYPAGE follow-tip");
    ::SendMessageW(PageControl(IDC_FOLLOW_TIP_AREA), WM_MOUSEMOVE, 0, MAKELPARAM(12, 34));
    EXPECT_TRUE(IsTipShown());
    CloseGallery();
    EXPECT_EQ(NULL, ::FindWindowW(kTipClass, NULL));
}

TEST_F(GalleryTipPages, ButtonsWithTipsAreOwnerDrawn)
{
    Run(L"GALLERYPAGE tip-button");
    for (const int id : {IDC_TIP_BUTTON_LEFT, IDC_TIP_BUTTON_RIGHT, IDC_TIP_BUTTON_ABOVE, IDC_TIP_BUTTON_BELOW})
        EXPECT_EQ(BS_OWNERDRAW, ::GetWindowLongPtrW(PageControl(id), GWL_STYLE) & BS_TYPEMASK) << id;
}

TEST_F(GalleryTipPages, TheLabelShowsWhatIsTyped)
{
    Run(L"GALLERYPAGE label");
    ::SetWindowTextW(PageControl(IDC_LABEL_TEXT), L"x{U3}");
    EXPECT_EQ(L"x{U3}", TextOfWindow(PageControl(IDC_LABEL_OWN)));
}

TEST_F(GalleryTipPages, ThePreviewsFindTheirSamples)
{
    Run(L"GALLERYPAGE slide");
    // The middles: of the part in the drawing nothing, of the flange its hole; so a line through each is searched.
    for (const int id : {IDC_SLIDE_SLIDE, IDC_SLIDE_IMAGE})
    {
        const HWND preview = PageControl(id);
        CRect client;
        ::GetClientRect(preview, &client);
        ::UpdateWindow(preview);
        const HDC dc = ::GetDC(preview);
        std::set<COLORREF> colors;
        for (int x = 0; x < client.right; ++x)
            colors.insert(::GetPixel(dc, x, client.bottom * 3 / 5));
        ::ReleaseDC(preview, dc);
        EXPECT_LE(4u, colors.size()) << id
                                     << ": red centre lines, white and cyan outlines on black; shades of the flange";
    }
}

TEST_F(GalleryTipPages, TheTabSheetHasThreePagesAndShowsTheFirst)
{
    Run(L"GALLERYPAGE tab-sheet");
    const HWND sheet = PageControl(IDC_TAB_SHEET);
    EXPECT_EQ(3, ::SendMessageW(sheet, TCM_GETITEMCOUNT, 0, 0));
    int pages = 0;
    int shown = 0;
    for (HWND child = ::GetWindow(sheet, GW_CHILD); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        ++pages;
        shown += ::IsWindowVisible(child) != FALSE;
    }
    EXPECT_EQ(3, pages);
    EXPECT_EQ(1, shown);
}
