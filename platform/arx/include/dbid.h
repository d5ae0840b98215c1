// AcDbObjectId: names one object of one open drawing while the drawing is open. A plain value of a pointer's size,
// null by default. Identifiers are never given out twice in a process: one of a closed drawing stays unknown for ever,
// and every question to it is answered safely.
#pragma once

#include "acadstrc.h"
#include "dbhandl.h"

class AcDbDatabase;
class AcRxClass;

class ARX_API AcDbObjectId
{
public:
    AcDbObjectId() : m_id(0) {}

    static const AcDbObjectId kNull;

    bool isNull() const { return m_id == 0; }
    void setNull() { m_id = 0; }
    // True for an object of an open drawing, erased or not.
    bool isValid() const;
    // False for null and unknown identifiers.
    bool isErased() const;
    // True as well when the owner (block) is erased.
    bool isEffectivelyErased() const;

    Adesk::IntDbId asOldId() const { return m_id; }
    AcDbObjectId& setFromOldId(Adesk::IntDbId oldId)
    {
        m_id = oldId;
        return *this;
    }

    // Null for null and unknown identifiers.
    AcDbHandle handle() const;
    AcDbDatabase* database() const;
    AcDbDatabase* originalDatabase() const { return database(); }
    AcRxClass* objectClass() const;

    bool operator==(const AcDbObjectId& other) const { return m_id == other.m_id; }
    bool operator!=(const AcDbObjectId& other) const { return m_id != other.m_id; }
    bool operator<(const AcDbObjectId& other) const { return m_id < other.m_id; }
    bool operator>(const AcDbObjectId& other) const { return m_id > other.m_id; }
    bool operator<=(const AcDbObjectId& other) const { return m_id <= other.m_id; }
    bool operator>=(const AcDbObjectId& other) const { return m_id >= other.m_id; }

private:
    Adesk::IntDbId m_id;
};
