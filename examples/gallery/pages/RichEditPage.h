// The rich edit: RTF, formats of the selection, the edit menu on the right mouse button.
#pragma once

#include "../GalleryPage.h"

#include <AutoRichEditCtrl.h>

class CRichEditPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CRichEditPage();

protected:
    DECLARE_MESSAGE_MAP()

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnFormat(UINT id);

private:
    CAutoRichEditCtrl m_text;
};
