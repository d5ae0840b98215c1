// acutPrintf and its kin.
#include "HostState.h"
#include "acedads.h"
#include "acutads.h"

#include "afx/core/String.h"
#include "afx/core/TextFormat.h"

int acutPrintfArguments(const ACHAR* format, afx::FormatArguments arguments)
{
    if (format == nullptr)
    {
        return RTERROR;
    }
    CString text;
    afx::FormatText(text, format, arguments);
    arxed::HostState::Instance().Print(text.GetString());
    return RTNORM;
}

int acedPrompt(const ACHAR* text)
{
    if (text == nullptr)
    {
        return RTERROR;
    }
    arxed::HostState::Instance().Print(text);
    return RTNORM;
}
