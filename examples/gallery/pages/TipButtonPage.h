// Buttons with a tip on each side.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <ToolTipXTButton.h>
// [end]

class CTipButtonPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CTipButtonPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    // [show]
    CToolTipXTButton m_left;
    CToolTipXTButton m_right;
    CToolTipXTButton m_above;
    CToolTipXTButton m_below;
    // [end]
};
