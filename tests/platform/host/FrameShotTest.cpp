// Pictures of the frame and of one dialog.
#include "host/DialogSearch.h"
#include "host/FrameShot.h"

#include "DialogTemplate.h"
#include "HostFixture.h"
#include "PictureFile.h"

#include <gtest/gtest.h>

namespace
{

const wchar_t kTitle[] = L"图片测试";
const wchar_t kInnerTitle[] = L"内层";

class FrameShot : public HostFixture
{
protected:
    FrameShot()
    {
        DialogTemplate outer(kTitle, 120, 80, WS_POPUP | WS_CAPTION | DS_SETFONT);
        m_outer.CreateIndirect(outer.Get(), &Frame());
        DialogTemplate inner(kInnerTitle, 60, 30, WS_CHILD | WS_VISIBLE | DS_CONTROL | DS_SETFONT);
        m_inner.CreateIndirect(inner.Get(), &m_outer);
        m_outer.ShowWindow(SW_SHOW);
        Pump();
    }

    ~FrameShot() override { m_outer.DestroyWindow(); }

    PictureFile m_picture{L"frame_shot_test.png"};
    CDialog m_outer;
    CDialog m_inner;
};

} // namespace

TEST_F(FrameShot, DialogIsTakenAlone)
{
    EXPECT_EQ(L"", arxhost::SaveDialogShot(Frame(), kTitle, m_picture.Path()));
    EXPECT_EQ(ScreenRectOf(m_outer).Size(), m_picture.Size());
}

TEST_F(FrameShot, DialogInsideADialogIsTakenAlone)
{
    EXPECT_EQ(L"", arxhost::SaveDialogShot(Frame(), kInnerTitle, m_picture.Path()));
    EXPECT_EQ(ScreenRectOf(m_inner).Size(), m_picture.Size());
}

TEST_F(FrameShot, MissingOrHiddenDialogIsToldByItsTitle)
{
    EXPECT_NE(std::wstring::npos, arxhost::SaveDialogShot(Frame(), L"没有", m_picture.Path()).find(L"没有"));
    m_outer.ShowWindow(SW_HIDE);
    EXPECT_NE(L"", arxhost::SaveDialogShot(Frame(), kTitle, m_picture.Path()));
    EXPECT_NE(L"", arxhost::SaveDialogShot(Frame(), kInnerTitle, m_picture.Path()));
    EXPECT_EQ(CSize(0, 0), m_picture.Size());
}

TEST_F(FrameShot, FrameIsTakenWithTheDialogsThatReachOverIt)
{
    m_outer.SetWindowPos(NULL, 10, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(L"", arxhost::SaveFrameShot(Frame(), m_picture.Path()));
    CRect both;
    both.UnionRect(ScreenRectOf(Frame()), ScreenRectOf(m_outer));
    EXPECT_EQ(both.Size(), m_picture.Size());
    EXPECT_LT(ScreenRectOf(Frame()).Width(), m_picture.Size().cx);
}

TEST_F(FrameShot, DialogOfADialogBelongsToTheFrame)
{
    CDialog nested;
    DialogTemplate form(L"第二层", 60, 30, WS_POPUP | WS_CAPTION | DS_SETFONT);
    nested.CreateIndirect(form.Get(), &m_outer);
    nested.ShowWindow(SW_SHOW);
    EXPECT_EQ(nested.m_hWnd, arxhost::FindDialog(Frame().m_hWnd, L"第二层"));
    EXPECT_TRUE(arxhost::IsPopupOf(nested.m_hWnd, Frame().m_hWnd));
    EXPECT_FALSE(arxhost::IsPopupOf(Frame().m_hWnd, Frame().m_hWnd));
    EXPECT_FALSE(arxhost::IsPopupOf(m_inner.m_hWnd, m_outer.m_hWnd));
    nested.DestroyWindow();
}
