// The slide control under a real mouse.
#include "SlideFixture.h"

namespace
{

class ClickedOwner : public OwnerWindow
{
public:
    using OwnerWindow::OwnerWindow;
    int clicks = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        clicks += HIWORD(wParam) == BN_CLICKED;
        return OwnerWindow::OnCommand(wParam, lParam);
    }
};

class SlideCtrlInput : public SlideFixture
{
};

} // namespace

TEST_F(SlideCtrlInput, AClickOnThePictureIsAClickOfTheButton)
{
    ClickedOwner owner(CRect(600, 300, 900, 500));
    CSlideCtrl control;
    control.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(10, 10, 10 + kWidth, 10 + kHeight), &owner, kId);
    control.SetFileName(BlueImage(L"plan.png"));
    owner.SetForegroundWindow();
    EXPECT_TRUE(ClickMouseUntil(ScreenRect(control.m_hWnd).CenterPoint(), [&] { return owner.clicks > 0; }));
    EXPECT_EQ(Blue(), Picture(control.m_hWnd)->Pixel(kWidth / 2, kHeight / 2)) << "still drawn, pressed or not";
    control.DestroyWindow();
}
