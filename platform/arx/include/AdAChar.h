// The character of the host interface: UTF-16 since the 2007 releases.
#pragma once

typedef wchar_t ACHAR;

#define ACRX_T_JOIN(text) L##text
#define ACRX_T(text) ACRX_T_JOIN(text)
