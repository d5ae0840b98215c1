// For the source of an extension DLL that holds its DllMain.
#pragma once

#include <afxwin.h>
