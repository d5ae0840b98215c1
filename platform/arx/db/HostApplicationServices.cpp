#include "dbapserv.h"

#include "adesk.h"
#include "arx/rx/ModuleFile.h"

#include <cwchar>
#include <string>

#include "arx/WindowsTypes.h"

AcDbHostApplicationServices::AcDbHostApplicationServices() : m_workingDatabase(nullptr) {}

AcDbHostApplicationServices::~AcDbHostApplicationServices() {}

const ACHAR* AcDbHostApplicationServices::program()
{
    return ACRX_T("arxhost");
}

Acad::ErrorStatus AcDbHostApplicationServices::findFile(ACHAR* fullPath, int size, const ACHAR* fileName)
{
    if (fullPath == nullptr || size <= 0 || fileName == nullptr || fileName[0] == 0)
    {
        return Acad::eInvalidInput;
    }
    std::wstring path = fileName;
    if (!arxrx::IsFile(path))
    {
        path = arxrx::ProgramFolder() + fileName;
    }
    if (!arxrx::IsFile(path))
    {
        return Acad::eFileNotFound;
    }
    const DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(size), fullPath, NULL);
    return length > 0 && length < static_cast<DWORD>(size) ? Acad::eOk : Acad::eBufferTooSmall;
}

AcDbHostApplicationServices* acdbHostApplicationServices()
{
    // Never destroyed: drawings may go while the process ends.
    static AcDbHostApplicationServices* const services = new AcDbHostApplicationServices;
    return services;
}
