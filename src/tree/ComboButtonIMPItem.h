// Ready-made items of a combo button for the five usual commands on a tree of named entries.
//
//     MFCUtils::CComboButtonIMPItem m_new(this, MFCUtils::CComboButtonIMPItem::eNew, 0);
//     m_button.AddItem(&m_new);
//     ...
//     ON_MESSAGE(UM_TREE_NEW, &CMyDlg::OnNew)   // wParam 0, lParam the number given to the item
#pragma once

#include <afxwin.h>

#include "base/ZnktApi.h"
#include "button/ComboButtonItem.h"

// What Action sends to the item's window: wParam 0, lParam the item's number; the result is not looked at. Receiving
// dialogs map these numbers.
enum
{
    UM_TREE_NEW = 1365,
    UM_TREE_COPYFROM = 1366,
    UM_TREE_EDIT = 1367,
    UM_TREE_RENAME = 1400,
    UM_TREE_DEL = 1401
};

namespace MFCUtils
{

class ZNKT_API CComboButtonIMPItem : public CComboButtonItem
{
public:
    enum EMode
    {
        eNew = 1,  // 新建
        eCopyFrom, // 复制新建
        eEdit,     // 编辑
        eRename,   // 重命名
        eDel       // 删除
    };

    // `pWnd` gets the command; it is not owned and may be null. The icon comes from the suite's icons (MFCUtils.h) and
    // is null where these are missing. Any other mode has no name, no icon and no command.
    CComboButtonIMPItem(CWnd* pWnd, EMode eMode, int nParam);
    // A copy has an icon of its own.
    CComboButtonIMPItem(const CComboButtonIMPItem& source);
    CComboButtonIMPItem& operator=(const CComboButtonIMPItem& source);
    virtual ~CComboButtonIMPItem();

    virtual bool Enabled();
    // 16 by 16 pixels, the item's.
    virtual HICON GetIcon();
    virtual CString GetName();
    // Sends the command, also where the item is disabled: the button sees to that.
    virtual void Action();

    // Enabled at first.
    void SetEnable(bool bEnable);

private:
    EMode m_eMode;
    HICON m_hIcon;
    CString m_strName;
    CWnd* m_pWnd;
    int m_nParam;
    bool m_bEnabled;
};

} // namespace MFCUtils
