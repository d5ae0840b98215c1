// AcRxClass: the run-time type of an AcRxObject class. Descriptors are created on first use and live until their
// module goes; they are compared by address.
#pragma once

#include "rxobject.h"

typedef AcRxObject* (*AcRxCreateFunction)();

class ARX_API AcRxClass : public AcRxObject
{
public:
    // `name` and `dxfName` must outlive the descriptor (literals). `create` is null for abstract classes.
    AcRxClass(const ACHAR* name, AcRxClass* parent, AcRxCreateFunction create = NULL, const ACHAR* dxfName = NULL);

    static AcRxClass* desc();
    virtual AcRxClass* isA() const;

    const ACHAR* name() const { return m_name; }

    // Record name in drawing files such as "LINE"; null for classes that are not stored.
    const ACHAR* dxfName() const { return m_dxfName; }
    AcRxClass* myParent() const { return m_parent; }
    bool isDerivedFrom(const AcRxClass* other) const;

    // A new object owned by the caller; null for abstract classes.
    AcRxObject* create() const { return m_create == NULL ? NULL : m_create(); }

private:
    AcRxClass(const AcRxClass&);
    AcRxClass& operator=(const AcRxClass&);

    const ACHAR* m_name;
    const ACHAR* m_dxfName;
    AcRxClass* m_parent;
    AcRxCreateFunction m_create;
};

// The hierarchy needs no rebuilding here, because every descriptor knows its parent from the start; modules call this
// after their rxInit() calls all the same.
ARX_API void acrxBuildClassHierarchy();
