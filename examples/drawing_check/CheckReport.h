// Turns what the checks found into messages of the message service, as any client module would.
#pragma once

#include "DrawingReader.h"

#include <ZNKTPub.h>

#include <string>

namespace drawing_check
{

// Group names of the messages, one for each check, one for its result, one for the summaries of the commands.
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
extern const wchar_t* const kDigest;
} // namespace group

// Removes the messages that an earlier check left for the current document.
void RemoveOldMessages();

// Runs every check on the drawing, adds one message for each finding and a summary; answers the number of findings.
// The top line of the callback's wait dialog tells which check is at work. When the user cancels, the check at work
// ends and the rest is left out; what was found until then is reported.
int ReportFindings(const Drawing& drawing, CMsgCallback& progress);

// Reports what the last check of the current document found, by the number of messages that are still in the palette:
// one message for each check that found something, then the sum.
void ReportSummaryOfMessages();

} // namespace drawing_check
