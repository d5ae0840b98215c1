// The message service: what any module of the suite calls to report its findings.
//
//     KTMsgWnd::RemoveMsg(L"图层检查", true);                 // forget the findings of the last run
//     KTMsgWnd::AddMsg(KTMsgWnd::eWarning, L"图层检查", text, true, &ids, NULL);
//     KTMsgWnd::ShowMsgWnd(true);                             // once, when everything is added
//
// All messages of all modules are kept in one store, in the order in which they were added. Adding never shows
// anything: the user sees the messages in the message palette after ShowMsgWnd(true) or UpdateMsgWnd().
// A message is visible in a document when it belongs to that document or to none.
// Group names are compared without regard to letter case, in every script. Texts and names may have any length; what is
// handed in stays the caller's.
//
// The functions may be called while the palette acts upon the drawing, by a reactor for instance. The palette sends its
// clients nothing: who has to know what the user deleted counts again.
//
// Call these functions on the host's user-interface thread only. None of them shows an error to the user; when the
// memory is exhausted the framework's memory exception comes through.
#pragma once

#include <afxwin.h>
#include <acarray.h>
#include <dbid.h>
#include <dbmain.h>

#include "base/ZnktApi.h"

namespace KTMsgWnd
{

enum EMsgType
{
    eInfo = 0,
    eWarning = 1,
    eError = 2
};

// Adds one message, stamped with the local time, and answers true. Answers false, and adds nothing, when text is null
// or empty.
//   group           the name under which messages are listed, counted and removed; null is the same as ""
//   bindToDocument  true: the message belongs to the current document; false: it is visible in every document
//   objectIds       the objects that it concerns, copied in order; null or empty: none
//   extents         the area of the drawing that it concerns (world coordinates, drawing units), copied; null: none
ZNKT_API bool AddMsg(EMsgType type, const wchar_t* group, const wchar_t* text, bool bindToDocument,
                     const AcArray<AcDbObjectId>* objectIds, const AcDbExtents* extents);

// Removes the messages of a group and answers whether there were any.
// With allDocuments they are removed from every document, those that belong to no document included; without it only
// those that belong to the current document. A null group removes nothing.
ZNKT_API bool RemoveMsg(const wchar_t* group, bool allDocuments);

// Removes every message of every document. Identifiers go on rising.
ZNKT_API void RemoveAllMsg();

// The number of a group's messages that are visible in the current document. "" counts the messages without a group;
// null is no wildcard, it counts 0.
ZNKT_API int GetMsgCount(const wchar_t* group);

// true: creates the message palette if there is none yet, shows it with the messages that are stored now, and answers
// whether it is visible. false: hides it, and answers whether it was visible; creates nothing.
ZNKT_API bool ShowMsgWnd(bool show);

// Shows what is stored now, if the palette exists; never creates it.
ZNKT_API void UpdateMsgWnd();

} // namespace KTMsgWnd
