// The message viewer: fills the message palette with the tree of groups, the list of messages and their commands.
//
// It shows the messages of the store that are visible in the current document. Nothing is shown by itself: the palette
// calls Refresh.
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxcmn.h>
#include <afxtempl.h>
#include <adui.h>
#include <acui.h>
#include <acdocman.h>
#include <XTToolkitPro.h>

#include "base/SmallIcon.h"
#include "msg/MsgFlash.h"
#include "msg/MsgGroupTree.h"
#include "msg/MsgList.h"
#include "msg/MsgSelection.h"
#include "msg/MsgViewLayout.h"

class CMsgPaletteChildDlg : public CAcUiDialog
{
    DECLARE_DYNAMIC(CMsgPaletteChildDlg)

public:
    explicit CMsgPaletteChildDlg(CWnd* parent = NULL);
    virtual ~CMsgPaletteChildDlg();

    // Shows what the store holds now. With `force`, or when another document became current, the tree of groups is
    // rebuilt, and the group that was selected last in that document is selected again.
    void Refresh(bool force);

    virtual BOOL PreTranslateMessage(MSG* message);

protected:
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual BOOL OnInitDialog();

    // Enter and Escape do not close what a palette shows.
    virtual void OnOK();
    virtual void OnCancel();

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnToggleTree();
    afx_msg void OnDeleteSelected();
    afx_msg void OnDeleteShown();
    afx_msg void OnZoom();
    afx_msg void OnFlash();
    afx_msg void OnSelect();
    afx_msg void OnHeaderClick(NMHDR* header, LRESULT* result);
    afx_msg void OnListItemChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnListDoubleClick(NMHDR* header, LRESULT* result);
    afx_msg void OnListDeleteAll(NMHDR* header, LRESULT* result);
    afx_msg void OnTreeSelectionChanged(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    enum
    {
        BUTTON_SHOW_TREE,
        BUTTON_DELETE_SELECTED,
        BUTTON_DELETE_SHOWN,
        BUTTON_ZOOM,
        BUTTON_FLASH,
        BUTTON_SELECT,
        BUTTONS
    };

    typedef CMap<AcApDocument*, AcApDocument*, CString, const wchar_t*> GroupOfDocument;

    // Initialisation.
    void SetUpButtons();
    void AddToolTips();
    void RestoreTree();

    // Refresh.
    void RebuildTree(AcApDocument* current);
    CString WantedGroup(AcApDocument* current);
    void FillList();

    // Commands.
    void UpdateCount();
    void SelectionChanged();
    void UpdateCommands();
    void Enable(int button, bool enable);
    int FirstSelectedId() const;
    void DeleteRows(const std::vector<int>& rows);
    void RemoveEmptyGroups(const std::vector<CString>& groups);
    bool Confirm(const CString& question);

    // Layout.
    CRect RectOf(const CWnd& control) const;
    CMsgViewRects GetRects() const;
    void ShiftRightPart(int dx);

    CTabCtrl m_tab;
    CMsgGroupTree m_tree;
    CMsgList m_list;
    CXTHeaderCtrl m_header;
    CStatic m_count;
    CXTButton m_buttons[BUTTONS];
    CSmallIcon m_icons[BUTTONS];
    CToolTipCtrl m_toolTip;

    AcApDocument* m_document; // the one whose messages are shown
    GroupOfDocument m_groupOfDocument;
    CMsgFlash m_flash;
    CMsgSelection m_selection;
    int m_sortColumn; // -1: never sorted
    bool m_ascending;
    bool m_updating; // rows or items change because of ourselves
};
