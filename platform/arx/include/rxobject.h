// AcRxObject: root of the host's classes, with run-time types of their own (AcRxClass), because the compiler's type
// information does not reach across modules that were built apart.
//
// A class opts in with ACRX_DECLARE_MEMBERS in its declaration and one of the ACRX_..._DEFINE_MEMBERS macros in one
// source file (rxboiler.h). Then X::desc() is its descriptor, X::cast(p) a checked down-cast (null for null and for
// other types), p->isA() the object's own class and p->isKindOf(X::desc()) the inheritance test.
#pragma once

#include "adesk.h"
#include "acadstrc.h"
#include "rxdefs.h"

#include <stddef.h>

class AcRxClass;

class ARX_API AcRxObject
{
public:
    virtual ~AcRxObject();

    static AcRxClass* desc();
    static AcRxObject* cast(const AcRxObject* object) { return const_cast<AcRxObject*>(object); }

    virtual AcRxClass* isA() const;
    bool isKindOf(const AcRxClass* other) const;

    // A copy owned by the caller, or null where a class does not support copying.
    virtual AcRxObject* clone() const;
    virtual Acad::ErrorStatus copyFrom(const AcRxObject* other);
    virtual bool isEqualTo(const AcRxObject* other) const;

protected:
    AcRxObject() {}
};

#include "rxclass.h"
#include "rxboiler.h"
