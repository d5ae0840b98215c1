// A combo button that paints into a picture in memory, and what a test asks of the picture.
#pragma once

#include "ComboButtonFixture.h"

#include "DibCanvas.h"

#include <algorithm>

const COLORREF kBefore = RGB(255, 0, 255); // what lies under everything

class ComboButtonPicture : public ComboButtonFixture
{
protected:
    ComboButtonPicture() : m_canvas(kWidth, kHeight, kBefore) {}

    DRAWITEMSTRUCT Request(UINT state)
    {
        m_canvas.Clear(kBefore);
        DRAWITEMSTRUCT request = {};
        request.CtlType = ODT_BUTTON;
        request.CtlID = kButtonId;
        request.itemAction = ODA_DRAWENTIRE;
        request.itemState = state;
        request.hwndItem = m_button->m_hWnd;
        request.hDC = m_canvas.Dc();
        request.rcItem = CRect(0, 0, kWidth, kHeight);
        return request;
    }

    void Draw(UINT style, UINT state = 0)
    {
        m_button->SetComboButtonStyle(style);
        DRAWITEMSTRUCT request = Request(state);
        m_button->DrawItem(&request);
    }

    void MakeHot() { m_button->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(20, 15)); }

    CSize CaptionSize(const wchar_t* caption)
    {
        SIZE size = {};
        ::GetTextExtentPoint32W(m_canvas.Dc(), caption, static_cast<int>(::wcslen(caption)), &size);
        return size;
    }

    // The smallest rectangle around the pixels near that colour, within the area.
    CRect Found(const CRect& area, COLORREF color)
    {
        CRect found(area.right, area.bottom, area.left, area.top);
        for (int y = area.top; y < area.bottom; ++y)
        {
            for (int x = area.left; x < area.right; ++x)
            {
                if (!m_canvas.Near(x, y, color))
                    continue;
                found.left = std::min<LONG>(found.left, x);
                found.top = std::min<LONG>(found.top, y);
                found.right = std::max<LONG>(found.right, x + 1);
                found.bottom = std::max<LONG>(found.bottom, y + 1);
            }
        }
        return found;
    }

    // Whether the row has one colour from x1 to x2.
    bool IsPlain(int y, int x1, int x2)
    {
        for (int x = x1; x < x2; ++x)
        {
            if (m_canvas.Pixel(x, y) != m_canvas.Pixel(x1, y))
                return false;
        }
        return true;
    }

    void ExpectFrame(const CRect& frame, COLORREF topLeft, COLORREF bottomRight, const char* name)
    {
        const CPoint centre = frame.CenterPoint();
        EXPECT_TRUE(m_canvas.Near(centre.x, frame.top, topLeft, 0)) << name << ", top";
        EXPECT_TRUE(m_canvas.Near(frame.left, centre.y, topLeft, 0)) << name << ", left";
        EXPECT_TRUE(m_canvas.Near(centre.x, frame.bottom - 1, bottomRight, 0)) << name << ", bottom";
        EXPECT_TRUE(m_canvas.Near(frame.right - 1, centre.y, bottomRight, 0)) << name << ", right";
    }

    static CRect Inner(int margin) { return CRect(margin, margin, kWidth - margin, kHeight - margin); }

    DibCanvas m_canvas;
};
