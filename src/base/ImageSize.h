// How large an icon or a bitmap is, in pixels. Both answer false for null and for what is no such image, and leave
// `size` alone then.
#pragma once

#include <afxwin.h>

bool GetIconSize(HICON icon, CSize& size);
bool GetBitmapSize(HBITMAP bitmap, CSize& size);
