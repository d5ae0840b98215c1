#include "dbsymtb.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLayerTableRecord, AcDbSymbolTableRecord, 0, 0, 0, LAYER, host)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbLayerTable, AcDbSymbolTable)

AcDbLayerTableRecord::AcDbLayerTableRecord() : m_off(false), m_frozen(false), m_locked(false)
{
    m_color.setColorIndex(AcCmEntityColor::kACIforeground);
}

AcDbLayerTableRecord::~AcDbLayerTableRecord() {}

Acad::ErrorStatus AcDbLayerTableRecord::setColor(const AcCmColor& color)
{
    if (color.isByLayer() || color.isByBlock())
    {
        return Acad::eInvalidInput;
    }
    assertWriteEnabled();
    m_color = color;
    return Acad::eOk;
}

void AcDbLayerTableRecord::setIsOff(bool off)
{
    assertWriteEnabled();
    m_off = off;
}

Acad::ErrorStatus AcDbLayerTableRecord::setIsFrozen(bool frozen)
{
    assertWriteEnabled();
    m_frozen = frozen;
    return Acad::eOk;
}

void AcDbLayerTableRecord::setIsLocked(bool locked)
{
    assertWriteEnabled();
    m_locked = locked;
}

AcDbLayerTable::AcDbLayerTable() {}

AcDbLayerTable::~AcDbLayerTable() {}

Acad::ErrorStatus AcDbLayerTable::getAt(const ACHAR* name, AcDbLayerTableRecord*& record, AcDb::OpenMode mode,
                                        bool openErasedRecord) const
{
    record = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getAt(name, id, openErasedRecord);
    return es == Acad::eOk ? acdbOpenObject(record, id, mode, openErasedRecord) : es;
}

AcRxClass* AcDbLayerTable::recordClass() const
{
    return AcDbLayerTableRecord::desc();
}
