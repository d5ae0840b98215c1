// What a program file says of itself in its headers, read without loading it: so that a module that the system refuses
// can be explained. No window.
#pragma once

#include "arx/Api.h"

#include <functional>
#include <string>
#include <vector>

namespace arxrx
{

struct ModuleImage
{
    bool isProgram = false; // the file is a program or a DLL of Windows
    bool is64Bit = false;
    std::vector<std::string> imports; // the DLLs that it names, in its order; for 64-bit files only
};

// Reads the headers. What contradicts itself or lies outside of `bytes` counts as missing.
ARX_API ModuleImage ReadModuleImage(const std::string& bytes);

// A DLL that a module needs and that nobody finds.
struct MissingImport
{
    std::string name;     // empty: none is missing
    std::string neededBy; // the DLL that names it; empty: the module itself
};

// Answers whether a DLL is found; `image` gets what it needs in turn, or stays empty where that is nobody's business.
typedef std::function<bool(const std::string& name, ModuleImage& image)> FindImport;

// The first DLL missing, where those that are found are asked for theirs, each once.
ARX_API MissingImport FindMissingImport(const ModuleImage& module, const FindImport& find);

} // namespace arxrx
