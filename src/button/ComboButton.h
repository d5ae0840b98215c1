// CComboButton: a push button that carries a list of commands, its items. The default item's name and image stand on
// the face, and a click runs it. With two items or more the right 17 pixels are a drop zone with an arrow: a press
// there opens a menu of all items, and the entry chosen becomes the default item and runs.
//
//     CComboButton m_new;                // DDX_Control, in place of a plain button
//     m_new.AddItem(&m_newFile);         // CComboButtonItem objects of the dialog; the first is the default
//     m_new.AddItem(&m_newFromTemplate);
//     m_new.SetComboButtonStyle(CBTS_SHOWIMAGE | CBTS_IMAGEANDTEXT | CBTS_GRADIENT);
//
// The button never owns items: the owner removes an item before it deletes it. Items are asked anew whether they are
// enabled each time the button is drawn or pressed; after a change of that the owner redraws the button.
//
// The parent gets BN_CLICKED after each click and each choice, after the item has run. While the menu is open the
// button gets its WM_COMMAND, with identifiers from 1057 on: of a menu with more than 101 items the further ones do
// nothing.
//
// The window loses the styles it has but WS_TABSTOP and WS_DISABLED, and is visible. Its parent must be a window of the
// framework, which passes the drawing back.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

#include "base/ZnktApi.h"
#include "button/ComboButtonItem.h"
#include "button/ComboButtonStyle.h"

struct ComboButtonState;
class CMyMenu;

class ZNKT_API CComboButton : public CButton
{
    DECLARE_DYNAMIC(CComboButton)

public:
    CComboButton();
    virtual ~CComboButton();

    // Puts an item at the end; null is ignored. The first item of an empty button becomes the default and the caption.
    void AddItem(CComboButtonItem* item);

    // Takes the first place of that item out; nothing when it has none. When the default item goes, the one before it
    // takes its place, or else the new first one. The window text stays as it is until SetDefaultItem.
    void RemoveItem(const CComboButtonItem* item);

    // Makes an item of the button the default and its name the window text; what is no item and no index is ignored.
    void SetDefaultItem(CComboButtonItem* item);
    void SetDefaultItem(int index);

    // Null and index -1 when there is no item.
    CComboButtonItem* GetDefaultItem();
    CComboButtonItem* GetDefaultItem(int& index);

    int GetItemCount();

    // Throws CInvalidArgException for an index out of range.
    CComboButtonItem* GetItem(int index);

    // CBTS_ flags; 0 means CBTS_DEFAULT.
    void SetComboButtonStyle(UINT style);
    UINT GetComboButtonStyle();

    // Draws the whole button: its backgrounds, then the three below in this order, all with the same structure. A
    // derived class may replace each of them.
    virtual void DrawItem(LPDRAWITEMSTRUCT drawItem);

protected:
    // The border, the hot frame and the focus rectangle.
    virtual void DrawItemBorder(LPDRAWITEMSTRUCT drawItem);

    // The image and the caption. Called alone it paints the background of the whole button first.
    virtual void DrawItemContent(LPDRAWITEMSTRUCT drawItem);

    // The arrow and the line before it. Called alone it paints the background of the drop zone first.
    virtual void DrawItemComboFlag(LPDRAWITEMSTRUCT drawItem);

    virtual void PreSubclassWindow();

    DECLARE_MESSAGE_MAP()

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnMouseLeave();
    afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu);
    afx_msg void OnCommandRange(UINT id);
    afx_msg BOOL OnBnClicked();

private:
    CComboButton(const CComboButton&);
    CComboButton& operator=(const CComboButton&);

    INT_PTR Find(const CComboButtonItem* item) const;
    INT_PTR FindChosen(INT_PTR entry) const;
    bool IsDefaultDisabled();
    bool RefusesInput();
    void LetGoOfPress();

    void ShowDefaultName();
    void Redraw();
    ComboButtonState StateOf(const DRAWITEMSTRUCT& drawItem);

    void ShowMenu();
    void FillMenu(CMyMenu& menu);
    void AppendEntry(CMyMenu& menu, UINT id, CComboButtonItem& item, BOOL isDefault);
    void TrackMenu(CMyMenu& menu);
    void ForgetMenuUnlessChosen();

    CArray<CComboButtonItem*, CComboButtonItem*> m_aItems;
    UINT m_nComboStyle;
    int m_nDefaultItem;
    bool m_bMenuShown;
    bool m_bHot;
    CArray<CComboButtonItem*, CComboButtonItem*>
        m_aMenuItems; // what the open menu shows: items may come and go meanwhile
    bool m_bBackgroundsPainted;
};
