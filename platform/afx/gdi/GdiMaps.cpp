#include "afx/gdi/GdiMaps.h"

#include "afx/core/ThreadLocal.h"

namespace
{
template<class OBJECT>
OBJECT* MakeTemporary(HGDIOBJ handle)
{
    OBJECT* object = new OBJECT;
    object->m_hObject = handle;
    return object;
}

void SetObjectHandle(CGdiObject* object, HGDIOBJ handle)
{
    object->m_hObject = handle;
}

CDC* MakeTemporaryDC(HDC handle)
{
    CDC* dc = new CDC;
    dc->m_hDC = handle;
    dc->m_hAttribDC = handle;
    return dc;
}

void SetDCHandle(CDC* dc, HDC handle)
{
    dc->m_hDC = handle;
    dc->m_hAttribDC = handle;
}

CImageList* MakeTemporaryImageList(HIMAGELIST handle)
{
    CImageList* images = new CImageList;
    images->m_hImageList = handle;
    return images;
}

void SetImageListHandle(CImageList* images, HIMAGELIST handle)
{
    images->m_hImageList = handle;
}
} // namespace

CHandleMap<CGdiObject, HGDIOBJ>& AfxGdiObjectMap()
{
    static CPerThread<CHandleMap<CGdiObject, HGDIOBJ>> maps;
    return maps.Get([] { return new CHandleMap<CGdiObject, HGDIOBJ>(&MakeTemporary<CGdiObject>, &SetObjectHandle); });
}

CHandleMap<CDC, HDC>& AfxDCMap()
{
    static CPerThread<CHandleMap<CDC, HDC>> maps;
    return maps.Get([] { return new CHandleMap<CDC, HDC>(&MakeTemporaryDC, &SetDCHandle); });
}

CHandleMap<CImageList, HIMAGELIST>& AfxImageListMap()
{
    static CPerThread<CHandleMap<CImageList, HIMAGELIST>> maps;
    return maps.Get(
        [] { return new CHandleMap<CImageList, HIMAGELIST>(&MakeTemporaryImageList, &SetImageListHandle); });
}

void AfxDeleteTempGdiMaps()
{
    AfxGdiObjectMap().DeleteTemp();
    AfxDCMap().DeleteTemp();
    AfxImageListMap().DeleteTemp();
}
