// The host's dialog classes: their ancestors, whose template they take, their limits and their remembered place.
#include "HostFixture.h"

#include "DialogTemplate.h"

#include <acui.h>

#include <type_traits>

namespace
{

// The dialog of the common controls that every version of them has: the base of a property sheet.
const UINT kForeignTemplate = 1006;

HINSTANCE ForeignModule()
{
    return ::GetModuleHandle(L"comctl32.dll");
}

class SampleDialog : public CAcUiDialog
{
public:
    explicit SampleDialog(UINT id = 0, CWnd* parent = NULL, HINSTANCE module = NULL) : CAcUiDialog(id, parent, module)
    {
    }

    // A window with a border to size it by.
    bool Open(CWnd& owner, const wchar_t* name)
    {
        DialogTemplate form(L"Sample", 100, 60, WS_POPUP | WS_CAPTION | WS_THICKFRAME | DS_SETFONT);
        SetDialogName(name);
        SetPersistency(TRUE);
        return CreateIndirect(form.Get(), &owner) != FALSE;
    }
    CSize SizeAfter(int width, int height)
    {
        SetWindowPos(NULL, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return ScreenRectOf(*this).Size();
    }
};

class AcUiDialog : public HostFixture
{
};

} // namespace

TEST_F(AcUiDialog, HasTheDocumentedAncestors)
{
    static_assert(std::is_base_of<CAdUiDialog, CAcUiDialog>::value, "");
    static_assert(std::is_base_of<CAdUiBaseDialog, CAdUiDialog>::value, "");
    static_assert(std::is_base_of<CDialog, CAdUiBaseDialog>::value, "");
    const SampleDialog dialog;
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CAcUiDialog)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CAdUiDialog)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CAdUiBaseDialog)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CDialog)));
}

TEST_F(AcUiDialog, TakesItsTemplateFromTheModuleItNames)
{
    ASSERT_NE(nullptr, ::FindResource(ForeignModule(), MAKEINTRESOURCE(kForeignTemplate), RT_DIALOG));
    SampleDialog without;
    EXPECT_FALSE(without.Create(kForeignTemplate, &Frame()));
    SampleDialog named(kForeignTemplate, &Frame(), ForeignModule());
    const HINSTANCE before = AfxGetResourceHandle();
    EXPECT_TRUE(named.Create(kForeignTemplate, &Frame()));
    EXPECT_EQ(before, AfxGetResourceHandle());
    named.DestroyWindow();
}

TEST_F(AcUiDialog, KeepsItsSizeWithinItsLimits)
{
    SampleDialog dialog;
    ASSERT_TRUE(dialog.Open(Frame(), L""));
    dialog.SetDialogMinExtents(300, 200);
    dialog.SetDialogMaxExtents(500, 400);
    EXPECT_EQ(CSize(300, 200), dialog.SizeAfter(250, 150));
    EXPECT_EQ(CSize(500, 400), dialog.SizeAfter(700, 600));
    dialog.DestroyWindow();
}

TEST_F(AcUiDialog, OpensWhereItWasClosed)
{
    const CRect place(120, 90, 520, 390);
    SampleDialog first;
    ASSERT_TRUE(first.Open(Frame(), L"Sample"));
    first.MoveWindow(&place);
    first.DestroyWindow();
    SampleDialog second;
    ASSERT_TRUE(second.Open(Frame(), L"Sample"));
    EXPECT_EQ(place, ScreenRectOf(second));
    second.DestroyWindow();
    SampleDialog another;
    ASSERT_TRUE(another.Open(Frame(), L"Another"));
    EXPECT_NE(place, ScreenRectOf(another));
    another.DestroyWindow();
}

TEST_F(AcUiDialog, ADamagedPlaceIsAsGoodAsNone)
{
    SampleDialog plain;
    ASSERT_TRUE(plain.Open(Frame(), L""));
    const CRect place = ScreenRectOf(plain);
    plain.DestroyWindow();
    for (const wchar_t* text : {L"", L"1,2,3", L"a,b,c,d", L"9,9,9,9", L"90000,90000,90100,90100"})
    {
        AfxGetApp()->WriteProfileString(L"Dialogs", L"Damaged", text);
        SampleDialog dialog;
        ASSERT_TRUE(dialog.Open(Frame(), L"Damaged"));
        EXPECT_EQ(place, ScreenRectOf(dialog)) << text;
        dialog.DestroyWindow();
    }
}
