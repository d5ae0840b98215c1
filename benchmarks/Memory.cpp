#include "Memory.h"

#include <windows.h>

#include <vector>

namespace bench
{

namespace
{

double BytesOf(HANDLE heap)
{
    double bytes = 0;
    PROCESS_HEAP_ENTRY entry = {};
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry))
    {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += static_cast<double>(entry.cbData) + entry.cbOverhead;
    }
    ::HeapUnlock(heap);
    return bytes;
}

} // namespace

double AllocatedBytes()
{
    constexpr DWORD mostHeaps = 64;
    HANDLE heaps[mostHeaps];
    const DWORD count = ::GetProcessHeaps(mostHeaps, heaps);
    double bytes = 0;
    for (DWORD index = 0; index < count && index < mostHeaps; ++index)
        bytes += BytesOf(heaps[index]);
    return bytes;
}

} // namespace bench
