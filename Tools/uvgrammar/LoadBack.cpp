#include "Tools/uvgrammar/LoadBack.h"

#include "Tools/Support/ToolFiles.h"

#include <algorithm>
#include <memory>

namespace {

template <class T>
std::vector<T> LoadTable(const std::string& directory, const char* name)
{
    const std::string path = GetDatFilePath(directory, directory, name);
    std::size_t count = 0;
    const std::unique_ptr<T[]> entries(UVDBGrammarKeeper::GetBinaryTableFromFile<T>(path.c_str(), count));
    if (count == 0)
        throw CToolFailure(path + ": the table is empty");
    return {entries.get(), entries.get() + count};
}

void Require(bool holds, const std::string& directory, const char* text)
{
    if (!holds)
        throw CToolFailure(directory + ": " + text);
}

bool AreBetween(const std::vector<int>& entries, long long low, long long high)
{
    return std::all_of(entries.begin(), entries.end(),
                       [=](int entry) { return entry >= low && entry < high; });
}

// What the scanner's loop takes for granted. Every byte is an index: a scanner of 7 bits has shorter tables.
void CheckScanner(const std::string& directory, const SLoadedTables& tables)
{
    const auto size = [](const auto& table) { return static_cast<long long>(table.size()); };
    const long long states = size(tables.accept) - 2; // the state before which the machine jams is the last
    Require(states > 0, directory, "accept.dat holds no state");
    Require(size(tables.base) == size(tables.def) && size(tables.base) >= states, directory,
            "base.dat and def.dat don't fit the number of states");
    Require(size(tables.chk) == size(tables.nxt), directory, "chk.dat and nxt.dat differ in size");
    Require(AreBetween(tables.base, 0, size(tables.nxt) - 255), directory,
            "base.dat leads outside of nxt.dat: the scanner has to take all 256 bytes (option 8bit)");
    Require(AreBetween(tables.def, 0, size(tables.base)), directory, "def.dat leads outside of base.dat");
    Require(AreBetween(tables.nxt, 0, size(tables.base)), directory,
            "nxt.dat leads to a state that isn't there");
    Require(size(tables.nulTrans) >= states, directory, "NUL_trans.dat has too few states");
    Require(AreBetween(tables.accept, 0, size(tables.acclist) + 1), directory,
            "accept.dat leads outside of acclist.dat");
}

void CheckParser(const std::string& directory, const SLoadedTables& tables)
{
    const std::size_t states = tables.pact.size();
    // The state stack holds numbers of 16 bits.
    Require(states <= 32768, directory, "the parser has more than 32768 states");
    Require(tables.defact.size() == states && tables.stos.size() == states, directory,
            "pact.dat, defact.dat and stos.dat differ in size");
    Require(tables.table.size() == tables.check.size(), directory, "table.dat and check.dat differ in size");
    Require(tables.r1.size() == tables.r2.size(), directory, "r1.dat and r2.dat differ in size");
    Require(tables.pgoto.size() == tables.defgoto.size(), directory,
            "pgoto.dat and defgoto.dat differ in size");
    Require(tables.finalState > 0 && static_cast<std::size_t>(tables.finalState) < states, directory,
            "const.dat names no state of the parser");
}

} // namespace

SLoadedTables::~SLoadedTables()
{
    FreeActionsMap(lexerActions);
    FreeActionsMap(parserActions);
}

void LoadTablesBack(const std::string& directory, SLoadedTables& tables)
{
    const std::string lexer = directory + "Lexer/";
    UVDBGrammarKeeper::CreateActionsMap(GetDatFile(lexer, lexer, "actions.dat"), tables.lexerActions);
    UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(lexer, lexer, "defines.dat"), tables.startConditions);
    tables.accept = LoadTable<int>(lexer, "accept.dat");
    tables.base = LoadTable<int>(lexer, "base.dat");
    tables.chk = LoadTable<int>(lexer, "chk.dat");
    tables.def = LoadTable<int>(lexer, "def.dat");
    tables.nulTrans = LoadTable<int>(lexer, "NUL_trans.dat");
    tables.nxt = LoadTable<int>(lexer, "nxt.dat");
    tables.ruleCanMatchEol = LoadTable<int>(lexer, "rule_can_match_eol.dat");
    tables.acclist = LoadTable<int>(lexer, "acclist.dat");
    CheckScanner(lexer, tables);

    const std::string parser = directory + "Parser/";
    UVDBGrammarKeeper::CreateActionsMap(GetDatFile(parser, parser, "actions.dat"), tables.parserActions);
    const std::uint64_t defines =
        UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(parser, parser, "defines.dat"), tables.tokens);
    tables.terminals = static_cast<int>(tables.tokens.size()) + ((defines >> 32) != 0 ? 2 : 3);
    tables.finalState = UVDBGrammarKeeper::GetFinalStateNum(GetDatFile(parser, parser, "const.dat"));
    tables.pact = LoadTable<int>(parser, "pact.dat");
    tables.defact = LoadTable<unsigned>(parser, "defact.dat");
    tables.pgoto = LoadTable<int>(parser, "pgoto.dat");
    tables.defgoto = LoadTable<int>(parser, "defgoto.dat");
    tables.table = LoadTable<int>(parser, "table.dat");
    tables.check = LoadTable<int>(parser, "check.dat");
    tables.stos = LoadTable<unsigned>(parser, "stos.dat");
    tables.r1 = LoadTable<unsigned>(parser, "r1.dat");
    tables.r2 = LoadTable<unsigned>(parser, "r2.dat");
    tables.translate = LoadTable<unsigned>(parser, "translate.dat");
    CheckParser(parser, tables);
}
