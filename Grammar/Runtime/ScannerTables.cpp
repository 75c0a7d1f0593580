#include "Grammar/Runtime/ScannerTables.h"

#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kBytes = 256;
constexpr std::uint16_t kUnset = 0xffff;
constexpr std::size_t kMostStates = 0xfffe;
constexpr int kMostRules = 0x1fff; // the bits above mark trailing contexts in the accept list
constexpr int kTrailingMask = 0x2000;
constexpr int kTrailingHeadMask = 0x4000;

} // namespace

void RefuseTable(const std::string& directory, const char* file, const std::string& what)
{
    Uve::U8CString message;
    message.Format("\nUVParser ERROR: Bad table file: %s%s: %s", directory.c_str(), file, what.c_str());
    throw message;
}

void CScannerTables::CheckSizes(const std::string& directory) const
{
    const struct
    {
        const char* file;
        const STable<int>& table;
    } tables[] = {
        {"accept.dat", accept},
        {"base.dat", base},
        {"chk.dat", chk},
        {"def.dat", def},
        {"NUL_trans.dat", NUL_trans},
        {"nxt.dat", nxt},
        {"rule_can_match_eol.dat", rule_can_match_eol},
        {"acclist.dat", acclist},
    };
    for (const auto& [file, table] : tables)
        if (!table.values || table.count == 0)
            RefuseTable(directory, file, "the table is empty or can't be opened");

    if (accept.count < 5)
        RefuseTable(directory, "accept.dat", "it has no states");
    if (base.count > kMostStates)
        RefuseTable(directory, "base.dat", "more than 65534 states");
    const auto jamState = static_cast<std::size_t>(LastState()) + 1;
    if (base.count <= jamState)
        RefuseTable(directory, "base.dat", "shorter than the states in accept.dat ask for");
    if (def.count != base.count)
        RefuseTable(directory, "def.dat", "not as long as base.dat");
    if (chk.count != nxt.count)
        RefuseTable(directory, "chk.dat", "not as long as nxt.dat");
    if (NUL_trans.count < jamState)
        RefuseTable(directory, "NUL_trans.dat", "shorter than the states in accept.dat ask for");
    if (rule_can_match_eol.count > kMostRules)
        RefuseTable(directory, "rule_can_match_eol.dat", "more than 8191 rules");
    for (std::size_t state = 0; state < NUL_trans.count; ++state)
        if (NUL_trans[state] < 0 || NUL_trans[state] > LastState() + 1)
            RefuseTable(directory, "NUL_trans.dat", "next state " + std::to_string(NUL_trans[state]));
    for (std::size_t state = 0; state < base.count; ++state)
        if (base[state] < 0 || static_cast<std::size_t>(base[state]) + kBytes > chk.count) {
            // the entry of state 0 is filling
            if (state == 0)
                continue;
            RefuseTable(directory, "base.dat", "row of state " + std::to_string(state) + " leaves chk.dat");
        }
}

void CScannerTables::CheckAcceptList(const std::string& directory) const
{
    const auto endOfBuffer = static_cast<int>(rule_can_match_eol.count);
    for (std::size_t state = 0; state < accept.count; ++state)
        if (accept[state] < 0 || static_cast<std::size_t>(accept[state]) > acclist.count)
            RefuseTable(directory, "accept.dat",
                        "list of state " + std::to_string(state) + " leaves acclist.dat");
    for (std::size_t entry = 1; entry < acclist.count; ++entry) {
        const int rule = acclist[entry] & ~(kTrailingMask | kTrailingHeadMask);
        if (acclist[entry] < 0 || rule < 1 || rule > endOfBuffer)
            RefuseTable(directory, "acclist.dat", "rule number " + std::to_string(acclist[entry]));
    }
}

// Every state's row, written out: the next state for each byte.
std::vector<std::uint16_t> CScannerTables::ResolveRows(const std::string& directory) const
{
    const std::size_t states = base.count;
    const int lastNext = LastState() + 1;
    std::vector<std::uint16_t> rows(states * kBytes, kUnset);
    enum : std::uint8_t
    {
        New,
        Open,
        Done
    };
    std::vector<std::uint8_t> mark(states, New);
    std::vector<int> chain;
    for (std::size_t first = 1; first < states; ++first) {
        // up the defaults until a row that is known or complete by itself
        chain.clear();
        for (auto state = static_cast<int>(first); mark[static_cast<std::size_t>(state)] != Done;) {
            const auto index = static_cast<std::size_t>(state);
            if (mark[index] == Open)
                RefuseTable(directory, "def.dat",
                            "the defaults of state " + std::to_string(first) + " run in a circle");
            mark[index] = Open;
            chain.push_back(state);
            std::uint16_t* const row = &rows[index * kBytes];
            const int* const check = &chk.values[static_cast<std::size_t>(base[index])];
            const int* const next = &nxt.values[static_cast<std::size_t>(base[index])];
            std::size_t own = 0;
            for (std::size_t byte = 0; byte < kBytes; ++byte) {
                if (check[byte] != state)
                    continue;
                if (next[byte] < 1 || next[byte] > lastNext)
                    RefuseTable(directory, "nxt.dat",
                                "next state " + std::to_string(next[byte]) + " of state " +
                                    std::to_string(state) + " is outside 1.." + std::to_string(lastNext));
                row[byte] = static_cast<std::uint16_t>(next[byte]);
                ++own;
            }
            if (own == kBytes) {
                mark[index] = Done;
                chain.pop_back();
                break;
            }
            state = def[index];
            if (state < 1 || static_cast<std::size_t>(state) >= states)
                RefuseTable(directory, "def.dat",
                            "default " + std::to_string(state) + " of state " + std::to_string(chain.back()));
        }
        // and down again, each row completed by its default's
        while (!chain.empty()) {
            const auto index = static_cast<std::size_t>(chain.back());
            std::uint16_t* const row = &rows[index * kBytes];
            const std::uint16_t* const fallback = &rows[static_cast<std::size_t>(def[index]) * kBytes];
            for (std::size_t byte = 0; byte < kBytes; ++byte)
                row[byte] = row[byte] == kUnset ? fallback[byte] : row[byte];
            mark[index] = Done;
            chain.pop_back();
        }
    }
    return rows;
}

