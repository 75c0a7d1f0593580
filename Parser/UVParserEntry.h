#pragma once

#include "Interfaces/IUVDBSQLParser.h"
#include "UVEnvironment/UVEExport.h"

// The plug-in entry. A host looks up the variable, which stands in a section of its own, and calls the
// function that it holds.
extern "C" {

// Returns: a new parser.
// Owner:   the caller.
// Throws:  std::bad_alloc.
IUVDBSQLParser* pluginCreateInstanceIUVDBSQLParser();

extern UVDB_EXPORT IUVDBSQLParser* (*CreateInstanceIUVDBSQLParser)();

} // extern "C"
