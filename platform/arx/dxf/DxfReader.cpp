#include "DxfReader.h"

#include "BlockCheck.h"
#include "DxfError.h"
#include "DxfImport.h"
#include "DxfParser.h"

#include <cctype>
#include <new>
#include <numeric>
#include <string>
#include <string_view>

#include <windows.h>

namespace arxdxf
{

namespace
{

constexpr std::string_view kBinaryMark = "AutoCAD Binary DXF";
// "AC1015" and the like are the first bytes of a drawing in the host's own format.
constexpr std::string_view kDwgMark = "AC1";
constexpr size_t kDwgMarkLength = 6;

class FileHandle
{
public:
    explicit FileHandle(const wchar_t* path)
        : m_handle(CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, NULL, OPEN_EXISTING, 0, NULL))
    {
    }
    ~FileHandle()
    {
        if (IsOpen())
        {
            CloseHandle(m_handle);
        }
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

// ReadFile takes at most this much at once, which leaves room below the limit of its count.
constexpr Adesk::Int64 kReadStep = 1 << 26;

std::string ReadWholeFile(const wchar_t* path)
{
    const std::wstring name = path == nullptr ? L"" : path;
    FileHandle file(name.c_str());
    LARGE_INTEGER size = {};
    if (!file.IsOpen() || !GetFileSizeEx(file.Get(), &size))
    {
        throw DxfError{0, L"无法打开文件：" + name};
    }
    std::string data(static_cast<size_t>(size.QuadPart), '\0');
    for (Adesk::Int64 done = 0; done < size.QuadPart;)
    {
        const DWORD wanted = static_cast<DWORD>(std::min<Adesk::Int64>(size.QuadPart - done, kReadStep));
        DWORD got = 0;
        if (!ReadFile(file.Get(), &data[static_cast<size_t>(done)], wanted, &got, NULL) || got == 0)
        {
            throw DxfError{0, L"无法读取文件：" + name};
        }
        done += got;
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
