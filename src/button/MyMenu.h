// CMyMenu: a popup menu that draws its entries itself: an image in a column of its own at the left, a check mark at the
// default entry, the text. It lives as long as the menu is open:
//
//     CMyMenu menu;
//     menu.CreatePopupMenu();
//     menu.AppendMenu(MF_OWNERDRAW, ID_COPY, L"复制(&C)");
//     menu.AddIconEntry(this, ID_COPY, L"复制(&C)", m_copyIcon, FALSE);
//     menu.AppendMenu(MF_SEPARATOR); // drawn by the system, not recorded
//     ...
//     menu.TrackPopupMenu(TPM_LEFTALIGN, x, y, this);
//
// The window that shows the menu needs nothing for the drawing; for the mnemonics it answers WM_MENUCHAR by
// HandleMenuChar. Icons and bitmaps are borrowed. Entries are measured and drawn in the system's menu font.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

struct MyMenuItemData
{
    MyMenuItemData();

    UINT nID;
    UINT chMnemonic; // the character after the first "&" without bit 0x20; 0 without an "&"
    CString strText;
    BOOL bDefault;
    HICON hIcon;
    HBITMAP hBitmap;
    CSize sizeImage; // pixels, 16 to 160 each way
    CSize sizeText;
};

class CMyMenu : public CMenu
{
    DECLARE_DYNAMIC(CMyMenu)

public:
    CMyMenu();
    virtual ~CMyMenu();

    // Records what the entry of that id shows, in place of an earlier record. `pOwner` is the window that will show the
    // menu; a null text is the empty one, a null image none.
    void AddIconEntry(CWnd* pOwner, UINT nID, const wchar_t* text, HICON hIcon, BOOL bDefault);
    void AddBitmapEntry(CWnd* pOwner, UINT nID, const wchar_t* text, HBITMAP hBitmap, BOOL bDefault);

    virtual void MeasureItem(LPMEASUREITEMSTRUCT measureItem);
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

    // Sends `pOwner` the WM_COMMAND of the first entry with that mnemonic. The answer is that of WM_MENUCHAR:
    // MNC_CLOSE in the high word, or 0 where there is no such entry or no owner.
    LRESULT HandleMenuChar(CWnd* pOwner, UINT nChar, UINT nFlags);

private:
    CMyMenu(const CMyMenu&);
    CMyMenu& operator=(const CMyMenu&);

    void Record(CWnd* pOwner, MyMenuItemData& data, const wchar_t* text);
    CDC& MeasuringContext(CWnd* pOwner);
    bool FindMnemonic(UINT key, UINT& id) const;

    CMap<UINT, UINT, MyMenuItemData, const MyMenuItemData&> m_mapItemData;
    CFont m_font;
    CDC m_measuringContext;
};
