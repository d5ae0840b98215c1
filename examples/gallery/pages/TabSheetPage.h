// The tab sheet with three pages.
#pragma once

#include "../GalleryPage.h"

#include <TabSheet.h>

class CTabSheetPage : public CGalleryPage
{
public:
    static const wchar_t Description[];
    static const wchar_t Code[];

    CTabSheetPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    CTabSheet m_sheet;
    CDialog m_general;
    CDialog m_layers;
    CDialog m_output;
};
