// The headers of program files: what a refused module is explained by.
#include "arx/rx/ModuleImage.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

using arxrx::FindMissingImport;
using arxrx::MissingImport;
using arxrx::ModuleImage;
using arxrx::ReadModuleImage;

namespace
{

std::string OwnFile()
{
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

ModuleImage WithImports(const std::vector<std::string>& imports)
{
    ModuleImage image;
    image.isProgram = image.is64Bit = true;
    image.imports = imports;
    return image;
}

// DLLs that are there, with what they need in turn.
typedef std::map<std::string, std::vector<std::string>> Folder;

MissingImport FindIn(const Folder& folder, const std::vector<std::string>& imports)
{
    return FindMissingImport(WithImports(imports), [&](const std::string& name, ModuleImage& image) {
        const auto found = folder.find(name);
        if (found != folder.end())
            image = WithImports(found->second);
        return found != folder.end();
    });
}

} // namespace

TEST(ModuleImage, NamesTheDllsOfARealProgram)
{
    const ModuleImage image = ReadModuleImage(OwnFile());
    EXPECT_TRUE(image.isProgram);
    EXPECT_TRUE(image.is64Bit);
    EXPECT_EQ(1, std::count(image.imports.begin(), image.imports.end(), "arx.dll"));
    EXPECT_EQ(1, std::count(image.imports.begin(), image.imports.end(), "KERNEL32.dll"));
}

TEST(ModuleImage, AcceptsAFileThatIsCutOffAnywhere)
{
    const std::string whole = OwnFile();
    const size_t headers = 2048;
    for (size_t length = 0; length < headers; ++length)
    {
        const ModuleImage image = ReadModuleImage(whole.substr(0, length));
        EXPECT_TRUE(image.imports.empty()) << "the imports lie behind the headers; cut at " << length;
    }
    const size_t half = whole.size() / 2;
    EXPECT_LE(ReadModuleImage(whole.substr(0, half)).imports.size(), ReadModuleImage(whole).imports.size());
}

TEST(ModuleImage, IsNoProgramWithoutItsMarks)
{
    EXPECT_FALSE(ReadModuleImage("").isProgram);
    EXPECT_FALSE(ReadModuleImage("MZ").isProgram);
    EXPECT_FALSE(ReadModuleImage(std::string(4096, 'x')).isProgram);
    std::string lost = "MZ" + std::string(62, '\xFF'); // the second header lies outside of everything
    EXPECT_FALSE(ReadModuleImage(lost).isProgram);
    lost[0x3F] = '\x7F';
    EXPECT_FALSE(ReadModuleImage(lost).isProgram);
}

TEST(MissingImport, IsTheFirstThatNobodyFinds)
{
    const Folder folder = {{"a.dll", {}}, {"b.dll", {}}};
    EXPECT_EQ("", FindIn(folder, {"a.dll", "b.dll"}).name);
    const MissingImport missing = FindIn(folder, {"a.dll", "c.dll", "d.dll"});
    EXPECT_EQ("c.dll", missing.name);
    EXPECT_EQ("", missing.neededBy);
}

TEST(MissingImport, IsLookedForInWhatTheModuleNeeds)
{
    const MissingImport missing = FindIn({{"a.dll", {"b.dll"}}, {"b.dll", {"deep.dll"}}}, {"a.dll"});
    EXPECT_EQ("deep.dll", missing.name);
    EXPECT_EQ("b.dll", missing.neededBy);
}

TEST(MissingImport, EndsWithDllsThatNeedEachOther)
{
    EXPECT_EQ("", FindIn({{"a.dll", {"b.dll"}}, {"b.dll", {"a.dll"}}}, {"a.dll"}).name);
}
