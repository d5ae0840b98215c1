#include "ResultBuffers.h"

#include <cstdarg>
#include <new>

namespace arxed
{

namespace
{

// Codes below this belong to drawing files.
const int kDxfEnd = 1072;

struct CodeRange
{
    int first;
    int last;
    ValueKind kind;
};

const CodeRange kDxfRanges[] = {
    {0, 9, ValueKind::Text},        {10, 39, ValueKind::Point},     {40, 59, ValueKind::Real},
    {60, 79, ValueKind::Short},     {90, 99, ValueKind::Long},      {100, 102, ValueKind::Text},
    {105, 105, ValueKind::Text},    {110, 139, ValueKind::Point},   {140, 149, ValueKind::Real},
    {170, 179, ValueKind::Short},   {210, 219, ValueKind::Point},   {270, 289, ValueKind::Short},
    {290, 299, ValueKind::Short},   {300, 309, ValueKind::Text},    {320, 329, ValueKind::Text},
    {330, 369, ValueKind::Name},    {370, 389, ValueKind::Short},   {390, 399, ValueKind::Name},
    {400, 409, ValueKind::Short},   {410, 419, ValueKind::Text},    {420, 427, ValueKind::Long},
    {1000, 1009, ValueKind::Text},  {1010, 1039, ValueKind::Point}, {1040, 1042, ValueKind::Real},
    {1070, 1070, ValueKind::Short}, {1071, 1071, ValueKind::Long},
};

ValueKind KindOfDxfCode(int code)
{
    // Codes below zero are those of filters and of the entity itself.
    if (code == -1 || code == -2)
    {
        return ValueKind::Name;
    }
    if (code == -4 || code == -3)
    {
        return ValueKind::Text;
    }
    for (const CodeRange& range : kDxfRanges)
    {
        if (code >= range.first && code <= range.last)
        {
            return range.kind;
        }
    }
    return ValueKind::Unknown;
}

} // namespace

ValueKind KindOf(int type)
{
    switch (type)
    {
    case RTREAL:
    case RTANG:
    case RTORINT:
        return ValueKind::Real;
    case RTPOINT:
    case RT3DPOINT:
        return ValueKind::Point;
    case RTSHORT:
        return ValueKind::Short;
    case RTLONG:
        return ValueKind::Long;
    case RTINT64:
        return ValueKind::Long64;
    case RTSTR:
    case RTDXF0:
        return ValueKind::Text;
    case RTENAME:
    case RTPICKS:
        return ValueKind::Name;
    case RTNONE:
    case RTVOID:
    case RTLB:
    case RTLE:
    case RTDOTE:
    case RTNIL:
    case RTT:
        return ValueKind::Mark;
    default:
        return type < kDxfEnd ? KindOfDxfCode(type) : ValueKind::Unknown;
    }
}

namespace
{

void SetPoint(resbuf& item, const ads_real* point)
{
    if (point != nullptr)
    {
        ads_point_set(point, item.resval.rpoint);
    }
}

void SetName(resbuf& item, const intptr_t* name)
{
    if (name != nullptr)
    {
        ads_name_set(name, item.resval.rlname);
    }
}

} // namespace

resbuf* NewItem(int type, ValueSource& values)
{
    resbuf* item = acutNewRb(type);
    if (item == nullptr)
    {
        return nullptr;
    }
    switch (KindOf(type))
    {
    case ValueKind::Real:
        item->resval.rreal = va_arg(values.arguments, double);
        break;
    case ValueKind::Point:
        SetPoint(*item, va_arg(values.arguments, const ads_real*));
        break;
    case ValueKind::Short:
        item->resval.rint = static_cast<short>(va_arg(values.arguments, int));
        break;
    case ValueKind::Long:
        item->resval.rlong = va_arg(values.arguments, Adesk::Int32);
        break;
    case ValueKind::Long64:
        item->resval.mnInt64 = va_arg(values.arguments, Adesk::Int64);
        break;
    case ValueKind::Text:
        acutNewString(va_arg(values.arguments, const ACHAR*), item->resval.rstring);
        break;
    case ValueKind::Name:
        SetName(*item, va_arg(values.arguments, const intptr_t*));
        break;
    default:
        break;
    }
    return item;
}

resbuf* BuildList(int type, ValueSource& values)
{
    resbuf* first = nullptr;
    resbuf** place = &first;
    // A zero ends the list, except as the first type: record names have the code 0.
    for (bool begun = false; type != RTNONE && (type != 0 || !begun); begun = true)
    {
        *place = NewItem(type, values);
        if (*place == nullptr)
        {
            acutRelRb(first);
            return nullptr;
        }
        place = &(*place)->rbnext;
        type = va_arg(values.arguments, int);
    }
    return first;
}

} // namespace arxed

resbuf* acutNewRb(int type)
{
    if (arxed::KindOf(type) == arxed::ValueKind::Unknown)
    {
        return nullptr;
    }
    resbuf* item = new (std::nothrow) resbuf();
    if (item != nullptr)
    {
        item->restype = static_cast<short>(type);
    }
    return item;
}

int acutRelRb(resbuf* list)
{
    if (list == nullptr)
    {
        return RTERROR;
    }
    while (list != nullptr)
    {
        resbuf* next = list->rbnext;
        if (arxed::KindOf(list->restype) == arxed::ValueKind::Text)
        {
            acutDelString(list->resval.rstring);
        }
        delete list;
        list = next;
    }
    return RTNORM;
}

resbuf* acutBuildList(int type, ...)
{
    arxed::ValueSource values;
    va_start(values.arguments, type);
    resbuf* list = arxed::BuildList(type, values);
    va_end(values.arguments);
    return list;
}
