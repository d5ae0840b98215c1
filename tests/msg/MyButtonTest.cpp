// The flat button: its style, its states under the mouse and the focus, its check.
#include "MyButtonFixture.h"

#include "GdiCount.h"

#include <vector>

class MyButton : public MyButtonFixture
{
};

TEST_F(MyButton, BecomesAVisibleOwnerDrawnButtonWithATabStop)
{
    const DWORD expected = 0x5001000B;
    for (const DWORD images : {DWORD(0), DWORD(0x80), DWORD(0x40)})
    {
        const HWND plain = ::CreateWindowW(L"BUTTON", L"", WS_CHILD | WS_GROUP | BS_PUSHBUTTON | images, 0, 0, 20, 20,
                                           m_owner.m_hWnd, NULL, NULL, NULL);
        CMyButton button;
        ASSERT_TRUE(button.SubclassWindow(plain));
        EXPECT_EQ(expected | images, button.GetStyle());
        button.DestroyWindow();
    }
}

TEST_F(MyButton, CreatedByItselfItIsOwnerDrawnToo)
{
    Create(BS_ICON);
    EXPECT_EQ(DWORD(BS_OWNERDRAW | BS_ICON), m_button.GetStyle() & 0xFFFF);
    EXPECT_TRUE(m_button.IsWindowVisible());
}

TEST_F(MyButton, AMoveOverItCapturesTheMouse)
{
    Create(0);
    EXPECT_FALSE(m_button.IsHovering());
    MoveTo(5, 5);
    EXPECT_TRUE(m_button.IsHovering());
    EXPECT_EQ(m_button.m_hWnd, ::GetCapture());
    MoveTo(6, 6);
    EXPECT_EQ(m_button.m_hWnd, ::GetCapture());
}

TEST_F(MyButton, AMoveOutsideLetsTheMouseGo)
{
    Create(0);
    for (const CPoint outside : {CPoint(-1, 5), CPoint(kWidth, 5), CPoint(5, -1), CPoint(5, kHeight)})
    {
        MoveTo(5, 5);
        ASSERT_EQ(m_button.m_hWnd, ::GetCapture());
        MoveTo(outside.x, outside.y);
        EXPECT_TRUE(::GetCapture() == NULL);
        EXPECT_FALSE(m_button.IsHovering());
    }
    MoveTo(kWidth - 1, kHeight - 1);
    EXPECT_TRUE(m_button.IsHovering()) << "the last pixel is inside";
}

TEST_F(MyButton, AMoveOutsideLeavesTheCaptureOfAnotherWindowAlone)
{
    Create(0);
    MoveTo(5, 5);
    m_owner.SetCapture();
    m_button.SendMessage(WM_KILLFOCUS);
    EXPECT_EQ(m_owner.m_hWnd, ::GetCapture());
    ::ReleaseCapture();
}

TEST_F(MyButton, TheMouseThatLeavesEndsTheHover)
{
    Create(0);
    MoveTo(5, 5);
    m_button.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(m_button.IsHovering());
}

TEST_F(MyButton, AWindowThatComesBackIsAtRestAndKeepsItsCheck)
{
    Create(0);
    m_button.SetCheck(1);
    m_button.SendMessage(WM_SETFOCUS);
    MoveTo(5, 5);
    ASSERT_TRUE(m_button.IsHovering());
    m_button.DestroyWindow();
    Create(0);
    EXPECT_FALSE(m_button.IsHovering());
    EXPECT_FALSE(m_button.IsFocused());
    EXPECT_EQ(1, m_button.GetCheck());
    MoveTo(5, 5);
    EXPECT_EQ(m_button.m_hWnd, ::GetCapture());
}

TEST_F(MyButton, TheFocusIsNoted)
{
    Create(0);
    m_button.SetFocus();
    EXPECT_TRUE(m_button.IsFocused());
    MoveTo(5, 5);
    m_owner.SetFocus();
    EXPECT_FALSE(m_button.IsFocused());
    EXPECT_FALSE(m_button.IsHovering());
    EXPECT_TRUE(::GetCapture() == NULL) << "the capture goes with the focus";
}

TEST_F(MyButton, AClickReachesTheParent)
{
    Create(0);
    m_button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    m_button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(1, m_owner.clicks);
    EXPECT_EQ(0, m_button.GetCheck()) << "it does not toggle by itself";
}

TEST_F(MyButton, LeavingWhilePressedGivesTheClickUp)
{
    Create(0);
    m_button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    MoveTo(-10, -10);
    EXPECT_TRUE(::GetCapture() == NULL);
    m_button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(-10, -10));
    EXPECT_EQ(0, m_owner.clicks);
}

TEST_F(MyButton, TheCheckIsKept)
{
    Create(0);
    EXPECT_EQ(0, m_button.GetCheck());
    for (const int state : {1, 0, 2, -1, 0})
    {
        m_button.SetCheck(state);
        EXPECT_EQ(state, m_button.GetCheck());
    }
}

TEST_F(MyButton, TheCheckIsTheControlsToo)
{
    class Noting : public CMyButton
    {
    public:
        std::vector<WPARAM> checks;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == BM_SETCHECK)
                checks.push_back(wParam);
            return CMyButton::WindowProc(message, wParam, lParam);
        }
    };
    Noting button;
    button.Create(L"", WS_CHILD, CRect(0, 0, 20, 20), &m_owner, 3);
    button.SetCheck(1);
    button.SetCheck(0);
    EXPECT_EQ((std::vector<WPARAM>{1, 0}), button.checks);
}

TEST_F(MyButton, WithoutAWindowItKeepsWhatItIsGiven)
{
    CMyButton none;
    none.SetCheck(1);
    none.SetIcon(reinterpret_cast<HICON>(1));
    none.SetCheckedIcon(NULL);
    none.SetBitmap(NULL);
    none.SetBackgroundColor(RGB(1, 2, 3));
    EXPECT_EQ(1, none.GetCheck());
}

TEST_F(MyButton, LeavesNoGdiObjectsBehind)
{
    const TestIcon icon(RGB(255, 0, 0), 16);
    const HBITMAP bitmap = MakeBitmap(m_canvas);
    Create(BS_BITMAP, L"caption");
    const auto cycle = [&] {
        m_button.SetBitmap(bitmap);
        m_button.SetIcon(icon);
        m_button.SetCheckedIcon(reinterpret_cast<HICON>(0x7777));
        for (const UINT state : {0u, UINT(ODS_SELECTED), UINT(ODS_DISABLED)})
            Draw(state);
        m_button.SetCheck(1);
        MoveTo(5, 5);
        m_button.SetBitmap(reinterpret_cast<HBITMAP>(0x7777));
        Draw(0);
        m_button.SetCheck(0);
        MoveTo(-5, 5);
    };
    cycle();
    const size_t objects = CountGdiObjects();
    for (int i = 0; i < 50; ++i)
        cycle();
    EXPECT_EQ(objects, CountGdiObjects());
    ::DeleteObject(bitmap);
}
