#include "Slide.h"

#include "SlideParser.h"

namespace Tevrin
{
namespace
{
class FileHandle
{
public:
    explicit FileHandle(const wchar_t* path)
        : m_handle(CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr))
    {
    }
    ~FileHandle()
    {
        if (IsOpen())
            CloseHandle(m_handle);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

SlideResult ReadBytes(const wchar_t* path, std::vector<unsigned char>& bytes)
{
    const FileHandle file(path);
    LARGE_INTEGER size = {};
    if (!file.IsOpen() || !GetFileSizeEx(file.Get(), &size))
        return kSlideNotOpened;
    if (size.QuadPart > static_cast<LONGLONG>(Slide::kLargestSlide))
        return kSlideTooLarge;
    bytes.resize(static_cast<size_t>(size.QuadPart));
    DWORD count = 0;
    if (!bytes.empty() && !ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        return kSlideNotOpened;
    bytes.resize(count);
    return kSlideGood;
}
} // namespace

const wchar_t* DescribeSlideResult(SlideResult result)
{
    switch (result)
    {
    case kSlideGood:
        return L"";
    case kSlideNotOpened:
        return L"无法打开幻灯片文件";
    case kSlideTooLarge:
        return L"幻灯片文件过大";
    case kSlideEmpty:
        return L"幻灯片文件为空";
    case kSlideForeign:
        return L"不是幻灯片文件";
    case kSlideUnknownLevel:
        return L"不支持此版本的幻灯片";
    case kSlideCutOff:
        return L"幻灯片文件不完整";
    default:
        return L"幻灯片文件已损坏";
    }
}

Slide::Slide() : m_level(0), m_width(0), m_height(0), m_aspect(0) {}

SlideResult Slide::Read(const wchar_t* path)
{
    Clear();
    std::vector<unsigned char> bytes;
    const SlideResult result = ReadBytes(path, bytes);
    return result == kSlideGood ? Parse(bytes.data(), bytes.size()) : result;
}

SlideResult Slide::Parse(const unsigned char* bytes, size_t count)
{
    Clear();
    if (count > kLargestSlide)
        return kSlideTooLarge;
    const SlideResult result = SlideParser(bytes, count, *this).Run();
    if (result != kSlideGood)
        Clear();
    return result;
}

void Slide::Clear()
{
    *this = Slide();
}
} // namespace Tevrin
