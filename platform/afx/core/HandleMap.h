// CHandleMap: which object stands for a system handle (window, menu, GDI object, image list).
//
//   CHandleMap<CMenu, HMENU> map(&CMenu::MakeTemporary, &CMenu::SetHandle);
//   map.SetPermanent(handle, menu);          // Attach, Create: the object belongs to its creator
//   CMenu* menu = map.FromHandle(handle);    // permanent object, otherwise a temporary one
//   map.DeleteTemp();                        // at idle time: temporary objects live until here
//
// The map isn't locked: its owner keeps one per thread, or guards it. A null handle stands for no object.
#pragma once

#include <cstddef>
#include <unordered_map>

template<class OBJECT, class HANDLE_TYPE>
class CHandleMap
{
public:
    // makeTemporary: a new object that holds the handle without owning it. setHandle: puts a handle into such an
    // object; null before it is deleted, so that its destructor leaves the system object alone.
    typedef OBJECT* (*MakeTemporary)(HANDLE_TYPE handle);
    typedef void (*SetHandle)(OBJECT* object, HANDLE_TYPE handle);

    CHandleMap(MakeTemporary makeTemporary, SetHandle setHandle)
        : m_makeTemporary(makeTemporary), m_setHandle(setHandle)
    {
    }

    ~CHandleMap() { DeleteTemp(); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    // The permanent object of the handle, otherwise its temporary one, made on demand; null for a null handle.
    OBJECT* FromHandle(HANDLE_TYPE handle)
    {
        OBJECT* const permanent = LookupPermanent(handle);
        if (permanent != nullptr || handle == HANDLE_TYPE())
            return permanent;
        OBJECT*& temporary = m_temporary[handle];
        // A caller may have deleted the system object or detached it; the system uses the number of a handle again.
        if (temporary != nullptr)
            m_setHandle(temporary, handle);
        else
            temporary = m_makeTemporary(handle);
        return temporary;
    }

    OBJECT* LookupPermanent(HANDLE_TYPE handle) const { return Lookup(m_permanent, handle); }
    OBJECT* LookupTemporary(HANDLE_TYPE handle) const { return Lookup(m_temporary, handle); }

    void SetPermanent(HANDLE_TYPE handle, OBJECT* object) { m_permanent[handle] = object; }

    // Forgets the permanent object. A temporary one stays until DeleteTemp: a caller may still hold it.
    void RemoveHandle(HANDLE_TYPE handle) { m_permanent.erase(handle); }

    // Deletes all temporary objects. Objects that appear meanwhile stay for the next time.
    void DeleteTemp()
    {
        Objects doomed;
        doomed.swap(m_temporary);
        for (const auto& entry : doomed)
        {
            m_setHandle(entry.second, HANDLE_TYPE());
            delete entry.second;
        }
    }

    size_t GetTemporaryCount() const { return m_temporary.size(); }

private:
    typedef std::unordered_map<HANDLE_TYPE, OBJECT*> Objects;

    static OBJECT* Lookup(const Objects& objects, HANDLE_TYPE handle)
    {
        const auto at = objects.find(handle);
        return at == objects.end() ? nullptr : at->second;
    }

    MakeTemporary m_makeTemporary;
    SetHandle m_setHandle;
    Objects m_permanent;
    Objects m_temporary;
};
