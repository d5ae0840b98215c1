// CFileDialog: the system's dialog for opening or saving a file.
//
// The filter is written "name|pattern|name|pattern||". Results are valid after DoModal returned IDOK.
#pragma once

#include "afx/dialog/CommonDialog.h"

#include <commdlg.h>
#include <vector>

class AFX_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    explicit CFileDialog(BOOL openFileDialog, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr,
                         CWnd* parent = nullptr);

    // For settings beyond the constructor's; the buffers it points to belong to this object.
    OPENFILENAME m_ofn;
    OPENFILENAME& GetOFN() { return m_ofn; }

    // IDOK, or IDCANCEL for a cancelled dialog and for an error.
    INT_PTR DoModal() override;

    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;    // without the dot
    CString GetFileTitle() const;  // file name without extension
    CString GetFolderPath() const; // without trailing separator
    BOOL GetReadOnlyPref() const;

    // The chosen files, one or (with OFN_ALLOWMULTISELECT) several.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& position) const;

private:
    const BOOL m_open;
    CString m_defaultExtension;
    std::vector<TCHAR> m_filter;
    std::vector<TCHAR> m_fileName;
};
