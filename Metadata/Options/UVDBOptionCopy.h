#pragma once

#include "Metadata/Options/UVOptionInfo.h"
#include "UVEnvironment/UVEExport.h"
#include "UVEnvironment/UVEUnicodeString.h"

class IUVDBDatabaseInfo2;

// Reads one option from an INI file, with the record's value as default. The section "(null)" stands in files
// as "NULL". A choice comes out as its index, in decimal; a text that is none of the choices gives the
// default's. Options that stand in no file leave `value` untouched.
UVDB_EXPORT void ReadOption(UVOptionInfo* info, Uve::U8CString& value, Uve::U8CString& iniFile);

// Copies the wizard options from one database info to another. Options are known by key, so the rows of
// several sections that share a key are one option. Must not run on two threads at once.

// Copies them as records. An option that the source doesn't have leaves an empty record in the target.
UVDB_EXPORT void UVDBCopyINIOptions(IUVDBDatabaseInfo2* source, IUVDBDatabaseInfo2* target);

// Copies those that the source has as texts, which become the type that the target's option has.
UVDB_EXPORT void UVDBCopyOptions(IUVDBDatabaseInfo2* source, IUVDBDatabaseInfo2* target);
