// What the slide control shows for which name.
#include "SlideFixture.h"

#include "GdiCount.h"

namespace
{

class SlideCtrl : public SlideFixture
{
};

} // namespace

TEST_F(SlideCtrl, SlidesGoToTheBaseInAnyLetterCase)
{
    for (const wchar_t* name : {L"plan.sld", L"PLAN.SLD", L"Plan.Sld", L"平面图.sld", L"a.png.sld"})
    {
        m_control.SetFileName(L"");
        m_control.SetFileName(RedSlide(name));
        EXPECT_EQ(Red(), Middle()) << CStringA(name).GetString();
        EXPECT_EQ(m_files.back(), m_control.Tevrin::CSlideButton::GetFileName());
    }
}

TEST_F(SlideCtrl, EveryOtherNameIsAnImage)
{
    for (const wchar_t* name : {L"plan.png", L"PLAN.PNG", L"plan.bmp", L"plan.tif", L"平面图.png", L"a.sld.bmp"})
    {
        m_control.SetFileName(L"");
        m_control.SetFileName(BlueImage(name));
        EXPECT_EQ(Blue(), Middle()) << CStringA(name).GetString();
    }
    m_control.SetFileName(BlueImage(L"plan.gif", 40, 30, 8));
    EXPECT_EQ(Blue(), Middle());
    m_control.SetFileName(BlueImage(L"plan.jpg"));
    EXPECT_TRUE(Picture(m_control.m_hWnd)->Near(kWidth / 2, kHeight / 2, Blue(), 8));
}

TEST_F(SlideCtrl, ANameWithoutAnExtensionIsAnImage)
{
    m_control.SetFileName(BlueImage(L"plan"));
    EXPECT_EQ(Blue(), Middle());
    ASSERT_TRUE(::CopyFileW(BlueImage(L"dot"), Path(L"dot2."), FALSE));
    m_control.SetFileName(m_folder + L"\\dot2.");
    EXPECT_EQ(Blue(), Middle()) << "nothing follows the dot";
    ::DeleteFileW(m_folder + L"\\dot2");
}

TEST_F(SlideCtrl, TheExtensionIsWhatFollowsTheLastDotOfTheWholeName)
{
    const CString folder = m_folder + L"\\x.sld";
    ASSERT_TRUE(::CreateDirectoryW(folder, NULL));
    const CString path = folder + L"\\plan";
    ASSERT_TRUE(::CopyFileW(BlueImage(L"source"), path, FALSE));
    m_control.SetFileName(path);
    EXPECT_EQ(Blue(), Middle()) << "the extension is sld\\plan";
    ::DeleteFileW(path);
    ::RemoveDirectoryW(folder);
}

TEST_F(SlideCtrl, AnImageThatFailsToLoadLeavesTheBaseToDraw)
{
    const CString names[] = {m_folder + L"\\missing.png", TextFile(L"text.png"), m_folder, L"plan", L"."};
    for (const CString& name : names)
    {
        m_control.SetFileName(BlueImage(L"good.png"));
        EXPECT_EQ(Blue(), Middle());
        m_control.SetFileName(name);
        EXPECT_EQ(name, m_control.GetFileName());
        EXPECT_EQ(0, Ink()) << "the base shows nothing: " << CStringA(name).GetString();
    }
}

TEST_F(SlideCtrl, AnImageThatFailsToLoadDoesNotBringAnEarlierSlideBack)
{
    m_control.SetFileName(RedSlide(L"plan.sld"));
    m_control.SetFileName(TextFile(L"text.png"));
    EXPECT_EQ(0, Ink());
}

TEST_F(SlideCtrl, AnEmptyNameShowsNothing)
{
    m_control.SetFileName(BlueImage(L"plan.png"));
    m_control.SetFileName(L"");
    EXPECT_EQ(0, Ink());
    m_control.SetFileName(RedSlide(L"plan.sld"));
    m_control.SetFileName(L"");
    EXPECT_EQ(0, Ink());
    m_control.SetFileName(BlueImage(L"plan.png"));
    m_control.SetFileName(NULL);
    EXPECT_EQ(0, Ink());
    EXPECT_EQ(CString(), m_control.GetFileName());
}

TEST_F(SlideCtrl, ASlideThatCannotBeReadSaysSo)
{
    m_control.SetFileName(TextFile(L"text.sld"));
    EXPECT_LT(0, Ink());
    EXPECT_EQ(Paper(), Picture(m_control.m_hWnd)->Pixel(0, 0));
    EXPECT_FALSE(m_control.GetError().IsEmpty());
}

TEST_F(SlideCtrl, SlidesAndImagesFollowEachOther)
{
    const CString slide = RedSlide(L"plan.sld");
    const CString image = BlueImage(L"plan.png");
    for (int i = 0; i < 3; ++i)
    {
        m_control.SetFileName(slide);
        EXPECT_EQ(Red(), Middle());
        m_control.SetFileName(image);
        EXPECT_EQ(Blue(), Middle());
    }
}

