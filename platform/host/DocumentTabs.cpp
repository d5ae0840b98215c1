#include "host/DocumentTabs.h"

#include "arx/ui/UiFont.h"

#include <algorithm>

namespace arxhost
{
namespace
{

const int stripHeight = 28;
const UINT tabsId = 1;

} // namespace

BEGIN_MESSAGE_MAP(DocumentTabs, CControlBar)
    ON_WM_SIZE()
    ON_NOTIFY(TCN_SELCHANGE, tabsId, &DocumentTabs::OnSelectionChanged)
END_MESSAGE_MAP()

bool DocumentTabs::Create(CFrameWnd& frame)
{
    m_dwStyle = CBRS_ALIGN_TOP;
    const CString className = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW), HBRUSH(COLOR_BTNFACE + 1));
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    if (!CWnd::Create(className, NULL, style, CRect(0, 0, 0, 0), &frame, AFX_IDW_CONTROLBAR_FIRST + 2))
        return false;
    m_tabs.Create(WS_CHILD | WS_VISIBLE | TCS_FOCUSNEVER, CRect(0, 0, 0, 0), this, tabsId);
    m_tabs.SendMessage(WM_SETFONT, WPARAM(arxui::UiFont()));
    return m_tabs.GetSafeHwnd() != NULL;
}

void DocumentTabs::Add(AcApDocument* document)
{
    m_documents.push_back(document);
    m_tabs.InsertItem(m_tabs.GetItemCount(), document->docTitle());
}

void DocumentTabs::Remove(AcApDocument* document)
{
    const int index = IndexOf(document);
    if (index < 0)
        return;
    m_documents.erase(m_documents.begin() + index);
    m_tabs.DeleteItem(index);
}

void DocumentTabs::Select(AcApDocument* document)
{
    m_tabs.SetCurSel(IndexOf(document));
}

CSize DocumentTabs::CalcFixedLayout(BOOL /*stretch*/, BOOL /*horizontal*/)
{
    const int unlimited = 32767;
    return CSize(unlimited, stripHeight);
}

void DocumentTabs::OnUpdateCmdUI(CFrameWnd* /*target*/, BOOL /*disableIfNoHandler*/) {}

void DocumentTabs::OnSize(UINT type, int cx, int cy)
{
    CControlBar::OnSize(type, cx, cy);
    if (m_tabs.GetSafeHwnd() != NULL)
        m_tabs.MoveWindow(0, 2, cx, cy - 2);
}

void DocumentTabs::OnSelectionChanged(NMHDR* /*header*/, LRESULT* /*result*/)
{
    const int index = m_tabs.GetCurSel();
    if (index >= 0 && index < static_cast<int>(m_documents.size()))
        SetCurrentDocument(m_documents[index]);
}

int DocumentTabs::IndexOf(AcApDocument* document) const
{
    const auto found = std::find(m_documents.begin(), m_documents.end(), document);
    return found == m_documents.end() ? -1 : static_cast<int>(found - m_documents.begin());
}

} // namespace arxhost
