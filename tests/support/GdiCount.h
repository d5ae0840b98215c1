// Counts the GDI objects of this process, so that a test can show that code leaves none behind.
//
//   const size_t before = CountGdiObjects();
//   ...
//   EXPECT_EQ(before, CountGdiObjects());
#pragma once

#include <windows.h>

// GetGuiResources() answers 0 under Wine, so the shared handle table of the process is walked.
inline size_t CountGdiObjects()
{
    struct Entry
    {
        UINT64 object;
        DWORD owner;
        WORD unique;
        BYTE type;
        BYTE flags;
        UINT64 userPointer;
    };
    constexpr size_t tableOffsetInPeb = 0xF8;
    constexpr size_t entryCount = 65536;

    // Asking for the function by name spares the compiler the read at a fixed address, which it takes for an error.
    typedef const BYTE*(NTAPI * GetPeb)();
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb");
    const BYTE* peb = reinterpret_cast<GetPeb>(reinterpret_cast<void*>(found))();
    const Entry* entries = *reinterpret_cast<const Entry* const*>(peb + tableOffsetInPeb);
    size_t count = 0;
    for (size_t index = 0; index < entryCount; ++index)
        count += entries[index].type != 0;
    return count;
}
