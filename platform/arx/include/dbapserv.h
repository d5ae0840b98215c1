// What the database asks of the program around it.
#pragma once

#include "acadstrc.h"

#include "arx/Api.h"

class AcDbDatabase;

class ARX_API AcDbHostApplicationServices
{
public:
    virtual ~AcDbHostApplicationServices();

    // The drawing of the current document; null in the zero-document state.
    AcDbDatabase* workingDatabase() const { return m_workingDatabase; }
    void setWorkingDatabase(AcDbDatabase* database) { m_workingDatabase = database; }

    // The program's name.
    virtual const ACHAR* program();
    // Full path of `fileName`, looked for in the folder of the program and as it stands. eFileNotFound otherwise;
    // `size` counts characters of `fullPath`.
    virtual Acad::ErrorStatus findFile(ACHAR* fullPath, int size, const ACHAR* fileName);

    AcDbHostApplicationServices();

private:
    AcDbHostApplicationServices(const AcDbHostApplicationServices&);
    AcDbHostApplicationServices& operator=(const AcDbHostApplicationServices&);

    AcDbDatabase* m_workingDatabase;
};

ARX_API AcDbHostApplicationServices* acdbHostApplicationServices();
