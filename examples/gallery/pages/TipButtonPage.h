// Buttons with a tip on each side.
#pragma once

#include "../GalleryPage.h"

#include <ToolTipXTButton.h>

class CTipButtonPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CTipButtonPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    CToolTipXTButton m_left;
    CToolTipXTButton m_right;
    CToolTipXTButton m_above;
    CToolTipXTButton m_below;
};
