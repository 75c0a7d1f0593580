#include "Grammar/Runtime/ParserTables.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {

constexpr std::size_t kMostStates = 32768; // the state stack holds 16-bit entries
constexpr int kMostBase = 1 << 24;
constexpr int kNoMark = kMostBase + 1; // no base of a row
constexpr int kEndOfText = 0;          // its terminal

// The places where rows of one kind begin in table and check.
class CRowStarts
{
public:
    CRowStarts(const STable<int>& bases, int none, std::size_t slots)
    {
        const auto counts = [&](int base) { return base != none && base < static_cast<int>(slots); };
        for (std::size_t row = 0; row < bases.count; ++row)
            if (counts(bases[row]))
                m_least = std::min(m_least, bases[row]);
        m_isStart.resize(slots + static_cast<std::size_t>(-m_least));
        for (std::size_t row = 0; row < bases.count; ++row)
            if (counts(bases[row]))
                m_isStart[static_cast<std::size_t>(bases[row] - m_least)] = 1;
    }

    bool Has(long base) const
    {
        const long index = base - m_least;
        return index >= 0 && static_cast<std::size_t>(index) < m_isStart.size() &&
               m_isStart[static_cast<std::size_t>(index)] != 0;
    }

private:
    int m_least = 0;
    std::vector<std::uint8_t> m_isStart;
};

} // namespace

void CParserTables::Validate(const std::string& directory) const
{
    const auto refuse = [&](const char* file, const std::string& what) {
        RefuseTable(directory, file, what);
    };
    const auto checkPresent = [&](const auto& values, const char* file) {
        if (!values.values || values.count == 0)
            refuse(file, "the table is empty or can't be opened");
    };
    checkPresent(pact, "pact.dat");
    checkPresent(defact, "defact.dat");
    checkPresent(pgoto, "pgoto.dat");
    checkPresent(defgoto, "defgoto.dat");
    checkPresent(table, "table.dat");
    checkPresent(check, "check.dat");
    checkPresent(stos, "stos.dat");
    checkPresent(r1, "r1.dat");
    checkPresent(r2, "r2.dat");
    checkPresent(translate, "translate.dat");

    const auto states = static_cast<int>(std::min(pact.count, kMostStates + 1));
    if (pact.count > kMostStates)
        refuse("pact.dat", "more than 32768 states");
    if (defact.count != pact.count)
        refuse("defact.dat", "not as long as pact.dat");
    if (stos.count != pact.count)
        refuse("stos.dat", "not as long as pact.dat");
    if (defgoto.count != pgoto.count)
        refuse("defgoto.dat", "not as long as pgoto.dat");
    if (check.count != table.count)
        refuse("check.dat", "not as long as table.dat");
    if (r2.count != r1.count)
        refuse("r2.dat", "not as long as r1.dat");
    if (table.count > static_cast<std::size_t>(kMostBase))
        refuse("table.dat", "too large");
    if (final_ < 1 || final_ >= states)
        refuse("const.dat", "accepting state " + std::to_string(final_) + " of " + std::to_string(states));
    if (maxutok < 0 || translate.count <= static_cast<std::size_t>(maxutok))
        refuse("translate.dat", "shorter than the largest token number in defines.dat");
    for (std::size_t token = 0; token < translate.count; ++token)
        if (translate[token] >= static_cast<unsigned>(ntokens))
            refuse("translate.dat",
                   "token number " + std::to_string(translate[token]) + " of " + std::to_string(ntokens));

    const auto checkBases = [&](const STable<int>& bases, const char* file) {
        for (std::size_t row = 0; row < bases.count; ++row)
            if (std::abs(static_cast<long>(bases[row])) > kMostBase)
                refuse(file, "row " + std::to_string(row) + " starts at " + std::to_string(bases[row]));
    };
    checkBases(pact, "pact.dat");
    checkBases(pgoto, "pgoto.dat");

    const auto rules = static_cast<int>(std::min<std::size_t>(r1.count, kMostBase));
    for (std::size_t rule = 1; rule < r1.count; ++rule) {
        const long nonterminal = static_cast<long>(r1[rule]) - ntokens;
        if (nonterminal < 0 || nonterminal >= static_cast<long>(pgoto.count))
            refuse("r1.dat", "rule " + std::to_string(rule) + " makes symbol " + std::to_string(r1[rule]));
        if (r2[rule] > static_cast<unsigned>(std::numeric_limits<short>::max()))
            refuse("r2.dat",
                   "rule " + std::to_string(rule) + " has " + std::to_string(r2[rule]) + " symbols");
    }
    for (std::size_t state = 0; state < pact.count; ++state) {
        if (defact[state] >= static_cast<unsigned>(rules))
            refuse("defact.dat",
                   "state " + std::to_string(state) + " reduces by rule " + std::to_string(defact[state]));
        // such a state could neither read a token nor reduce
        if (pact[state] == base_ninf && defact[state] == 0)
            refuse("defact.dat", "state " + std::to_string(state) + " has no action at all");
    }
    for (std::size_t row = 0; row < defgoto.count; ++row)
        if (defgoto[row] < 0 ? defgoto[row] != -1 : defgoto[row] >= states)
            refuse("defgoto.dat", "next state " + std::to_string(defgoto[row]));

    // A slot belongs to the rows whose base lies as far before it as check says.
    const CRowStarts actionRows(pact, base_ninf, table.count);
    // A goto doesn't ask for the mark of an empty row: it tries that place like any other.
    const CRowStarts gotoRows(pgoto, kNoMark, table.count);
    for (std::size_t slot = 0; slot < table.count; ++slot) {
        const int value = table[slot];
        // nobody's, or a state, which is right as an action and as a next state
        if (check[slot] < 0 || (value > 0 && value < states))
            continue;
        const long base = static_cast<long>(slot) - check[slot];
        if (check[slot] < ntokens && actionRows.Has(base) &&
            (value >= states || value <= -rules || value == 0))
            refuse("table.dat", "action " + std::to_string(value) + " in slot " + std::to_string(slot));
        if (check[slot] < states && gotoRows.Has(base) && (value < 0 || value >= states))
            refuse("table.dat", "next state " + std::to_string(value) + " in slot " + std::to_string(slot));
    }
    if (StartSymbol() < 0)
        refuse("const.dat",
               "the end of a text doesn't lead to the accepting state " + std::to_string(final_));
}

