// The way of one type from a source database to a target: name to internal type, internal type to the
// target's name, and the name with its numbers. On that way stand the exceptions of particular directions.
//
// Sizes count characters, bytes or digits, as the type does. Nothing throws: an unknown name ends as the
// target's VARCHAR. A `trail`, unless null, is filled with the decisions; a null one costs nothing.
#pragma once

#include "Catalogue/Types/UVDBTypeTrail.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

// A type as it stands in a source.
struct SSourceType
{
    const char* name = "";    // borrowed; bare, or with the parameters of its pairs
    long uvdbType = -1;       // internal type, -1: to be found by name and sizes
    unsigned long length = 0; // 0: `precision` is the size
    unsigned long precision = 0;
    long leadingPrecision = 0;
    long scale = 0;
    bool identity = false;
};

// What a target calls it.
struct STargetType
{
    Uve::U8CString name{}; // bare, as the target's tables have it
    Uve::U8CString text{}; // with its parameters
    long uvdbType = -1;    // internal type that served
};

// The target type by name and ODBC number. `name` becomes the bare target name, the numbers are corrected as
// the name demands.
// Returns: the text with parameters; `*uvdbType`, unless null, receives the internal type that was mapped.
Uve::U8CString DBMSToDBMSDataType(DB_VERSION_INFO source, DB_VERSION_INFO target, Uve::U8CString& name,
                                  unsigned long& size, bool& hasSize, long& leadingPrecision,
                                  bool& hasLeadingPrecision, long& scale, bool& hasScale, bool& identity,
                                  long odbcType, long* uvdbType);

// The target type when no rule says otherwise. `uvdbType` -1: found by name and sizes; it receives the
// internal type that was mapped.
// Returns: the text with parameters, or the bare name unless `format` is set.
Uve::U8CString GetDefDBMSToDBMSConverting(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name,
                                          long& uvdbType, unsigned long length, unsigned long precision,
                                          long leadingPrecision, long scale, bool identity, bool format);

// The same on records.
STargetType ConvertDataType(DB_VERSION_INFO source, DB_VERSION_INFO target, const SSourceType& type,
                            STypeTrail* trail = nullptr);
