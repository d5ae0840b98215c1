#include "afx/core/File.h"

#include "afx/core/StringNarrow.h"

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <string>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace
{
// The stream mode that goes with a file that is open already.
LPCWSTR ModeOf(UINT openFlags)
{
    const bool binary = (openFlags & CFile::typeBinary) != 0;
    if ((openFlags & CFile::modeReadWrite) != 0)
        return binary ? L"r+b" : L"r+t";
    if ((openFlags & CFile::modeWrite) != 0)
        return binary ? L"wb" : L"wt";
    return binary ? L"rb" : L"rt";
}
} // namespace

CStdioFile::CStdioFile() : m_pStream(NULL) {}

CStdioFile::CStdioFile(FILE* stream) : m_pStream(stream)
{
    m_bCloseOnDelete = TRUE;
}

CStdioFile::CStdioFile(LPCWSTR fileName, UINT openFlags) : m_pStream(NULL)
{
    CFileException error;
    if (!CStdioFile::Open(fileName, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    if (m_pStream != NULL && m_bCloseOnDelete)
        CStdioFile::Abort();
}

BOOL CStdioFile::Open(LPCWSTR fileName, UINT openFlags, CFileException* error)
{
    m_pStream = NULL;
    if (!CFile::Open(fileName, openFlags, error))
        return FALSE;
    const int text = (openFlags & typeBinary) != 0 ? 0 : _O_TEXT;
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), text);
    m_pStream = descriptor == -1 ? NULL : _wfdopen(descriptor, ModeOf(openFlags));
    if (m_pStream != NULL)
        return TRUE;
    if (error != NULL)
        error->m_cause = CFileException::tooManyOpenFiles;
    CFile::Abort();
    return FALSE;
}

void CStdioFile::Close()
{
    FILE* stream = m_pStream;
    const CString name = m_strFileName;
    m_pStream = NULL;
    m_hFile = hFileNull; // closed with the stream
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (stream != NULL && fclose(stream) != 0)
        AfxThrowFileException(CFileException::diskFull, -1, name);
}

void CStdioFile::Abort()
{
    if (m_pStream != NULL)
        fclose(m_pStream);
    m_pStream = NULL;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

BOOL CStdioFile::ReadString(CString& line)
{
    std::string bytes;
    int ch = fgetc(m_pStream);
    if (ch == EOF && ferror(m_pStream))
        AfxThrowFileException(CFileException::genericException, -1, m_strFileName);
    const bool atEnd = ch == EOF;
    for (; ch != EOF && ch != '\n'; ch = fgetc(m_pStream))
        bytes += static_cast<char>(ch);
    line = CString(bytes.c_str(), static_cast<int>(bytes.size()));
    return !atEnd;
}

void CStdioFile::WriteString(LPCWSTR text)
{
    const CStringA narrow(text);
    Write(narrow.GetString(), static_cast<UINT>(narrow.GetLength()));
}

UINT CStdioFile::Read(void* buffer, UINT count)
{
    const size_t done = fread(buffer, 1, count, m_pStream);
    if (done < count && ferror(m_pStream))
        AfxThrowFileException(CFileException::genericException, -1, m_strFileName);
    return static_cast<UINT>(done);
}

void CStdioFile::Write(const void* buffer, UINT count)
{
    if (fwrite(buffer, 1, count, m_pStream) != count)
        AfxThrowFileException(CFileException::genericException, -1, m_strFileName);
}

void CStdioFile::Flush()
{
    if (m_pStream != NULL && fflush(m_pStream) != 0)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CStdioFile::Seek(LONGLONG offset, UINT from)
{
    if (_fseeki64(m_pStream, offset, static_cast<int>(from)) != 0)
        AfxThrowFileException(CFileException::badSeek, -1, m_strFileName);
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const
{
    const LONGLONG position = _ftelli64(m_pStream);
    if (position < 0)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const
{
    const LONGLONG position = _ftelli64(m_pStream);
    _fseeki64(m_pStream, 0, SEEK_END);
    const ULONGLONG length = GetPosition();
    _fseeki64(m_pStream, position, SEEK_SET);
    return length;
}

void CStdioFile::SetLength(ULONGLONG newLength)
{
    Flush();
    if (_chsize_s(_fileno(m_pStream), static_cast<LONGLONG>(newLength)) != 0)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}
