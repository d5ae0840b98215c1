// Enumerations and reserved names of the drawing database.
#pragma once

#include "adesk.h"

#define ACDB_MODEL_SPACE ACRX_T("*Model_Space")
#define ACDB_PAPER_SPACE ACRX_T("*Paper_Space")

struct AcDb
{
    // Many readers or one writer. kForNotify reads beside both.
    enum OpenMode
    {
        kForRead = 0,
        kForWrite = 1,
        kForNotify = 2
    };

    enum Visibility
    {
        kInvisible = 1,
        kVisible = 0
    };

    enum LineWeight
    {
        kLnWtByLayer = -1,
        kLnWtByBlock = -2,
        kLnWtByLwDefault = -3
    };
};
