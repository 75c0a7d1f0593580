// What the text files of a grammar say, against its tables. Each throws a Uve::U8CString with the line for
// the log, which names the file in `directory` and what is wrong.
#pragma once

#include "Grammar/Runtime/ParserTables.h"
#include "Grammar/Runtime/ScannerTables.h"
#include "Grammar/UVGrammarKeeper.h"

#include <map>
#include <string>

// One more than the largest start condition; -1 is a name without one.
int CountStartConditions(const std::string& directory, const std::map<std::string, int>& startConditions);

// Records are of rules that the tables have, and begin start conditions that the tables have. A name that
// isn't defined begins condition 0.
void CheckScannerActions(const std::string& directory, const CActionsMap& actions,
                         const std::map<std::string, int>& startConditions, const CScannerTables& tables);

// Some rule makes a token, and the parser knows what the rules make. One that it doesn't know would read as
// the end of the text: such a scanner belongs to another parser.
void CheckScannerTokens(const std::string& directory, const CActionsMap& actions,
                        const std::map<std::string, int>& tokens);

// Each token number has one name, and the tables have a terminal for it. The tables are valid.
void CheckTokenNumbers(const std::string& directory, const std::map<std::string, int>& tokens,
                       const CParserTables& tables);

// Records are of rules that the tables have, nodes join the symbols of their rule, and no text is accepted
// without the node that fills the result. The tables are valid.
void CheckParserActions(const std::string& directory, const CActionsMap& actions,
                        const CParserTables& tables);
