#include "tip/ZNKTLabel.h"

#include "tip/LabelDrawing.h"

namespace
{

HFONT FontOf(HWND window)
{
    const HFONT font = reinterpret_cast<HFONT>(::SendMessage(window, WM_GETFONT, 0, 0));
    return font != NULL ? font : static_cast<HFONT>(::GetStockObject(SYSTEM_FONT)); // which no font stands for
}

// Whatever the parent has behind its static texts, so that a former text does not show through.
void FillBackground(HDC dc, HWND label, HWND parent)
{
    const LRESULT brush =
        ::SendMessage(parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(label));
    RECT client;
    if (brush != 0 && ::GetClientRect(label, &client))
        ::FillRect(dc, &client, reinterpret_cast<HBRUSH>(brush));
}

} // namespace

IMPLEMENT_DYNAMIC(CZNKTLabel, CWnd)

BEGIN_MESSAGE_MAP(CZNKTLabel, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CZNKTLabel::CZNKTLabel() {}

CZNKTLabel::~CZNKTLabel() {}

void CZNKTLabel::OnPaint()
{
    CPaintDC dc(this);
    const HWND parent = ::GetParent(m_hWnd);
    if (parent != NULL)
        FillBackground(dc, m_hWnd, parent);
    CString text;
    GetWindowText(text);
    if (text.IsEmpty())
        return;
    DrawLabel(dc, text, FontOf(parent != NULL ? parent : m_hWnd));
}
