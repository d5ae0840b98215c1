// Assertions and traces. They act when _DEBUG is defined; otherwise only VERIFY and ENSURE evaluate their argument.
#pragma once

#include "afx/core/Api.h"

class CObject;

// Writes a printf-style line to the debugger output (wide format: %s is wide, %S is narrow; narrow format: the
// reverse).
AFX_API void AFX_CDECL AfxTrace(LPCWSTR format, ...);
AFX_API void AFX_CDECL AfxTrace(LPCSTR format, ...);

// Reports a failed assertion to the debugger output and to stderr and stops in the debugger (without one the process
// ends).
AFX_API void AFXAPI AfxAssertFailedLine(LPCSTR file, int line);

// Checks that the address range lies in this process. size 1 and write access by default.
AFX_API BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR size, BOOL readWrite = TRUE);
AFX_API BOOL AFXAPI AfxIsValidString(LPCWSTR text, int length = -1);

// Calls object->AssertValid() after checking the pointer.
AFX_API void AFXAPI AfxAssertValidObject(const CObject* object, LPCSTR file, int line);

AFX_API DECLSPEC_NORETURN void AFXAPI AfxThrowInvalidArgException();

#ifdef _DEBUG
#define ASSERT(f) ((f) ? (void)0 : ::AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(p) ::AfxAssertValidObject(p, __FILE__, __LINE__)
#define TRACE ::AfxTrace
#define DEBUG_ONLY(f) (f)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(p) ((void)0)
#define TRACE true ? (void)0 : ::AfxTrace
#define DEBUG_ONLY(f) ((void)0)
#endif

#define TRACE0 TRACE
#define TRACE1 TRACE
#define TRACE2 TRACE
#define TRACE3 TRACE
#define ASSERT_POINTER(p, type) ASSERT((p) != NULL && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT((p) == NULL || AfxIsValidAddress((p), sizeof(type), FALSE))

#define ENSURE(f)                                                                                                      \
    do                                                                                                                 \
    {                                                                                                                  \
        if (!(f))                                                                                                      \
            ::AfxThrowInvalidArgException();                                                                           \
    } while (0)
#define ENSURE_ARG(f) ENSURE(f)
#define ENSURE_VALID(p) ENSURE((p) != NULL)

#ifndef DEBUG_NEW
#define DEBUG_NEW new
#endif
