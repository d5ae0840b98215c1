#include "afx/wnd/MessageMap.h"

namespace
{
bool HasId(UINT message)
{
    return message == WM_COMMAND || message == WM_NOTIFY || message >= WM_REFLECT_BASE;
}

// Ids and codes travel in words, so a negative id (IDC_STATIC) is the same as its low word.
bool Fits(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code, UINT id)
{
    if (entry.nMessage != message || entry.nCode != LOWORD(code))
        return false;
    return !HasId(message) || (LOWORD(id) >= entry.nID && LOWORD(id) <= entry.nLastID);
}

template<class PREDICATE>
const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, PREDICATE fits)
{
    while (map != nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
        {
            if (fits(*entry))
                return entry;
        }
        map = map->pfnGetBaseMap == nullptr ? nullptr : map->pfnGetBaseMap();
    }
    return nullptr;
}
} // namespace

const AFX_MSGMAP_ENTRY* AFXAPI AfxFindMessageEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id)
{
    return FindEntry(map, [=](const AFX_MSGMAP_ENTRY& entry) { return Fits(entry, message, code, id); });
}

const AFX_MSGMAP_ENTRY* AFXAPI AfxFindRegisteredEntry(const AFX_MSGMAP* map, UINT message)
{
    return FindEntry(map, [=](const AFX_MSGMAP_ENTRY& entry) {
        return entry.nMessage == AFX_REGISTERED_MESSAGE && *reinterpret_cast<const UINT*>(entry.nSig) == message;
    });
}
