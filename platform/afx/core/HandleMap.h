// CHandleMap: which object stands for a system handle (window, menu, GDI object, image list).
//
//   CHandleMap<CMenu, HMENU> map(&CMenu::MakeTemporary, &CMenu::LetGo);
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
    // makeTemporary: a new object that holds the handle without owning it. letGo: clears the handle in such an object,
    // so that its destructor, which runs right after, leaves the system object alone.
    typedef OBJECT* (*MakeTemporary)(HANDLE_TYPE handle);
    typedef void (*LetGo)(OBJECT* object);

    CHandleMap(MakeTemporary makeTemporary, LetGo letGo) : m_makeTemporary(makeTemporary), m_letGo(letGo) {}
    ~CHandleMap() { DeleteTemp(); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    // The permanent object of the handle, otherwise its temporary one, made on demand; null for a null handle.
    OBJECT* FromHandle(HANDLE_TYPE handle)
    {
        OBJECT* object = LookupPermanent(handle);
        if (object == nullptr)
            object = LookupTemporary(handle);
        if (object == nullptr && handle != HANDLE_TYPE())
        {
            object = m_makeTemporary(handle);
            m_temporary[handle] = object;
        }
        return object;
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
            m_letGo(entry.second);
            delete entry.second;
        }
    }

    size_t GetPermanentCount() const { return m_permanent.size(); }
    size_t GetTemporaryCount() const { return m_temporary.size(); }

private:
    typedef std::unordered_map<HANDLE_TYPE, OBJECT*> Objects;

    static OBJECT* Lookup(const Objects& objects, HANDLE_TYPE handle)
    {
        const auto at = objects.find(handle);
        return at == objects.end() ? nullptr : at->second;
    }

    MakeTemporary m_makeTemporary;
    LetGo m_letGo;
    Objects m_permanent;
    Objects m_temporary;
};
