#include "RichEditFixture.h"

#include "RealKeyboard.h"
#include "Wait.h"

namespace
{

constexpr UINT kLookEvery = 10;   // ms
constexpr UINT kGetMenu = 0x01E1; // MN_GETHMENU
constexpr wchar_t kMenuClass[] = L"#32768";

// Positions from the top until the identifier; items that can't be chosen count as well, separators do not.
int StepsTo(HMENU menu, UINT id)
{
    int steps = 0;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i)
    {
        const UINT at = ::GetMenuItemID(menu, i);
        steps += at != 0;
        if (at == id)
            return steps;
    }
    return 0;
}

} // namespace

RichEditOwner::RichEditOwner()
{
    const CString wndClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    CreateEx(0, wndClass, L"owner", WS_POPUP | WS_VISIBLE, CRect(50, 50, 450, 350), NULL, 0);
}

LRESULT RichEditOwner::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && lParam == 0)
        commands.push_back({LOWORD(wParam), HIWORD(wParam), lParam});
    if (message == WM_IDLEUPDATECMDUI)
    {
        CCmdUI& item = *reinterpret_cast<CCmdUI*>(lParam);
        updates.push_back(item.m_nID);
        if (onUpdate)
            onUpdate(item);
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

void RichEditFixture::Create(CAutoRichEditCtrl& edit)
{
    const DWORD style = WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL;
    edit.Create(style, CRect(10, 10, 380, 280), &m_owner, kEditId);
    // The system's font, which a control without any takes, may be a bold one.
    CHARFORMAT2 plain = {};
    plain.dwMask = CFM_BOLD;
    edit.SetDefaultCharFormat(plain);
}

std::wstring RichEditFixture::Text(const CRichEditCtrl& edit) const
{
    CString text;
    edit.GetWindowText(text);
    return text.GetString();
}

void RichEditFixture::SetText(const wchar_t* text)
{
    m_edit.SetWindowText(text);
    m_edit.EmptyUndoBuffer();
    m_edit.SetSel(0, 0);
}

CHARFORMAT2 RichEditFixture::Format(long start, long end)
{
    CHARFORMAT2 format = {};
    CHARRANGE former = {};
    m_edit.GetSel(former);
    m_edit.SetSel(start, end);
    m_edit.GetSelectionCharFormat(format);
    m_edit.SetSel(former);
    return format;
}

PARAFORMAT2 RichEditFixture::Paragraph(long position)
{
    PARAFORMAT2 format = {};
    CHARRANGE former = {};
    m_edit.GetSel(former);
    m_edit.SetSel(position, position);
    m_edit.GetParaFormat(format);
    m_edit.SetSel(former);
    return format;
}

MenuDriver* MenuDriver::s_current = NULL;

MenuDriver::MenuDriver(Chooser chooser) : m_chooser(chooser), m_timer(::SetTimer(NULL, 0, kLookEvery, &OnTimer))
{
    s_current = this;
}

MenuDriver::~MenuDriver()
{
    ::KillTimer(NULL, m_timer);
    s_current = NULL;
}

void CALLBACK MenuDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (s_current != NULL)
        s_current->Look();
}

void MenuDriver::Look()
{
    const HWND window = ::FindWindowW(kMenuClass, NULL);
    if (window == NULL || !::IsWindowVisible(window))
        m_done = NULL; // the system uses one window for all menus
    if (window == NULL || !::IsWindowVisible(window) || window == m_done)
        return;
    m_done = window;
    ++m_opened;
    ::GetWindowRect(window, &m_place);
    const HMENU menu = reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenu, 0, 0));
    const UINT chosen = m_chooser(menu);
    const int steps = chosen == 0 ? 0 : StepsTo(menu, chosen);
    for (int i = 0; i < steps; ++i)
        PressKey(VK_DOWN);
    PressKey(steps > 0 ? VK_RETURN : VK_ESCAPE);
    if (steps > 0)
        PressKey(VK_ESCAPE); // closes the menu where the item was grey
}

std::wstring ItemText(HMENU menu, int position)
{
    wchar_t text[64] = L"";
    ::GetMenuStringW(menu, static_cast<UINT>(position), text, 64, MF_BYPOSITION);
    return text;
}

bool IsGrey(HMENU menu, UINT id)
{
    return (::GetMenuState(menu, id, MF_BYCOMMAND) & MF_GRAYED) != 0;
}
