// One object of a class for every thread that asks for it, deleted when the thread ends.
//
//   static CPerThread<Map> maps;
//   Map& map = maps.Get([] { return new Map(...); });
//
// The compiler's thread_local isn't used for objects with a destructor: in a DLL of this tool chain (mingw-w64) the
// memory of thread-local variables is freed before their destructors run, which corrupts the heap.
#pragma once

#include "afx/core/Api.h"

template<class OBJECT>
class CPerThread
{
public:
    CPerThread() : m_index(::FlsAlloc(&CPerThread::Delete)) {}
    CPerThread(const CPerThread&) = delete;
    CPerThread& operator=(const CPerThread&) = delete;

    // make gives a new object; it is called at the thread's first use.
    template<class MAKE>
    OBJECT& Get(MAKE make)
    {
        OBJECT* object = static_cast<OBJECT*>(::FlsGetValue(m_index));
        if (object == nullptr)
        {
            object = make();
            ::FlsSetValue(m_index, object);
        }
        return *object;
    }

private:
    static void CALLBACK Delete(void* object) { delete static_cast<OBJECT*>(object); }

    const DWORD m_index; // kept as long as the process lives: other threads may still use it when this object ends
};
