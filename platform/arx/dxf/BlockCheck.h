// Checks that the references between the blocks of a drawing end somewhere, and that what they show stays within
// bounds.
#pragma once

#include "DxfDrawing.h"

namespace arxdxf
{

// References within references; walking deeper would exhaust the stack.
const int kMaxBlockDepth = 100;
// Entities that one space shows with all references expanded.
const double kMaxExpandedEntities = 1e7;

// Throws DxfError, with the line of the reference, for blocks that contain themselves and for exceeded limits.
void CheckBlocks(const DxfDrawing& drawing);

} // namespace arxdxf
