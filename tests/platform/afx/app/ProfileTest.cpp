// The profile of the program, in an ini file and in the registry.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
const wchar_t Company[] = L"Framework Test Company";

// Both ways of storing give the same answers.
class Profile : public ::testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        m_app = AfxGetApp();
        m_previousName = m_app->m_pszProfileName;
        m_previousKey = m_app->m_pszRegistryKey;
        if (GetParam())
            m_app->SetRegistryKey(Company);
        else
        {
            wchar_t folder[MAX_PATH] = {};
            ::GetTempPath(MAX_PATH, folder);
            m_file = CString(folder) + L"framework_profile_test.ini";
            ::DeleteFile(m_file);
            m_app->m_pszRegistryKey = nullptr;
            m_app->m_pszProfileName = m_file;
        }
    }
    void TearDown() override
    {
        if (GetParam())
            ::RegDeleteTree(HKEY_CURRENT_USER, CString(L"Software\\") + Company);
        else
            ::DeleteFile(m_file);
        m_app->m_pszProfileName = m_previousName;
        m_app->m_pszRegistryKey = m_previousKey;
    }

    CWinApp* m_app = nullptr;
    LPCTSTR m_previousName = nullptr;
    LPCTSTR m_previousKey = nullptr;
    CString m_file;
};
} // namespace

TEST_P(Profile, NumbersComeBack)
{
    EXPECT_EQ(7u, m_app->GetProfileInt(L"Section", L"Count", 7));
    EXPECT_TRUE(m_app->WriteProfileInt(L"Section", L"Count", 42));
    EXPECT_EQ(42u, m_app->GetProfileInt(L"Section", L"Count", 7));
    EXPECT_TRUE(m_app->WriteProfileInt(L"Section", L"Count", -3));
    EXPECT_EQ(-3, static_cast<int>(m_app->GetProfileInt(L"Section", L"Count", 7)));
}

TEST_P(Profile, TextsComeBack)
{
    EXPECT_STREQ(L"default", m_app->GetProfileString(L"Section", L"Name", L"default"));
    EXPECT_STREQ(L"", m_app->GetProfileString(L"Section", L"Name"));
    const CString text(L'x', 600);
    EXPECT_TRUE(m_app->WriteProfileString(L"Section", L"Name", text));
    EXPECT_STREQ(text, m_app->GetProfileString(L"Section", L"Name", L"default"));
}

TEST_P(Profile, SectionsAreApart)
{
    m_app->WriteProfileInt(L"One", L"Count", 1);
    m_app->WriteProfileInt(L"Two", L"Count", 2);
    EXPECT_EQ(1u, m_app->GetProfileInt(L"One", L"Count", 0));
    EXPECT_EQ(2u, m_app->GetProfileInt(L"Two", L"Count", 0));
}

TEST_P(Profile, NullRemovesAnEntryOrTheSection)
{
    m_app->WriteProfileString(L"Section", L"A", L"1");
    m_app->WriteProfileString(L"Section", L"B", L"2");
    EXPECT_TRUE(m_app->WriteProfileString(L"Section", L"A", nullptr));
    EXPECT_STREQ(L"gone", m_app->GetProfileString(L"Section", L"A", L"gone"));
    EXPECT_STREQ(L"2", m_app->GetProfileString(L"Section", L"B", L"gone"));
    EXPECT_TRUE(m_app->WriteProfileString(L"Section", nullptr, nullptr));
    EXPECT_STREQ(L"gone", m_app->GetProfileString(L"Section", L"B", L"gone"));
}

TEST_P(Profile, BytesComeBack)
{
    BYTE written[] = {0, 1, 0x7F, 0x80, 0xFF};
    LPBYTE read = nullptr;
    UINT count = 0;
    EXPECT_FALSE(m_app->GetProfileBinary(L"Section", L"Data", &read, &count));
    EXPECT_EQ(nullptr, read);
    EXPECT_TRUE(m_app->WriteProfileBinary(L"Section", L"Data", written, sizeof(written)));
    ASSERT_TRUE(m_app->GetProfileBinary(L"Section", L"Data", &read, &count));
    EXPECT_EQ(sizeof(written), count);
    EXPECT_EQ(0, memcmp(written, read, sizeof(written)));
    delete[] read;
}

INSTANTIATE_TEST_SUITE_P(Stores, Profile, ::testing::Bool(), [](const ::testing::TestParamInfo<bool>& info) {
    return info.param ? "Registry" : "IniFile";
});
