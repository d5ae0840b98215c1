// The sortable list: texts, numbers and colours.
#pragma once

#include "../GalleryPage.h"

#include <ZNSortListCtrl.h>

class CSortListPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CSortListPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    CZNSortListCtrl m_layers;
};
