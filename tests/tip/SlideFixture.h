// A slide control in its owner's window, and files for it to show.
#pragma once

#include "TipFixture.h"

#include "SlideBytes.h"
#include "tip/SlideCtrl.h"

#include <string>

class SlideFixture : public testing::Test
{
protected:
    static constexpr int kWidth = 120;
    static constexpr int kHeight = 80;
    static constexpr UINT kId = 7;

    SlideFixture()
    {
        wchar_t base[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, base);
        m_folder.Format(L"%sznkt_slide_%u", base, ::GetCurrentProcessId());
        ::CreateDirectoryW(m_folder, NULL);
        m_control.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(10, 10, 10 + kWidth, 10 + kHeight), &m_owner,
                         kId);
        m_control.SetBkColor(Paper());
    }

    ~SlideFixture() override
    {
        for (const CString& path : m_files)
            ::DeleteFileW(path);
        ::RemoveDirectoryW(m_folder);
    }

    static COLORREF Paper() { return RGB(0, 64, 0); }
    static COLORREF Red() { return RGB(255, 0, 0); }
    static COLORREF Blue() { return RGB(0, 0, 255); }

    CString Path(const wchar_t* name)
    {
        m_files.push_back(m_folder + L"\\" + name);
        return m_files.back();
    }

    // A slide that is red all over: an area as large as its header.
    CString RedSlide(const wchar_t* name)
    {
        const CString path = Path(name);
        SlideBytes bytes(kWidth, kHeight);
        bytes.Color(1).Area({{0, 0}, {kWidth - 1, 0}, {kWidth - 1, kHeight - 1}, {0, kHeight - 1}}).End();
        EXPECT_TRUE(bytes.Save(path.GetString()));
        return path;
    }

    // An image that is blue all over, in the format that the extension tells (BMP without one).
    CString BlueImage(const wchar_t* name, int width = 40, int height = 30, int bits = 24)
    {
        const CString path = Path(name);
        CImage image;
        EXPECT_TRUE(image.Create(width, height, bits));
        const RGBQUAD blue[] = {{255, 0, 0, 0}};
        if (image.IsIndexed())
            image.SetColorTable(0, 1, blue);
        const CRect all(0, 0, width, height);
        const HBRUSH brush = ::CreateSolidBrush(Blue());
        ::FillRect(image.GetDC(), &all, brush);
        image.ReleaseDC();
        ::DeleteObject(brush);
        EXPECT_EQ(S_OK, image.Save(path));
        return path;
    }

    CString TextFile(const wchar_t* name)
    {
        const CString path = Path(name);
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.Write("no picture", 10);
        return path;
    }

    // What the control shows in its middle.
    COLORREF Middle() { return Picture(m_control.m_hWnd)->Pixel(kWidth / 2, kHeight / 2); }

    // How many pixels differ from the background.
    int Ink()
    {
        const auto picture = Picture(m_control.m_hWnd);
        return kWidth * kHeight - picture->Count(CRect(0, 0, kWidth, kHeight), Paper(), 0);
    }

    OwnerWindow m_owner;
    CSlideCtrl m_control;
    CString m_folder;
    std::vector<CString> m_files;
};
