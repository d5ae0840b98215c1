// The rich edit: RTF, formats of the selection, the edit menu on the right
// mouse button.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <AutoRichEditCtrl.h>
// [end]

class CRichEditPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CRichEditPage();

protected:
    DECLARE_MESSAGE_MAP()

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnFormat(UINT id);

private:
    // [show]
    CAutoRichEditCtrl m_text; // 对话框成员
    // [end]
};
