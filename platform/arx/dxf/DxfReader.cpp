#include "DxfReader.h"

#include "BlockCheck.h"
#include "DxfError.h"
#include "DxfImport.h"
#include "DxfParser.h"
#include "arx/ed/FileTrouble.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <new>
#include <numeric>
#include <string>
#include <string_view>

namespace arxdxf
{

namespace
{

constexpr std::string_view kBinaryMark = "AutoCAD Binary DXF";
// "AC1015" and the like are the first bytes of a drawing in the host's own format.
constexpr std::string_view kDwgMark = "AC1";
constexpr size_t kDwgMarkLength = 6;

std::string ReadWholeFile(const wchar_t* path)
{
    const std::wstring name = path == nullptr ? L"" : path;
    std::ifstream file(std::filesystem::path(name), std::ios::binary | std::ios::ate);
    if (!file)
    {
        throw DxfError{0, L"无法打开文件：" + name + L"（" + arxhost::ReadTrouble(name) + L"）"};
    }
    const std::streamoff size = file.tellg();
    std::string data(static_cast<size_t>(std::max<std::streamoff>(size, 0)), '\0');
    file.seekg(0);
    if (size < 0 || !file.read(&data[0], size))
    {
        throw DxfError{0, L"无法读取文件：" + name};
    }
    return data;
}

bool IsDwg(std::string_view data)
{
    return data.size() > kDwgMarkLength && data.substr(0, kDwgMark.size()) == kDwgMark &&
           std::isdigit(static_cast<unsigned char>(data[kDwgMarkLength - 1])) && data[kDwgMarkLength] == '\0';
}

void CheckKind(std::string_view data)
{
    if (data.empty())
    {
        throw DxfError{0, L"文件是空的"};
    }
    if (data.substr(0, kBinaryMark.size()) == kBinaryMark)
    {
        throw DxfError{0, L"这是二进制 DXF 文件，请另存为文本（ASCII）DXF"};
    }
    if (IsDwg(data))
    {
        throw DxfError{0, L"这是 DWG 文件，请另存为文本（ASCII）DXF"};
    }
}

void ReadInto(std::string_view data, AcDbDatabase& database, DxfResult& result)
{
    CheckKind(data);
    DxfContext context(result);
    DxfParser(data, context).Parse();
    CheckBlocks(context.drawing);
    context.CloseWarnings();
    DxfImport(context.drawing, database, result).Run();
}

// Runs `read` and turns what it throws into the result's error.
template<class Read>
bool Guarded(DxfResult& result, Read read)
{
    result = DxfResult();
    DxfError error;
    try
    {
        read();
        return true;
    }
    catch (const DxfError& caught)
    {
        error = caught;
    }
    catch (const std::bad_alloc&)
    {
        error.text = L"内存不足";
    }
    result = DxfResult();
    result.errorLine = error.line;
    result.error = WithLine(error.line, error.text);
    return false;
}

int Sum(const std::map<std::wstring, int>& counts)
{
    return std::accumulate(counts.begin(), counts.end(), 0,
                           [](int sum, const std::pair<const std::wstring, int>& count) { return sum + count.second; });
}

} // namespace

int DxfResult::ReadCount() const
{
    return Sum(read);
}

int DxfResult::SkippedCount() const
{
    return Sum(skipped);
}

bool ReadDxf(const wchar_t* path, AcDbDatabase& database, DxfResult& result)
{
    return Guarded(result, [&] { ReadInto(ReadWholeFile(path), database, result); });
}

bool ReadDxfText(const char* data, size_t size, AcDbDatabase& database, DxfResult& result)
{
    return Guarded(result, [&] { ReadInto(std::string_view(data, size), database, result); });
}

} // namespace arxdxf
