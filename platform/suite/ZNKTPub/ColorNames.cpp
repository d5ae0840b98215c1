#include "ZNKTPub.h"

#include <wchar.h>
#include <wctype.h>

namespace
{
struct NamedColor
{
    const wchar_t* name;
    int index;
};

const int kByBlockIndex = 0;
const int kByLayerIndex = 256;

// Names without the character for "colour" at the end, which people leave out as often as not.
const NamedColor kNamedColors[] = {
    {L"bylayer", kByLayerIndex},
    {L"随层", kByLayerIndex},
    {L"byblock", kByBlockIndex},
    {L"随块", kByBlockIndex},
    {L"red", 1},
    {L"红", 1},
    {L"yellow", 2},
    {L"黄", 2},
    {L"green", 3},
    {L"绿", 3},
    {L"cyan", 4},
    {L"青", 4},
    {L"blue", 5},
    {L"蓝", 5},
    {L"magenta", 6},
    {L"洋红", 6},
    {L"品红", 6},
    {L"white", 7},
    {L"白", 7},
    {L"black", 7},
    {L"黑", 7},
    {L"gray", 8},
    {L"grey", 8},
    {L"灰", 8},
    {L"深灰", 8},
    {L"light gray", 9},
    {L"light grey", 9},
    {L"浅灰", 9},
};

const wchar_t kColorSuffix[] = L"色";
const wchar_t* const kIndexPrefixes[] = {L"颜色", L"color", L"colour"};
const wchar_t kRgbPrefix[] = L"rgb:";

AcCmColor ColorOfMethod(AcCmEntityColor::ColorMethod method)
{
    AcCmColor color;
    color.setColorMethod(method);
    return color;
}

AcCmColor ColorOfIndex(int index)
{
    AcCmColor color;
    if (index == kByBlockIndex)
        return ColorOfMethod(AcCmEntityColor::kByBlock);
    if (index == kByLayerIndex)
        return ColorOfMethod(AcCmEntityColor::kByLayer);
    color.setColorIndex(static_cast<Adesk::UInt16>(index));
    return color;
}

bool RemovePrefix(CString& text, const wchar_t* prefix)
{
    const int length = static_cast<int>(wcslen(prefix));
    if (text.Left(length) != prefix)
        return false;
    text = text.Mid(length);
    text.TrimLeft();
    return true;
}

// Decimal digits alone, at most `maximum`; moves `text` behind them and the blanks around.
bool ReadNumber(const wchar_t*& text, int maximum, int& number)
{
    while (iswspace(*text))
        ++text;
    if (*text < L'0' || *text > L'9')
        return false;
    for (number = 0; *text >= L'0' && *text <= L'9' && number <= maximum; ++text)
        number = number * 10 + (*text - L'0');
    while (iswspace(*text))
        ++text;
    return number <= maximum;
}

bool ReadName(CString text, AcCmColor& color)
{
    if (text.GetLength() > 1 && text.Right(1) == kColorSuffix)
        text = text.Left(text.GetLength() - 1);
    for (const NamedColor& named : kNamedColors)
    {
        if (text == named.name)
        {
            color = ColorOfIndex(named.index);
            return true;
        }
    }
    return false;
}

bool ReadIndex(CString text, AcCmColor& color)
{
    for (const wchar_t* prefix : kIndexPrefixes)
    {
        if (RemovePrefix(text, prefix))
            break;
    }
    const wchar_t* rest = text;
    int index = 0;
    if (!ReadNumber(rest, kByLayerIndex, index) || *rest != L'\0')
        return false;
    color = ColorOfIndex(index);
    return true;
}

bool ReadRgb(CString text, AcCmColor& color)
{
    const int maximum = 255;
    const int channels = 3;
    RemovePrefix(text, kRgbPrefix);
    const wchar_t* rest = text;
    int values[channels] = {};
    for (int i = 0; i < channels; ++i)
    {
        if (i > 0 && *rest++ != L',')
            return false;
        if (!ReadNumber(rest, maximum, values[i]))
            return false;
    }
    if (*rest != L'\0')
        return false;
    color.setRGB(static_cast<Adesk::UInt8>(values[0]), static_cast<Adesk::UInt8>(values[1]),
                 static_cast<Adesk::UInt8>(values[2]));
    return true;
}
} // namespace

namespace ZNKTPub
{
AcCmColor GetColorFromName(const wchar_t* name)
{
    CString text(name);
    text.Trim();
    text.MakeLower();
    AcCmColor color;
    if (ReadName(text, color) || ReadIndex(text, color) || ReadRgb(text, color))
        return color;
    return ColorOfMethod(AcCmEntityColor::kNone);
}
} // namespace ZNKTPub
