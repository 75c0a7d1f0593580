// What a text might have gone on with where a token was unexpected, in the words of its author: the spellings that the
// scanner's tables read as a token, and "name" for the words that may all be one.
#pragma once

#include "Grammar/Runtime/ParserTables.h"
#include "Grammar/Runtime/ScannerTables.h"
#include "Grammar/UVGrammarActionRecords.h"

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <vector>

class CExpectedTokens
{
public:
    // All but the tables is needed here only.
    // Borrows: `parser`.
    CExpectedTokens(const CParserTables& parser, const CScannerTables& scanner,
                    const CActionRecords& scannerActions, const std::map<std::string, int>& tokens);

    // The tokens that a stack of states, top last, would take. Those come first after which the unexpected one,
    // `found`, could stand, then those that need no reduction before, and marks before words. Fixed spellings stand in
    // single quotes, others are words such as "string"; where many words may be a name, "name" stands for them, and "operator" for many marks that
    // the same follows.
    // Returns: at most `most` of them.
    std::vector<std::string> Find(std::span<const short> stack, int found, std::size_t most);

private:
    struct SToken
    {
        std::string shown;   // empty if no scanner rule makes it
        bool isWord = false; // one spelling, which begins with a letter
        bool isMark = false; // one of another kind
    };

    const CParserTables& m_Parser;
    CParserTables::TUnitReductions m_Known;
    std::vector<SToken> m_Tokens; // by terminal
};
