// What the viewer does in the drawing with the objects of messages. Messages that are no longer in the store and
// objects that are erased are left out.
#pragma once

#include <vector>

#include <acarray.h>
#include <dbid.h>

struct CZNMsgData;
class CZNMsgManager;

// The objects of all these messages, in order.
void CollectObjects(const CZNMsgManager& store, const std::vector<int>& messageIds, AcArray<AcDbObjectId>& objects);

// Makes the objects the host's selection; without objects nothing is selected afterwards.
void SelectObjects(const AcArray<AcDbObjectId>& objects);

// Shows the message's area, or else its objects with some room around them; nothing when it has neither.
void ZoomToMessage(const CZNMsgData& message);
