// A tab control that shows one of up to 16 dialogs below its tabs.
//
//     CTabSheet m_sheet;                                   // DDX_Control(exchange, IDC_SHEET, m_sheet)
//     m_sheet.AddPage(L"常规", &m_general, IDD_GENERAL);
//     m_sheet.AddPage(L"图层", &m_layers, IDD_LAYERS);
//     m_sheet.Show();
//
// The templates are children (WS_CHILD) without a caption, and are found like those of any dialog. Clicks on a tab and
// SetCurSel switch the page; the arrow keys move the selection among the tabs only.
//
// A page that is null, or whose template is missing, has its tab with nothing below it.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include "base/ZnktApi.h"

class ZNKT_API CTabSheet : public CTabCtrl
{
    DECLARE_DYNAMIC(CTabSheet)

public:
    enum
    {
        MAX_PAGES = 16
    };

    CTabSheet();
    virtual ~CTabSheet();

    // Adds a page: 1, or 0 when there are 16 already. Title and page stay the caller's and must live as long as the
    // sheet; the dialog is not created yet.
    int AddPage(const wchar_t* title, CDialog* page, UINT templateId);

    // Creates the pages that were added and their tabs, and shows the first page. The window of the sheet must exist;
    // the windows of the pages end with it.
    void Show();

    // Lays the pages out after the sheet was resized, and shows the first one whatever is selected: for use before the
    // user has chosen a page.
    void SetRect();

    // Switches to a page without any notification. The page that was shown before; -1, and no change, when there is no
    // such page.
    int SetCurSel(int index);

    // The tab that is selected, -1 for none.
    int GetCurSel();

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CTabSheet(const CTabSheet&);
    CTabSheet& operator=(const CTabSheet&);

    void CreatePage(int index);
    void ShowPage(int index, int command);
    void Switch(int index);

    const wchar_t* m_titles[MAX_PAGES];
    UINT m_templates[MAX_PAGES];
    CDialog* m_pages[MAX_PAGES];
    int m_count;
    int m_current;
    int m_created; // pages that Show has been called for
};
