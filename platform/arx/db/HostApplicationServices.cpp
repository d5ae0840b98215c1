#include "dbapserv.h"

#include "adesk.h"

#include <cwchar>
#include <string>

#include "arx/WindowsTypes.h"

namespace
{

bool IsFile(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring BesideProgram(const ACHAR* fileName)
{
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(NULL, path, MAX_PATH);
    const std::wstring program(path);
    return program.substr(0, program.find_last_of(L'\\') + 1) + fileName;
}

} // namespace

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
    if (!IsFile(path))
    {
        path = BesideProgram(fileName);
    }
    if (!IsFile(path))
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
