// The check window: what a check found about the shape under the mouse.
#pragma once

#include "../GalleryPage.h"

#include <CheckSpecMsgThread.h>

// A little drawing that tells the window what the mouse is over.
class CCheckedDrawing : public CStatic
{
public:
    void Start();
    void End();

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnPaint();

    DECLARE_MESSAGE_MAP()

private:
    CRect PlaceOf(int shape) const;
    int ShapeAt(CPoint point) const; // -1: none

    CCheckSpecMsgThread* m_window = nullptr; // deletes itself after its end
    int m_shape = -1;
};

class CCheckWindowPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CCheckWindowPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    CCheckedDrawing m_drawing;
};
