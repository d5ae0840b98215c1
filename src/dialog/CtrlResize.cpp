#include "dialog/CtrlResize.h"

#include <ZNKTPub.h>

#include "dialog/WindowPlace.h"

namespace
{

const UINT kMapBlockSize = 10;
const UINT kMapTableSize = 17;

const wchar_t kFileName[] = L"\\WindowPos.ini";
const wchar_t kLeftKey[] = L"TopLX";
const wchar_t kTopKey[] = L"TopLY";
const wchar_t kWidthKey[] = L"Width";
const wchar_t kHeightKey[] = L"Height";
const int kNotStored = -1;

CString PathOfFile()
{
    return ZNKTPub::GetCurUserWayfarerPath() + kFileName;
}

// The system writes a new file in the machine's code page, where a Chinese section name may have no letters. A file
// that begins with the mark of UTF-16 stays in it. An existing file keeps its encoding.
void MakeFile(const CString& path)
{
    const HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, NULL, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, NULL);
    if (file == INVALID_HANDLE_VALUE)
        return;
    const wchar_t mark = 0xFEFF;
    DWORD written = 0;
    ::WriteFile(file, &mark, sizeof(mark), &written, NULL);
    ::CloseHandle(file);
}

void WriteNumber(const wchar_t* section, const wchar_t* key, int value, const CString& path)
{
    CString text;
    text.Format(L"%d", value);
    ::WritePrivateProfileStringW(section, key, text, path);
}

int ReadNumber(const wchar_t* section, const wchar_t* key, const CString& path)
{
    return static_cast<int>(::GetPrivateProfileIntW(section, key, kNotStored, path));
}

// Two edges may lie further apart than an int can say.
int Extent(LONG from, LONG to)
{
    return TruncateToInt(static_cast<double>(to) - from);
}

bool IsSection(const wchar_t* section)
{
    return section != NULL && *section != L'\0'; // the profile functions take null for "all sections"
}

} // namespace

CCtrlResize::CCtrlResize() : m_pWnd(NULL), m_rcInitClient(), m_mapCtrlInfo(kMapBlockSize)
{
    m_mapCtrlInfo.InitHashTable(kMapTableSize);
}

CCtrlResize::~CCtrlResize()
{
    m_mapCtrlInfo.RemoveAll();
}

void CCtrlResize::InitDlg(CWnd* pWnd)
{
    m_pWnd = pWnd;
    if (::IsWindow(pWnd->GetSafeHwnd()))
        pWnd->GetClientRect(&m_rcInitClient);
}

void CCtrlResize::AddCtrl(int nID, double dLeftRatio, double dTopRatio, double dWidthRatio, double dHeightRatio)
{
    const HWND dialog = m_pWnd->GetSafeHwnd();
    const HWND control = dialog != NULL ? ::GetDlgItem(dialog, nID) : NULL;
    if (control == NULL)
        return;
    CRect place;
    ::GetWindowRect(control, &place);
    m_pWnd->ScreenToClient(&place);
    CTRLRESIZEINFO info = {nID,
                           FlagOfRatio(dLeftRatio),
                           FlagOfRatio(dTopRatio),
                           FlagOfRatio(dWidthRatio),
                           FlagOfRatio(dHeightRatio),
                           dLeftRatio,
                           dTopRatio,
                           dWidthRatio,
                           dHeightRatio,
                           static_cast<double>(place.left),
                           static_cast<double>(place.top),
                           static_cast<double>(place.Width()),
                           static_cast<double>(place.Height())};
    m_mapCtrlInfo.SetAt(nID, info);
}

void CCtrlResize::ModiCtrl(int nID, int nLeft, int nTop, int nWidth, int nHeight)
{
    CTRLRESIZEINFO info;
    if (!m_mapCtrlInfo.Lookup(nID, info))
        return;
    info.dLeft += nLeft;
    info.dTop += nTop;
    info.dWidth += nWidth;
    info.dHeight += nHeight;
    m_mapCtrlInfo.SetAt(nID, info);
}

void CCtrlResize::ResizeAllCtrl(int cx, int cy)
{
    const HWND dialog = m_pWnd->GetSafeHwnd();
    if (dialog == NULL || m_mapCtrlInfo.IsEmpty())
        return;
    const int dx = cx - (m_rcInitClient.right - m_rcInitClient.left);
    const int dy = cy - (m_rcInitClient.bottom - m_rcInitClient.top);
    // Collected first: a control that is moved may register others, or end the dialog and this object with it.
    CArray<CTRLRESIZEINFO, CTRLRESIZEINFO&> controls;
    controls.SetSize(0, m_mapCtrlInfo.GetCount());
    for (POSITION position = m_mapCtrlInfo.GetStartPosition(); position != NULL;)
    {
        int id = 0;
        CTRLRESIZEINFO info;
        m_mapCtrlInfo.GetNextAssoc(position, id, info);
        controls.Add(info);
    }
    for (INT_PTR i = 0; i < controls.GetCount(); ++i)
    {
        const HWND control = ::GetDlgItem(dialog, controls[i].nCtrlID);
        if (control == NULL)
            continue;
        const CRect place = PlaceOfControl(controls[i], dx, dy);
        ::MoveWindow(control, place.left, place.top, Extent(place.left, place.right), Extent(place.top, place.bottom),
                     TRUE);
    }
}

void CCtrlResize::SaveWinPos(const wchar_t* pszSection, HWND hWnd, int bSaveSize)
{
    CRect place;
    if (!IsSection(pszSection) || !::GetWindowRect(hWnd, &place))
        return;
    const CString path = PathOfFile();
    MakeFile(path);
    WriteNumber(pszSection, kLeftKey, place.left, path);
    WriteNumber(pszSection, kTopKey, place.top, path);
    if (bSaveSize == 0)
        return;
    WriteNumber(pszSection, kWidthKey, place.Width(), path);
    WriteNumber(pszSection, kHeightKey, place.Height(), path);
}

void CCtrlResize::RestoreWinPos(const wchar_t* pszSection, HWND hWnd, int bRestoreSize)
{
    if (!IsSection(pszSection) || !::IsWindow(hWnd))
        return;
    const CString path = PathOfFile();
    const CPoint place(ReadNumber(pszSection, kLeftKey, path), ReadNumber(pszSection, kTopKey, path));
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    if (!IsPlaceOnScreen(place, screen))
        return;
    if (bRestoreSize == 0)
    {
        ::SetWindowPos(hWnd, NULL, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        return;
    }
    const CSize stored(ReadNumber(pszSection, kWidthKey, path), ReadNumber(pszSection, kHeightKey, path));
    const CSize size = SizeOnScreen(stored, screen);
    ::SetWindowPos(hWnd, NULL, place.x, place.y, size.cx, size.cy, SWP_NOZORDER);
}
