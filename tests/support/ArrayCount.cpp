#include "ArrayCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<long> g_live{0};

} // namespace

long LiveArrays()
{
    return g_live;
}

void* operator new[](size_t size)
{
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    ++g_live;
    return block;
}

void operator delete[](void* block) noexcept
{
    if (block == nullptr)
        return;
    --g_live;
    std::free(block);
}

void operator delete[](void* block, size_t) noexcept
{
    operator delete[](block);
}
