// Names and objects, asked of a database info instead of a bare version.
#pragma once

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <memory>
#include <vector>

// The case rules of a database: what it answers itself, or else its options "IdentifierCase" and
// "QuotedIdentifierCase", or else the guess by its version. An empty pointer is the unknown database.
long UVDBGetIdentifierCase(const std::shared_ptr<IUVDBDatabaseInfo2>& info);
long UVDBGetQuotedIdentifierCase(const std::shared_ptr<IUVDBDatabaseInfo2>& info);

// The name by the target's case rules and the source's enclosing mark.
Uve::U8CString NormalizeIdentifier(const char* name, const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                   const std::shared_ptr<IUVDBDatabaseInfo2>& source);

// Whether the database has objects of a type (a number of enUVDB_DATABASE_OBJECT), in its version. Types that
// every database has are taken for granted.
bool UVDBDBSupportObjectP(int objectType, const std::shared_ptr<IUVDBDatabaseInfo2>& info);

struct SUVDBChildObject
{
    Uve::U8CString kind; // the option "XMLName": finer than the type, a drop of a table isn't the table
    Uve::U8CString name;
};

// The children of an object in their order; none for an empty pointer.
std::vector<SUVDBChildObject> UVDBGetChildObjectsList(const std::shared_ptr<IUVDBObjectInfo>& object);
