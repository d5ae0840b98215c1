// The button that shows slides, asked to draw as Windows does.
#include "ZnQFCBaseU.h"

#include "DibCanvas.h"
#include "GdiCount.h"
#include "SlideBytes.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace
{

constexpr int kWidth = 200;
constexpr int kHeight = 120;
const COLORREF kPaper = RGB(0, 0, 64);
const COLORREF kRed = RGB(255, 0, 0);

class SlideButton : public testing::Test
{
protected:
    SlideButton() : m_canvas(kWidth, kHeight, RGB(1, 1, 1)) { m_button.SetBkColor(kPaper); }

    CString Save(const wchar_t* name, const SlideBytes& bytes)
    {
        const CString path = m_folder.File(name);
        EXPECT_TRUE(bytes.Save(path.GetString()));
        return path;
    }

    CString Good() { return Save(L"good.sld", SlideBytes(100, 60).Color(1).Vector(0, 0, 99, 59).End()); }

    void Draw(int width = kWidth, int height = kHeight)
    {
        m_canvas.Clear(RGB(1, 1, 1));
        DRAWITEMSTRUCT item = {};
        item.hDC = m_canvas.Dc();
        item.rcItem = CRect(0, 0, width, height);
        m_button.DrawItem(&item);
    }

    // Whether there is nothing but the background.
    bool IsBlank() const { return m_canvas.Count(CRect(0, 0, kWidth, kHeight), kPaper, 0) == kWidth * kHeight; }

    TemporaryFolder m_folder;
    DibCanvas m_canvas;
    Tevrin::CSlideButton m_button;
};

} // namespace

TEST_F(SlideButton, ShowsTheSlideInItsWholeArea)
{
    m_button.SetFileName(Good());
    Draw();
    EXPECT_EQ(kRed, m_canvas.Pixel(0, kHeight - 1));
    EXPECT_EQ(kRed, m_canvas.Pixel(kWidth - 1, 0));
    EXPECT_EQ(kPaper, m_canvas.Pixel(0, 0));
    EXPECT_TRUE(m_button.GetError().IsEmpty());
}

TEST_F(SlideButton, WithoutANameItShowsTheBackground)
{
    Draw();
    EXPECT_TRUE(IsBlank());
    m_button.SetFileName(Good());
    m_button.SetFileName(L"");
    Draw();
    EXPECT_TRUE(IsBlank());
    m_button.SetFileName(Good());
    m_button.SetFileName(nullptr);
    Draw();
    EXPECT_TRUE(IsBlank());
    m_button.SetFileName(m_folder.File(L"missing.sld"));
    m_button.SetFileName(L"");
    Draw();
    EXPECT_TRUE(IsBlank());
    EXPECT_TRUE(m_button.GetError().IsEmpty());
}

TEST_F(SlideButton, AFileThatCannotBeReadSaysSo)
{
    const CString names[] = {m_folder.File(L"missing.sld"), Save(L"zero.sld", SlideBytes(9, 9).CutTo(0)),
                             Save(L"cut.sld", SlideBytes(9, 9).CutTo(25))};
    for (const CString& name : names)
    {
        m_button.SetFileName(Good());
        m_button.SetFileName(name);
        EXPECT_FALSE(m_button.GetError().IsEmpty());
        EXPECT_EQ(name, m_button.GetFileName());
        Draw();
        EXPECT_FALSE(IsBlank());
        EXPECT_EQ(0, m_canvas.Count(CRect(0, 0, kWidth, kHeight), kRed)) << "nothing is left of the slide before";
        EXPECT_EQ(kPaper, m_canvas.Pixel(0, 0));
    }
}

TEST_F(SlideButton, WhereTheSentenceFindsNoRoomACrossStands)
{
    m_button.SetFileName(m_folder.File(L"missing.sld"));
    Draw(10, 10);
    EXPECT_EQ(RGB(128, 128, 128), m_canvas.Pixel(0, 0));
    EXPECT_EQ(RGB(128, 128, 128), m_canvas.Pixel(9, 9));
    EXPECT_EQ(RGB(128, 128, 128), m_canvas.Pixel(0, 9));
    EXPECT_EQ(RGB(128, 128, 128), m_canvas.Pixel(9, 0));
    EXPECT_EQ(RGB(1, 1, 1), m_canvas.Pixel(10, 10));
    EXPECT_EQ(kPaper, m_canvas.Pixel(5, 0));
}

TEST_F(SlideButton, AGoodSlideAfterABadOneForgetsTheError)
{
    m_button.SetFileName(m_folder.File(L"missing.sld"));
    m_button.SetFileName(Good());
    EXPECT_TRUE(m_button.GetError().IsEmpty());
}

TEST_F(SlideButton, BlackIsTheFirstBackground)
{
    EXPECT_EQ(RGB(0, 0, 0), Tevrin::CSlideButton().GetBkColor());
    EXPECT_EQ(kPaper, m_button.GetBkColor());
}

TEST_F(SlideButton, DrawingLeavesNoObjectBehind)
{
    for (const CString& name : {Good(), m_folder.File(L"missing.sld")})
    {
        m_button.SetFileName(name);
        Draw();
        Draw(10, 10);
        const size_t before = CountGdiObjects();
        for (int i = 0; i < 20; ++i)
        {
            m_button.SetFileName(name);
            Draw();
            Draw(10, 10);
        }
        EXPECT_EQ(before, CountGdiObjects());
    }
}

TEST_F(SlideButton, CanBeMadeByItsRuntimeClass)
{
    CObject* const made = RUNTIME_CLASS(Tevrin::CSlideButton)->CreateObject();
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CButton)));
    delete made;
}
