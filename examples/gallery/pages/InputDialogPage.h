// The input dialog: asks for the name of a layer.
#pragma once

#include "../GalleryPage.h"

class CInputDialogPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CInputDialogPage();

protected:
    afx_msg void OnAsk();

    DECLARE_MESSAGE_MAP()
};
