// The GDI handle maps of the calling thread. Only the framework's own rooms use them.
#pragma once

#include "afx/core/HandleMap.h"
#include "afx/gdi/DC.h"
#include "afx/gdi/GdiObject.h"
#include "afx/gdi/ImageList.h"

CHandleMap<CGdiObject, HGDIOBJ>& AfxGdiObjectMap();
CHandleMap<CDC, HDC>& AfxDCMap();
CHandleMap<CImageList, HIMAGELIST>& AfxImageListMap();

// Idle time: the temporary objects of all three maps end.
void AfxDeleteTempGdiMaps();