TEST_F(SlideCtrl, TheNameIsKeptAsItWasGiven)
{
    EXPECT_EQ(CString(), m_control.GetFileName());
    for (const wchar_t* name : {L"x:\\Missing Plan.SLD", L"plan", L"图.PNG", L""})
    {
        m_control.SetFileName(name);
        EXPECT_EQ(CString(name), m_control.GetFileName());
    }
}

TEST_F(SlideCtrl, AnImageIsShownAtOnce)
{
    const CString image = BlueImage(L"plan.png");
    m_control.UpdateWindow();
    m_control.SetFileName(image);
    CRect stale(0, 0, 0, 0);
    EXPECT_FALSE(m_control.GetUpdateRect(&stale)) << "already painted";
    EXPECT_EQ(Blue(), Middle());
}

TEST_F(SlideCtrl, ANewBackgroundIsShown)
{
    Middle();
    m_control.SetBkColor(RGB(1, 2, 250));
    EXPECT_EQ(RGB(1, 2, 250), m_control.GetBkColor());
    CRect stale(0, 0, 0, 0);
    EXPECT_TRUE(m_control.GetUpdateRect(&stale));
    EXPECT_EQ(CRect(0, 0, kWidth, kHeight), stale);
    EXPECT_EQ(RGB(1, 2, 250), Middle());
}

TEST_F(SlideCtrl, IsEnabledAndDisabledAsAWindow)
{
    EXPECT_EQ(1, m_control.GetEnabled());
    m_control.SetEnabled(0);
    EXPECT_EQ(0, m_control.GetEnabled());
    EXPECT_FALSE(m_control.IsWindowEnabled());
    m_control.SetEnabled(5);
    EXPECT_EQ(1, m_control.GetEnabled());
    EXPECT_TRUE(m_control.IsWindowEnabled());
}

TEST_F(SlideCtrl, CanBeUsedBeforeItsWindowExists)
{
    CSlideCtrl early;
    early.SetBkColor(Paper());
    early.SetFileName(BlueImage(L"plan.png"));
    early.SetEnabled(1);
    EXPECT_EQ(0, early.GetEnabled());
    early.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(200, 10, 200 + kWidth, 10 + kHeight), &m_owner, 8);
    EXPECT_EQ(Blue(), Picture(early.m_hWnd)->Pixel(kWidth / 2, kHeight / 2));
}

TEST_F(SlideCtrl, TheFilesAreClosedAgain)
{
    for (const CString& path : {BlueImage(L"plan.png"), RedSlide(L"plan.sld")})
    {
        m_control.SetFileName(path);
        EXPECT_TRUE(::DeleteFileW(path));
    }
}

TEST_F(SlideCtrl, AHugeImageThatIsNoneIsNotShown)
{
    // A bitmap of 20000 by 20000 dots by its header, with no dots in it.
    BITMAPFILEHEADER head = {};
    BITMAPINFOHEADER info = {};
    head.bfType = 0x4d42;
    head.bfSize = head.bfOffBits = sizeof(head) + sizeof(info);
    info.biSize = sizeof(info);
    info.biWidth = info.biHeight = 20000;
    info.biPlanes = 1;
    info.biBitCount = 24;
    const CString path = Path(L"huge.bmp");
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.Write(&head, sizeof(head));
        file.Write(&info, sizeof(info));
    }
    m_control.SetFileName(path);
    EXPECT_EQ(0, Ink());
}

TEST_F(SlideCtrl, AWideImageFillsTheClientAreaToo)
{
    m_control.SetFileName(BlueImage(L"wide.png", 3000, 2));
    EXPECT_EQ(Blue(), Middle());
    m_control.SetFileName(BlueImage(L"dot.png", 1, 1));
    EXPECT_EQ(Blue(), Middle());
}

TEST_F(SlideCtrl, LoadingAndDrawingLeavesNoObjectBehind)
{
    const CString names[] = {BlueImage(L"plan.png"), RedSlide(L"plan.sld"), TextFile(L"text.png"),
                             TextFile(L"text.sld"), L""};
    const auto showAll = [&] {
        for (const CString& name : names)
        {
            m_control.SetFileName(name);
            m_control.RedrawWindow();
        }
    };
    showAll();
    const size_t before = CountGdiObjects();
    for (int i = 0; i < 10; ++i)
        showAll();
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(SlideCtrl, CanBeMadeByItsRuntimeClass)
{
    CObject* const made = RUNTIME_CLASS(CSlideCtrl)->CreateObject();
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CSlideCtrl)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(Tevrin::CSlideButton)));
    delete made;
}
