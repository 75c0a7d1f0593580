#include "Grammar/Runtime/ScannerTables.h"

#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>

namespace {

constexpr std::size_t kBytes = 256;
constexpr std::uint16_t kUnset = 0; // no transition leads to state 0
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

// Bytes for which every row has the same entries of its own share a class.
void CScannerTables::FoldClasses()
{
    // A slot of chk says whose it is, so one pass over the slots meets every entry of every row, for each
    // byte in the same order of rows.
    const auto forEachOwn = [&](const auto& take) {
        for (std::size_t slot = 0; slot < chk.count; ++slot) {
            const auto state = static_cast<std::size_t>(chk[slot]); // a negative one is too large
            if (state == 0 || state >= base.count)
                continue;
            const std::size_t byte = slot - static_cast<std::size_t>(base[state]);
            if (byte < kBytes)
                take(slot, state, byte);
        }
    };
    // a first guess by a checksum over each byte's entries, then the proof
    std::array<std::uint64_t, kBytes> checksum{};
    std::array<std::size_t, kBytes> entries{};
    forEachOwn([&](std::size_t slot, std::size_t state, std::size_t byte) {
        const std::uint64_t entry =
            static_cast<std::uint64_t>(state) << 32 | static_cast<std::uint32_t>(nxt[slot]);
        checksum[byte] = checksum[byte] * 0x9E3779B97F4A7C15u + entry + 1;
        ++entries[byte];
    });
    std::array<std::size_t, kBytes> leader{};
    for (std::size_t byte = 0; byte < kBytes; ++byte)
        while (checksum[leader[byte]] != checksum[byte] || entries[leader[byte]] != entries[byte])
            ++leader[byte];
    std::array<bool, kBytes> isAlone{};
    forEachOwn([&](std::size_t slot, std::size_t state, std::size_t byte) {
        const std::size_t same = static_cast<std::size_t>(base[state]) + leader[byte];
        if (chk[same] != chk[slot] || nxt[same] != nxt[slot])
            isAlone[byte] = true;
    });

    m_leaders.clear();
    for (std::size_t byte = 0; byte < kBytes; ++byte) {
        const bool isNew = isAlone[byte] || leader[byte] == byte;
        m_classOf[byte] = isNew ? static_cast<std::uint8_t>(m_leaders.size()) : m_classOf[leader[byte]];
        if (isNew)
            m_leaders.push_back(static_cast<std::uint8_t>(byte));
    }
    for (m_classBits = 0; (std::size_t{1} << m_classBits) < m_leaders.size(); ++m_classBits) {
    }
}

// Every state's row, written out: the next state for each class of bytes.
void CScannerTables::ResolveRows(const std::string& directory)
{
    const std::size_t states = base.count;
    const int lastNext = LastState() + 1;
    std::vector<std::uint16_t> rows(states << m_classBits, kUnset);
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
            std::uint16_t* const row = &rows[index << m_classBits];
            const int* const check = chk.values.get() + base[index];
            const int* const next = nxt.values.get() + base[index];
            std::size_t own = 0;
            for (std::size_t column = 0; column < m_leaders.size(); ++column) {
                const std::uint8_t byte = m_leaders[column];
                if (check[byte] != state)
                    continue;
                if (next[byte] < 1 || next[byte] > lastNext)
                    RefuseTable(directory, "nxt.dat",
                                "next state " + std::to_string(next[byte]) + " of state " +
                                    std::to_string(state) + " is outside 1.." + std::to_string(lastNext));
                row[column] = static_cast<std::uint16_t>(next[byte]);
                ++own;
            }
            if (own == m_leaders.size()) {
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
        for (; !chain.empty(); chain.pop_back()) {
            const auto index = static_cast<std::size_t>(chain.back());
            std::uint16_t* const row = &rows[index << m_classBits];
            const std::uint16_t* const fallback = &rows[static_cast<std::size_t>(def[index]) << m_classBits];
            for (std::size_t column = 0; column < m_leaders.size(); ++column)
                row[column] = row[column] == kUnset ? fallback[column] : row[column];
            mark[index] = Done;
        }
    }
    m_next = STable<std::uint16_t>(std::move(rows));
}

// A scanner that backs up finds a rule at the latest after the first byte: the generator adds one for any
// byte.
void CScannerTables::CheckFirstStep(const std::string& directory) const
{
    for (int state = 1; state <= 2 * StartConditions(); ++state)
        for (const std::uint8_t byte : m_leaders) {
            const auto next = static_cast<std::size_t>(Next(state, byte));
            if (accept[next] < 1 || accept[next] >= accept[next + 1])
                RefuseTable(directory, "accept.dat",
                            "no rule after byte " + std::to_string(byte) + " of start state " +
                                std::to_string(state));
        }
}

// Two NUL bytes end every buffer. From every state the first leads to the one that accepts the end, and
// nothing else leads there or accepts it; on the second the walk stops. So the end is never missed, and text
// never taken for it.
void CScannerTables::CheckEndOfBuffer(const std::string& directory) const
{
    const auto endOfBuffer = static_cast<int>(rule_can_match_eol.count);
    const auto jamState = static_cast<std::size_t>(LastState()) + 1;
    const auto endState = static_cast<std::size_t>(Next(1, 0));
    // One byte speaks for its class, but NUL for itself alone.
    std::vector<std::uint8_t> bytes = m_leaders;
    const auto besideNul = std::find(m_classOf.begin() + 1, m_classOf.end(), m_classOf[0]);
    if (besideNul != m_classOf.end())
        bytes.push_back(static_cast<std::uint8_t>(besideNul - m_classOf.begin()));
    std::sort(bytes.begin(), bytes.end());
    for (std::size_t state = 1; state <= jamState; ++state) {
        for (const std::uint8_t byte : bytes) {
            const auto next = static_cast<std::size_t>(Next(static_cast<int>(state), byte));
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

void CScannerTables::Compile(const std::string& directory, int startConditions)
{
    CheckSizes(directory);
    if (startConditions < 1 || startConditions > LastState() / 2)
        RefuseTable(directory, "defines.dat",
                    std::to_string(startConditions) + " start conditions for " + std::to_string(LastState()) +
                        " states");
    m_nStartConditions = startConditions;
    CheckAcceptList(directory);
    FoldClasses();
    ResolveRows(directory);
    CheckFirstStep(directory);
    CheckEndOfBuffer(directory);
    // the states after the last one have lent their rows to others, and nothing leads to them
    const std::size_t states = static_cast<std::size_t>(LastState()) + 2;
    m_next.count = states << m_classBits;
    std::vector<std::uint8_t> isJam(states);
    for (std::size_t state = 1; state < states; ++state)
        isJam[state] = base[state] == base[states - 1];
    m_isJam = STable<std::uint8_t>(std::move(isJam));
}

void CScannerTables::WriteTo(CTableImageWriter& image) const
{
    image.AddNumber(m_nStartConditions);
    image.AddNumber(m_classBits);
    image.AddText({reinterpret_cast<const char*>(m_classOf.data()), m_classOf.size()});
    image.Add(m_next);
    image.Add(m_isJam);
    for (const STable<int>* const table : {&accept, &base, &NUL_trans, &rule_can_match_eol, &acclist})
        image.Add(*table);
}

bool CScannerTables::ReadFrom(CTableImageReader& image)
{
    STable<std::uint8_t> classes;
    bool isRead = image.TakeNumber(m_nStartConditions) && image.TakeNumber(m_classBits) &&
                  image.Take(classes) && image.Take(m_next) && image.Take(m_isJam);
    for (STable<int>* const table : {&accept, &base, &NUL_trans, &rule_can_match_eol, &acclist})
        isRead = isRead && image.Take(*table);
    if (!isRead || classes.count != m_classOf.size())
        return false;
    std::copy_n(classes.values.get(), classes.count, m_classOf.begin());
    return IsWithinBounds();
}

// Nothing that the walk forms leaves the tables.
bool CScannerTables::IsWithinBounds() const
{
    constexpr unsigned kMostClassBits = 8;
    if (accept.count < 5 || accept.count > kMostStates || m_classBits > kMostClassBits ||
        m_nStartConditions < 1 || m_nStartConditions > LastState() / 2)
        return false;
    const auto states = static_cast<std::size_t>(LastState()) + 2;
    if (m_next.count != states << m_classBits || m_isJam.count != states || base.count < states ||
        NUL_trans.count < states - 1 || rule_can_match_eol.count > kMostRules)
        return false;
    // a largest value is found many at a time; a negative number is too large
    const auto isBelow = [](std::size_t end, const auto* values, std::size_t count) {
        auto largest = *values;
        for (std::size_t i = 1; i < count; ++i)
            largest = std::max(largest, values[i]);
        return largest < end;
    };
    const auto isNumbersBelow = [&](std::size_t end, const STable<int>& table) {
        static_assert(sizeof(int) == sizeof(unsigned));
        return isBelow(end, reinterpret_cast<const unsigned*>(table.values.get()), table.count);
    };
    const std::uint8_t highest = *std::max_element(m_classOf.begin(), m_classOf.end());
    return highest >> m_classBits == 0 && isBelow(states, m_next.values.get(), m_next.count) &&
           isNumbersBelow(states, NUL_trans) && isNumbersBelow(acclist.count + 1, accept);
}

void CScannerTables::DropCompiled()
{
    m_next = {};
    m_isJam = {};
}
