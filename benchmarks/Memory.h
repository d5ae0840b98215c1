// How much memory this process holds.
#pragma once

namespace bench
{

// Bytes that all heaps of the process have given out, their own bookkeeping included.
double AllocatedBytes();

} // namespace bench
