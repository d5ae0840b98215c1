// The check window: what a check found about the shape under the mouse.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <CheckSpecMsgThread.h>
// [end]

// A little drawing that tells the window what the mouse is over.
class CCheckedDrawing : public CStatic
{
public:
    void Start();
    void End();
    void ShowResultOf(int shape);

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnPaint();

    DECLARE_MESSAGE_MAP()

private:
    CRect PlaceOf(int shape) const;
    int ShapeAt(CPoint point) const; // -1: none

    // [show]
    CCheckSpecMsgThread* m_window = nullptr; // 窗口及其线程；结束后自行删除
    // [end]
    int m_shape = -1;
};

class CCheckWindowPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CCheckWindowPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnDestroy();
    afx_msg void OnShowCircle();

    DECLARE_MESSAGE_MAP()

private:
    CCheckedDrawing m_drawing;
};
