// A written table directory, read again and proved as the engine does it.
#pragma once

#include "Grammar/UVGrammarTables.h"

#include <string>

struct SLoadedTables
{
    SScannerFiles scanner;
    SParserFiles parser;
};

// Loads the directory, which ends in a slash.
// Throws: U8CString with a line for the log that names the file and what is wrong with it.
void LoadTables(const std::string& directory, SLoadedTables& tables);

// Proves that the engine can run on what LoadTables read; the scanner's states can be walked afterwards.
// Throws: U8CString with a line for the log that names the file and what is wrong with it.
void ProveTables(const std::string& directory, SLoadedTables& tables);
