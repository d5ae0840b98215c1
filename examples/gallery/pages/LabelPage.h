// Labels with lowered and raised parts.
#pragma once

#include "../GalleryPage.h"

#include <ZNKTLabel.h>

class CLabelPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CLabelPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnTextChange();

    DECLARE_MESSAGE_MAP()

private:
    CZNKTLabel m_area;
    CZNKTLabel m_water;
    CZNKTLabel m_flow;
    CZNKTLabel m_own;
};
