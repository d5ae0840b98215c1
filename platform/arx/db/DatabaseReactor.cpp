#include "dbmain.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbDatabaseReactor, AcRxObject)

AcDbDatabaseReactor::~AcDbDatabaseReactor() {}

void AcDbDatabaseReactor::objectAppended(const AcDbDatabase* /*database*/, const AcDbObject* /*object*/) {}

void AcDbDatabaseReactor::objectModified(const AcDbDatabase* /*database*/, const AcDbObject* /*object*/) {}

void AcDbDatabaseReactor::objectErased(const AcDbDatabase* /*database*/, const AcDbObject* /*object*/, bool /*erased*/)
{
}

void AcDbDatabaseReactor::goodbye(const AcDbDatabase* /*database*/) {}
