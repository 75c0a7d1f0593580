#pragma once

#include "Grammar/Runtime/ParserTables.h"
#include "Grammar/Runtime/ScannerTables.h"

#include <string>

// Read the binary tables of a grammar's "Lexer/" or "Parser/" folder, in the order in which they are asked
// for; the parser's with its accepting state and base mark. Nothing is proved yet: see Compile and Validate.
// Throws: Uve::U8CString with the line for the log if a file is missing, damaged or shorter than it claims.
void ReadScannerTables(const std::string& directory, CScannerTables& tables);
void ReadParserTables(const std::string& directory, CParserTables& tables);
