#include "tip/SlideCtrl.h"

#include "base/SavedDC.h"

IMPLEMENT_DYNCREATE(CSlideCtrl, Tevrin::CSlideButton)

namespace
{

const wchar_t kSlideExtension[] = L"SLD";
const COLORREF kBorderColors[] = {RGB(128, 128, 128), RGB(0, 0, 0), RGB(192, 192, 192), RGB(255, 255, 255)};
const int kBandWidth = 3;
const int kBandInset = 2;

CString UpperExtension(const CString& name)
{
    const int dot = name.ReverseFind(L'.');
    CString extension = dot < 0 ? CString() : name.Mid(dot + 1);
    return extension.MakeUpper();
}

// From a corner along two edges. GDI leaves the last pixel of a line out.
void DrawAngle(CDC& dc, CPoint corner, CPoint first, CPoint second)
{
    dc.MoveTo(corner);
    dc.LineTo(first);
    dc.MoveTo(corner);
    dc.LineTo(second);
}

void DrawAngle(CDC& dc, COLORREF color, CPoint corner, CPoint first, CPoint second)
{
    CPen pen(PS_SOLID, 1, color);
    CPen* const former = dc.SelectObject(&pen);
    DrawAngle(dc, corner, first, second);
    dc.SelectObject(former);
}

} // namespace

CSlideCtrl::CSlideCtrl() : m_imageMode(0) {}

CSlideCtrl::~CSlideCtrl() {}

void CSlideCtrl::SetFileName(const wchar_t* name)
{
    const CString wanted(name);
    m_imageMode = 0;
    m_image.Destroy();
    if (wanted.IsEmpty() || UpperExtension(wanted) == kSlideExtension)
        Tevrin::CSlideButton::SetFileName(wanted);
    else
        ShowImage(wanted);
    m_fileName = wanted;
}

CString CSlideCtrl::GetFileName()
{
    return m_fileName;
}

void CSlideCtrl::SetBkColor(COLORREF color)
{
    Tevrin::CSlideButton::SetBkColor(color);
    if (GetSafeHwnd() != NULL)
        Invalidate(TRUE);
}

COLORREF CSlideCtrl::GetBkColor()
{
    return Tevrin::CSlideButton::GetBkColor();
}

void CSlideCtrl::SetEnabled(int enabled)
{
    if (GetSafeHwnd() != NULL)
        EnableWindow(enabled != 0);
}

int CSlideCtrl::GetEnabled()
{
    return GetSafeHwnd() != NULL && IsWindowEnabled();
}

void CSlideCtrl::DrawItem(DRAWITEMSTRUCT* item)
{
    if (m_imageMode != 1 || m_image.IsNull())
    {
        Tevrin::CSlideButton::DrawItem(item);
        return;
    }
    CRect client;
    GetClientRect(&client);
    CDC& dc = *CDC::FromHandle(item->hDC);
    const CSavedDC saved(dc);
    // What is transparent in the image would blend with the picture of the last time.
    dc.FillSolidRect(&client, GetBkColor());
    dc.SetStretchBltMode(HALFTONE);
    dc.SetBrushOrg(0, 0);
    m_image.Draw(dc, 0, 0, client.Width(), client.Height());
    DrawBorder(&dc);
}

void CSlideCtrl::DrawBorder(CDC* dc)
{
    CRect window;
    GetWindowRect(&window);
    const int w = window.Width();
    const int h = window.Height();
    DrawAngle(*dc, kBorderColors[0], CPoint(0, 0), CPoint(0, h), CPoint(w, 0));
    DrawAngle(*dc, kBorderColors[1], CPoint(1, 1), CPoint(1, h - 1), CPoint(w - 1, 1));
    DrawAngle(*dc, kBorderColors[2], CPoint(w - 2, h - 2), CPoint(1, h - 2), CPoint(w - 2, 1));
    DrawAngle(*dc, kBorderColors[3], CPoint(w - 1, h - 1), CPoint(0, h - 1), CPoint(w - 1, 0));

    CPen band(PS_SOLID, kBandWidth, GetBkColor());
    CPen* const former = dc->SelectObject(&band);
    dc->MoveTo(kBandInset, kBandInset);
    dc->LineTo(w - kBandInset, kBandInset);
    dc->LineTo(w - kBandInset, h - kBandInset);
    dc->LineTo(kBandInset, h - kBandInset);
    dc->LineTo(kBandInset, kBandInset);
    dc->SelectObject(former);
}

// The base lets go of its slide, or it would show it in place of an image that could not be loaded.
void CSlideCtrl::ShowImage(const CString& name)
{
    m_imageMode = 1;
    Tevrin::CSlideButton::SetFileName(L"");
    m_image.Load(name);
    if (GetSafeHwnd() == NULL)
        return;
    Invalidate(TRUE);
    RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}
