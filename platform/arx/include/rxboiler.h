// Macros that give a class its run-time type; see rxobject.h.
#pragma once

#include "rxobject.h"

#define ACRX_DECLARE_MEMBERS(CLASS_NAME)                                                                               \
    virtual AcRxClass* isA() const;                                                                                    \
    static AcRxClass* desc();                                                                                          \
    static CLASS_NAME* cast(const AcRxObject* object)                                                                  \
    {                                                                                                                  \
        return object == NULL || !object->isKindOf(CLASS_NAME::desc())                                                 \
                   ? NULL                                                                                              \
                   : static_cast<CLASS_NAME*>(const_cast<AcRxObject*>(object));                                        \
    }                                                                                                                  \
    static void rxInit()

#define ACRX_DEFINE_TYPE(CLASS_NAME, PARENT_CLASS, CREATE, DXF_NAME)                                                   \
    AcRxClass* CLASS_NAME::desc()                                                                                      \
    {                                                                                                                  \
        static AcRxClass descriptor(ACRX_T(#CLASS_NAME), PARENT_CLASS::desc(), CREATE, DXF_NAME);                      \
        return &descriptor;                                                                                            \
    }                                                                                                                  \
    AcRxClass* CLASS_NAME::isA() const                                                                                 \
    {                                                                                                                  \
        return CLASS_NAME::desc();                                                                                     \
    }                                                                                                                  \
    void CLASS_NAME::rxInit()                                                                                          \
    {                                                                                                                  \
        CLASS_NAME::desc();                                                                                            \
    }

// For abstract classes.
#define ACRX_NO_CONS_DEFINE_MEMBERS(CLASS_NAME, PARENT_CLASS) ACRX_DEFINE_TYPE(CLASS_NAME, PARENT_CLASS, NULL, NULL)

// For classes that can be created by their descriptor.
#define ACRX_CONS_DEFINE_MEMBERS(CLASS_NAME, PARENT_CLASS, VERNO)                                                      \
    static AcRxObject* create##CLASS_NAME()                                                                            \
    {                                                                                                                  \
        return new CLASS_NAME;                                                                                         \
    }                                                                                                                  \
    ACRX_DEFINE_TYPE(CLASS_NAME, PARENT_CLASS, &create##CLASS_NAME, NULL)

// For classes that drawings hold: DXF_NAME (without quotation marks) is the record name in DXF files.
#define ACRX_DXF_DEFINE_MEMBERS(CLASS_NAME, PARENT_CLASS, DWG_VERSION, MAINTENANCE_VERSION, PROXY_FLAGS, DXF_NAME,     \
                                APPLICATION)                                                                           \
    static AcRxObject* create##CLASS_NAME()                                                                            \
    {                                                                                                                  \
        return new CLASS_NAME;                                                                                         \
    }                                                                                                                  \
    ACRX_DEFINE_TYPE(CLASS_NAME, PARENT_CLASS, &create##CLASS_NAME, ACRX_T(#DXF_NAME))
