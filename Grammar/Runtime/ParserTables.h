#pragma once

#include "Grammar/Runtime/ScannerTables.h"

#include <set>
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
    // told from the tables alone; the parser tests that itself.
    // Throws: Uve::U8CString with the line for the log, which names the file in `directory` and what is
    //         wrong.
    void Validate(const std::string& directory) const;

    void WriteTo(CTableImageWriter& image) const;
    // Returns: false if the image holds something else; the tables are of no use then. What it holds isn't
    //          proved.
    [[nodiscard]] bool ReadFrom(CTableImageReader& image);

    // Both for valid tables. What a whole text is reduced to: after it the end leads to the accepting state.
    // Returns: the symbol's number, -1 if there is none.
    int StartSymbol() const;
    // The symbols that may stand last on the right side of `rule`: what the states are entered with in which
    // the tables reduce by it.
    std::set<int> LastSymbols(int rule) const;

    std::size_t States() const { return pact.count; }
    std::size_t Rules() const { return r1.count; }

private:
    // What the row of `state` says of `terminal`: shift to a state above 0, reduce by the rule of a negative
    // number; 0 if it says nothing.
    int RowAction(std::size_t state, int terminal) const;
    int Goto(int state, std::size_t nonterminal) const;
    void AddSymbolsInto(int state, std::set<int>& symbols) const;
};
