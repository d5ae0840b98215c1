// CObject and run-time class information.
//
//   class CThing : public CObject { DECLARE_DYNAMIC(CThing) ... };      // header
//   IMPLEMENT_DYNAMIC(CThing, CObject)                                  // source
//
// RUNTIME_CLASS goes through the static GetThisClass(), so one class has one CRuntimeClass in the process, whichever
// DLL asks.
#pragma once

#include "afx/core/Api.h"
#include "afx/core/Debug.h"

class CObject;

struct AFX_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                        // 0xFFFF: not serialised
    CObject*(AFXAPI* m_pfnCreateObject)(); // null: the class can't be created by its run-time class
    CRuntimeClass*(AFXAPI* m_pfnGetBaseClass)();

    // A new object by the default constructor, owned by the caller; null when the class has no DYNCREATE.
    CObject* CreateObject() const;
    // TRUE for the class itself and for every class above it.
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;
};

// Target of Dump(): text pieces for the debugger output.
class AFX_API CDumpContext
{
public:
    CDumpContext& operator<<(LPCWSTR text);
    CDumpContext& operator<<(LPCSTR text);
    CDumpContext& operator<<(int value);
    CDumpContext& operator<<(const void* address);
};

extern AFX_API CDumpContext afxDump;

class AFX_API CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    static CRuntimeClass* AFXAPI GetThisClass();
    static CRuntimeClass* AFXAPI _GetBaseClass();
    static CRuntimeClass classCObject;

protected:
    CObject();

private:
    // Objects have an identity: no copies.
    CObject(const CObject&);
    void operator=(const CObject&);
};

// Null-safe casts by run-time class. The static one trusts the caller (checked when _DEBUG is defined).
AFX_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object);
AFX_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* runtimeClass, CObject* object);

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                            \
    (static_cast<class_name*>(::AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif

#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

#define DECLARE_DYNAMIC(class_name)                                                                                    \
protected:                                                                                                             \
    static CRuntimeClass* AFXAPI _GetBaseClass();                                                                      \
                                                                                                                       \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    static CRuntimeClass* AFXAPI GetThisClass();                                                                       \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* AFXAPI CreateObject();

#define _AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, create)                                               \
    CRuntimeClass* AFXAPI class_name::_GetBaseClass()                                                                  \
    {                                                                                                                  \
        return base_class_name::GetThisClass();                                                                        \
    }                                                                                                                  \
    CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), 0xFFFF, create,  \
                                                   &class_name::_GetBaseClass};                                        \
    CRuntimeClass* AFXAPI class_name::GetThisClass()                                                                   \
    {                                                                                                                  \
        return &class_name::class##class_name;                                                                         \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return &class_name::class##class_name;                                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) _AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, NULL)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* AFXAPI class_name::CreateObject()                                                                         \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    _AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, &class_name::CreateObject)
