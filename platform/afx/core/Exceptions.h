// Exceptions of the framework. They are thrown as pointers and deleted by who catches them:
//
//   try { ... } catch (CException* e) { e->ReportError(); e->Delete(); }
//
// or with the macros TRY, CATCH, AND_CATCH, END_CATCH, which delete by themselves. The AfxThrow functions of the common
// classes throw shared objects that Delete() leaves alone, so that running out of memory can be reported without
// memory. (Operator new itself throws std::bad_alloc.)
#pragma once

#include "afx/core/Object.h"
#include "afx/core/String.h"

class AFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    CException();
    explicit CException(BOOL autoDelete);
    virtual ~CException();

    // Ends the exception: deletes the object unless it is a shared one.
    void Delete();

    // A sentence for the user: at most maxCount - 1 characters, always terminated. FALSE when there is none.
    virtual BOOL GetErrorMessage(LPWSTR text, UINT maxCount, PUINT helpContext = NULL);
    // Shows the sentence, or the string resource when there is none. Result: the message box's.
    virtual int ReportError(UINT type = MB_OK, UINT errorId = 0);

protected:
    BOOL m_bAutoDelete;
};

// An exception whose sentence is a string resource or a fixed text.
class AFX_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException();
    explicit CSimpleException(BOOL autoDelete);
    CSimpleException(BOOL autoDelete, UINT resourceId);

    virtual BOOL GetErrorMessage(LPWSTR text, UINT maxCount, PUINT helpContext = NULL);

protected:
    // Sentence when no resource is named or found.
    virtual LPCWSTR FallbackMessage() const;

    UINT m_nResourceID;
};

class AFX_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    CMemoryException();
    explicit CMemoryException(BOOL autoDelete, UINT resourceId = 0);

protected:
    virtual LPCWSTR FallbackMessage() const;
};

class AFX_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL autoDelete, UINT resourceId = 0);

protected:
    virtual LPCWSTR FallbackMessage() const;
};

// A window, a menu, a resource can't be had.
class AFX_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    CResourceException();
    explicit CResourceException(BOOL autoDelete, UINT resourceId = 0);

protected:
    virtual LPCWSTR FallbackMessage() const;
};

// Ends a user's operation; the user has been told already.
class AFX_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    CUserException();
    explicit CUserException(BOOL autoDelete, UINT resourceId = 0);

protected:
    virtual LPCWSTR FallbackMessage() const;
};

class AFX_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL autoDelete, UINT resourceId = 0);

protected:
    virtual LPCWSTR FallbackMessage() const;
};

class AFX_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG osError = -1, LPCWSTR fileName = NULL);

    virtual BOOL GetErrorMessage(LPWSTR text, UINT maxCount, PUINT helpContext = NULL);

    // The cause that an error code of the system stands for.
    static int AFXAPI OsErrorToException(LONG osError);
    static void AFXAPI ThrowOsError(LONG osError, LPCWSTR fileName = NULL);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

typedef CException* PEXCEPTION;

AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowMemoryException();
AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowNotSupportedException();
AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowResourceException();
AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowUserException();
AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowInvalidArgException();
AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowFileException(int cause, LONG osError = -1, LPCWSTR fileName = NULL);

namespace afx
{
// Deletes the caught exception at the end of a CATCH block, unless the block throws it on.
class AFX_API CaughtException
{
public:
    explicit CaughtException(CException* exception) : m_exception(exception) {}
    ~CaughtException();
    void Keep() { m_exception = NULL; }

private:
    CaughtException(const CaughtException&);
    void operator=(const CaughtException&);

    CException* m_exception;
};
} // namespace afx

#define TRY                                                                                                            \
    {                                                                                                                  \
        try                                                                                                            \
        {
#define CATCH(class_name, e)                                                                                           \
    }                                                                                                                  \
    catch (class_name * e)                                                                                             \
    {                                                                                                                  \
        ::afx::CaughtException _afxCaught(e);
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH                                                                                                      \
    }                                                                                                                  \
    }
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                                        \
    }                                                                                                                  \
    catch (CException * e)                                                                                             \
    {                                                                                                                  \
        e->Delete();                                                                                                   \
    }                                                                                                                  \
    }
#define THROW(e) throw(e)
#define THROW_LAST()                                                                                                   \
    {                                                                                                                  \
        _afxCaught.Keep();                                                                                             \
        throw;                                                                                                         \
    }
