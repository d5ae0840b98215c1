#include "dialog/AutoRichEditCtrl.h"

#include <afxdlgs.h>
#include <afxpriv.h>
#include <wchar.h>

#include "dialog/RtfText.h"
#include "res/resource.h"

namespace
{

const int kTwipsPerPoint = 20;
const int kLargestPoints = 1638; // of the control itself
const LONG kBulletOffsetTwips = 4;
const UINT kFirstCommand = 1;
const UINT kLastCommand = 0xFFFF;

DWORD CALLBACK ReadRtf(DWORD_PTR reader, LPBYTE buffer, LONG wanted, LONG* read)
{
    *read = reinterpret_cast<CRtfReader*>(reader)->Read(buffer, wanted);
    return 0;
}

DWORD CALLBACK WriteRtf(DWORD_PTR text, LPBYTE bytes, LONG count, LONG* written)
{
    AppendRtf(*reinterpret_cast<CString*>(text), bytes, count);
    *written = count;
    return 0;
}

int CALLBACK NoteFont(const LOGFONT* font, const TEXTMETRIC*, DWORD, LPARAM names)
{
    reinterpret_cast<CStringArray*>(names)->Add(font->lfFaceName);
    return TRUE;
}

} // namespace

IMPLEMENT_DYNAMIC(CAutoRichEditCtrl, CRichEditCtrl)

BEGIN_MESSAGE_MAP(CAutoRichEditCtrl, CRichEditCtrl)
    ON_COMMAND_RANGE(kFirstCommand, kLastCommand, &CAutoRichEditCtrl::OnMenuCommand)
    ON_UPDATE_COMMAND_UI_RANGE(kFirstCommand, kLastCommand, &CAutoRichEditCtrl::OnUpdateMenuCommand)
END_MESSAGE_MAP()

CAutoRichEditCtrl::CAutoRichEditCtrl(UINT nMenuID) : m_nMenuID(nMenuID)
{
    AfxInitRichEdit2();
}

// The window goes before the hook does: the hook would put back the procedure that was there before the framework's.
CAutoRichEditCtrl::~CAutoRichEditCtrl()
{
    if (m_hWnd != NULL)
        DestroyWindow();
}

CString CAutoRichEditCtrl::GetRTF()
{
    CString text;
    if (m_hWnd == NULL)
        return text;
    ReserveRtf(text, static_cast<int>(GetTextLengthEx(GTL_DEFAULT)));
    EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&text), 0, &WriteRtf};
    StreamOut(SF_RTF, stream);
    return text;
}

bool CAutoRichEditCtrl::SetRTF(const CString& rtf)
{
    if (m_hWnd == NULL)
        return false;
    if (rtf.IsEmpty())
    {
        SetWindowText(L"");
        return true;
    }
    // The limit for what users type holds for RTF streams as well.
    if (GetLimitText() < rtf.GetLength())
        LimitText(rtf.GetLength());
    CRtfReader reader(rtf, rtf.GetLength());
    EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&reader), 0, &ReadRtf};
    StreamIn(SF_RTF, stream);
    return stream.dwError == 0;
}

void CAutoRichEditCtrl::ToggleBold()
{
    ToggleFormat(CFM_BOLD, CFE_BOLD);
}

void CAutoRichEditCtrl::ToggleItalic()
{
    ToggleFormat(CFM_ITALIC, CFE_ITALIC);
}

void CAutoRichEditCtrl::ToggleUnderline()
{
    ToggleFormat(CFM_UNDERLINE, CFE_UNDERLINE);
}

void CAutoRichEditCtrl::ToggleFormat(DWORD mask, DWORD effect)
{
    CHARFORMAT2 format = SelectionFormat();
    if ((format.dwMask & mask) != 0)
        format.dwEffects ^= effect;
    else
        format.dwEffects |= effect;
    format.dwMask = mask;
    SetSelectionCharFormat(format);
}

bool CAutoRichEditCtrl::HasFormat(DWORD mask, DWORD effect)
{
    const CHARFORMAT2 format = SelectionFormat();
    return (format.dwMask & mask) != 0 && (format.dwEffects & effect) != 0;
}

void CAutoRichEditCtrl::SetColor(COLORREF color)
{
    CHARFORMAT2 format = SelectionFormat();
    format.dwEffects &= ~static_cast<DWORD>(CFE_AUTOCOLOR);
    format.crTextColor = color;
    format.dwMask = CFM_COLOR;
    SetSelectionCharFormat(format);
}

