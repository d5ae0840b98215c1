// Which entities a drawing shows.
#pragma once

#include "dbmain.h"

namespace arxdb
{

// Neither erased nor invisible nor on a layer that is off or frozen. The entity must be readable.
bool IsShown(const AcDbEntity& entity);

} // namespace arxdb
