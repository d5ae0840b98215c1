// String resources and the modules they come from.
#include <afx.h>

#include <gtest/gtest.h>

namespace
{
const UINT kFirstId = 16;
const UINT kGapId = 17;
const UINT kFormatId = 18;
const UINT kLastId = 31;

// Puts the current module back.
class ResourceModule
{
public:
    explicit ResourceModule(HINSTANCE module) : m_previous(AfxGetResourceHandle()) { AfxSetResourceHandle(module); }
    ~ResourceModule() { AfxSetResourceHandle(m_previous); }

private:
    HINSTANCE m_previous;
};
} // namespace

TEST(Resources, StringsAreFoundByTheirId)
{
    CString text;
    EXPECT_TRUE(text.LoadString(kFirstId));
    EXPECT_STREQ(L"first of its block", text);
    EXPECT_TRUE(text.LoadString(kLastId));
    EXPECT_STREQ(L"last of its block", text);
}

TEST(Resources, AMissingStringLeavesTheText)
{
    CString text(L"kept");
    EXPECT_FALSE(text.LoadString(kGapId));
    EXPECT_FALSE(text.LoadString(60000));
    EXPECT_STREQ(L"kept", text);
}

TEST(Resources, AStringIsMadeFromAnId)
{
    EXPECT_STREQ(L"first of its block", CString(MAKEINTRESOURCEW(kFirstId)));
    EXPECT_STREQ(L"", CString(MAKEINTRESOURCEW(kGapId)));
}

TEST(Resources, AFormatMayBeAResource)
{
    CString text;
    text.Format(kFormatId, CString(L"墙"), 3);
    EXPECT_STREQ(L"图层 墙 有 3 个", text);
    EXPECT_THROW(text.Format(kGapId), CInvalidArgException*);
    text = L">";
    text.AppendFormat(kFirstId);
    EXPECT_STREQ(L">first of its block", text);
}

TEST(Resources, LoadStringCutsToTheBuffer)
{
    wchar_t text[6];
    EXPECT_EQ(5, AfxLoadString(kFirstId, text, _countof(text)));
    EXPECT_STREQ(L"first", text);
    EXPECT_EQ(0, AfxLoadString(kGapId, text, _countof(text)));
}

TEST(Resources, TheProgramIsTheFirstResourceModule)
{
    EXPECT_EQ(::GetModuleHandleW(NULL), AfxGetResourceHandle());
    EXPECT_EQ(::GetModuleHandleW(NULL), AfxFindStringResourceHandle(kFirstId));
}

TEST(Resources, ExtensionModulesAreAskedAfterTheCurrentOne)
{
    const HINSTANCE program = ::GetModuleHandleW(NULL);
    const HINSTANCE other = ::GetModuleHandleW(L"kernel32.dll");
    const ResourceModule current(other);
    const LPCWSTR block = MAKEINTRESOURCEW(kFirstId / 16 + 1);
    EXPECT_EQ(other, AfxFindResourceHandle(block, RT_STRING)) << "the current one when none has it";
    CString text;
    EXPECT_FALSE(text.LoadString(kFirstId));
    afx::AddExtensionModule(program);
    afx::AddExtensionModule(program);
    EXPECT_EQ(program, AfxFindResourceHandle(block, RT_STRING));
    EXPECT_TRUE(text.LoadString(kFirstId));
    afx::RemoveExtensionModule(program);
    EXPECT_EQ(other, AfxFindResourceHandle(block, RT_STRING));
}
