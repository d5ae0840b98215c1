// The suite's folders: registry first, then the program's own.
#include <ZNKTPub.h>

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace
{
const wchar_t kSuiteKey[] = L"Software\\Tevrin\\Wayfarer";
const wchar_t kValue[] = L"InstallPath";

class InstallPath : public testing::Test
{
protected:
    ~InstallPath() override { ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kSuiteKey, kValue); }

    void Register(const CString& path)
    {
        const DWORD bytes = (path.GetLength() + 1) * sizeof(wchar_t);
        ASSERT_EQ(ERROR_SUCCESS,
                  ::RegSetKeyValueW(HKEY_CURRENT_USER, kSuiteKey, kValue, REG_SZ, static_cast<LPCWSTR>(path), bytes));
    }

    static CString ProgramFolder()
    {
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        const CString program(path);
        return program.Left(program.ReverseFind(L'\\'));
    }

    TemporaryFolder m_folder;
};

bool IsFolder(const CString& path)
{
    const DWORD attributes = ::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}
} // namespace

TEST_F(InstallPath, IsTheProgramsFolderWithoutRegistration)
{
    EXPECT_STREQ(ProgramFolder(), ZNKTPub::GetInstallPath());
}

TEST_F(InstallPath, IsTheRegisteredFolder)
{
    Register(m_folder.Path());
    EXPECT_STREQ(m_folder.Path(), ZNKTPub::GetInstallPath());
}

TEST_F(InstallPath, LosesTheSeparatorAtItsEnd)
{
    Register(m_folder.Path() + L"\\");
    EXPECT_STREQ(m_folder.Path(), ZNKTPub::GetInstallPath());
}

TEST_F(InstallPath, IgnoresARegisteredFolderThatIsMissing)
{
    Register(m_folder.File(L"missing"));
    EXPECT_STREQ(ProgramFolder(), ZNKTPub::GetInstallPath());
    Register(L"");
    EXPECT_STREQ(ProgramFolder(), ZNKTPub::GetInstallPath());
}

TEST(UserPath, IsMadeOnDemandWithoutASeparatorAtItsEnd)
{
    const CString path = ZNKTPub::GetCurUserWayfarerPath();
    ASSERT_FALSE(path.IsEmpty());
    EXPECT_TRUE(IsFolder(path));
    EXPECT_NE(L'\\', path[path.GetLength() - 1]);

    // Only an empty folder can be removed: settings that are in use stay.
    if (::RemoveDirectoryW(path))
    {
        EXPECT_STREQ(path, ZNKTPub::GetCurUserWayfarerPath());
        EXPECT_TRUE(IsFolder(path));
    }
}
