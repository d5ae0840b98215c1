// The validating edit with each of its character sets, and once with limits.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <SuperEdit.h>
// [end]

class CSuperEditPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CSuperEditPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnEditChange(UINT id);
    afx_msg LRESULT OnValidity(WPARAM wParam, LPARAM isValid);

    DECLARE_MESSAGE_MAP()

private:
    enum
    {
        SETS = VVE_FLOAT + 1, // one row a character set, in their order
        LIMITS = SETS,        // the row of a number with limits
        ROWS
    };

    void ShowVerdict(int row);

    // [show]
    CSuperEdit m_edits[ROWS]; // 对话框成员
    // [end]
};
