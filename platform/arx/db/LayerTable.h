// Layers: colour and visibility of the entities that name them.
#pragma once

#include "SymbolTable.h"
#include "dbcolor.h"

class ARX_API AcDbLayerTableRecord : public AcDbSymbolTableRecord
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord);

    // Foreground colour (index 7), on, thawed, unlocked.
    AcDbLayerTableRecord();
    virtual ~AcDbLayerTableRecord();

    AcCmColor color() const { return m_color; }
    // By layer and by block are no colours of a layer: eInvalidInput.
    Acad::ErrorStatus setColor(const AcCmColor& color);

    bool isOff() const { return m_off; }
    bool isFrozen() const { return m_frozen; }
    bool isLocked() const { return m_locked; }
    void setIsOff(bool off);
    Acad::ErrorStatus setIsFrozen(bool frozen);
    void setIsLocked(bool locked);

private:
    AcCmColor m_color;
    bool m_off;
    bool m_frozen;
    bool m_locked;
};

class ARX_API AcDbLayerTable : public AcDbSymbolTable
{
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTable);

    AcDbLayerTable();
    virtual ~AcDbLayerTable();

    using AcDbSymbolTable::getAt;
    Acad::ErrorStatus getAt(const ACHAR* name, AcDbLayerTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;

protected:
    virtual AcRxClass* recordClass() const;
};
