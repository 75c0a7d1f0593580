// The actions of a grammar as its author wrote them, taken from the generated C text and read strictly. The
// extractor that writes the table files passes over much and can't tell what it lost; this reading can.
#pragma once

#include "Grammar/UVGrammarKeywords.h"

#include <string>
#include <string_view>
#include <vector>

// One rule's entry in an action switch.
struct SActionCase
{
    int number = 0;        // of the case
    int line = 0;          // of the source, where the action begins; 0 if the generator doesn't tell
    std::string body;      // from the brace on; what stands there if there is no brace
    bool isShared = false; // flex only: the action is that of the next rule, by "|"
};

// What a source says after <<EOF>>, for one start condition.
struct SEndOfFileAction
{
    std::string condition;
    int line = 0;
    std::string body;
};

struct SScannerActions
{
    std::vector<SActionCase> cases;
    std::vector<SEndOfFileAction> endsOfFile;
};

// flex's C file. The case of flex's own default rule is among them, the last one.
SScannerActions ReadScannerActions(std::string_view text);
// bison's C file; only rules with an action have a case.
std::vector<SActionCase> ReadParserActions(std::string_view text);
// bison's C file: the source's line for each rule of the tables, by number; rule 0 has none.
std::vector<int> ReadRuleLines(std::string_view text);

struct SActionStatement
{
    const SGrammarKeyword* keyword = nullptr;
    std::vector<std::string> operands;
    int line = 0;
};

struct SActionProblem
{
    int line = 0;
    std::string text;
};

struct SActionStatements
{
    std::vector<SActionStatement> statements;
    std::vector<SActionProblem> problems;
};

// Reads the body of an action:
//     body      = "{" { statement [ ";" ] } "}"
//     statement = word "(" operand { "," operand } ")"
//               | "BEGIN" state ";"
//               | "TOKEN_INDENT_ACTION"
//               | "yytext[" n "]"
// Comments and the words that action code needs around strtmp.Format are passed over.
SActionStatements ReadActionStatements(const SActionCase& action);
