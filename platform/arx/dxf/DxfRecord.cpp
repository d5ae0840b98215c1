#include "DxfRecord.h"

#include "DxfError.h"
#include "arx/ents/Angles.h"

#include <charconv>
#include <cmath>

namespace arxdxf
{

namespace
{

constexpr int kNextAxis = 10;
constexpr int kNormalCode = 210;
constexpr double kDegree = arxents::kPi / 180;

// Numbers may carry a plus sign, which the conversion does not take.
std::string_view WithoutPlus(std::string_view text)
{
    return !text.empty() && text.front() == '+' ? text.substr(1) : text;
}

[[noreturn]] void FailValue(const DxfGroup& group, const wchar_t* why)
{
    throw DxfError{group.ValueLine(),
                   L"组码 " + std::to_wstring(group.code) + L" 的值" + Quoted(group.Trimmed()) + why};
}

} // namespace

double ToDouble(const DxfGroup& group)
{
    const std::string_view text = WithoutPlus(group.Trimmed());
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument || end != text.data() + text.size())
    {
        FailValue(group, L"不是数字");
    }
    // A number too small for the type is as good as zero.
    if (error == std::errc::result_out_of_range)
    {
        const bool isTiny = text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos;
        value = isTiny ? 0 : HUGE_VAL;
    }
    if (!(std::fabs(value) <= kMaxCoordinate))
    {
        FailValue(group, L"超出范围");
    }
    return value;
}

int ToInt(const DxfGroup& group)
{
    const std::string_view text = WithoutPlus(group.Trimmed());
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
    {
        FailValue(group, L"超出范围");
    }
    if (error == std::errc() && end == text.data() + text.size())
    {
        return value;
    }
    // Some programs write flags and counts as reals: "1.0".
    const double real = ToDouble(group);
    if (real != std::floor(real) || std::fabs(real) > INT16_MAX)
    {
        FailValue(group, L"不是整数");
    }
    return static_cast<int>(real);
}

void DxfRecord::Start(const DxfGroup& type)
{
    m_type = type.Trimmed();
    m_line = type.line;
    m_groups.clear();
}

const DxfGroup* DxfRecord::Find(int code) const
{
    for (const DxfGroup& group : m_groups)
    {
        if (group.code == code)
        {
            return &group;
        }
    }
    return nullptr;
}

double DxfRecord::Double(int code, double otherwise) const
{
    const DxfGroup* group = Find(code);
    return group == nullptr ? otherwise : ToDouble(*group);
}

int DxfRecord::Int(int code, int otherwise) const
{
    const DxfGroup* group = Find(code);
    return group == nullptr ? otherwise : ToInt(*group);
}

double DxfRecord::Angle(int code, double otherwiseRadians) const
{
    const DxfGroup* group = Find(code);
    return group == nullptr ? otherwiseRadians : ToDouble(*group) * kDegree;
}

double DxfRecord::RequiredDouble(int code) const
{
    const DxfGroup* group = Find(code);
    if (group == nullptr)
    {
        Fail(L"缺少组码 " + std::to_wstring(code));
    }
    return ToDouble(*group);
}

AcGePoint3d DxfRecord::Point(int code) const
{
    return AcGePoint3d(Double(code, 0), Double(code + kNextAxis, 0), Double(code + 2 * kNextAxis, 0));
}

AcGePoint3d DxfRecord::RequiredPoint(int code) const
{
    // One after another, so that the first missing group is the one that is named.
    const double x = RequiredDouble(code);
    const double y = RequiredDouble(code + kNextAxis);
    return AcGePoint3d(x, y, Double(code + 2 * kNextAxis, 0));
}

AcGeVector3d DxfRecord::Normal() const
{
    if (!Has(kNormalCode))
    {
        return AcGeVector3d::kZAxis;
    }
    const AcGeVector3d normal = Point(kNormalCode).asVector();
    return normal.isZeroLength() ? AcGeVector3d::kZAxis : normal.normal();
}

void DxfRecord::Fail(const std::wstring& text) const
{
    throw DxfError{m_line, std::wstring(m_type.begin(), m_type.end()) + L" " + text};
}

} // namespace arxdxf
