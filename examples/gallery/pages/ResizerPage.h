// The resizer: a dialog that can be resized and opens where it was left.
#pragma once

#include "../GalleryPage.h"

class CResizerPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CResizerPage();

protected:
    afx_msg void OnOpen();

    DECLARE_MESSAGE_MAP()
};
