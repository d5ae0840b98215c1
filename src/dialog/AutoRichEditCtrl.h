// A rich edit with one-call formatting of the selection, RTF in and out as a string, and, on demand, an edit menu on
// the right mouse button.
//
//     CAutoRichEditCtrl m_text; // the dialog's constructor: m_text(ZNKT_EDIT_MENU)
//     DDX_Control(pDX, IDC_TEXT, m_text); // the template has a control of the class "RichEdit20W"
//     m_text.SetRTF(L"{\\rtf1 plain {\\b bold}}");
//     m_text.ToggleBold(); // what a tool button does
//
// An object must exist before the window of a dialog template is created: the first one registers the window class.
//
// Commands of the menu that the control does not know are sent on to the parent as WM_COMMAND. Update requests that it
// does not know are sent to the parent as WM_IDLEUPDATECMDUI with the CCmdUI* in lParam.
//
// Functions on a control without a window do nothing and answer 0, false or an empty text.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include "base/ZnktApi.h"
#include "dialog/EditMenuHandler.h"

// The edit menu of the module, for the constructor: undo, cut, copy, paste, delete, select all.
enum
{
    ZNKT_EDIT_MENU = 115
};

class ZNKT_API CAutoRichEditCtrl : public CRichEditCtrl
{
    DECLARE_DYNAMIC(CAutoRichEditCtrl)

public:
    // nMenuID: a menu of the module's resources, 0 for none.
    explicit CAutoRichEditCtrl(UINT nMenuID);
    virtual ~CAutoRichEditCtrl();

    // The whole text as RTF.
    CString GetRTF();

    // Replaces the whole text. Characters beyond ASCII may stand in it as they are. An empty text empties the control.
    // False when the text is not RTF; a text that is cut off shows what there is of it.
    bool SetRTF(const CString& rtf);

    // Formats of the selection. A format that the whole selection has is taken away, otherwise all of it gets it: what
    // is partly bold becomes bold.
    void ToggleBold();
    void ToggleItalic();
    void ToggleUnderline();
    void ToggleFormat(DWORD mask, DWORD effect); // CFM_ and CFE_ bits

    // Whether the effect (CFE_) is on throughout the selection.
    bool HasFormat(DWORD mask, DWORD effect);

    // The colour replaces the automatic one. The second form asks the user, and changes nothing when he cancels.
    void SetColor(COLORREF color);
    void SetColor();

    // A null or empty name changes nothing; a longer one than a font can have is cut off.
    void SetFontName(LPCTSTR name);
    CString GetFontName();

    // Points, 1 to 1638; other sizes change nothing. The answer is rounded down.
    void SetFontSize(int points);
    int GetFontSize();

    // Formats of the paragraphs in the selection.
    void AlignLeft();
    void AlignCenter();
    void AlignRight();
    void ToggleBullet();
    bool HasBullet();

    // The names of all fonts that the control can show. The array is the control's own.
    const CStringArray& EnumFontNames();

protected:
    virtual void PreSubclassWindow();

    DECLARE_MESSAGE_MAP()

    afx_msg void OnMenuCommand(UINT nID);
    afx_msg void OnUpdateMenuCommand(CCmdUI* pCmdUI);

private:
    CAutoRichEditCtrl(const CAutoRichEditCtrl&);
    CAutoRichEditCtrl& operator=(const CAutoRichEditCtrl&);

    CHARFORMAT2 SelectionFormat() const;
    void SetAlignment(WORD alignment);

    CEditMenuHandler m_menuHandler;
    UINT m_nMenuID;
    CStringArray m_arrFonts;
};
