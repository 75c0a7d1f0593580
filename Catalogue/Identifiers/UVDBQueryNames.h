// The queries by which a database plug-in reads a catalogue, as numbers and by name. The plug-in keeps the
// SQL.
#pragma once

#include <string>

enum enUVDB_QUERY : int
{
#define UVDB_QUERY_NAME(name) name,
#include "Catalogue/Identifiers/UVDBQueryNames.inc"
#undef UVDB_QUERY_NAME
};

inline constexpr int kUVDBUnknownQuery = -1;

// The number of the query whose enumerator is spelled `name`, letter by letter.
// Returns: kUVDBUnknownQuery for anything else.
int getUvdbQueryEnum(const std::string& name);
