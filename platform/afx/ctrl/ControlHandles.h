// What list and tree views have in common: numbers of the control's interface, and what it answers as a handle, as an
// object of the framework (temporary unless somebody owns it).
#pragma once

#include "afx/ctrl/Edit.h"
#include "afx/ctrl/ToolTipCtrl.h"
#include "afx/gdi/ImageList.h"

const int FirstTextLength = 256; // characters of the first try to read a text; longer ones are read again
const UINT StateImageShift = 12; // the index of the state image lies above this bit
const UINT CheckedImage = 2;
const UINT UncheckedImage = 1;

inline CImageList* ImageListOf(LRESULT handle)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(handle));
}

inline CEdit* EditOf(LRESULT handle)
{
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(handle)));
}

inline CToolTipCtrl* ToolTipOf(LRESULT handle)
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(handle)));
}
