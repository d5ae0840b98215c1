// The validating edit in place of a dialog's own edit.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "DialogTemplate.h"
#include "edit/SuperEdit.h"

namespace
{

const int kEditId = 7;

class WidthDialog : public CDialog
{
public:
    CSuperEdit width;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kEditId, width);
    }

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        width.SetInputFloat(2.5, 0, 10, FALSE, TRUE, NULL);
        return TRUE;
    }
};

} // namespace

TEST(SuperEditDialog, TakesThePlaceOfAnEditAndIsValidatedWhenTheDialogShows)
{
    DialogTemplate form(L"width", 120, 40);
    form.Edit(kEditId, 10, 10, 60, 12);
    WidthDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form.Get()));
    CString text;
    dialog.width.GetWindowText(text);
    EXPECT_STREQ(L"2.5", text);
    dialog.ShowWindow(SW_SHOW);
    dialog.UpdateWindow();
    dialog.width.UpdateWindow();
    EXPECT_EQ(1, dialog.width.IsValid());
    dialog.width.SetWindowText(L"11");
    EXPECT_EQ(0, dialog.width.IsValid());
    dialog.DestroyWindow();
}
