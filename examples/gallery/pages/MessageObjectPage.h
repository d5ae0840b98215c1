// The message object: collects what the code called by a command reports, and
// presents it in three ways.
#pragma once

#include "../GalleryPage.h"

class CMessageObjectPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CMessageObjectPage();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnBox();
    afx_msg void OnLine();
    afx_msg void OnPanel();

    DECLARE_MESSAGE_MAP()

private:
    void ShowCount(size_t count);
};
