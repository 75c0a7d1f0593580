// Parser names: the names of grammars and parser plug-ins. Kinds and names don't mirror each other: several
// kinds share one name, some names have no number, and some numbers no name of their own.
#pragma once

#include <cstdint>
#include <string_view>

// The number of the kind whose texts the parser `parserName` reads. Names are compared letter by letter.
// Returns: the number; 60 for an unknown name, which isn't logged here.
int UVDBGetNumberByParserName(std::string_view parserName);

// The parser name of a kind; UVDB_DB_SUB_TYPE_UNKNOWN where there is no subtype.
// Returns: a name that lives as long as the library; "Common" for kinds without a parser of their own.
const char* UVDBGetParserNameByKind(std::uint64_t db, std::uint64_t subType);
