// Reading a type as a person writes it: NUMBER(10,2), varchar2(30 char), TIMESTAMP(3) WITH TIME ZONE,
// CLOB(2M). Nothing throws.
#pragma once

#include "Catalogue/UVDBTypeConverting.h"
#include "Catalogue/UVDBTypeFormat.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <string_view>

// No type is written longer, in bytes.
inline constexpr std::size_t kMaxTypeTextBytes = 1000;

// A type that was read.
struct STypeText
{
    // By which the look-ups find it: upper case, single blanks, "()" where the tables have it. SQL Server's
    // unlimited types keep their "(MAX)", which the look-ups pass over and the rules and the formatting want.
    Uve::U8CString name{};
    bool isKnown = false; // the tables of the database have the name
    // Internal type of a name of a language that is found in its exact case alone; -1: ask the look-ups.
    long uvdbType = -1;
    STypeNumbers numbers{};
    bool identity = false; // IDENTITY was written behind
    // What is wrong with the text; empty if nothing is. The other fields hold nothing then.
    Uve::U8CString error{};
};

// Reads `text` (UTF-8) as a type of the database `version`. Which number is which is told by the words of the
// name's row. Lengths may be in K, M or G and may say CHAR or BYTE; MAX is the largest length of the name;
// numbers of types that take none are display widths and pass unread. A name that the tables don't have is no
// error: its numbers are read as size and scale.
STypeText ReadTypeText(DB_VERSION_INFO version, std::string_view text);

// Gives the numbers that the text left out their meaning in the database: what it assumes for a DECIMAL, CHAR
// or TIMESTAMP without parameters, and the size of types that take none. The marks stay as they are; so do
// the numbers of an unknown name. A decimal that floats for want of a scale gets its internal type here and
// loses its numbers: Informix's DECIMAL(10), PostgreSQL's DECIMAL.
void CompleteTypeNumbers(DB_VERSION_INFO version, STypeText& type);

// The type as ConvertDataType takes it: the size as precision or as length. Borrows the name of `type`.
SSourceType SourceTypeOf(DB_VERSION_INFO version, const STypeText& type);
