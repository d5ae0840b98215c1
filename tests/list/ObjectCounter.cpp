#include "ObjectCounter.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace
{

const size_t kMostObjects = 1000;

size_t g_size = 0;
size_t g_made = 0;
std::vector<void*>* g_alive = nullptr;

} // namespace

ObjectCounter::ObjectCounter(size_t size)
{
    m_alive.reserve(kMostObjects);
    g_alive = &m_alive;
    g_size = size;
}

ObjectCounter::~ObjectCounter()
{
    g_size = 0;
    g_alive = nullptr;
}

size_t ObjectCounter::Made()
{
    return g_made;
}

void* operator new(size_t size)
{
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    // Within its capacity, because the list of what is alive must not ask for memory here.
    if (g_size != 0 && size == g_size && g_alive->size() < g_alive->capacity())
    {
        ++g_made;
        g_alive->push_back(memory);
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (g_alive != nullptr)
        g_alive->erase(std::remove(g_alive->begin(), g_alive->end(), memory), g_alive->end());
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    operator delete(memory);
}
