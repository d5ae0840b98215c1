// What a combo button (CComboButton) shows as one entry of its menu and runs when chosen; the owner implements it:
//
//     class CCopyCommand : public CComboButtonItem
//     {
//     public:
//         virtual bool Enabled() { return m_selection.GetCount() > 0; }
//         virtual HICON GetIcon() { return m_icon; }
//         virtual CString GetName() { return L"复制(&C)"; }
//         virtual void Action() { m_selection.Copy(); }
//         ...
//     };
//
// The button holds pointers only: an item belongs to its owner and outlives its place in the button (RemoveItem). Icons
// and bitmaps stay the item's property as well. All operations are called on the button's thread: Enabled, GetIcon,
// GetBitmap and GetName each time the button is drawn or its menu opens, so that they answer quickly.
#pragma once

#include <afxwin.h>

class CComboButtonItem
{
public:
    virtual ~CComboButtonItem() {}

    // The entry is a line between other entries. It is asked for nothing else.
    virtual bool IsSeparator() { return false; }

    // Whether the item may be run. When it may not, its entry is grey, and so is the button whose default item it is.
    virtual bool Enabled() = 0;

    // The image of the entry and of the button's face: the icon, or where that is null the bitmap. Null means none.
    virtual HICON GetIcon() = 0;
    virtual HBITMAP GetBitmap() { return NULL; }

    // The text of the entry and the caption of the button. The character after the first "&" is the key that chooses
    // the entry while the menu is open.
    virtual CString GetName() = 0;

    // For the owner's own use: the button never asks for it.
    virtual CString GetExtraText() { return CString(); }

    // Runs the command. It may remove items and may destroy the button or its dialog.
    virtual void Action() = 0;
};