void CParserTables::WriteTo(CTableImageWriter& image) const
{
    for (const int constant : {final_, ntokens, maxutok, base_ninf})
        image.AddNumber(constant);
    for (const STable<int>* const values : {&pact, &pgoto, &defgoto, &table, &check})
        image.Add(*values);
    for (const STable<unsigned>* const values : {&defact, &stos, &r1, &r2, &translate})
        image.Add(*values);
}

bool CParserTables::ReadFrom(CTableImageReader& image)
{
    bool isRead = true;
    for (int* const constant : {&final_, &ntokens, &maxutok, &base_ninf})
        isRead = isRead && image.TakeNumber(*constant);
    for (STable<int>* const values : {&pact, &pgoto, &defgoto, &table, &check})
        isRead = isRead && image.Take(*values);
    for (STable<unsigned>* const values : {&defact, &stos, &r1, &r2, &translate})
        isRead = isRead && image.Take(*values);
    return isRead;
}

int CParserTables::RowAction(std::size_t state, int terminal) const
{
    const int slot = pact[state] + terminal;
    const bool isInRow = pact[state] != base_ninf && slot >= 0 &&
                         static_cast<std::size_t>(slot) < table.count &&
                         check[static_cast<std::size_t>(slot)] == terminal;
    return isInRow ? table[static_cast<std::size_t>(slot)] : 0;
}

int CParserTables::Goto(int state, std::size_t nonterminal) const
{
    const int slot = pgoto[nonterminal] + state;
    const bool isInRow = slot >= 0 && static_cast<std::size_t>(slot) < table.count &&
                         check[static_cast<std::size_t>(slot)] == state;
    return isInRow ? table[static_cast<std::size_t>(slot)] : defgoto[nonterminal];
}

void CParserTables::SStackAhead::Pop(std::size_t count)
{
    const std::size_t fromAbove = std::min(count, above.size());
    above.resize(above.size() - fromAbove);
    below = below.first(below.size() - std::min(count - fromAbove, below.size()));
}

bool CParserTables::ReduceAndShift(SStackAhead& stack, int terminal) const
{
    // Damaged tables could reduce for ever; a sound grammar needs far fewer for one token.
    constexpr int kMostReductions = 10000;
    for (int reductions = 0; reductions < kMostReductions && !stack.IsEmpty(); ++reductions) {
        const auto state = static_cast<std::size_t>(stack.Top());
        const int action = RowAction(state, terminal);
        if (action > 0) {
            stack.above.push_back(static_cast<short>(action));
            return true;
        }
        const auto rule = action < 0 ? static_cast<std::size_t>(-action) : defact[state];
        if (rule == 0)
            break;
        stack.Pop(r2[rule]);
        const int next = stack.IsEmpty() ? -1 : Goto(stack.Top(), r1[rule] - static_cast<unsigned>(ntokens));
        if (next < 0)
            break;
        stack.above.push_back(static_cast<short>(next));
    }
    return false;
}

