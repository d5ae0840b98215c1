#include "host/CommandPanel.h"

#include "arx/ui/Colours.h"
#include "arx/ui/GdiGuards.h"
#include "arx/ui/UiFont.h"
#include "host/StandardOutput.h"

namespace arxhost
{
namespace
{

const int panelHeight = 128;
const int inputHeight = 24;
const int textInset = 4;
const int promptMargin = 12;
const UINT historyId = 1;
const UINT promptId = 2;
const UINT inputId = 3;
// The history forgets its older half beyond this many characters.
const int historyLimit = 200000;
const wchar_t commandPrompt[] = L"命令：";

std::wstring WithReturns(const std::wstring& text)
{
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == L'\n' && (i == 0 || text[i - 1] != L'\r'))
            result += L'\r';
        result += text[i];
    }
    return result;
}

} // namespace

BEGIN_MESSAGE_MAP(CommandPanel, CControlBar)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

bool CommandPanel::Create(CFrameWnd& frame)
{
    m_dwStyle = CBRS_ALIGN_BOTTOM;
    m_paper.CreateSolidBrush(arxui::colours::tabActive);
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    const CString className = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    if (!CWnd::Create(className, NULL, style, CRect(0, 0, 0, 0), &frame, AFX_IDW_CONTROLBAR_FIRST + 3))
        return false;
    const DWORD history = WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
    m_history.Create(history, CRect(0, 0, 0, 0), this, historyId);
    m_promptLabel.Create(commandPrompt, WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE, CRect(0, 0, 0, 0), this, promptId);
    m_input.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 0, 0), this, inputId);
    for (CWnd* control :
         {static_cast<CWnd*>(&m_history), static_cast<CWnd*>(&m_promptLabel), static_cast<CWnd*>(&m_input)})
        control->SendMessage(WM_SETFONT, WPARAM(arxui::FixedFont()));
    m_history.SetLimitText(0);
    m_input.onEnter = [this](const std::wstring& line) { Entered(line); };
    m_input.onEscape = [this] { Escaped(); };
    return true;
}

void CommandPanel::Print(const std::wstring& text)
{
    WriteStandardOutput(text);
    if (!text.empty())
        m_atLineStart = text.back() == L'\n';
    if (m_history.GetSafeHwnd() == NULL)
        return;
    if (m_history.GetWindowTextLength() > historyLimit)
    {
        m_history.SetSel(0, historyLimit / 2, TRUE);
        m_history.ReplaceSel(L"");
    }
    const int end = m_history.GetWindowTextLength();
    m_history.SetSel(end, end);
    m_history.ReplaceSel(WithReturns(text).c_str());
}

void CommandPanel::PrintLine(const std::wstring& text)
{
    Print((m_atLineStart ? L"" : L"\n") + text + L"\n");
}

void CommandPanel::TypeInto(wchar_t character)
{
    m_input.Type(character);
}

void CommandPanel::FocusInput()
{
    m_input.SetFocus();
}

bool CommandPanel::Ask(const std::wstring& prompt, std::wstring& answer)
{
    if (m_asking)
        return false;
    SetPrompt(prompt);
    m_asking = true;
    m_givenUp = false;
    m_input.SetFocus();
    while (m_asking)
    {
        if (!AfxPumpMessage())
        {
            // The program ends: the outer loop has to hear of it, too.
            ::PostQuitMessage(0);
            m_asking = false;
            m_givenUp = true;
        }
    }
    if (GetSafeHwnd() != NULL)
        SetPrompt(commandPrompt);
    answer = m_answer;
    return !m_givenUp;
}

PointReply CommandPanel::AskPoint(const std::wstring& prompt, const CWnd& view, std::wstring& typed,
                                  AcGePoint2d& picked)
{
    if (m_asking)
        return PointReply::GivenUp;
    m_pointView = &view;
    m_isPicked = false;
    const bool isAnswered = Ask(prompt, typed);
    m_pointView = nullptr;
    if (!isAnswered)
        return PointReply::GivenUp;
    picked = m_picked;
    return m_isPicked ? PointReply::Picked : PointReply::Typed;
}

bool CommandPanel::TakePoint(const CWnd& view, WorldPoint place)
{
    if (!m_asking || m_pointView != &view)
        return false;
    m_picked = AcGePoint2d(place.x, place.y);
    m_isPicked = true;
    m_input.SetWindowText(L"");
    Entered(L"");
    return true;
}

bool CommandPanel::GiveUp()
{
    if (!m_asking)
        return false;
    m_input.SetWindowText(L"");
    Escaped();
    return true;
}

void CommandPanel::ForgetView(const CWnd& view)
{
    if (m_pointView == &view)
        GiveUp();
}

CSize CommandPanel::CalcFixedLayout(BOOL /*stretch*/, BOOL /*horizontal*/)
{
    const int unlimited = 32767;
    return CSize(unlimited, panelHeight);
}

void CommandPanel::OnUpdateCmdUI(CFrameWnd* /*target*/, BOOL /*disableIfNoHandler*/) {}

void CommandPanel::OnSize(UINT type, int cx, int cy)
{
    CControlBar::OnSize(type, cx, cy);
    LayOut();
}

BOOL CommandPanel::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    arxui::FillColour(dc->GetSafeHdc(), client, arxui::colours::tabActive);
    arxui::FillColour(dc->GetSafeHdc(), CRect(0, 0, client.right, 1), arxui::colours::border);
    arxui::FillColour(dc->GetSafeHdc(),
                      CRect(0, client.bottom - inputHeight, client.right, client.bottom - inputHeight + 1),
                      arxui::colours::border);
    return TRUE;
}

HBRUSH CommandPanel::OnCtlColor(CDC* dc, CWnd* /*control*/, UINT /*kind*/)
{
    dc->SetBkColor(arxui::colours::tabActive);
    dc->SetTextColor(arxui::colours::text);
    return static_cast<HBRUSH>(m_paper.GetSafeHandle());
}

void CommandPanel::OnSetFocus(CWnd* /*oldWindow*/)
{
    m_input.SetFocus();
}

void CommandPanel::Entered(const std::wstring& line)
{
    if (m_asking)
    {
        m_answer = line;
        m_asking = false;
        return;
    }
    const std::wstring command = line.empty() ? m_input.History().Last() : line;
    if (command.empty())
        return;
    m_input.History().Add(command);
    onLine(command);
}

void CommandPanel::Escaped()
{
    if (m_asking)
    {
        m_asking = false;
        m_givenUp = true;
        Print(L"*取消*\n");
    }
    else
        onEscape();
}

void CommandPanel::SetPrompt(const std::wstring& prompt)
{
    m_promptLabel.SetWindowText(prompt.c_str());
    LayOut();
}

void CommandPanel::LayOut()
{
    if (m_input.GetSafeHwnd() == NULL)
        return;
    CRect client;
    GetClientRect(&client);
    CString prompt;
    m_promptLabel.GetWindowText(prompt);
    CClientDC dc(&m_promptLabel);
    const arxui::SelectGuard font(dc.GetSafeHdc(), arxui::FixedFont());
    const int promptWidth = dc.GetTextExtent(prompt).cx + promptMargin;
    const int inputTop = client.bottom - inputHeight + 1;
    m_history.MoveWindow(textInset, 2, client.Width() - textInset, inputTop - 4);
    m_promptLabel.MoveWindow(textInset, inputTop, promptWidth, inputHeight - 1);
    m_input.MoveWindow(textInset + promptWidth, inputTop + textInset, client.Width() - promptWidth - textInset,
                       inputHeight - textInset - 1);
}

} // namespace arxhost
