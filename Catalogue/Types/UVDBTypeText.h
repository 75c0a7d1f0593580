// Reading a type as a person or a database writes it: NUMBER(10,2), varchar2(30 char), CLOB(2M),
// timestamp(3) with time zone, decimal(9,2) unsigned zerofill, enum('a','b'). Nothing throws.
#pragma once

#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <string_view>

// No type is written longer, in bytes: with its numbers or its values, and without what stands in
// parentheses.
inline constexpr std::size_t kMaxTypeTextBytes = std::size_t{1} << 20;
inline constexpr std::size_t kMaxTypeNameBytes = 1000;

// What a text says its length counts.
enum enUVDB_LENGTH_UNIT
{
    UVDB_LENGTH_UNIT_NOT_TOLD,
    UVDB_LENGTH_UNIT_BYTES,
    UVDB_LENGTH_UNIT_CHARACTERS
};

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
    // The database numbers the rows by itself, by a word in the text.
    bool identity = false;
    // The same by the type itself, such as SERIAL, or by a word.
    bool hasNumbering = false;
    enUVDB_LENGTH_UNIT lengthUnit = UVDB_LENGTH_UNIT_NOT_TOLD;
    Uve::U8CString characterSet{}; // upper case; empty: none is written
    std::size_t valueCount = 0;    // of a list of values, which is read as a text that holds them
    // The written name where `name` is another one that holds its values, such as YEAR for SMALLINT.
    Uve::U8CString writtenName{};
    // What is wrong with the text; empty if nothing is. The other fields hold nothing then.
    Uve::U8CString error{};
};

// Reads `text` (UTF-8) as a type of the database `version`. Which number is which is told by the words of the
// name's row. Lengths may be in K, M or G and may say CHAR or BYTE; MAX is the largest length of the name;
// numbers of types that take none are display widths and pass unread, and so do the parameters of spatial
// types and XML. Names may be quoted and may have the schema of the database before them. What a database
// writes after a type, such as UNSIGNED, COLLATE or IDENTITY, is taken off where the tables don't have it. A
// name that the tables don't have is no error: its numbers are read as size and scale.
STypeText ReadTypeText(DB_VERSION_INFO version, std::string_view text);

// Gives the numbers that the text left out their meaning in the database: what it assumes for a DECIMAL, CHAR
// or TIMESTAMP without parameters, and the size of types that take none. The marks stay as they are; so do
// the numbers of an unknown name. A decimal that floats for want of a scale gets its internal type here and
// loses its numbers: Informix's DECIMAL(10), PostgreSQL's DECIMAL.
void CompleteTypeNumbers(DB_VERSION_INFO version, STypeText& type);

// The type as ConvertDataType takes it: the size as precision or as length. Borrows the name of `type`.
SSourceType SourceTypeOf(DB_VERSION_INFO version, const STypeText& type);
