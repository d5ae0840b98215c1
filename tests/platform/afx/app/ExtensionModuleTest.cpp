// The chain of modules in which resources are searched, and what a module leaves behind when it goes.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
// A module with resources that the test program doesn't have: the common controls.
class Modules : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_module = ::GetModuleHandle(L"comctl32.dll");
        ASSERT_NE(nullptr, m_module);
        ::EnumResourceNames(
            m_module, RT_BITMAP,
            [](HMODULE, LPCTSTR, LPTSTR name, LONG_PTR self) -> BOOL {
                reinterpret_cast<Modules*>(self)->m_bitmap = name;
                return !IS_INTRESOURCE(name);
            },
            LONG_PTR(this));
        ASSERT_NE(nullptr, m_bitmap);
        ASSERT_TRUE(AfxInitExtensionModule(m_state, m_module));
    }
    void TearDown() override { AfxTermExtensionModule(m_state); }

    HINSTANCE Found() const { return AfxFindResourceHandle(m_bitmap, RT_BITMAP); }

    AFX_EXTENSION_MODULE m_state = {FALSE, nullptr, nullptr};
    HINSTANCE m_module = nullptr;
    LPCTSTR m_bitmap = nullptr;
};
} // namespace

TEST_F(Modules, AResourceIsFoundWhileItsLibraryIsInTheChain)
{
    EXPECT_EQ(AfxGetResourceHandle(), Found());
    CDynLinkLibrary* const library = new CDynLinkLibrary(m_state);
    EXPECT_EQ(m_module, library->m_hResource);
    EXPECT_EQ(m_module, Found());
    AfxTermExtensionModule(m_state); // deletes the library object
    EXPECT_EQ(AfxGetResourceHandle(), Found());
}

TEST_F(Modules, TheCurrentModuleComesFirst)
{
    new CDynLinkLibrary(m_state);
    const HINSTANCE other = ::GetModuleHandle(L"user32.dll");
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(m_module);
    EXPECT_EQ(m_module, Found());
    AfxSetResourceHandle(other);
    EXPECT_EQ(other, AfxFindResourceHandle(L"no such resource", RT_BITMAP));
    AfxSetResourceHandle(before);
}

TEST_F(Modules, TheWindowClassesOfAModuleEndWithIt)
{
    WNDCLASS windowClass = {};
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = m_module;
    windowClass.lpszClassName = L"class of an extension module";
    ASSERT_TRUE(AfxRegisterClass(&windowClass));
    AfxTermExtensionModule(m_state);
    WNDCLASS existing = {};
    EXPECT_FALSE(::GetClassInfo(m_module, windowClass.lpszClassName, &existing));
}

TEST(SubStrings, PartsAreCountedFromZero)
{
    CString part;
    EXPECT_TRUE(AfxExtractSubString(part, L"one\ntwo\n\nfour", 0));
    EXPECT_STREQ(L"one", part);
    EXPECT_TRUE(AfxExtractSubString(part, L"one\ntwo\n\nfour", 2));
    EXPECT_STREQ(L"", part);
    EXPECT_TRUE(AfxExtractSubString(part, L"one\ntwo\n\nfour", 3));
    EXPECT_STREQ(L"four", part);
    EXPECT_FALSE(AfxExtractSubString(part, L"one", 1));
    EXPECT_TRUE(AfxExtractSubString(part, L"a|b", 1, L'|'));
    EXPECT_STREQ(L"b", part);
}

TEST(Program, NamesComeFromTheProgram)
{
    EXPECT_STREQ(L"Tests", AfxGetAppName());
    EXPECT_STREQ(L"Tests", AfxGetApp()->m_pszAppName);
    EXPECT_EQ(::GetModuleHandle(nullptr), AfxGetInstanceHandle());
    EXPECT_NE(nullptr, AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
}

TEST(Program, TheHourglassLastsUntilTheOutermostEnd)
{
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const HCURSOR hourglass = ::LoadCursor(nullptr, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        EXPECT_EQ(hourglass, ::GetCursor());
        {
            CWaitCursor inner;
            ::SetCursor(arrow); // what a message box does
            inner.Restore();
            EXPECT_EQ(hourglass, ::GetCursor());
        }
        EXPECT_EQ(hourglass, ::GetCursor());
    }
    EXPECT_EQ(arrow, ::GetCursor());
}
