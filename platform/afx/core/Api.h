// Base of every header of the framework: Windows, calling conventions, export macros, the types that all rooms share.
#pragma once

#include <winsock2.h>
#include <windows.h>
#include <tchar.h>

#include <stddef.h>
#include <stdint.h>

// Members of this name exist in the framework's time class; the 16-bit macro would rename them.
#undef GetCurrentTime

#ifdef afx_EXPORTS
#define AFX_API __declspec(dllexport)
#else
#define AFX_API __declspec(dllimport)
#endif

// Classes and functions of an extension DLL: exported while that DLL is built (_AFXEXT), imported by its clients.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS
#define AFX_EXT_DATA AFX_EXT_CLASS

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_MSG_CALL
#define AFX_INLINE inline
#define AFX_DATA
#define AFX_DATADEF
#define AFX_NOVTABLE
#define AFXAPI_DATA AFX_API

// Marks a message handler for the reader; no meaning for the compiler.
#define afx_msg

#ifndef _AFX
#define _AFX
#endif
#ifndef _MFC_VER
#define _MFC_VER 0x0900
#endif

#define UNUSED_ALWAYS(x) (void)(x)
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) (void)(x)
#endif

// Opaque place in a collection; null means "no more elements".
struct __POSITION
{
};
typedef __POSITION* POSITION;

#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

#ifndef _countof
#define _countof(a) (sizeof(a) / sizeof((a)[0]))
#endif
