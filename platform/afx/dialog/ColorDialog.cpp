#include "afx/dialog/ColorDialog.h"

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

namespace
{
const int CustomColorCount = 16;
} // namespace

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent) : CCommonDialog(parent), m_cc()
{
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.rgbResult = initial;
    m_cc.Flags = flags | (initial != 0 ? CC_RGBINIT : 0);
}

INT_PTR CColorDialog::DoModal()
{
    m_cc.hwndOwner = SafeOwner();
    return ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors()
{
    static COLORREF* const colors = [] {
        static COLORREF saved[CustomColorCount];
        for (COLORREF& color : saved)
            color = RGB(255, 255, 255);
        return saved;
    }();
    return colors;
}
