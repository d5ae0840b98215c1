// Counts the objects of one size that are made with new and still there: all allocation of the program passes by it.
//
//   const ObjectCounter counter(sizeof(CEdit));
//   ...
//   EXPECT_EQ(0u, counter.Alive());
//
// One counter at a time.
#pragma once

#include <cstddef>
#include <vector>

class ObjectCounter
{
public:
    explicit ObjectCounter(size_t size);
    ~ObjectCounter();
    ObjectCounter(const ObjectCounter&) = delete;
    ObjectCounter& operator=(const ObjectCounter&) = delete;

    size_t Alive() const { return m_alive.size(); }
    // By all counters so far.
    static size_t Made();

private:
    std::vector<void*> m_alive;
};
