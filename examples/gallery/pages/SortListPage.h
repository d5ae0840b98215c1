// The sortable list: texts, numbers and colours.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <ZNSortListCtrl.h>
// [end]

class CSortListPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CSortListPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    // [show]
    CZNSortListCtrl m_layers; // 对话框成员
    // [end]
};
