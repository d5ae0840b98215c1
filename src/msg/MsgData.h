// One message as the store keeps it. Callers receive copies.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>
#include <acdocman.h>

#include "msg/KTMsgWnd.h"

struct CZNMsgData
{
    CZNMsgData() : id(0), type(KTMsgWnd::eInfo), hasExtents(false), document(NULL) {}

    int id; // 1 for the first message of a store, then rising; never given twice
    KTMsgWnd::EMsgType type;
    CString group;
    CString text;
    CString time;                    // local time of adding, "%H:%M:%S"
    AcArray<AcDbObjectId> objectIds; // copied deeply with the record
    AcDbExtents extents;             // means something only with hasExtents
    bool hasExtents;
    AcApDocument* document; // null: belongs to no document
};

typedef CArray<CZNMsgData, const CZNMsgData&> CZNMsgArray;
