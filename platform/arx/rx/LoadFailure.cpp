#include "LoadFailure.h"

#include "ModuleFile.h"
#include "ModuleImage.h"
#include "arx/ed/FileTrouble.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace arxrx
{

namespace
{

// Empty when the file can't be read.
std::string ReadWholeFile(const std::wstring& path)
{
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

std::wstring Wide(const std::string& name)
{
    return std::wstring(name.begin(), name.end());
}

// The folders of the system and of the path, without the program's own: those are asked for by name.
bool IsInSystem(const std::wstring& name)
{
    return SearchPathW(nullptr, name.c_str(), nullptr, 0, nullptr, nullptr) != 0;
}

bool FindImportFile(const std::wstring& moduleFolder, const std::string& import, ModuleImage& image)
{
    const std::wstring name = Wide(import);
    if (GetModuleHandleW(name.c_str()) != nullptr)
    {
        return true;
    }
    const std::wstring path = FindModuleFile(name, {moduleFolder, ProgramFolder()});
    if (path.empty())
    {
        // Windows gives some of its DLLs names that no file bears.
        return name.find(L"api-ms-") == 0 || name.find(L"ext-ms-") == 0 || IsInSystem(name);
    }
    image = ReadModuleImage(ReadWholeFile(path));
    return true;
}

std::wstring MissingImportText(const std::wstring& path, const ModuleImage& image)
{
    const std::wstring folder = FolderOf(path);
    const MissingImport missing = FindMissingImport(
        image, [&](const std::string& name, ModuleImage& found) { return FindImportFile(folder, name, found); });
    if (missing.name.empty())
    {
        return L"缺少它所依赖的文件";
    }
    const std::wstring chain = missing.neededBy.empty() ? L"" : L"（" + Wide(missing.neededBy) + L" 要用）";
    return L"缺少它所依赖的文件 " + Wide(missing.name) + chain + L"，请把该文件放到模块的文件夹或主机的文件夹 " +
           ProgramFolder() + L" 中";
}

std::wstring SystemText(unsigned long error)
{
    switch (error)
    {
    case ERROR_PROC_NOT_FOUND:
        return L"它所依赖的文件版本不符，请用同一版本的开发包重新编译";
    case ERROR_DLL_INIT_FAILED:
        return L"它的初始化失败";
    default:
        return L"系统错误 " + std::to_wstring(error);
    }
}

} // namespace

std::wstring LoadFailure(const std::wstring& path, unsigned long error)
{
    if (error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION)
    {
        return arxhost::ReadTrouble(path);
    }
    const ModuleImage image = ReadModuleImage(ReadWholeFile(path));
    if (!image.isProgram)
    {
        return L"它不是程序模块（.arx 或 .dll），或者文件已损坏";
    }
    if (!image.is64Bit)
    {
        return L"它不是 64 位模块，而本程序是 64 位的，请换用 64 位的版本";
    }
    return error == ERROR_MOD_NOT_FOUND ? MissingImportText(path, image) : SystemText(error);
}

} // namespace arxrx
