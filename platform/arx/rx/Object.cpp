#include "rxobject.h"

AcRxObject::~AcRxObject() {}

AcRxClass* AcRxObject::desc()
{
    static AcRxClass descriptor(ACRX_T("AcRxObject"), NULL);
    return &descriptor;
}

AcRxClass* AcRxObject::isA() const
{
    return AcRxObject::desc();
}

bool AcRxObject::isKindOf(const AcRxClass* other) const
{
    return isA()->isDerivedFrom(other);
}

AcRxObject* AcRxObject::clone() const
{
    return NULL;
}

Acad::ErrorStatus AcRxObject::copyFrom(const AcRxObject* /*other*/)
{
    return Acad::eNotApplicable;
}

bool AcRxObject::isEqualTo(const AcRxObject* other) const
{
    return this == other;
}
