// The hover tip of the validating edit.
#include "edit/SuperEdit.h"

#include "base/PlainNumber.h"
#include "base/WindowWatch.h"

namespace
{

const int kMaxTipWidth = 400;
const UINT_PTR kTipTool = 1;

const wchar_t kTipFormat[] = L"最小值:%s\n最大值:%s\n默认值:%s";
const wchar_t kTipNumberFormat[] = L"%g";
const wchar_t kTipFailure[] = L"Create ToolTip Error!";

} // namespace

void CSuperEdit::SetTipText(const wchar_t* text)
{
    m_tipText = text;
    m_tipTextSet = text != NULL;
    if (text == NULL)
    {
        RemoveTip();
        return;
    }
    MakeTip();
    if (m_toolTip.GetToolCount() > 0)
        m_toolTip.UpdateTipText(m_tipText, this, kTipTool);
}

void CSuperEdit::SetEableTip(int enable)
{
    m_tipEnabled = enable;
    if (enable)
        MakeTip();
}

BOOL CSuperEdit::PreTranslateMessage(MSG* message)
{
    if (m_tipEnabled && m_toolTip.GetSafeHwnd() != NULL)
        m_toolTip.RelayEvent(message);
    return CEdit::PreTranslateMessage(message);
}

void CSuperEdit::ShowLimitsInTip()
{
    m_tipText.Format(kTipFormat, PlainNumberText(kTipNumberFormat, m_minimum).GetString(),
                     PlainNumberText(kTipNumberFormat, m_maximum).GetString(),
                     PlainNumberText(kTipNumberFormat, m_default).GetString());
    RemoveTip();
}

// The window of the tip takes longer to make than that of the edit, and most edits never show a tip: it is made when
// the first one is asked for, and gets what it missed.
void CSuperEdit::MakeTip()
{
    if (m_tipMade)
        return;
    m_tipMade = 1;
    m_toolTip.Create(this, 0);
    m_toolTip.Activate(FALSE);
    m_toolTip.SetMaxTipWidth(kMaxTipWidth);
    if (m_toolDue)
        ShowTip();
}

// Nobody may have asked this window for its tip, but the one before it.
void CSuperEdit::ShowTipWithFocus()
{
    if (m_tipMade)
    {
        ShowTip();
        return;
    }
    m_toolDue = 1;
    if (m_tipEnabled)
        MakeTip();
}

void CSuperEdit::ShowTip()
{
    const CWindowWatch watch(*this);
    if (m_toolTip.GetToolCount() == 0)
        AddTip();
    if (watch.IsGone())
        return;
    m_toolTip.Activate(TRUE);
    m_toolTip.Update();
}

void CSuperEdit::AddTip()
{
    CRect client;
    GetClientRect(&client);
    if (!m_toolTip.AddTool(this, m_tipText, &client, kTipTool))
        ReportFailure(kTipFailure);
}

void CSuperEdit::RemoveTip()
{
    m_toolDue = 0;
    if (m_tipMade && m_toolTip.GetToolCount() > 0)
        m_toolTip.DelTool(this, kTipTool);
}

void CSuperEdit::ForgetTip()
{
    m_toolTip.DestroyWindow();
    m_tipMade = 0;
    m_toolDue = 0;
}
