#include "ModuleImage.h"

#include <windows.h>

#include <cstring>
#include <set>

namespace arxrx
{

namespace
{

// Reads what lies inside of the file, and nothing else.
class ImageBytes
{
public:
    explicit ImageBytes(const std::string& bytes) : m_bytes(bytes) {}

    template<class Value>
    bool Read(size_t offset, Value& value) const
    {
        if (offset > m_bytes.size() || m_bytes.size() - offset < sizeof(Value))
        {
            return false;
        }
        std::memcpy(&value, m_bytes.data() + offset, sizeof(Value));
        return true;
    }

    // A text that ends inside of the file; empty otherwise.
    std::string Text(size_t offset) const
    {
        const size_t end = offset < m_bytes.size() ? m_bytes.find('\0', offset) : std::string::npos;
        return end == std::string::npos ? std::string() : m_bytes.substr(offset, end - offset);
    }

private:
    const std::string& m_bytes;
};

// Addresses in a loaded image, told by the file's sections where they stand in the file.
class SectionTable
{
public:
    SectionTable(const ImageBytes& bytes, size_t offset, unsigned count)
    {
        IMAGE_SECTION_HEADER section;
        for (unsigned i = 0; i < count && bytes.Read(offset + i * sizeof(section), section); ++i)
        {
            m_sections.push_back(section);
        }
    }

    // False for an address that no section holds.
    bool FileOffset(DWORD address, size_t& offset) const
    {
        for (const IMAGE_SECTION_HEADER& section : m_sections)
        {
            if (address >= section.VirtualAddress && address - section.VirtualAddress < section.SizeOfRawData)
            {
                offset = size_t(section.PointerToRawData) + (address - section.VirtualAddress);
                return true;
            }
        }
        return false;
    }

private:
    std::vector<IMAGE_SECTION_HEADER> m_sections;
};

std::vector<std::string> ReadImports(const ImageBytes& bytes, const SectionTable& sections, DWORD address)
{
    std::vector<std::string> names;
    size_t offset = 0;
    IMAGE_IMPORT_DESCRIPTOR import;
    if (!sections.FileOffset(address, offset))
    {
        return names;
    }
    while (bytes.Read(offset, import) && import.Name != 0)
    {
        size_t text = 0;
        const std::string name = sections.FileOffset(import.Name, text) ? bytes.Text(text) : std::string();
        if (!name.empty())
        {
            names.push_back(name);
        }
        offset += sizeof(import);
    }
    return names;
}

std::string Lower(std::string name)
{
    for (char& character : name)
    {
        character = character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return name;
}

MissingImport FindMissing(const ModuleImage& module, const std::string& name, const FindImport& find,
                          std::set<std::string>& seen)
{
    for (const std::string& import : module.imports)
    {
        ModuleImage image;
        if (!seen.insert(Lower(import)).second)
        {
            continue;
        }
        if (!find(import, image))
        {
            return {import, name};
        }
        const MissingImport deeper = FindMissing(image, import, find, seen);
        if (!deeper.name.empty())
        {
            return deeper;
        }
    }
    return MissingImport();
}

} // namespace

ModuleImage ReadModuleImage(const std::string& file)
{
    ModuleImage image;
    const ImageBytes bytes(file);
    IMAGE_DOS_HEADER dos;
    DWORD signature = 0;
    IMAGE_FILE_HEADER header;
    if (!bytes.Read(0, dos) || dos.e_magic != IMAGE_DOS_SIGNATURE || dos.e_lfanew < 0)
    {
        return image;
    }
    size_t offset = static_cast<size_t>(dos.e_lfanew);
    if (!bytes.Read(offset, signature) || signature != IMAGE_NT_SIGNATURE ||
        !bytes.Read(offset + sizeof(signature), header))
    {
        return image;
    }
    image.isProgram = true;
    image.is64Bit = header.Machine == IMAGE_FILE_MACHINE_AMD64;
    offset += sizeof(signature) + sizeof(header);
    IMAGE_OPTIONAL_HEADER64 optional;
    if (!image.is64Bit || !bytes.Read(offset, optional) || optional.NumberOfRvaAndSizes <= IMAGE_DIRECTORY_ENTRY_IMPORT)
    {
        return image;
    }
    const SectionTable sections(bytes, offset + header.SizeOfOptionalHeader, header.NumberOfSections);
    image.imports = ReadImports(bytes, sections, optional.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
    return image;
}

MissingImport FindMissingImport(const ModuleImage& module, const FindImport& find)
{
    std::set<std::string> seen;
    return FindMissing(module, std::string(), find, seen);
}

} // namespace arxrx
