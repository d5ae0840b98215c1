// Labels with lowered and raised parts.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <ZNKTLabel.h>
// [end]

class CLabelPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CLabelPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnTextChange();

    DECLARE_MESSAGE_MAP()

private:
    // [show]
    CZNKTLabel m_area;
    CZNKTLabel m_water;
    CZNKTLabel m_flow;
    CZNKTLabel m_own;
    // [end]
};
