// The sheet keeps room for its pages in units of its own font, so every page is shown in that font, whatever font its
// template names: nothing at the page's edge is cut off.
#include <afxwin.h>
#include <afxcmn.h>
#include <afxdlgs.h>

#include <gtest/gtest.h>

#include "DialogTemplate.h"
#include "PageIds.h"
#include "ScriptedDialog.h"

namespace
{

struct PageRow
{
    const char* name;
    UINT templateId; // 0: a template in memory
    bool wizard;
};

void PrintTo(const PageRow& row, std::ostream* out)
{
    *out << row.name;
}

class PageFont : public testing::TestWithParam<PageRow>
{
protected:
    PageFont() : page(GetParam().templateId)
    {
        form.Font(L"Courier New", 20).Label(IDC_PAGE_LABEL, L"Label", 0, 0).Edit(IDC_PAGE_CORNER, 72, 40, 48, 16);
        if (GetParam().templateId == 0)
        {
            page.m_psp.dwFlags |= PSP_DLGINDIRECT;
            page.m_psp.pResource = form.Get();
        }
        if (GetParam().wizard)
            sheet.SetWizardMode();
        sheet.AddPage(&page);
    }

    static std::string Describe(const CWnd& window)
    {
        LOGFONT font = {};
        if (CFont* const used = window.GetFont())
            used->GetLogFont(&font);
        CString text;
        text.Format(L"%s %d %s", font.lfFaceName, font.lfHeight,
                    font.lfWeight > FW_NORMAL || font.lfItalic ? L"marked" : L"regular");
        return CStringA(text).GetString();
    }

    OwnerWindow owner;
    DialogTemplate form{L"Page", 120, 60, WS_CHILD | WS_CAPTION | WS_DISABLED | DS_SETFONT};
    CPropertyPage page;
    CPropertySheet sheet{L"Options", &owner};
};

} // namespace

TEST_P(PageFont, IsThatOfTheSheet)
{
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(Describe(sheet), Describe(page));
    EXPECT_EQ(Describe(sheet), Describe(*page.GetDlgItem(IDC_PAGE_CORNER)));
}

TEST_P(PageFont, LeavesRoomForWhatIsInTheCorner)
{
    ASSERT_TRUE(sheet.Create(&owner));
    CRect room;
    CRect corner;
    page.GetClientRect(&room);
    page.GetDlgItem(IDC_PAGE_CORNER)->GetWindowRect(&corner);
    page.ScreenToClient(&corner);
    EXPECT_GT(corner.Width(), 0);
    EXPECT_LE(corner.right, room.right);
    EXPECT_LE(corner.bottom, room.bottom);
}

TEST_P(PageFont, ChangesNothingElseOfTheTemplate)
{
    ASSERT_TRUE(sheet.Create(&owner));
    CString text;
    page.GetWindowText(text);
    EXPECT_EQ(L"Page", text);
    page.GetDlgItemText(IDC_PAGE_LABEL, text);
    EXPECT_EQ(L"Label", text);
    ASSERT_NE(nullptr, page.GetDlgItem(IDC_PAGE_CORNER));
    EXPECT_TRUE(page.GetDlgItem(IDC_PAGE_CORNER)->GetStyle() & WS_TABSTOP);
    EXPECT_EQ(nullptr, page.GetDlgItem(IDC_PAGE_CORNER)->GetNextWindow());
}

INSTANTIATE_TEST_SUITE_P(Templates, PageFont,
                         testing::Values(PageRow{"Extended", IDD_EXTENDED_PAGE, false},
                                         PageRow{"Plain", IDD_PLAIN_PAGE, false},
                                         PageRow{"WithoutFont", IDD_PAGE_WITHOUT_FONT, false},
                                         PageRow{"InMemory", 0, false}, PageRow{"OfAWizard", IDD_EXTENDED_PAGE, true}),
                         [](const testing::TestParamInfo<PageRow>& info) { return std::string(info.param.name); });
