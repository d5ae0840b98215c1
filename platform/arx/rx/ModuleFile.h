// A module's file: where it lies and its library in the process.
#pragma once

#include "rxdefs.h"

#include <string>
#include <vector>

#include "arx/WindowsTypes.h"

namespace arxrx
{

// The file name with ".arx" where it has no extension.
std::wstring WithExtension(const std::wstring& name);
// The part behind the last separator, and the part before it with the separator ("" without one).
std::wstring FileNameOf(const std::wstring& path);
std::wstring FolderOf(const std::wstring& path);
std::wstring ProgramFolder();
// True for a file, false for a folder and for nothing.
bool IsFile(const std::wstring& path);
// "" for no path at all.
std::wstring FullPath(const std::wstring& path);

// Full path of `name`: as it stands when it has a folder, else in the first of `folders` that holds it; "" otherwise.
std::wstring FindModuleFile(const std::wstring& name, const std::vector<std::wstring>& folders);

// Owns one reference to a library.
class ModuleFile
{
public:
    ModuleFile() = default;
    ~ModuleFile();
    ModuleFile(const ModuleFile&) = delete;
    ModuleFile& operator=(const ModuleFile&) = delete;

    // False with a Chinese reason when it is no module of this host: not loadable, without an entry point, or built
    // for another generation of the interface.
    bool Open(const std::wstring& path, std::wstring& reason);
    AcRx::AppRetCode Send(AcRx::AppMsgCode message, void* packet) const { return m_entry(message, packet); }
    bool Holds(const void* address) const;

private:
    bool LoadFile(const std::wstring& path, std::wstring& reason);

    HMODULE m_library = nullptr;
    AcRxAppEntryPoint m_entry = nullptr;
};

} // namespace arxrx
