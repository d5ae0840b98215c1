// CAdUiPalette: one page of a palette set. A module derives its palette from it and fills it in OnCreate and OnSize.
#pragma once

#include <afxwin.h>

#include "arx/Api.h"

class CAdUiPaletteSet;

class ARX_API CAdUiPalette : public CWnd
{
    DECLARE_DYNCREATE(CAdUiPalette)

public:
    CAdUiPalette();
    virtual ~CAdUiPalette();

    // Creates the window as a child of the set, without adding it: CAdUiPaletteSet::AddPalette does that.
    virtual BOOL Create(DWORD dwStyle, LPCTSTR lpszTitle, CAdUiPaletteSet* pParent, DWORD dwPaletteStyle = 0);

    // The text of the palette's tab.
    CString GetName() const;
    BOOL SetName(LPCTSTR lpszName);

    // The set that the palette was created for; borrowed.
    CAdUiPaletteSet* GetPaletteSet() const;
    BOOL IsActive() const;
    DWORD GetPaletteStyle() const;

    // Persistence: called when the set's layout is restored and saved. pUnk is the node to read from or write to; this
    // host keeps the layout in the profile and passes NULL. TRUE on success.
    virtual BOOL Load(IUnknown* pUnk);
    virtual BOOL Save(IUnknown* pUnk);

    // The palette became the visible one of its set.
    virtual void OnSetActive();
    // False keeps the focus in the palette when the host asks for it.
    virtual bool CanFrameworkTakeFocus();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    CString m_name;
    CAdUiPaletteSet* m_set;
    DWORD m_paletteStyle;
};
