// Exceptions and the macros around them.
#include <afx.h>

#include <gtest/gtest.h>

namespace
{
class CCountedException : public CException
{
public:
    CCountedException() { ++alive; }
    virtual ~CCountedException() { --alive; }

    static int alive;
};

int CCountedException::alive = 0;

int CatchByMacro(void (*action)())
{
    int caught = 0;
    TRY
    {
        action();
    }
    CATCH(CUserException, e)
    {
        caught = 1;
    }
    AND_CATCH(CFileException, e)
    {
        caught = e->m_cause == CFileException::diskFull ? 2 : -1;
    }
    AND_CATCH_ALL(e)
    {
        caught = 3;
    }
    END_CATCH_ALL
    return caught;
}

void ThrowDiskFull()
{
    AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, L"a.txt");
}

void ThrowCounted()
{
    throw new CCountedException;
}

void ThrowOn()
{
    TRY
    {
        ThrowCounted();
    }
    CATCH(CCountedException, e)
    {
        THROW_LAST();
    }
    END_CATCH
}

void DoNothing() {}
} // namespace

TEST(Exceptions, AreThrownAsPointersOfTheirClass)
{
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
    EXPECT_THROW(AfxThrowMemoryException(), CMemoryException*);
    EXPECT_THROW(AfxThrowNotSupportedException(), CNotSupportedException*);
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
    EXPECT_THROW(AfxThrowInvalidArgException(), CInvalidArgException*);
    EXPECT_THROW(AfxThrowInvalidArgException(), CSimpleException*);
    EXPECT_THROW(AfxThrowInvalidArgException(), CException*);
}

TEST(Exceptions, SharedOnesSurviveDelete)
{
    for (int i = 0; i < 3; ++i)
    {
        try
        {
            AfxThrowUserException();
        }
        catch (CException* e)
        {
            EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CUserException)));
            e->Delete();
        }
    }
}

TEST(Exceptions, MacrosChooseByClassAndDelete)
{
    EXPECT_EQ(0, CatchByMacro(&DoNothing));
    EXPECT_EQ(1, CatchByMacro(&AfxThrowUserException));
    EXPECT_EQ(2, CatchByMacro(&ThrowDiskFull));
    EXPECT_EQ(3, CatchByMacro(&ThrowCounted));
    EXPECT_EQ(0, CCountedException::alive);
}

TEST(Exceptions, ThrowLastPassesTheSameObjectOn)
{
    EXPECT_EQ(3, CatchByMacro(&ThrowOn));
    EXPECT_EQ(0, CCountedException::alive);
}

TEST(Exceptions, MessagesFitTheBuffer)
{
    CInvalidArgException exception;
    wchar_t whole[256];
    EXPECT_TRUE(exception.GetErrorMessage(whole, _countof(whole)));
    EXPECT_GT(wcslen(whole), 3u);
    wchar_t cut[4] = {L'#', L'#', L'#', L'#'};
    EXPECT_TRUE(exception.GetErrorMessage(cut, 3));
    EXPECT_EQ(2u, wcslen(cut));
    EXPECT_EQ(0, wcsncmp(whole, cut, 2));
    EXPECT_EQ(L'#', cut[3]);
}

TEST(Exceptions, WithoutASentenceTheTextIsEmpty)
{
    CCountedException exception;
    wchar_t text[8] = L"old";
    UINT helpContext = 5;
    EXPECT_FALSE(exception.GetErrorMessage(text, _countof(text), &helpContext));
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(0u, helpContext);
}

TEST(FileException, NamesTheCauseAndTheFile)
{
    EXPECT_EQ(CFileException::fileNotFound, CFileException::OsErrorToException(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(CFileException::accessDenied, CFileException::OsErrorToException(ERROR_ACCESS_DENIED));
    EXPECT_EQ(CFileException::genericException, CFileException::OsErrorToException(ERROR_INVALID_FUNCTION));
    CFileException exception(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"a.txt");
    wchar_t text[256];
    EXPECT_TRUE(exception.GetErrorMessage(text, _countof(text)));
    EXPECT_NE(nullptr, wcsstr(text, L"a.txt"));
}
