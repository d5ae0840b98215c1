// The tab sheet with three pages.
#pragma once

#include "../GalleryPage.h"

// [show]
#include <TabSheet.h>
// [end]

class CTabSheetPage : public CGalleryPage
{
public:
    static const wchar_t Description[];

    CTabSheetPage();

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    // [show]
    CTabSheet m_sheet;
    CDialog m_general; // 各页：子对话框
    CDialog m_layers;
    CDialog m_output;
    // [end]
};
