// CColorDialog: the system's dialog for choosing a colour. The custom colours are kept while the program runs.
#pragma once

#include "afx/dialog/CommonDialog.h"

#include <commdlg.h>

class AFX_API CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)

public:
    explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd* parent = nullptr);

    CHOOSECOLOR m_cc; // for settings beyond the constructor's

    // IDOK or IDCANCEL.
    INT_PTR DoModal() override;

    // The chosen colour, before DoModal the initial one.
    COLORREF GetColor() const { return m_cc.rgbResult; }
    // The 16 custom colours; the array stays the framework's.
    static COLORREF* PASCAL GetSavedCustomColors();
};
