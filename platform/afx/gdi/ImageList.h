// CImageList: a list of images of one size.
//
//   CImageList images;
//   images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4);
//   images.Add(icon);                       // the list copies the icon
//   tree.SetImageList(&images, TVSIL_NORMAL);
//
// The object owns its list. A tree or list view only borrows it (a list view without LVS_SHAREIMAGELISTS destroys it at
// its own end).
#pragma once

#include "afx/gdi/GdiObject.h"

class CWnd;

class AFX_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)
public:
    HIMAGELIST m_hImageList;

    CImageList();
    virtual ~CImageList();

    BOOL Create(int cx, int cy, UINT flags, int initial, int grow);
    // A strip of images, each cx wide; the mask color becomes transparent.
    BOOL Create(UINT bitmapId, int cx, int grow, COLORREF mask);
    BOOL Create(LPCTSTR bitmapName, int cx, int grow, COLORREF mask);
    BOOL Create(CImageList* source);

    operator HIMAGELIST() const { return m_hImageList; }
    // Null-safe: a null pointer has the null handle.
    HIMAGELIST GetSafeHandle() const;
    static CImageList* PASCAL FromHandle(HIMAGELIST handle);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST handle);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST handle);
    HIMAGELIST Detach();
    BOOL DeleteImageList();

    int GetImageCount() const { return ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT count) { return ImageList_SetImageCount(m_hImageList, count); }
    COLORREF GetBkColor() const { return ImageList_GetBkColor(m_hImageList); }
    COLORREF SetBkColor(COLORREF color) { return ImageList_SetBkColor(m_hImageList, color); }
    BOOL GetImageInfo(int image, IMAGEINFO* info) const { return ImageList_GetImageInfo(m_hImageList, image, info); }

    // Index of the first new image, or -1.
    int Add(CBitmap* image, CBitmap* mask);
    int Add(CBitmap* image, COLORREF mask);
    int Add(HICON icon) { return ImageList_AddIcon(m_hImageList, icon); }
    BOOL Remove(int image) { return ImageList_Remove(m_hImageList, image); }
    BOOL Replace(int image, CBitmap* bitmap, CBitmap* mask);
    int Replace(int image, HICON icon) { return ImageList_ReplaceIcon(m_hImageList, image, icon); }
    BOOL Copy(int to, int from, UINT flags = ILCF_MOVE)
    {
        return ImageList_Copy(m_hImageList, to, m_hImageList, from, flags);
    }
    // The caller destroys the icon.
    HICON ExtractIcon(int image) { return ImageList_GetIcon(m_hImageList, image, ILD_NORMAL); }
    BOOL SetOverlayImage(int image, int overlay) { return ImageList_SetOverlayImage(m_hImageList, image, overlay); }

    BOOL Draw(CDC* dc, int image, POINT point, UINT style);
    BOOL DrawEx(CDC* dc, int image, POINT point, SIZE size, COLORREF background, COLORREF foreground, UINT style);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* parameters);

    BOOL BeginDrag(int image, CPoint hotSpot) { return ImageList_BeginDrag(m_hImageList, image, hotSpot.x, hotSpot.y); }
    static void PASCAL EndDrag() { ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint point) { return ImageList_DragMove(point.x, point.y); }
    static BOOL PASCAL DragEnter(CWnd* window, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* window);
    static BOOL PASCAL DragShowNolock(BOOL show) { return ImageList_DragShowNolock(show); }
};
