// The mouse-following tip: coordinates beside the pointer.
#pragma once

#include "../GalleryPage.h"

// Where the mouse is watched.
class CWatchedArea : public CStatic
{
protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);

    DECLARE_MESSAGE_MAP()
};

class CFollowTipPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CFollowTipPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnDestroy();
    afx_msg void OnShowMessage();

    DECLARE_MESSAGE_MAP()

private:
    CWatchedArea m_area;
};
