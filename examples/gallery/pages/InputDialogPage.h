// The input dialog: asks for the name of a layer.
#pragma once

#include "../GalleryPage.h"

class CInputDialogPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CInputDialogPage();

protected:
    afx_msg void OnAsk();

    DECLARE_MESSAGE_MAP()
};
