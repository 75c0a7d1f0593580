#pragma once

#include "Grammar/Runtime/ScannerTables.h"

#include <string>

// The LALR tables of one grammar, and the constants that belong to them. Once loaded and proved they never
// change.
class CParserTables
{
public:
    STable<int> pact, pgoto, defgoto, table, check;
    STable<unsigned> defact, stos, r1, r2, translate;
    int final_ = 0;    // accepting state
    int ntokens = 0;   // number of terminals
    int maxutok = 0;   // largest external token number
    int base_ninf = 0; // the base value that stands for the default action

    // Proves that no index that the parser can form leaves the tables. How deep a reduction pops can't be
    // told from the tables alone; the parser tests that itself. Throws: Uve::U8CString with the line for the
    // log, which names the file in `directory` and what is wrong.
    void Validate(const std::string& directory) const;

    std::size_t States() const { return pact.count; }
    std::size_t Rules() const { return r1.count; }
};
