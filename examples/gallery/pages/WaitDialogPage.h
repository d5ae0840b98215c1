// The callback of long operations: the wait dialog with its lines and Cancel.
#pragma once

#include "../GalleryPage.h"

class CWaitDialogPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CWaitDialogPage();

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnStart();

    DECLARE_MESSAGE_MAP()

private:
    void ShowResult(int steps, int primes);
};
