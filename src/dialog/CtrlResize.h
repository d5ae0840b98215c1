// CCtrlResize: lays out the controls of a resizable dialog, and remembers where windows stood.
//
//     class CLayerDlg : public CDialog
//     {
//         CCtrlResize m_resize;
//     };
//
//     BOOL CLayerDlg::OnInitDialog()
//     {
//         CDialog::OnInitDialog();
//         m_resize.InitDlg(this);
//         m_resize.AddCtrl(IDC_LAYERS, 0, 0, 1, 1);                // stretches with the dialog
//         m_resize.AddCtrl(IDOK, 1, 1, 0, 0);                      // keeps its distance to the lower right corner
//         CCtrlResize::RestoreWinPos(L"LayerDlg", m_hWnd, TRUE);
//         return TRUE;
//     }
//
//     void CLayerDlg::OnSize(UINT type, int cx, int cy)
//     {
//         CDialog::OnSize(type, cx, cy);
//         m_resize.ResizeAllCtrl(cx, cy);                          // does nothing before InitDlg
//     }
//
//     void CLayerDlg::OnDestroy()
//     {
//         CCtrlResize::SaveWinPos(L"LayerDlg", m_hWnd, TRUE);
//         CDialog::OnDestroy();
//     }
//
// Places and sizes of controls are pixels in the dialog's client coordinates; those of windows are screen coordinates.
// Nothing is owned; the dialog must outlive the object's use. No function shows an error: what cannot be done is left.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

#include "base/ZnktApi.h"
#include "dialog/CtrlPlace.h"

class ZNKT_API CCtrlResize
{
public:
    CCtrlResize();
    ~CCtrlResize();

    // Once the dialog exists and before AddCtrl: remembers it and its client size, from which all growth counts.
    // Null: no dialog.
    void InitDlg(CWnd* pWnd);

    // Registers a control, or registers it anew, with its place as it stands now. The ratios say which share of the
    // dialog's growth the control moves by and grows by: 0 none, 1 all of it. Does nothing without a dialog or when the
    // dialog has no such child.
    void AddCtrl(int nID, double dLeftRatio, double dTopRatio, double dWidthRatio, double dHeightRatio);

    // Adds to the registered place of a control, which moves at the next layout. Unknown ids are ignored.
    void ModiCtrl(int nID, int nLeft, int nTop, int nWidth, int nHeight);

    // Lays out every registered control for a client area of cx by cy pixels. Growth counts from InitDlg, so that no
    // rounding adds up. Every control repaints at once. Controls that are gone are passed over.
    void ResizeAllCtrl(int cx, int cy);

    // Keeps the place of a window, and its size when bSaveSize is not 0, under a name in the current user's
    // WindowPos.ini (sections are the names; TopLX, TopLY, Width, Height in pixels of the screen). Sizes are kept and
    // restored in pairs: restoring one that was not kept gives the window the size -1. No name, an empty one or no
    // window: nothing happens.
    static void SaveWinPos(const wchar_t* pszSection, HWND hWnd, int bSaveSize);

    // Puts a window where SaveWinPos found it. A place that was never kept, or would hide the window beyond the edges
    // of the main screen, leaves the window alone. A size larger than the main screen is cut to it.
    static void RestoreWinPos(const wchar_t* pszSection, HWND hWnd, int bRestoreSize);

private:
    CCtrlResize(const CCtrlResize&);
    CCtrlResize& operator=(const CCtrlResize&);

    CWnd* m_pWnd; // null before InitDlg
    RECT m_rcInitClient;
    CMap<int, int, CTRLRESIZEINFO, CTRLRESIZEINFO&> m_mapCtrlInfo;
};
