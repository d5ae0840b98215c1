#include "afx/core/File.h"

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace
{
const UINT kAccessMask = 0x0003;
const UINT kShareMask = 0x0070;

DWORD AccessOf(UINT openFlags)
{
    switch (openFlags & kAccessMask)
    {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD ShareOf(UINT openFlags)
{
    switch (openFlags & kShareMask)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD DispositionOf(UINT openFlags)
{
    if ((openFlags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (openFlags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

CString FullPath(LPCWSTR fileName)
{
    CString path;
    const DWORD room = ::GetFullPathNameW(fileName, 0, NULL, NULL);
    const DWORD length = ::GetFullPathNameW(fileName, room, path.GetBuffer(static_cast<int>(room)), NULL);
    path.ReleaseBufferSetLength(length < room ? static_cast<int>(length) : 0);
    return path.IsEmpty() ? CString(fileName) : path;
}

void Fill(CFileException* error, LONG osError, LPCWSTR fileName)
{
    if (error == NULL)
        return;
    error->m_lOsError = osError;
    error->m_cause = CFileException::OsErrorToException(osError);
    error->m_strFileName = fileName;
}

CTime TimeOf(const FILETIME& time)
{
    const bool none = time.dwLowDateTime == 0 && time.dwHighDateTime == 0;
    return none ? CTime() : CTime(time);
}
} // namespace

CFile::CFile() : m_hFile(hFileNull), m_bCloseOnDelete(FALSE) {}

CFile::CFile(HANDLE file) : m_hFile(file), m_bCloseOnDelete(FALSE) {}

CFile::CFile(LPCWSTR fileName, UINT openFlags) : m_hFile(hFileNull), m_bCloseOnDelete(FALSE)
{
    CFileException error;
    if (!CFile::Open(fileName, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    if (m_bCloseOnDelete && m_hFile != hFileNull)
        CFile::Abort();
}

BOOL CFile::Open(LPCWSTR fileName, UINT openFlags, CFileException* error)
{
    m_strFileName = FullPath(fileName);
    SECURITY_ATTRIBUTES security = {sizeof(security), NULL, (openFlags & modeNoInherit) == 0};
    m_hFile = ::CreateFileW(fileName, AccessOf(openFlags), ShareOf(openFlags), &security, DispositionOf(openFlags),
                            FILE_ATTRIBUTE_NORMAL, NULL);
    m_bCloseOnDelete = m_hFile != hFileNull;
    if (!m_bCloseOnDelete)
        Fill(error, static_cast<LONG>(::GetLastError()), m_strFileName);
    return m_bCloseOnDelete;
}

void CFile::Close()
{
    const HANDLE file = m_hFile;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    if (file != hFileNull && !::CloseHandle(file))
        ThrowLastError();
    m_strFileName.Empty();
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

UINT CFile::Read(void* buffer, UINT count)
{
    DWORD done = 0;
    if (count > 0 && !::ReadFile(m_hFile, buffer, count, &done, NULL))
        ThrowLastError();
    return done;
}

void CFile::Write(const void* buffer, UINT count)
{
    DWORD done = 0;
    if (count > 0 && !::WriteFile(m_hFile, buffer, count, &done, NULL))
        ThrowLastError();
    if (done != count)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

void CFile::Flush()
{
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        ThrowLastError();
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from)
{
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = offset;
    if (!::SetFilePointerEx(m_hFile, distance, &position, from))
        ThrowLastError();
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    const LARGE_INTEGER none = {};
    LARGE_INTEGER position;
    if (!::SetFilePointerEx(m_hFile, none, &position, FILE_CURRENT))
        ThrowLastError();
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowLastError();
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG newLength)
{
    Seek(static_cast<LONGLONG>(newLength), begin);
    if (!::SetEndOfFile(m_hFile))
        ThrowLastError();
}

CString CFile::GetFileName() const
{
    return m_strFileName.Mid(m_strFileName.ReverseFind(L'\\') + 1);
}

CString CFile::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

void AFXAPI CFile::Rename(LPCWSTR oldName, LPCWSTR newName)
{
    if (!::MoveFileW(oldName, newName))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), oldName);
}

void AFXAPI CFile::Remove(LPCWSTR fileName)
{
    if (!::DeleteFileW(fileName))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), fileName);
}

BOOL AFXAPI CFile::GetStatus(LPCWSTR fileName, CFileStatus& status)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(fileName, GetFileExInfoStandard, &data))
        return FALSE;
    lstrcpynW(status.m_szFullName, FullPath(fileName), MAX_PATH);
    status.m_ctime = TimeOf(data.ftCreationTime);
    status.m_mtime = TimeOf(data.ftLastWriteTime);
    status.m_atime = TimeOf(data.ftLastAccessTime);
    status.m_size = ULARGE_INTEGER{{data.nFileSizeLow, data.nFileSizeHigh}}.QuadPart;
    status.m_attribute = static_cast<BYTE>(data.dwFileAttributes & ~FILE_ATTRIBUTE_NORMAL);
    return TRUE;
}

void CFile::ThrowLastError() const
{
    const LONG osError = static_cast<LONG>(::GetLastError());
    AfxThrowFileException(CFileException::OsErrorToException(osError), osError, m_strFileName);
}
