#pragma once

#include "Grammar/Runtime/ScannerTables.h"

#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

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

    // What a stack of states, top last, would do with a terminal as its lookahead. For stacks that the parser made.
    //
    // Whether it is shifted in the end, after the reductions that the tables order before.
    bool Shifts(std::span<const short> stack, int terminal) const;
    // Whether `next` would be shifted after it.
    bool ShiftsBoth(std::span<const short> stack, int terminal, int next) const;
    // Whether the top state shifts it without a reduction before.
    bool ShiftsAtOnce(std::span<const short> stack, int terminal) const
    {
        return RowAction(static_cast<std::size_t>(stack.back()), terminal) > 0;
    }
    // The state that each terminal is shifted to after it, 0 for none. Tokens that are followed by the same thing give
    // the same.
    std::vector<int> ShiftsAfter(std::span<const short> stack, int terminal) const;
    // The nonterminals that the terminal alone becomes once it is shifted, by rules of one symbol, up to where the next
    // token decides. `known` holds what was found out of states for earlier questions to the same tables.
    using TUnitReductions = std::map<std::size_t, std::set<unsigned>>;
    std::set<int> Becomes(std::span<const short> stack, int terminal, TUnitReductions& known) const;

    std::size_t States() const { return pact.count; }
    std::size_t Rules() const { return r1.count; }

private:
    // What the row of `state` says of `terminal`: shift to a state above 0, reduce by the rule of a negative
    // number; 0 if it says nothing.
    int RowAction(std::size_t state, int terminal) const;
    int Goto(int state, std::size_t nonterminal) const;
    // A stack as reductions and shifts leave it: what is left of another one, and the states that came on top.
    struct SStackAhead
    {
        std::span<const short> below;
        std::vector<short> above;

        bool IsEmpty() const { return below.empty() && above.empty(); }
        int Top() const { return above.empty() ? below.back() : above.back(); }
        void Pop(std::size_t count);
    };
    bool ReduceAndShift(SStackAhead& stack, int terminal) const;
    // The rules of one symbol that a state reduces by.
    std::set<unsigned> UnitReductions(std::size_t state) const;
    void AddSymbolsInto(int state, std::set<int>& symbols) const;
};
