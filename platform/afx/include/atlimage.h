// CImage: a picture that is read from and written to image files.
#pragma once

#include <afxwin.h>

#include "afx/gdi/Image.h"
