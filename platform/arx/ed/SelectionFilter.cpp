#include "SelectionFilter.h"

#include "arx/rx/Names.h"
#include "dbobjptr.h"

namespace arxed
{

namespace
{

const int kRecordName = 0;
const int kHandle = 5;
const int kLayer = 8;
const int kColorIndex = 62;

// One alternative; both in lower case. On a mismatch behind a star, the star takes one character more.
bool MatchesOne(const std::wstring& text, const std::wstring& pattern)
{
    size_t t = 0;
    size_t p = 0;
    size_t star = std::wstring::npos;
    size_t starText = 0;
    while (t < text.size())
    {
        if (p < pattern.size() && pattern[p] == L'*')
        {
            star = p++;
            starText = t;
        }
        else if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == text[t]))
        {
            ++p;
            ++t;
        }
        else if (star != std::wstring::npos)
        {
            p = star + 1;
            t = ++starText;
        }
        else
        {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', p) == std::wstring::npos;
}

std::wstring LayerName(const AcDbEntity& entity)
{
    ACHAR* name = entity.layer();
    const std::wstring copy(name);
    acutDelString(name);
    return copy;
}

std::wstring RecordName(AcDbObjectId id)
{
    const ACHAR* name = id.objectClass()->dxfName();
    return name == nullptr ? L"" : name;
}

std::wstring HandleText(AcDbObjectId id)
{
    ACHAR digits[AcDbHandle::kStrSiz];
    id.handle().getIntoAsciiBuffer(digits, AcDbHandle::kStrSiz);
    return digits;
}

bool Holds(const AcDbEntity& entity, const resbuf& condition)
{
    if (condition.restype == kColorIndex)
    {
        return entity.colorIndex() == condition.resval.rint;
    }
    const std::wstring pattern = condition.resval.rstring == nullptr ? L"" : condition.resval.rstring;
    switch (condition.restype)
    {
    case kRecordName:
    case RTDXF0:
        return MatchesPattern(RecordName(entity.objectId()), pattern);
    case kHandle:
        return MatchesPattern(HandleText(entity.objectId()), pattern);
    case kLayer:
        return MatchesPattern(LayerName(entity), pattern);
    default:
        return false;
    }
}

} // namespace

bool MatchesPattern(const std::wstring& text, const std::wstring& pattern)
{
    const std::wstring folded = arxrx::Folded(text.c_str());
    const std::wstring alternatives = arxrx::Folded(pattern.c_str());
    for (size_t start = 0; start <= alternatives.size();)
    {
        const size_t comma = alternatives.find(L',', start);
        const size_t end = comma == std::wstring::npos ? alternatives.size() : comma;
        if (MatchesOne(folded, alternatives.substr(start, end - start)))
        {
            return true;
        }
        start = end + 1;
    }
    return false;
}

bool MatchesFilter(AcDbObjectId id, const resbuf* filter)
{
    if (filter == nullptr)
    {
        return true;
    }
    const AcDbEntityPointer entity(id);
    if (entity.openStatus() != Acad::eOk)
    {
        return false;
    }
    for (; filter != nullptr; filter = filter->rbnext)
    {
        if (!Holds(*entity.object(), *filter))
        {
            return false;
        }
    }
    return true;
}

} // namespace arxed
