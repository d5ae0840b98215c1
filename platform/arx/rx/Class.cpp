#include "rxclass.h"

AcRxClass::AcRxClass(const ACHAR* name, AcRxClass* parent, AcRxCreateFunction create, const ACHAR* dxfName)
    : m_name(name), m_dxfName(dxfName), m_parent(parent), m_create(create)
{
}

AcRxClass* AcRxClass::desc()
{
    static AcRxClass descriptor(ACRX_T("AcRxClass"), AcRxObject::desc());
    return &descriptor;
}

AcRxClass* AcRxClass::isA() const
{
    return AcRxClass::desc();
}

bool AcRxClass::isDerivedFrom(const AcRxClass* other) const
{
    for (const AcRxClass* type = this; type != NULL; type = type->m_parent)
    {
        if (type == other)
        {
            return true;
        }
    }
    return false;
}

void acrxBuildClassHierarchy() {}
