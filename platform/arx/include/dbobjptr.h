// AcDbObjectPointer: opens an object and closes it at the end of the block.
#pragma once

#include "dbmain.h"

template<class T>
class AcDbObjectPointer
{
public:
    explicit AcDbObjectPointer(AcDbObjectId id, AcDb::OpenMode mode = AcDb::kForRead, bool openErased = false)
        : m_object(NULL), m_status(acdbOpenObject(m_object, id, mode, openErased))
    {
    }
    ~AcDbObjectPointer() { close(); }

    Acad::ErrorStatus openStatus() const { return m_status; }
    T* object() const { return m_object; }
    T* operator->() const { return m_object; }
    Acad::ErrorStatus close()
    {
        if (m_object == NULL)
        {
            return Acad::eNullObjectPointer;
        }
        T* closing = m_object;
        m_object = NULL;
        return closing->close();
    }

private:
    AcDbObjectPointer(const AcDbObjectPointer&);
    AcDbObjectPointer& operator=(const AcDbObjectPointer&);

    T* m_object;
    Acad::ErrorStatus m_status;
};

typedef AcDbObjectPointer<AcDbEntity> AcDbEntityPointer;
