// Input point monitors: what a program does to follow the cursor over a drawing.
//
//     class CMonitor : public AcEdInputPointMonitor
//     {
//         virtual Acad::ErrorStatus monitorInputPoint(const AcEdInputPoint& input, AcEdInputPointMonitorResult&)
//         {
//             Show(input.rawPoint());
//             return Acad::eOk;
//         }
//     };
//     curDoc()->inputPointManager()->addPointMonitor(&monitor);
#pragma once

#include "dbidar.h"
#include "dbmain.h"
#include "gepnt3d.h"

class AcApDocument;

// Where the cursor is. Valid during the call only.
class AcEdInputPoint
{
public:
    AcEdInputPoint(AcApDocument* document, const AcGePoint3d& rawPoint, const AcDbObjectIdArray& pickedEntities)
        : m_document(document), m_rawPoint(rawPoint), m_pickedEntities(pickedEntities)
    {
    }

    AcApDocument* document() const { return m_document; }
    // In drawing units, as the cursor points: the host snaps to nothing.
    const AcGePoint3d& rawPoint() const { return m_rawPoint; }
    // The entity in the pick aperture around the cursor, none or one: the host looks for the nearest. Always empty
    // unless someone turned the forced pick on, and while the user pans or draws a selection window.
    const AcDbObjectIdArray& pickedEntities() const { return m_pickedEntities; }

private:
    AcApDocument* m_document;
    AcGePoint3d m_rawPoint;
    AcDbObjectIdArray m_pickedEntities;
};

// What a monitor gives back. The host has no tooltips of its own that a text could be added to, so that nothing is
// taken here.
class AcEdInputPointMonitorResult
{
};

class AcEdInputPointMonitor
{
public:
    virtual ~AcEdInputPointMonitor() {}

    // The cursor moved over the drawing, whether a command asks for a point or not. The host passes over the result.
    virtual Acad::ErrorStatus monitorInputPoint(const AcEdInputPoint& input, AcEdInputPointMonitorResult& output) = 0;
};

// One for each document; ends with it and forgets its monitors then.
class ARX_API AcEdInputPointManager
{
public:
    virtual ~AcEdInputPointManager();

    // The caller keeps the monitor's ownership and removes it before it goes; a monitor may be removed while it is
    // called. eInvalidInput for null, eDuplicateKey for one that is there already, eKeyNotFound for one that is not.
    virtual Acad::ErrorStatus addPointMonitor(AcEdInputPointMonitor* monitor) = 0;
    virtual Acad::ErrorStatus removePointMonitor(AcEdInputPointMonitor* monitor) = 0;

    // Has the host look what is under the cursor at every move, for pickedEntities(). Calls are counted: it ends with
    // as many calls of turnOffForcedPick(), of which one too many is eInvalidInput.
    virtual Acad::ErrorStatus turnOnForcedPick() = 0;
    virtual Acad::ErrorStatus turnOffForcedPick() = 0;

protected:
    AcEdInputPointManager();
};
