// The combo button in eight styles, with the ready-made commands of the suite.
#pragma once

#include "../GalleryPage.h"

#include <ComboButton.h>
#include <ComboButtonIMPItem.h>

class CComboButtonPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CComboButtonPage();

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
    LRESULT Show(const wchar_t* command);

    MFCUtils::CComboButtonIMPItem m_new;
    MFCUtils::CComboButtonIMPItem m_copy;
    MFCUtils::CComboButtonIMPItem m_edit;
    MFCUtils::CComboButtonIMPItem m_delete;
    CComboButton m_buttons[BUTTONS];
};