// A scanner that backs up finds a rule at the latest behind the first byte: the generator adds one for any
// byte.
void CScannerTables::CheckFirstStep(const std::string& directory,
                                    const std::vector<std::uint16_t>& rows) const
{
    for (int state = 1; state <= 2 * StartConditions(); ++state)
        for (std::size_t byte = 0; byte < kBytes; ++byte) {
            const std::size_t next = rows[static_cast<std::size_t>(state) * kBytes + byte];
            if (accept[next] < 1 || accept[next] >= accept[next + 1])
                RefuseTable(directory, "accept.dat",
                            "no rule behind byte " + std::to_string(byte) + " of start state " +
                                std::to_string(state));
        }
}

// Two NUL bytes end every buffer. From every state the first leads to the one that accepts the end, and
// nothing else leads there or accepts it; on the second the walk stops. So the end is never missed, and text
// never taken for it.
void CScannerTables::CheckEndOfBuffer(const std::string& directory,
                                      const std::vector<std::uint16_t>& rows) const
{
    const auto endOfBuffer = static_cast<int>(rule_can_match_eol.count);
    const auto jamState = static_cast<std::size_t>(LastState()) + 1;
    const std::size_t endState = rows[kBytes];
    for (std::size_t state = 1; state <= jamState; ++state) {
        for (std::size_t byte = 0; byte < kBytes; ++byte) {
            const std::size_t next = rows[state * kBytes + byte];
            const bool isRight =
                state == endState && byte == 0 ? next == jamState : (next == endState) == (byte == 0);
            if (!isRight)
                RefuseTable(directory, "nxt.dat",
                            "byte " + std::to_string(byte) + " of state " + std::to_string(state) +
                                " misses the end of the text");
        }
        if (state < jamState && static_cast<std::size_t>(NUL_trans[state]) == endState)
            RefuseTable(directory, "NUL_trans.dat",
                        "state " + std::to_string(state) + " misses the end of the text");
        bool isFirst = true;
        for (int entry = accept[state]; entry > 0 && entry < accept[state + 1]; ++entry, isFirst = false) {
            const int rule = acclist[static_cast<std::size_t>(entry)];
            if ((rule == endOfBuffer) != (state == endState && isFirst))
                RefuseTable(directory, "acclist.dat",
                            "rule " + std::to_string(rule) + " of state " + std::to_string(state) +
                                " misses the end of the text");
        }
        if (state == endState && isFirst)
            RefuseTable(directory, "accept.dat", "no rule for the end of the text");
        if (state == jamState && !isFirst)
            RefuseTable(directory, "accept.dat", "a rule where nothing leads on");
    }
}

void CScannerTables::FoldClasses(const std::vector<std::uint16_t>& rows)
{
    const std::size_t states = static_cast<std::size_t>(LastState()) + 2;
    // a first guess by a checksum over each byte's column, then the proof
    std::array<std::uint64_t, kBytes> checksum{};
    for (std::size_t state = 1; state < states; ++state)
        for (std::size_t byte = 0; byte < kBytes; ++byte)
            checksum[byte] = checksum[byte] * 0x9E3779B97F4A7C15u + rows[state * kBytes + byte] + 1;
    std::array<std::size_t, kBytes> leader{};
    std::vector<std::size_t> leaders;
    const auto isSameColumn = [&](std::size_t left, std::size_t right) {
        for (std::size_t state = 1; state < states; ++state)
            if (rows[state * kBytes + left] != rows[state * kBytes + right])
                return false;
        return true;
    };
    for (std::size_t byte = 0; byte < kBytes; ++byte) {
        const auto same = std::find_if(leaders.begin(), leaders.end(), [&](std::size_t other) {
            return checksum[other] == checksum[byte] && isSameColumn(other, byte);
        });
        if (same == leaders.end()) {
            leader[byte] = leaders.size();
            leaders.push_back(byte);
        } else
            leader[byte] = static_cast<std::size_t>(same - leaders.begin());
        m_classOf[byte] = static_cast<std::uint8_t>(leader[byte]);
    }
    for (m_classBits = 0; (std::size_t{1} << m_classBits) < leaders.size(); ++m_classBits) {
    }
    m_next.assign(states << m_classBits, 0);
    m_isJam.assign(states, 0);
    const int jamBase = base[states - 1];
    for (std::size_t state = 1; state < states; ++state) {
        for (std::size_t column = 0; column < leaders.size(); ++column)
            m_next[(state << m_classBits) + column] = rows[state * kBytes + leaders[column]];
        m_isJam[state] = base[state] == jamBase;
    }
}

void CScannerTables::Compile(const std::string& directory, int startConditions)
{
    CheckSizes(directory);
    if (startConditions < 1 || startConditions > LastState() / 2)
        RefuseTable(directory, "defines.dat",
                    std::to_string(startConditions) + " start conditions for " + std::to_string(LastState()) +
                        " states");
    m_nStartConditions = startConditions;
    CheckAcceptList(directory);
    const std::vector<std::uint16_t> rows = ResolveRows(directory);
    CheckFirstStep(directory, rows);
    CheckEndOfBuffer(directory, rows);
    FoldClasses(rows);
}

void CScannerTables::DropCompiled()
{
    m_next.clear();
    m_isJam.clear();
}
