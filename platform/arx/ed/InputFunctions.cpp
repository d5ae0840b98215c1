// Answers, commands and the status bar of the C interface.
#include "CommandRunner.h"
#include "HostState.h"
#include "ResultBuffers.h"
#include "acedads.h"
#include "arx/db/AdsNames.h"

#include <cerrno>
#include <cmath>
#include <cwchar>
#include <string>

using arxed::CommandRunner;
using arxed::HostState;

namespace
{

const size_t kLongestAnswer = 132;
const size_t kNumberSize = 64;

// Reads all of the text as a number by `parse`, one of the C library's. What the type cannot hold is no number.
template<class Number, class Parse>
int GetNumber(const ACHAR* prompt, Number* result, Parse parse)
{
    std::wstring answer;
    if (result == nullptr || !CommandRunner::Instance().GetString(prompt, false, answer))
    {
        return result == nullptr ? RTERROR : RTCAN;
    }
    wchar_t* end = nullptr;
    errno = 0;
    const auto value = parse(answer.c_str(), &end);
    if (end == answer.c_str() || *end != 0 || errno == ERANGE || !std::isfinite(static_cast<double>(value)))
    {
        return RTREJ;
    }
    *result = static_cast<Number>(value);
    return RTNORM;
}

std::wstring NumberText(double value)
{
    wchar_t text[kNumberSize];
    swprintf(text, kNumberSize, L"%.15g", value);
    return text;
}

std::wstring HandleText(const intptr_t* name)
{
    AcDbObjectId id;
    ACHAR digits[AcDbHandle::kStrSiz] = ACRX_T("");
    if (acdbGetObjectId(id, name) == Acad::eOk)
    {
        id.handle().getIntoAsciiBuffer(digits, AcDbHandle::kStrSiz);
    }
    return digits;
}

// The value as a user would type it.
std::wstring AnswerText(const resbuf& item)
{
    switch (arxed::KindOf(item.restype))
    {
    case arxed::ValueKind::Real:
        return NumberText(item.resval.rreal);
    case arxed::ValueKind::Point:
        return NumberText(item.resval.rpoint[0]) + L"," + NumberText(item.resval.rpoint[1]) + L"," +
               NumberText(item.resval.rpoint[2]);
    case arxed::ValueKind::Short:
        return std::to_wstring(item.resval.rint);
    case arxed::ValueKind::Long:
        return std::to_wstring(item.resval.rlong);
    case arxed::ValueKind::Long64:
        return std::to_wstring(item.resval.mnInt64);
    case arxed::ValueKind::Text:
        return item.resval.rstring == nullptr ? L"" : item.resval.rstring;
    case arxed::ValueKind::Name:
        return HandleText(item.resval.rlname);
    default:
        return std::wstring();
    }
}

} // namespace

int acedGetString(int cronly, const ACHAR* prompt, ACHAR* result)
{
    std::wstring answer;
    if (result == nullptr)
    {
        return RTERROR;
    }
    if (!CommandRunner::Instance().GetString(prompt, cronly != 0, answer))
    {
        return RTCAN;
    }
    answer.resize(answer.size() > kLongestAnswer ? kLongestAnswer : answer.size());
    wcscpy(result, answer.c_str());
    return RTNORM;
}

int acedGetInt(const ACHAR* prompt, int* result)
{
    const int decimal = 10;
    return GetNumber(prompt, result, [=](const wchar_t* text, wchar_t** end) { return wcstol(text, end, decimal); });
}

int acedGetReal(const ACHAR* prompt, ads_real* result)
{
    return GetNumber(prompt, result, [](const wchar_t* text, wchar_t** end) { return wcstod(text, end); });
}

int acedGetPoint(const ads_point /*base*/, const ACHAR* prompt, ads_point result)
{
    return result == nullptr ? RTERROR : CommandRunner::Instance().GetPoint(prompt, result);
}

int acedCommand(int type, ...)
{
    arxed::ValueSource values;
    va_start(values.arguments, type);
    resbuf* list = arxed::BuildList(type, values);
    va_end(values.arguments);
    const int result = acedCmd(list);
    acutRelRb(list);
    return result;
}

int acedCmd(const resbuf* list)
{
    if (list == nullptr || arxed::KindOf(list->restype) != arxed::ValueKind::Text)
    {
        return RTERROR;
    }
    const std::wstring name = AnswerText(*list);
    std::wstring answers;
    for (const resbuf* item = list->rbnext; item != nullptr; item = item->rbnext)
    {
        answers += L" " + arxed::Quoted(AnswerText(*item));
    }
    return CommandRunner::Instance().RunCommand(name, answers) ? RTNORM : RTERROR;
}

void acedPostCommandPrompt()
{
    HostState::Instance().Ui().PostCommandPrompt();
}

void acedUpdateDisplay()
{
    HostState::Instance().Ui().UpdateDisplay();
}

int acedSetStatusBarProgressMeter(const ACHAR* label, int minimum, int maximum)
{
    const bool shown = minimum <= maximum &&
                       HostState::Instance().Ui().SetProgressMeter(label == nullptr ? L"" : label, minimum, maximum);
    return shown ? RTNORM : RTERROR;
}

int acedSetStatusBarProgressMeterPos(int position)
{
    return HostState::Instance().Ui().SetProgressPosition(position) ? RTNORM : RTERROR;
}

int acedRestoreStatusBar()
{
    return HostState::Instance().Ui().RestoreStatusBar() ? RTNORM : RTERROR;
}
