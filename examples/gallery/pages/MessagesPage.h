// The message service: messages of each kind, with and without an object of
// the drawing, and the message palette.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <KTMsgWnd.h>
// [end]

class CMessagesPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CMessagesPage();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnInfo();
    afx_msg void OnWarning();
    afx_msg void OnError();
    afx_msg void OnShowPalette();
    afx_msg void OnHidePalette();
    afx_msg void OnRemove();
    afx_msg void OnRemoveAll();

    DECLARE_MESSAGE_MAP()

private:
    void Add(KTMsgWnd::EMsgType type, const wchar_t* text);
    void ShowCount();
};
