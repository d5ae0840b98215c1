// Result codes of the host interface. Acad::eOk is zero: `if (es != Acad::eOk)` is the usual test.
#pragma once

#include "adesk.h"
#include "arx/Api.h"

namespace Acad
{

enum ErrorStatus
{
    eOk = 0,
    eNotImplementedYet = 1,
    eNotApplicable = 2,
    eInvalidInput = 3,
    eAmbiguousInput = 4,
    eAmbiguousOutput = 5,
    eOutOfMemory = 6,
    eBufferTooSmall = 7,
    eInvalidOpenState = 8,
    eEntityInInactiveLayout = 9,
    eHandleExists = 10,
    eNullHandle = 11,
    eBrokenHandle = 12,
    eUnknownHandle = 13,
    eHandleInUse = 14,
    eNullObjectPointer = 15,
    eNullObjectId = 16,
    eNullBlockName = 17,
    eContainerNotEmpty = 18,
    eNullEntityPointer = 19,
    eIllegalEntityType = 20,
    eKeyNotFound = 21,
    eDuplicateKey = 22,
    eInvalidIndex = 23,
    eCharacterNotFound = 24,
    eAlreadyInDb = 25,
    eOutOfDisk = 26,
    eDeletedEntry = 27,
    eNegativeValueNotAllowed = 28,
    eInvalidExtents = 29,
    eInvalidAdsName = 30,
    eInvalidSymbolTableName = 31,
    eInvalidKey = 32,
    eWrongObjectType = 33,
    eWrongDatabase = 34,
    eObjectToBeDeleted = 35,
    eInvalidDwgVersion = 36,
    eAnonymousEntry = 37,
    eIllegalReplacement = 38,
    eEndOfObject = 39,
    eEndOfFile = 40,
    eFileNotFound,
    eFileAccessErr,
    eDwgObjectImproperlyRead,
    eInvalidDxfCode,
    eInvalidResBuf,
    eNoDatabase,
    eNoDocument,
    eNotInDatabase,
    eNotOpenForRead,
    eNotOpenForWrite,
    eWasOpenForRead,
    eWasOpenForWrite,
    eWasNotifying,
    eWasErased,
    ePermanentlyErased,
    eAtMaxReaders,
    eUnknownObjectId,
    eNullExtents,
    eNullPtr,
    eNotAnEntity,
    eDegenerateGeometry,
    eCannotScaleNonUniformly,
    eOnLockedLayer,
    eNoMatchingProperty,
    eNotInContext,
    eDocumentSwitchDisabled,
    eLockViolation,
    eUserBreak,
    eNotThatKindOfClass
};

} // namespace Acad

// The code's name, "eOk" and so on; for traces. Never null.
ARX_API const ACHAR* acadErrorStatusText(Acad::ErrorStatus es);