bool CParserTables::Shifts(std::span<const short> stack, int terminal) const
{
    SStackAhead ahead{stack, {}};
    return ReduceAndShift(ahead, terminal);
}

bool CParserTables::ShiftsBoth(std::span<const short> stack, int terminal, int next) const
{
    SStackAhead ahead{stack, {}};
    return ReduceAndShift(ahead, terminal) && ReduceAndShift(ahead, next);
}

std::vector<int> CParserTables::ShiftsAfter(std::span<const short> stack, int terminal) const
{
    SStackAhead ahead{stack, {}};
    std::vector<int> states;
    if (!ReduceAndShift(ahead, terminal))
        return states;
    for (int next = 0; next < ntokens; ++next)
        states.push_back(std::max(RowAction(static_cast<std::size_t>(ahead.Top()), next), 0));
    return states;
}

std::set<unsigned> CParserTables::UnitReductions(std::size_t state) const
{
    std::set<unsigned> rules;
    if (r2[defact[state]] == 1)
        rules.insert(defact[state]);
    for (int terminal = 0; terminal < ntokens; ++terminal) {
        const int action = RowAction(state, terminal);
        if (action < 0 && r2[static_cast<std::size_t>(-action)] == 1)
            rules.insert(static_cast<unsigned>(-action));
    }
    return rules;
}

std::set<int> CParserTables::Becomes(std::span<const short> stack, int terminal, TUnitReductions& known) const
{
    std::set<int> symbols;
    SStackAhead ahead{stack, {}};
    if (!ReduceAndShift(ahead, terminal))
        return symbols;
    while (true) {
        const auto state = static_cast<std::size_t>(ahead.Top());
        auto found = known.find(state);
        if (found == known.end())
            found = known.emplace(state, UnitReductions(state)).first;
        const std::set<unsigned>& rules = found->second;
        bool isNew = false;
        for (const unsigned rule : rules)
            isNew = symbols.insert(static_cast<int>(r1[rule])).second || isNew;
        // One symbol leads on. One that comes again would come for ever.
        if (rules.size() != 1 || !isNew || pact[state] != base_ninf)
            break;
        ahead.Pop(1);
        const int next =
            ahead.IsEmpty() ? -1 : Goto(ahead.Top(), r1[*rules.begin()] - static_cast<unsigned>(ntokens));
        if (next < 0)
            break;
        ahead.above.push_back(static_cast<short>(next));
    }
    return symbols;
}

int CParserTables::StartSymbol() const
{
    for (std::size_t state = 0; state < pact.count; ++state) {
        if (RowAction(state, kEndOfText) != final_)
            continue;
        // the first nonterminal is the generator's own
        for (std::size_t nonterminal = 1; nonterminal < pgoto.count; ++nonterminal)
            if (Goto(0, nonterminal) == static_cast<int>(state))
                return ntokens + static_cast<int>(nonterminal);
    }
    return -1;
}

std::set<int> CParserTables::LastSymbols(int rule) const
{
    std::set<int> symbols;
    for (std::size_t state = 0; state < pact.count; ++state) {
        bool isReduced = defact[state] == static_cast<unsigned>(rule);
        for (int terminal = 0; terminal < ntokens && !isReduced; ++terminal)
            isReduced = RowAction(state, terminal) == -rule;
        if (isReduced)
            AddSymbolsInto(static_cast<int>(state), symbols);
    }
    return symbols;
}

// The names of states in stos.dat would tell it at once, but nothing else depends on their being right.
void CParserTables::AddSymbolsInto(int state, std::set<int>& symbols) const
{
    for (std::size_t nonterminal = 1; nonterminal < pgoto.count; ++nonterminal)
        if (defgoto[nonterminal] == state)
            symbols.insert(ntokens + static_cast<int>(nonterminal));
    for (std::size_t slot = 0; slot < table.count; ++slot) {
        if (table[slot] != state)
            continue;
        const int base = static_cast<int>(slot) - check[slot];
        for (std::size_t nonterminal = 1; nonterminal < pgoto.count; ++nonterminal)
            if (pgoto[nonterminal] == base)
                symbols.insert(ntokens + static_cast<int>(nonterminal));
        for (std::size_t from = 0; from < pact.count; ++from)
            if (pact[from] == base && base != base_ninf)
                symbols.insert(check[slot]);
    }
}
