// The command PICKPOINT: asks for a point, with its coordinates beside the pointer.
#pragma once

#include <afxwin.h>

#include <gepnt3d.h>

namespace drawing_check
{

void PickPoint();

// "X: 12.34" and "Y: 56.78" in two lines.
CString CoordinateText(const AcGePoint3d& point);

} // namespace drawing_check
