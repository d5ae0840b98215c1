// A tree with added icons in an owner window, and what it shows on the screen.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

#include "DibCanvas.h"
#include "tree/AddedIconTreeCtrl.h"

const COLORREF kIconRed = RGB(255, 0, 0);
const COLORREF kIconGreen = RGB(0, 255, 0);
const COLORREF kIconBlue = RGB(0, 0, 255);
const COLORREF kSelectedBlue = RGB(49, 106, 197);
const COLORREF kWhite = RGB(255, 255, 255);

// An icon of one colour, opaque all over.
class PlainIcon
{
public:
    PlainIcon(int width, int height, COLORREF color)
    {
        DibCanvas picture(width, height, color);
        const std::vector<BYTE> opaque((width + 15) / 16 * 2 * height, 0);
        ICONINFO info = {};
        info.fIcon = TRUE;
        info.hbmMask = ::CreateBitmap(width, height, 1, 1, opaque.data());
        const HDC screen = ::GetDC(NULL);
        info.hbmColor = ::CreateCompatibleBitmap(screen, width, height);
        const HDC memory = ::CreateCompatibleDC(screen);
        const HGDIOBJ before = ::SelectObject(memory, info.hbmColor);
        ::BitBlt(memory, 0, 0, width, height, picture.Dc(), 0, 0, SRCCOPY);
        ::SelectObject(memory, before);
        ::DeleteDC(memory);
        ::ReleaseDC(NULL, screen);
        m_icon = ::CreateIconIndirect(&info);
        ::DeleteObject(info.hbmMask);
        ::DeleteObject(info.hbmColor);
    }

    ~PlainIcon() { ::DestroyIcon(m_icon); }

    PlainIcon(const PlainIcon&) = delete;
    PlainIcon& operator=(const PlainIcon&) = delete;

    operator HICON() const { return m_icon; }

private:
    HICON m_icon;
};

class IconTreeOwner : public CWnd
{
public:
    IconTreeOwner()
    {
        const CString wndClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
        CreateEx(WS_EX_TOPMOST, wndClass, L"owner", WS_POPUP | WS_VISIBLE, CRect(50, 50, 450, 450), NULL, 0);
    }

    ~IconTreeOwner() override { DestroyWindow(); }

    std::function<void(NMHDR&)> onNotify;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (onNotify)
            onNotify(*reinterpret_cast<NMHDR*>(lParam));
        return CWnd::OnNotify(wParam, lParam, result);
    }
};

class IconTreeFixture : public testing::Test
{
protected:
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 240;
    static constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | TVS_SHOWSELALWAYS;

    IconTreeFixture()
    {
        m_tree.Create(kStyle, CRect(0, 0, kWidth, kHeight), &m_owner, 5);
        m_tree.SetItemHeight(20);
    }

    ~IconTreeFixture() override { m_owner.onNotify = nullptr; }

    static void Fill(CImageList& list, std::initializer_list<COLORREF> colors)
    {
        list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 4, 4);
        for (COLORREF color : colors)
        {
            const PlainIcon icon(16, 16, color);
            list.Add(static_cast<HICON>(icon));
        }
    }

    CRect Label(HTREEITEM item) const
    {
        CRect label;
        m_tree.GetItemRect(item, &label, TRUE);
        return label;
    }

    void Repaint() { m_tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }

    // What the tree shows after it has painted itself whole.
    void Paint(DibCanvas& canvas)
    {
        Repaint();
        const HDC shown = ::GetDC(m_tree.m_hWnd);
        ::BitBlt(canvas.Dc(), 0, 0, kWidth, kHeight, shown, 0, 0, SRCCOPY);
        ::ReleaseDC(m_tree.m_hWnd, shown);
    }

    static int CountIn(const DibCanvas& canvas, const CRect& area, COLORREF color) { return canvas.Count(area, color); }

    IconTreeOwner m_owner;
    CAddedIconTreeCtrl m_tree;
};
