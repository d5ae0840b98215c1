// The property sheet without Help: opens one with three pages, and tells
// which of them were applied.
#pragma once

#include "../GalleryPage.h"

class CPropertySheetPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CPropertySheetPage();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnOpen();

    DECLARE_MESSAGE_MAP()
};
