// The suite's companion module: folders, colours by name, message boxes, what operations report through.
#pragma once

#include "afx.h"
#include "dbcolor.h"

#include "afx/core/FormatArgument.h"
#include "suite/ZNKTPub/Api.h"
#include "suite/ZNKTPub/MsgCallback.h"
#include "suite/ZNKTPub/MsgCallbackManager.h"
#include "suite/ZNKTPub/MsgTracker.h"

namespace ZNKTPub
{
// Folder of the installed suite: the value InstallPath of Software\Tevrin\Wayfarer, of the user first, then of the
// machine; the folder of the running program where neither names an existing folder. No separator at the end.
ZNKTPUB_API CString GetInstallPath();

// The current user's settings folder, made when it is missing. No separator at the end. Empty when the system names no
// application data folder for the user.
ZNKTPUB_API CString GetCurUserWayfarerPath();

// A colour from what a person writes for it, letter case and surrounding blanks ignored: "随层"/"ByLayer",
// "随块"/"ByBlock", the names of the indices 1 to 9 in Chinese or English ("红色", "红", "Red" ...), an index "1" to
// "255" with or without "颜色"/"Color" before it, or red,green,blue such as "255,128,0". 0 and 256 are by block and by
// layer. Everything else, null too, gives a colour whose isNone() is true.
ZNKTPUB_API AcCmColor GetColorFromName(const wchar_t* name);
} // namespace ZNKTPub

namespace MFCUtils
{
ZNKTPUB_API int ShowMsgArguments(HWND parent, const wchar_t* caption, unsigned int style, const wchar_t* format,
                                 afx::FormatArguments arguments);

// A message box with a printf-style text of any length; `style` are MB_ flags, 0 a plain box with OK. A parent that is
// no window counts as none. Returns the button's IDxxx, 0 when the box could not be shown. Harmless with a text that is
// no format: a directive without an argument of its kind comes out as it stands (afx/core/TextFormat.h has the rules).
template<class... ARGUMENTS>
int ShowMsg(HWND parent, const wchar_t* caption, unsigned int style, const wchar_t* format, ARGUMENTS... arguments)
{
    return ShowMsgArguments(parent, caption, style, format, {arguments...});
}
} // namespace MFCUtils
