// The kinds of objects that a database holds, as numbers and as texts.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

enum enUVDB_DATABASE_OBJECT : int
{
#define UVDB_OBJECT_TYPE(name, number, text) name = (number),
#include "Catalogue/Identifiers/UVDBIdentifierTypes.inc"
#undef UVDB_OBJECT_TYPE
};

// The number that the text "Unknown" stands for.
inline constexpr int kUVDBUnknownObjectType = -1;

// Returns: the text of a type number, which lives as long as the process; an empty one for a number that has
//          none.
const char* UVDBIdentifierTypeToString(unsigned long type);

// The number by text, compared exactly. Not the mirror of the function above: "DataType" is the number 32
// here, and a text that says nothing is a script.
// Returns: a number of enUVDB_DATABASE_OBJECT; kUVDBUnknownObjectType for "Unknown"; UVDB_DBO_SCRIPT for any
//          other text.
int UVDBIdentifierStringToType(const Uve::U8CString& text);

// The texts of the numbers 0 to 16, those of whole objects, in their order and ended by null.
extern const char* const DBOTypes[];

// The same by number and by text, compared exactly: the mirror of each other, unlike the pair above.
// Returns: an empty text for any other number; kUVDBUnknownObjectType for any other text.
const char* UVDB_DBO_TypeToString(unsigned long type);
int StringToUVDB_DBO_Type(const Uve::U8CString& text);

// The text of a type for messages: "StoredProcedure" reads "stored procedure".
Uve::U8CString UVDBGetLogObjectName(int type);

// Whether objects of this type hold statements: views, procedures, functions, triggers, packages, scripts.
bool IsBusinessLogicObject(int type);
