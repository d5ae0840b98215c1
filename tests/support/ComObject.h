// What objects of COM that a test plays have in common: they count their references and end with the last one.
//
//   class Control : public ComObject<IOleObject> { ... };
#pragma once

#include <unknwn.h>

template<class... INTERFACES>
class ComObject : public INTERFACES...
{
public:
    virtual ~ComObject() = default;

    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    // `references`: 1 when the maker holds one, 0 when the first to ask does.
    explicit ComObject(ULONG references) : m_references(references) {}

private:
    ULONG m_references;
};
