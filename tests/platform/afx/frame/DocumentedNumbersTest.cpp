// Numbers that clients and resource scripts use without the names, and what the documented classes are and are not.
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxpriv.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

struct Row
{
    const char* name;
    unsigned number;
    unsigned documented;
};

} // namespace

TEST(DocumentedNumbers, IdentifiersAndMessages)
{
    const Row rows[] = {
        {"ID_EDIT_CLEAR", ID_EDIT_CLEAR, 0xE120},
        {"ID_EDIT_CLEAR_ALL", ID_EDIT_CLEAR_ALL, 0xE121},
        {"ID_EDIT_COPY", ID_EDIT_COPY, 0xE122},
        {"ID_EDIT_CUT", ID_EDIT_CUT, 0xE123},
        {"ID_EDIT_FIND", ID_EDIT_FIND, 0xE124},
        {"ID_EDIT_PASTE", ID_EDIT_PASTE, 0xE125},
        {"ID_EDIT_SELECT_ALL", ID_EDIT_SELECT_ALL, 0xE12A},
        {"ID_EDIT_UNDO", ID_EDIT_UNDO, 0xE12B},
        {"ID_EDIT_REDO", ID_EDIT_REDO, 0xE12C},
        {"ID_APPLY_NOW", ID_APPLY_NOW, 0x3021},
        {"AFX_IDW_DOCKBAR_TOP", AFX_IDW_DOCKBAR_TOP, 0xE81B},
        {"AFX_IDW_DOCKBAR_LEFT", AFX_IDW_DOCKBAR_LEFT, 0xE81C},
        {"AFX_IDW_DOCKBAR_RIGHT", AFX_IDW_DOCKBAR_RIGHT, 0xE81D},
        {"AFX_IDW_DOCKBAR_BOTTOM", AFX_IDW_DOCKBAR_BOTTOM, 0xE81E},
        {"AFX_IDW_DOCKBAR_FLOAT", AFX_IDW_DOCKBAR_FLOAT, 0xE81F},
        {"CBRS_ALIGN_LEFT", CBRS_ALIGN_LEFT, 0x1000},
        {"CBRS_ALIGN_TOP", CBRS_ALIGN_TOP, 0x2000},
        {"CBRS_ALIGN_RIGHT", CBRS_ALIGN_RIGHT, 0x4000},
        {"CBRS_ALIGN_BOTTOM", CBRS_ALIGN_BOTTOM, 0x8000},
        {"CBRS_ALIGN_ANY", CBRS_ALIGN_ANY, 0xF000},
        {"WM_IDLEUPDATECMDUI", WM_IDLEUPDATECMDUI, 0x0363},
        {"WM_REFLECT_BASE", WM_REFLECT_BASE, 0xBC00},
        {"CN_COMMAND", CN_COMMAND, 0},
        {"CN_UPDATE_COMMAND_UI", CN_UPDATE_COMMAND_UI, 0xFFFFFFFF},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(row.documented, row.number) << row.name;
    }
}

TEST(DocumentedClasses, CollectionsAreNotCopied)
{
    typedef CArray<int, int> Numbers;
    typedef CMap<void*, void*, CString, const wchar_t*> Names;
    EXPECT_FALSE(std::is_copy_constructible<Numbers>::value);
    EXPECT_FALSE(std::is_copy_assignable<Numbers>::value);
    EXPECT_FALSE(std::is_copy_constructible<Names>::value);
    EXPECT_FALSE(std::is_copy_assignable<Names>::value);
    Names names;
    names.SetAt(&names, L"itself");
    EXPECT_STREQ(L"itself", names[&names]);
}

TEST(DocumentedClasses, ASheetIsAWindowButNoDialog)
{
    EXPECT_TRUE((std::is_base_of<CWnd, CPropertySheet>::value));
    EXPECT_FALSE((std::is_base_of<CDialog, CPropertySheet>::value));
    EXPECT_TRUE((std::is_base_of<CDialog, CPropertyPage>::value));
    EXPECT_FALSE((std::is_convertible<LPCTSTR, CPropertySheet>::value));
}

TEST(DocumentedClasses, ABarIsAWindow)
{
    EXPECT_TRUE((std::is_base_of<CWnd, CControlBar>::value));
    EXPECT_TRUE((std::is_base_of<CSimpleException, CInvalidArgException>::value));
    EXPECT_TRUE((std::is_base_of<CException, CSimpleException>::value));
}
