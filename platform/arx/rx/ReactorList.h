// Listeners in the order in which they came. They may add and remove listeners, themselves included, while they are
// being told.
#pragma once

#include <algorithm>
#include <vector>

namespace arxrx
{

template<class T>
class ReactorList
{
public:
    void Add(T* reactor)
    {
        if (reactor != nullptr && !Has(reactor))
        {
            m_reactors.push_back(reactor);
        }
    }

    void Remove(T* reactor)
    {
        m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
    }

    void Clear() { m_reactors.clear(); }

    bool Has(T* reactor) const { return std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end(); }

    // Calls tell(reactor) for each that is still in the list when its turn comes.
    template<class Function>
    void Tell(Function tell) const
    {
        const std::vector<T*> audience = m_reactors;
        for (T* reactor : audience)
        {
            if (Has(reactor))
            {
                tell(*reactor);
            }
        }
    }

private:
    std::vector<T*> m_reactors;
};

} // namespace arxrx
