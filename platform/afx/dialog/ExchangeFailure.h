// How the routines of data exchange refuse a value: a message to the user, then the end of the exchange.
#pragma once

#include "afx/dialog/DataExchange.h"

namespace afx
{
enum class Refusal
{
    NoInteger,
    NoUnsigned,
    NoByte,
    NoNumber,
    NoChoice
};

// Each tells the user and throws CUserException.
void RefuseValue(CDataExchange* exchange, Refusal why);
void RefuseRange(CDataExchange* exchange, const CString& least, const CString& most);
void RefuseLength(CDataExchange* exchange, int maxChars);
} // namespace afx
