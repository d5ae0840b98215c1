// Pictures of the frame and of one dialog.
#include "host/DialogSearch.h"
#include "host/FrameShot.h"

#include "DialogTemplate.h"
#include "HostFixture.h"

#include <gtest/gtest.h>

#include <fstream>

namespace
{

const wchar_t kTitle[] = L"图片测试";
const wchar_t kInnerTitle[] = L"内层";

class FrameShot : public HostFixture
{
protected:
    FrameShot()
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + L"frame_shot_test.png";
        ::DeleteFileW(m_path.c_str());
        DialogTemplate outer(kTitle, 120, 80, WS_POPUP | WS_CAPTION | DS_SETFONT);
        m_outer.CreateIndirect(outer.Get(), &Frame());
        DialogTemplate inner(kInnerTitle, 60, 30, WS_CHILD | WS_VISIBLE | DS_CONTROL | DS_SETFONT);
        m_inner.CreateIndirect(inner.Get(), &m_outer);
        m_outer.ShowWindow(SW_SHOW);
        Pump();
    }

    ~FrameShot() override
    {
        m_outer.DestroyWindow();
        ::DeleteFileW(m_path.c_str());
    }

    // Of the picture that was saved; (0, 0) for none.
    CSize PictureSize() const
    {
        const int header = 24; // signature, chunk head, width, height
        std::string bytes(header, '\0');
        std::ifstream file(std::string(m_path.begin(), m_path.end()), std::ios::binary);
        file.read(&bytes[0], header);
        const auto number = [&bytes](int at) {
            int value = 0;
            for (int i = at; i < at + 4; ++i)
                value = value * 256 + static_cast<unsigned char>(bytes[static_cast<size_t>(i)]);
            return value;
        };
        return CSize(number(16), number(20));
    }

    std::wstring m_path;
    CDialog m_outer;
    CDialog m_inner;
};

} // namespace

TEST_F(FrameShot, DialogIsTakenAlone)
{
    EXPECT_EQ(L"", arxhost::SaveDialogShot(Frame(), kTitle, m_path));
    EXPECT_EQ(ScreenRectOf(m_outer).Size(), PictureSize());
}

TEST_F(FrameShot, DialogInsideADialogIsTakenAlone)
{
    EXPECT_EQ(L"", arxhost::SaveDialogShot(Frame(), kInnerTitle, m_path));
    EXPECT_EQ(ScreenRectOf(m_inner).Size(), PictureSize());
}

TEST_F(FrameShot, MissingOrHiddenDialogIsToldByItsTitle)
{
    EXPECT_NE(std::wstring::npos, arxhost::SaveDialogShot(Frame(), L"没有", m_path).find(L"没有"));
    m_outer.ShowWindow(SW_HIDE);
    EXPECT_NE(L"", arxhost::SaveDialogShot(Frame(), kTitle, m_path));
    EXPECT_NE(L"", arxhost::SaveDialogShot(Frame(), kInnerTitle, m_path));
    EXPECT_EQ(CSize(0, 0), PictureSize());
}

TEST_F(FrameShot, FrameIsTakenWithTheDialogsThatReachOverIt)
{
    m_outer.SetWindowPos(NULL, 10, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(L"", arxhost::SaveFrameShot(Frame(), m_path));
    CRect both;
    both.UnionRect(ScreenRectOf(Frame()), ScreenRectOf(m_outer));
    EXPECT_EQ(both.Size(), PictureSize());
    EXPECT_LT(ScreenRectOf(Frame()).Width(), PictureSize().cx);
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
