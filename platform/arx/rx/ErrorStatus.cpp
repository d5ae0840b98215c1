#include "acadstrc.h"

#include <map>

namespace
{

#define ARX_STATUS(CODE)                                                                                               \
    {                                                                                                                  \
        Acad::CODE, ACRX_T(#CODE)                                                                                      \
    }

const std::map<Acad::ErrorStatus, const ACHAR*>& StatusNames()
{
    static const std::map<Acad::ErrorStatus, const ACHAR*> names = {
        ARX_STATUS(eOk),
        ARX_STATUS(eNotImplementedYet),
        ARX_STATUS(eNotApplicable),
        ARX_STATUS(eInvalidInput),
        ARX_STATUS(eAmbiguousInput),
        ARX_STATUS(eAmbiguousOutput),
        ARX_STATUS(eOutOfMemory),
        ARX_STATUS(eBufferTooSmall),
        ARX_STATUS(eInvalidOpenState),
        ARX_STATUS(eEntityInInactiveLayout),
        ARX_STATUS(eHandleExists),
        ARX_STATUS(eNullHandle),
        ARX_STATUS(eBrokenHandle),
        ARX_STATUS(eUnknownHandle),
        ARX_STATUS(eHandleInUse),
        ARX_STATUS(eNullObjectPointer),
        ARX_STATUS(eNullObjectId),
        ARX_STATUS(eNullBlockName),
        ARX_STATUS(eContainerNotEmpty),
        ARX_STATUS(eNullEntityPointer),
        ARX_STATUS(eIllegalEntityType),
        ARX_STATUS(eKeyNotFound),
        ARX_STATUS(eDuplicateKey),
        ARX_STATUS(eInvalidIndex),
        ARX_STATUS(eCharacterNotFound),
        ARX_STATUS(eAlreadyInDb),
        ARX_STATUS(eOutOfDisk),
        ARX_STATUS(eDeletedEntry),
        ARX_STATUS(eNegativeValueNotAllowed),
        ARX_STATUS(eInvalidExtents),
        ARX_STATUS(eInvalidAdsName),
        ARX_STATUS(eInvalidSymbolTableName),
        ARX_STATUS(eInvalidKey),
        ARX_STATUS(eWrongObjectType),
        ARX_STATUS(eWrongDatabase),
        ARX_STATUS(eObjectToBeDeleted),
        ARX_STATUS(eInvalidDwgVersion),
        ARX_STATUS(eAnonymousEntry),
        ARX_STATUS(eIllegalReplacement),
        ARX_STATUS(eEndOfObject),
        ARX_STATUS(eEndOfFile),
        ARX_STATUS(eFileNotFound),
        ARX_STATUS(eFileAccessErr),
        ARX_STATUS(eDwgObjectImproperlyRead),
        ARX_STATUS(eInvalidDxfCode),
        ARX_STATUS(eInvalidResBuf),
        ARX_STATUS(eNoDatabase),
        ARX_STATUS(eNoDocument),
        ARX_STATUS(eNotInDatabase),
        ARX_STATUS(eNotOpenForRead),
        ARX_STATUS(eNotOpenForWrite),
        ARX_STATUS(eWasOpenForRead),
        ARX_STATUS(eWasOpenForWrite),
        ARX_STATUS(eWasNotifying),
        ARX_STATUS(eWasErased),
        ARX_STATUS(ePermanentlyErased),
        ARX_STATUS(eAtMaxReaders),
        ARX_STATUS(eUnknownObjectId),
        ARX_STATUS(eNullExtents),
        ARX_STATUS(eNullPtr),
        ARX_STATUS(eNotAnEntity),
        ARX_STATUS(eDegenerateGeometry),
        ARX_STATUS(eCannotScaleNonUniformly),
        ARX_STATUS(eOnLockedLayer),
        ARX_STATUS(eNoMatchingProperty),
        ARX_STATUS(eNotInContext),
        ARX_STATUS(eDocumentSwitchDisabled),
        ARX_STATUS(eLockViolation),
        ARX_STATUS(eUserBreak),
        ARX_STATUS(eNotThatKindOfClass),
    };
    return names;
}

} // namespace

const ACHAR* acadErrorStatusText(Acad::ErrorStatus es)
{
    const auto found = StatusNames().find(es);
    return found == StatusNames().end() ? ACRX_T("eUnknown") : found->second;
}
