#include "afx/gdi/GdiMaps.h"

namespace
{
template<class OBJECT> OBJECT* MakeTemporary(HGDIOBJ handle)
{
    OBJECT* object = new OBJECT;
    object->m_hObject = handle;
    return object;
}

void LetGoOfObject(CGdiObject* object)
{
    object->m_hObject = NULL;
}

CDC* MakeTemporaryDC(HDC handle)
{
    CDC* dc = new CDC;
    dc->m_hDC = handle;
    dc->m_hAttribDC = handle;
    return dc;
}

void LetGoOfDC(CDC* dc)
{
    dc->m_hDC = NULL;
    dc->m_hAttribDC = NULL;
}

CImageList* MakeTemporaryImageList(HIMAGELIST handle)
{
    CImageList* images = new CImageList;
    images->m_hImageList = handle;
    return images;
}

void LetGoOfImageList(CImageList* images)
{
    images->m_hImageList = NULL;
}
}

CHandleMap<CGdiObject, HGDIOBJ>& AfxGdiObjectMap()
{
    static thread_local CHandleMap<CGdiObject, HGDIOBJ> map(&MakeTemporary<CGdiObject>, &LetGoOfObject);
    return map;
}

CHandleMap<CDC, HDC>& AfxDCMap()
{
    static thread_local CHandleMap<CDC, HDC> map(&MakeTemporaryDC, &LetGoOfDC);
    return map;
}

CHandleMap<CImageList, HIMAGELIST>& AfxImageListMap()
{
    static thread_local CHandleMap<CImageList, HIMAGELIST> map(&MakeTemporaryImageList, &LetGoOfImageList);
    return map;
}

void AfxDeleteTempGdiMaps()
{
    AfxGdiObjectMap().DeleteTemp();
    AfxDCMap().DeleteTemp();
    AfxImageListMap().DeleteTemp();
}
