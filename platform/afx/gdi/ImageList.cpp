#include "afx/gdi/ImageList.h"

#include "afx/core/Resources.h"
#include "afx/gdi/DC.h"
#include "afx/gdi/GdiMaps.h"
#include "afx/wnd/Wnd.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList::CImageList() : m_hImageList(NULL) {}

CImageList::~CImageList()
{
    DeleteImageList();
}

BOOL CImageList::Create(int cx, int cy, UINT flags, int initial, int grow)
{
    return Attach(ImageList_Create(cx, cy, flags, initial, grow));
}

BOOL CImageList::Create(UINT bitmapId, int cx, int grow, COLORREF mask)
{
    return Create(MAKEINTRESOURCE(bitmapId), cx, grow, mask);
}

BOOL CImageList::Create(LPCTSTR bitmapName, int cx, int grow, COLORREF mask)
{
    return Attach(ImageList_LoadImageW(AfxFindResourceHandle(bitmapName, RT_BITMAP), bitmapName, cx, grow, mask,
                                       IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList* source)
{
    return Attach(ImageList_Duplicate(source->GetSafeHandle()));
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    return this == NULL ? NULL : m_hImageList;
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST handle)
{
    return AfxImageListMap().FromHandle(handle);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST handle)
{
    return AfxImageListMap().LookupPermanent(handle);
}

void PASCAL CImageList::DeleteTempMap()
{
    AfxDeleteTempGdiMaps();
}

BOOL CImageList::Attach(HIMAGELIST handle)
{
    if (handle == NULL)
        return FALSE;
    m_hImageList = handle;
    AfxImageListMap().SetPermanent(handle, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    const HIMAGELIST handle = m_hImageList;
    if (handle != NULL)
        AfxImageListMap().RemoveHandle(handle);
    m_hImageList = NULL;
    return handle;
}

BOOL CImageList::DeleteImageList()
{
    const HIMAGELIST handle = Detach();
    return handle != NULL && ImageList_Destroy(handle);
}

int CImageList::Add(CBitmap* image, CBitmap* mask)
{
    return ImageList_Add(m_hImageList, static_cast<HBITMAP>(image->GetSafeHandle()),
                         static_cast<HBITMAP>(mask->GetSafeHandle()));
}

int CImageList::Add(CBitmap* image, COLORREF mask)
{
    return ImageList_AddMasked(m_hImageList, static_cast<HBITMAP>(image->GetSafeHandle()), mask);
}

BOOL CImageList::Replace(int image, CBitmap* bitmap, CBitmap* mask)
{
    return ImageList_Replace(m_hImageList, image, static_cast<HBITMAP>(bitmap->GetSafeHandle()),
                             static_cast<HBITMAP>(mask->GetSafeHandle()));
}

BOOL CImageList::Draw(CDC* dc, int image, POINT point, UINT style)
{
    return ImageList_Draw(m_hImageList, image, dc->GetSafeHdc(), point.x, point.y, style);
}

BOOL CImageList::DrawEx(CDC* dc, int image, POINT point, SIZE size, COLORREF background, COLORREF foreground,
                        UINT style)
{
    return ImageList_DrawEx(m_hImageList, image, dc->GetSafeHdc(), point.x, point.y, size.cx, size.cy, background,
                            foreground, style);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* parameters)
{
    parameters->cbSize = sizeof(*parameters);
    parameters->himl = m_hImageList;
    return ImageList_DrawIndirect(parameters);
}

BOOL PASCAL CImageList::DragEnter(CWnd* window, CPoint point)
{
    return ImageList_DragEnter(window->GetSafeHwnd(), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* window)
{
    return ImageList_DragLeave(window->GetSafeHwnd());
}
