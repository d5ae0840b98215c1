// The combo button in eight styles, with the ready-made commands of the
// suite.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <ComboButton.h>
#include <ComboButtonItem.h>
// [end]
#include <ComboButtonIMPItem.h>

class CComboButtonPage;

// [show]
class CFindItem : public CComboButtonItem // 按钮中的一条命令
{
public:
    explicit CFindItem(CComboButtonPage* page) : m_page(page) {}

    virtual bool Enabled() { return true; }
    virtual HICON GetIcon() { return NULL; } // 没有图标
    virtual CString GetName() { return L"查找"; }
    virtual void Action();

private:
    CComboButtonPage* m_page;
};
// [end]

class CComboButtonPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CComboButtonPage();

    LRESULT Show(const wchar_t* command);

protected:
    enum
    {
        BUTTONS = 8
    };

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()

    afx_msg LRESULT OnNew(WPARAM, LPARAM) { return Show(L"新建"); }
    afx_msg LRESULT OnCopyFrom(WPARAM, LPARAM) { return Show(L"复制新建"); }
    afx_msg LRESULT OnEdit(WPARAM, LPARAM) { return Show(L"编辑"); }
    afx_msg LRESULT OnDelete(WPARAM, LPARAM) { return Show(L"删除"); }

private:
    MFCUtils::CComboButtonIMPItem m_new;
    MFCUtils::CComboButtonIMPItem m_copy;
    MFCUtils::CComboButtonIMPItem m_edit;
    MFCUtils::CComboButtonIMPItem m_delete;
    CFindItem m_find;
    // [show]
    CComboButton m_buttons[BUTTONS]; // 对话框成员
    // [end]
};