void CAutoRichEditCtrl::SetColor()
{
    if (m_hWnd == NULL)
        return;
    CColorDialog dialog(SelectionFormat().crTextColor, 0, this);
    if (dialog.DoModal() == IDOK)
        SetColor(dialog.GetColor());
}

void CAutoRichEditCtrl::SetFontName(LPCTSTR name)
{
    if (name == NULL || *name == 0)
        return;
    CHARFORMAT2 format = SelectionFormat();
    wcsncpy(format.szFaceName, name, LF_FACESIZE - 1);
    format.szFaceName[LF_FACESIZE - 1] = 0;
    format.dwMask = CFM_FACE;
    SetSelectionCharFormat(format);
}

CString CAutoRichEditCtrl::GetFontName()
{
    return SelectionFormat().szFaceName;
}

void CAutoRichEditCtrl::SetFontSize(int points)
{
    if (points < 1 || points > kLargestPoints)
        return;
    CHARFORMAT2 format = SelectionFormat();
    format.yHeight = points * kTwipsPerPoint;
    format.dwMask = CFM_SIZE;
    SetSelectionCharFormat(format);
}

int CAutoRichEditCtrl::GetFontSize()
{
    return SelectionFormat().yHeight / kTwipsPerPoint;
}

void CAutoRichEditCtrl::AlignLeft()
{
    SetAlignment(PFA_LEFT);
}

void CAutoRichEditCtrl::AlignCenter()
{
    SetAlignment(PFA_CENTER);
}

void CAutoRichEditCtrl::AlignRight()
{
    SetAlignment(PFA_RIGHT);
}

void CAutoRichEditCtrl::ToggleBullet()
{
    PARAFORMAT2 format = {};
    GetParaFormat(format);
    if (format.wNumbering == PFN_BULLET)
    {
        format.wNumbering = 0;
        format.dxOffset = 0;
        format.dxStartIndent = 0;
        format.dwMask = PFM_NUMBERING | PFM_STARTINDENT | PFM_OFFSET;
    }
    else
    {
        format.wNumbering = PFN_BULLET;
        format.dwMask = PFM_NUMBERING;
        if (format.dxOffset == 0)
        {
            format.dxOffset = kBulletOffsetTwips;
            format.dwMask |= PFM_STARTINDENT | PFM_OFFSET;
        }
    }
    SetParaFormat(format);
}

bool CAutoRichEditCtrl::HasBullet()
{
    PARAFORMAT2 format = {};
    GetParaFormat(format);
    return format.wNumbering == PFN_BULLET;
}

const CStringArray& CAutoRichEditCtrl::EnumFontNames()
{
    m_arrFonts.RemoveAll();
    if (m_hWnd != NULL)
    {
        CClientDC dc(this);
        ::EnumFonts(dc.m_hDC, NULL, &NoteFont, reinterpret_cast<LPARAM>(&m_arrFonts));
    }
    return m_arrFonts;
}

void CAutoRichEditCtrl::PreSubclassWindow()
{
    if (m_nMenuID != 0)
        m_menuHandler.Install(this, m_nMenuID);
    CRichEditCtrl::PreSubclassWindow();
}

void CAutoRichEditCtrl::OnMenuCommand(UINT nID)
{
    if (m_menuHandler.OnCommand(nID))
        return;
    CWnd* const parent = GetParent();
    if (parent != NULL)
        parent->SendMessage(WM_COMMAND, nID);
}

void CAutoRichEditCtrl::OnUpdateMenuCommand(CCmdUI* pCmdUI)
{
    if (m_menuHandler.OnUpdateCmdUI(pCmdUI))
        return;
    CWnd* const parent = GetParent();
    if (parent != NULL)
        parent->SendMessage(WM_IDLEUPDATECMDUI, 0, reinterpret_cast<LPARAM>(pCmdUI));
}

CHARFORMAT2 CAutoRichEditCtrl::SelectionFormat() const
{
    CHARFORMAT2 format = {};
    if (m_hWnd != NULL)
        GetSelectionCharFormat(format);
    return format;
}

void CAutoRichEditCtrl::SetAlignment(WORD alignment)
{
    PARAFORMAT2 format = {};
    format.wAlignment = alignment;
    format.dwMask = PFM_ALIGNMENT;
    SetParaFormat(format);
}
