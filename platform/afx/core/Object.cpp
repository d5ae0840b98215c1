#include "afx/core/Object.h"

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, NULL, NULL};
CDumpContext afxDump;

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject == NULL ? NULL : m_pfnCreateObject();
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    const CRuntimeClass* at = this;
    while (at != NULL && at != base)
        at = at->m_pfnGetBaseClass == NULL ? NULL : at->m_pfnGetBaseClass();
    return at != NULL;
}

CDumpContext& CDumpContext::operator<<(LPCWSTR text)
{
    AfxTrace(L"%s", text);
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCSTR text)
{
    AfxTrace("%s", text);
    return *this;
}

CDumpContext& CDumpContext::operator<<(int value)
{
    AfxTrace(L"%d", value);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* address)
{
    AfxTrace(L"%p", address);
    return *this;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

CObject::~CObject() {}

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& dc) const
{
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this) << "\n";
}

CRuntimeClass* AFXAPI CObject::GetThisClass()
{
    return &classCObject;
}

CRuntimeClass* AFXAPI CObject::_GetBaseClass()
{
    return NULL;
}

CObject::CObject() {}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object)
{
    return object != NULL && object->IsKindOf(runtimeClass) ? object : NULL;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* runtimeClass, CObject* object)
{
    UNUSED(runtimeClass);
    ASSERT(object == NULL || object->IsKindOf(runtimeClass));
    return object;
}
