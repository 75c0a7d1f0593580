// Type names with their numbers: reading what a name written in a source means, and writing a type for a
// database. A name's "()" pairs mark where parameters go, filled from left to right; a name without a pair
// gets one at its end. Which parameters a type takes, and in which order, is told by its row's words
// (createParams): LENGTH, MAX LENGTH, PRECISION, SCALE, LEADING PRECISION; "," between words of one pair, ";"
// between pairs.
//
// Sizes count characters, bytes or digits, as the type does. Nothing here throws or fails: an unknown name
// comes back as it was.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

struct SDataTypeParams;

// The numbers of a type in one place, each with the mark whether it was told.
struct STypeNumbers
{
    unsigned long size = 0;
    bool hasSize = false;
    long scale = 0;
    bool hasScale = false;
    long leadingPrecision = 0;
    bool hasLeadingPrecision = false;
};

// Brings `name` into the form of the type tables (upper case unless `mode` is 3, parameters out of their
// pairs) and corrects the numbers where the name, its parameters or the database's habits say more than they
// do. Informix intervals and Oracle's take their numbers from the parameters that the name carries.
void PreFormatDBMSDataType(DB_VERSION_INFO version, Uve::U8CString& name, unsigned long& size, bool& hasSize,
                           long& scale, bool& hasScale, long& leadingPrecision, bool& hasLeadingPrecision,
                           long mode);
void PreFormatDBMSDataType(DB_VERSION_INFO version, Uve::U8CString& name, STypeNumbers& numbers, long mode);

// The same with no number marked as told, for callers that need size and scale alone.
void PreFormatDBMSDataType(DB_VERSION_INFO version, Uve::U8CString& name, unsigned long& size, long& scale);

// The type as it is written for the database `version`. Among the rows of `name`, those of the internal type
// `uvdbType` count (-1: all do); the first of them that holds size and scale limits the numbers and tells the
// parameters, otherwise the name's last row does. A counting row without parameters ends the search for a
// given type. `usedRow`, unless null, receives that row; null if the name has none.
// Returns: the text; `name` itself if it has no row.
Uve::U8CString FormatDBMSDataType(DB_VERSION_INFO version, const char* name, long size, long scale,
                                  long leadingPrecision, long uvdbType);
Uve::U8CString FormatDBMSDataType(DB_VERSION_INFO version, const char* name, long size, long scale,
                                  long leadingPrecision, long uvdbType, const SDataTypeParams** usedRow);

// The same from explicit limits. A `size` of -1 means `columnSize`, which then may be negative.
Uve::U8CString FormatDBMSDataType(DB_VERSION_INFO version, const char* name, long size, long columnSize,
                                  long leadingPrecision, long rowLeadingPrecision, long scale, long minScale,
                                  long maxScale, const char* createParams);

// The name of an array type without its bounds: INTEGER[10] gives INTEGER[].
Uve::U8CString GetArrayDataType(const Uve::U8CString& name);
