// CFile: an unbuffered file of bytes. CStdioFile: a text file, buffered, line by line. CFileFind: walks a folder.
// Failures throw CFileException, which names the file.
// CStdioFile reads and writes the ANSI code page, as the runtime's text mode does.
#pragma once

#include "afx/core/Exceptions.h"
#include "afx/core/Time.h"

#include <stdio.h>

// What is known of a file without reading it. Times of a file that has none are 0.
struct CFileStatus
{
    CTime m_ctime; // created
    CTime m_mtime; // changed
    CTime m_atime; // read
    ULONGLONG m_size;
    BYTE m_attribute; // CFile::Attribute
    WCHAR m_szFullName[MAX_PATH];
};

class AFX_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000
    };

    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        directory = 0x10,
        archive = 0x20
    };

    enum SeekPosition
    {
        begin,
        current,
        end
    };

    static const HANDLE hFileNull; // no file

    CFile();
    // The handle is closed by Close(), not by the destructor.
    explicit CFile(HANDLE file);
    // Throws when the file can't be opened.
    CFile(LPCWSTR fileName, UINT openFlags);
    virtual ~CFile();

    // FALSE on failure, whose cause is put into *error when given.
    virtual BOOL Open(LPCWSTR fileName, UINT openFlags, CFileException* error = NULL);
    virtual void Close();
    // Closes without a check.
    virtual void Abort();

    // Bytes read: fewer than count only at the end of the file.
    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);
    virtual void Flush();

    // The new position from the start.
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG newLength);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }

    virtual CString GetFilePath() const { return m_strFileName; }
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const; // the name without its extension
    operator HANDLE() const { return m_hFile; }

    static void AFXAPI Rename(LPCWSTR oldName, LPCWSTR newName);
    static void AFXAPI Remove(LPCWSTR fileName);
    static BOOL AFXAPI GetStatus(LPCWSTR fileName, CFileStatus& status);

    HANDLE m_hFile;

protected:
    // Throws the system's last error for this file.
    void ThrowLastError() const;

    CString m_strFileName;
    BOOL m_bCloseOnDelete;
};

class AFX_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    // Takes the stream over.
    explicit CStdioFile(FILE* stream);
    CStdioFile(LPCWSTR fileName, UINT openFlags);
    virtual ~CStdioFile();

    virtual BOOL Open(LPCWSTR fileName, UINT openFlags, CFileException* error = NULL);
    virtual void Close();
    virtual void Abort();

    // The next line without its end; FALSE at the end of the file.
    virtual BOOL ReadString(CString& line);
    // As written: line ends are the text's own "\n".
    virtual void WriteString(LPCWSTR text);

    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);
    virtual void Flush();
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG newLength);

    FILE* m_pStream;
};

// CFileFind find; for (BOOL more = find.FindFile(L"C:\\x\\*.dwg"); more;) { more = find.FindNextFile(); ...
// GetFileName() ... }
class AFX_API CFileFind : public CObject
{
    DECLARE_DYNAMIC(CFileFind)

public:
    CFileFind();
    virtual ~CFileFind();

    // FALSE when nothing matches. The first match is read by the first FindNextFile.
    virtual BOOL FindFile(LPCWSTR pattern = NULL, DWORD unused = 0);
    // Moves to the next match; FALSE when it is the last one.
    virtual BOOL FindNextFile();
    void Close();

    CString GetFileName() const;
    CString GetFilePath() const;
    CString GetFileTitle() const;
    CString GetRoot() const { return m_folder; }
    ULONGLONG GetLength() const;
    BOOL GetLastWriteTime(CTime& time) const;
    BOOL MatchesMask(DWORD attributes) const { return (m_found.dwFileAttributes & attributes) != 0; }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    // "." and "..".
    BOOL IsDots() const;

private:
    HANDLE m_search;
    WIN32_FIND_DATAW m_found;
    WIN32_FIND_DATAW m_next;
    CString m_folder;
};
