// Turns what the checks found into messages of the message service, as any client module would.
#pragma once

#include "DrawingReader.h"

#include <string>

namespace drawing_check
{

// Group names of the messages, one for each check.
namespace group
{
extern const wchar_t* const kZeroLength;
extern const wchar_t* const kDuplicates;
extern const wchar_t* const kGaps;
extern const wchar_t* const kNearlyClosed;
extern const wchar_t* const kFlatTexts;
extern const wchar_t* const kOutside;
extern const wchar_t* const kMissing;
extern const wchar_t* const kSummary;
} // namespace group

// Removes the messages that an earlier check left for the current document.
void RemoveOldMessages();

// Runs every check on the drawing, adds one message for each finding and a summary; answers the number of findings.
int ReportFindings(const Drawing& drawing);

} // namespace drawing_check
