// Turns the variants of the browser control's events into plain values. Arguments of an event stand in reverse order,
// and text may come by value, by reference, or not at all.
#pragma once

#include "afx/core/Collections.h"
#include "afx/core/String.h"

#include <oaidl.h>

class BrowserArguments
{
public:
    explicit BrowserArguments(const DISPPARAMS& params) : m_params(params) {}

    UINT Count() const { return m_params.cArgs; }
    // index counts from the first argument as the event is documented. What is missing reads as empty, 0 or null.
    CString Text(UINT index) const;
    long Number(UINT index) const;
    bool Flag(UINT index) const { return Number(index) != 0; }
    void Bytes(UINT index, CByteArray& bytes) const;
    VARIANT_BOOL* FlagByReference(UINT index) const;
    IDispatch** ObjectByReference(UINT index) const;

private:
    const VARIANT* At(UINT index) const;

    const DISPPARAMS& m_params;
};
