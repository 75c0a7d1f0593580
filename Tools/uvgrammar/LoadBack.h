// A written table directory, read again through the readers that the engine uses.
#pragma once

#include "Grammar/UVGrammarKeeper.h"

#include <map>
#include <string>
#include <vector>

struct SLoadedTables
{
    SLoadedTables() = default;
    SLoadedTables(const SLoadedTables&) = delete;
    SLoadedTables& operator=(const SLoadedTables&) = delete;
    ~SLoadedTables();

    // Of the scanner, then of the parser.
    std::vector<int> accept, base, chk, def, nulTrans, nxt, ruleCanMatchEol, acclist;
    CActionsMap lexerActions;
    std::map<std::string, int> startConditions;

    std::vector<int> pact, pgoto, defgoto, table, check;
    std::vector<unsigned> defact, stos, r1, r2, translate;
    CActionsMap parserActions;
    std::map<std::string, int> tokens;
    int finalState = 0;
    int terminals = 0; // as the engine counts them: named tokens and bison's own
};

// Loads the directory (with a slash at its end) as the engine would and proves that the engine can run on it.
// Throws: U8CString with a line for the log, or CToolFailure, naming the file and what is wrong with it.
void LoadTablesBack(const std::string& directory, SLoadedTables& tables);
