#include "afx/core/Exceptions.h"

#include "afx/app/WinApp.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)

namespace
{
const UINT kReportMax = 512;

// Copies what fits and terminates it.
void CopyMessage(LPCWSTR message, LPWSTR text, UINT maxCount)
{
    if (text != NULL && maxCount > 0)
        lstrcpynW(text, message, static_cast<int>(maxCount));
}

// Shared objects: throwing them takes no memory, and Delete() leaves them.
CMemoryException theMemoryException(FALSE);
CNotSupportedException theNotSupportedException(FALSE);
CResourceException theResourceException(FALSE);
CUserException theUserException(FALSE);
CInvalidArgException theInvalidArgException(FALSE);

struct OsCause
{
    LONG osError;
    int cause;
};

const OsCause kOsCauses[] = {
    {NO_ERROR, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_BAD_PATHNAME, CFileException::badPath},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_INVALID_DRIVE, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_CURRENT_DIRECTORY, CFileException::removeCurrentDir},
    {ERROR_CANNOT_MAKE, CFileException::directoryFull},
    {ERROR_SEEK, CFileException::badSeek},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_LOCK_VIOLATION, CFileException::lockViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
    {ERROR_CRC, CFileException::hardIO},
    {ERROR_NOT_READY, CFileException::hardIO},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
};

// In the order of the causes.
const LPCWSTR kFileMessages[] = {
    L"没有出现错误。",
    L"发生了未知的错误。",
    L"找不到文件 %s。",
    L"%s 包含无效的路径。",
    L"打开的文件过多，无法打开 %s。",
    L"对 %s 的访问被拒绝。",
    L"%s 的文件句柄无效。",
    L"无法删除当前目录 %s。",
    L"目录已满，无法创建 %s。",
    L"在 %s 中定位失败。",
    L"访问 %s 时出现硬件错误。",
    L"%s 正被其它程序使用。",
    L"%s 已被锁定。",
    L"写入 %s 时磁盘已满。",
    L"试图越过 %s 的末尾读取。",
};
} // namespace

CException::CException() : m_bAutoDelete(TRUE) {}

CException::CException(BOOL autoDelete) : m_bAutoDelete(autoDelete) {}

CException::~CException() {}

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPWSTR text, UINT maxCount, PUINT helpContext)
{
    if (helpContext != NULL)
        *helpContext = 0;
    CopyMessage(L"", text, maxCount);
    return FALSE;
}

int CException::ReportError(UINT type, UINT errorId)
{
    wchar_t text[kReportMax];
    if (!GetErrorMessage(text, kReportMax))
    {
        CString resource;
        if (errorId == 0 || !resource.LoadString(errorId))
            resource = L"出现意外错误。";
        CopyMessage(resource, text, kReportMax);
    }
    return AfxMessageBox(text, type);
}

CSimpleException::CSimpleException() : m_nResourceID(0) {}

CSimpleException::CSimpleException(BOOL autoDelete) : CException(autoDelete), m_nResourceID(0) {}

CSimpleException::CSimpleException(BOOL autoDelete, UINT resourceId) : CException(autoDelete), m_nResourceID(resourceId)
{
}

BOOL CSimpleException::GetErrorMessage(LPWSTR text, UINT maxCount, PUINT helpContext)
{
    if (helpContext != NULL)
        *helpContext = 0;
    CString message;
    if (m_nResourceID == 0 || !message.LoadString(m_nResourceID))
        message = FallbackMessage();
    CopyMessage(message, text, maxCount);
    return !message.IsEmpty();
}

LPCWSTR CSimpleException::FallbackMessage() const
{
    return L"";
}

CMemoryException::CMemoryException() {}

CMemoryException::CMemoryException(BOOL autoDelete, UINT resourceId) : CSimpleException(autoDelete, resourceId) {}

LPCWSTR CMemoryException::FallbackMessage() const
{
    return L"内存不足。";
}

CNotSupportedException::CNotSupportedException() {}

CNotSupportedException::CNotSupportedException(BOOL autoDelete, UINT resourceId)
    : CSimpleException(autoDelete, resourceId)
{
}

LPCWSTR CNotSupportedException::FallbackMessage() const
{
    return L"尝试了不支持的操作。";
}

CResourceException::CResourceException() {}

CResourceException::CResourceException(BOOL autoDelete, UINT resourceId) : CSimpleException(autoDelete, resourceId) {}

LPCWSTR CResourceException::FallbackMessage() const
{
    return L"所需的资源不可用。";
}

CUserException::CUserException() {}

CUserException::CUserException(BOOL autoDelete, UINT resourceId) : CSimpleException(autoDelete, resourceId) {}

LPCWSTR CUserException::FallbackMessage() const
{
    return L"操作已取消。";
}

CInvalidArgException::CInvalidArgException() {}

CInvalidArgException::CInvalidArgException(BOOL autoDelete, UINT resourceId) : CSimpleException(autoDelete, resourceId)
{
}

LPCWSTR CInvalidArgException::FallbackMessage() const
{
    return L"遇到不适当的参数。";
}

CFileException::CFileException(int cause, LONG osError, LPCWSTR fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(fileName)
{
}

BOOL CFileException::GetErrorMessage(LPWSTR text, UINT maxCount, PUINT helpContext)
{
    if (helpContext != NULL)
        *helpContext = 0;
    const int count = static_cast<int>(_countof(kFileMessages));
    CString message;
    message.Format(kFileMessages[m_cause >= 0 && m_cause < count ? m_cause : static_cast<int>(genericException)],
                   m_strFileName.IsEmpty() ? L"未命名的文件" : m_strFileName.GetString());
    CopyMessage(message, text, maxCount);
    return TRUE;
}

int AFXAPI CFileException::OsErrorToException(LONG osError)
{
    for (const OsCause& known : kOsCauses)
        if (known.osError == osError)
            return known.cause;
    return genericException;
}

void AFXAPI CFileException::ThrowOsError(LONG osError, LPCWSTR fileName)
{
    if (osError != NO_ERROR)
        AfxThrowFileException(OsErrorToException(osError), osError, fileName);
}

void AFXAPI AfxThrowMemoryException()
{
    throw &theMemoryException;
}

void AFXAPI AfxThrowNotSupportedException()
{
    throw &theNotSupportedException;
}

void AFXAPI AfxThrowResourceException()
{
    throw &theResourceException;
}

void AFXAPI AfxThrowUserException()
{
    throw &theUserException;
}

void AFXAPI AfxThrowInvalidArgException()
{
    throw &theInvalidArgException;
}

void AFXAPI AfxThrowFileException(int cause, LONG osError, LPCWSTR fileName)
{
    throw new CFileException(cause, osError, fileName);
}

namespace afx
{
CaughtException::~CaughtException()
{
    if (m_exception != NULL)
        m_exception->Delete();
}
} // namespace afx
