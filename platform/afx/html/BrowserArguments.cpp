#include "afx/html/BrowserArguments.h"

#include <oleauto.h>

namespace
{
// A variant that is given back.
class OwnVariant
{
public:
    OwnVariant() { ::VariantInit(&m_value); }
    ~OwnVariant() { ::VariantClear(&m_value); }
    OwnVariant(const OwnVariant&) = delete;
    OwnVariant& operator=(const OwnVariant&) = delete;

    // The value behind all references, as this type.
    bool Take(const VARIANT* source, VARTYPE type)
    {
        return source != nullptr && SUCCEEDED(::VariantCopyInd(&m_value, const_cast<VARIANT*>(source))) &&
               SUCCEEDED(::VariantChangeType(&m_value, &m_value, 0, type));
    }
    const VARIANT& Get() const { return m_value; }

private:
    VARIANT m_value;
};

const VARIANT* Behind(const VARIANT* value)
{
    while (value != nullptr && value->vt == (VT_VARIANT | VT_BYREF))
        value = value->pvarVal;
    return value;
}

SAFEARRAY* ByteArrayOf(const VARIANT* value)
{
    if (value != nullptr && value->vt == (VT_ARRAY | VT_UI1))
        return value->parray;
    if (value != nullptr && value->vt == (VT_ARRAY | VT_UI1 | VT_BYREF))
        return *value->pparray;
    return nullptr;
}
} // namespace

CString BrowserArguments::Text(UINT index) const
{
    OwnVariant text;
    if (!text.Take(At(index), VT_BSTR))
        return CString();
    return CString(text.Get().bstrVal, static_cast<int>(::SysStringLen(text.Get().bstrVal)));
}

long BrowserArguments::Number(UINT index) const
{
    OwnVariant number;
    return number.Take(At(index), VT_I4) ? number.Get().lVal : 0;
}

void BrowserArguments::Bytes(UINT index, CByteArray& bytes) const
{
    bytes.RemoveAll();
    SAFEARRAY* const array = ByteArrayOf(Behind(At(index)));
    if (array == nullptr || ::SafeArrayGetDim(array) != 1)
        return;
    LONG first = 0;
    LONG last = -1;
    void* data = nullptr;
    if (FAILED(::SafeArrayGetLBound(array, 1, &first)) || FAILED(::SafeArrayGetUBound(array, 1, &last)) ||
        last < first || FAILED(::SafeArrayAccessData(array, &data)))
        return;
    bytes.SetSize(last - first + 1);
    memcpy(bytes.GetData(), data, static_cast<size_t>(bytes.GetSize()));
    ::SafeArrayUnaccessData(array);
}

VARIANT_BOOL* BrowserArguments::FlagByReference(UINT index) const
{
    const VARIANT* const value = Behind(At(index));
    return value != nullptr && value->vt == (VT_BOOL | VT_BYREF) ? value->pboolVal : nullptr;
}

IDispatch** BrowserArguments::ObjectByReference(UINT index) const
{
    const VARIANT* const value = Behind(At(index));
    return value != nullptr && value->vt == (VT_DISPATCH | VT_BYREF) ? value->ppdispVal : nullptr;
}

const VARIANT* BrowserArguments::At(UINT index) const
{
    return index < m_params.cArgs ? &m_params.rgvarg[m_params.cArgs - 1 - index] : nullptr;
}
