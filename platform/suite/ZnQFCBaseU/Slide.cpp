#include "Slide.h"

#include "SlideParser.h"

#include <filesystem>
#include <fstream>

namespace Tevrin
{
namespace
{
SlideResult ReadBytes(const wchar_t* path, std::vector<unsigned char>& bytes)
{
    std::ifstream file(std::filesystem::path(path), std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? static_cast<std::streamoff>(file.tellg()) : -1;
    if (size < 0)
        return kSlideNotOpened;
    if (size > static_cast<std::streamoff>(Slide::kLargestSlide))
        return kSlideTooLarge;
    bytes.resize(static_cast<size_t>(size));
    file.seekg(0);
    return file.read(reinterpret_cast<char*>(bytes.data()), size) ? kSlideGood : kSlideNotOpened;
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
