// What the commands of the viewer can do with the selected messages, kept up to date row by row, so that selecting
// thousands of rows one after the other does not look every message up again each time. It knows no window.
#pragma once

#include <set>
#include <vector>

class CZNMsgManager;

class CMsgSelection
{
public:
    CMsgSelection();

    // Whether the store lost records since the last Reset: then what is known here may be wrong, and Reset is due.
    bool IsOutdated(const CZNMsgManager& store) const;

    // Starts again with these selected messages; those that are no longer in the store count for nothing.
    void Reset(const CZNMsgManager& store, const std::vector<int>& selectedIds);

    // One row was selected or is selected no longer.
    void Change(const CZNMsgManager& store, int id, bool selected);

    // Whether any selected message has objects, so that it can be flashed and selected.
    bool HasObjects() const;

    // Whether a message can be zoomed to: it has extents or an object.
    static bool CanZoomTo(const CZNMsgManager& store, int id);

private:
    std::set<int> m_withObjects;
    unsigned int m_removals; // the store's number when this was right
};
