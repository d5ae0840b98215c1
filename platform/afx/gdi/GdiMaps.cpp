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
} // namespace

CHandleMap<CGdiObject, HGDIOBJ>& AfxGdiObjectMap()
{
    static CPerThread<CHandleMap<CGdiObject, HGDIOBJ>> maps;
    return maps.Get([] { return new CHandleMap<CGdiObject, HGDIOBJ>(&MakeTemporary<CGdiObject>, &LetGoOfObject); });
}

CHandleMap<CDC, HDC>& AfxDCMap()
{
    static CPerThread<CHandleMap<CDC, HDC>> maps;
    return maps.Get([] { return new CHandleMap<CDC, HDC>(&MakeTemporaryDC, &LetGoOfDC); });
}

CHandleMap<CImageList, HIMAGELIST>& AfxImageListMap()
{
    static CPerThread<CHandleMap<CImageList, HIMAGELIST>> maps;
    return maps.Get([] { return new CHandleMap<CImageList, HIMAGELIST>(&MakeTemporaryImageList, &LetGoOfImageList); });
}

void AfxDeleteTempGdiMaps()
{
    AfxGdiObjectMap().DeleteTemp();
    AfxDCMap().DeleteTemp();
    AfxImageListMap().DeleteTemp();
}
