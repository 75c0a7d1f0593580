#include "Tools/uvgrammar/LoadBack.h"

#include <algorithm>

namespace {

template <class T>
void LoadTable(STable<T>& table, const std::string& directory, const char* name)
{
    const std::string path = GetDatFilePath(directory, directory, name);
    table.values.reset(UVDBGrammarKeeper::GetBinaryTableFromFile<T>(path.c_str(), table.count));
    if (table.count == 0)
        RefuseTable(directory, name, "the table is empty");
}

std::string LexerFolder(const std::string& directory)
{
    return directory + "Lexer/";
}

std::string ParserFolder(const std::string& directory)
{
    return directory + "Parser/";
}

void LoadScanner(const std::string& directory, SLoadedTables& tables)
{
    UVDBGrammarKeeper::CreateActionsMap(GetDatFile(directory, directory, "actions.dat"), tables.lexerActions);
    UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(directory, directory, "defines.dat"),
                                        tables.startConditions);
    CScannerTables& scanner = tables.scanner;
    LoadTable(scanner.accept, directory, "accept.dat");
    LoadTable(scanner.base, directory, "base.dat");
    LoadTable(scanner.chk, directory, "chk.dat");
    LoadTable(scanner.def, directory, "def.dat");
    LoadTable(scanner.NUL_trans, directory, "NUL_trans.dat");
    LoadTable(scanner.nxt, directory, "nxt.dat");
    LoadTable(scanner.rule_can_match_eol, directory, "rule_can_match_eol.dat");
    LoadTable(scanner.acclist, directory, "acclist.dat");
}

void LoadParser(const std::string& directory, SLoadedTables& tables)
{
    UVDBGrammarKeeper::CreateActionsMap(GetDatFile(directory, directory, "actions.dat"),
                                        tables.parserActions);
    const std::uint64_t defines =
        UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(directory, directory, "defines.dat"), tables.tokens);
    CParserTables& parser = tables.parser;
    parser.maxutok = static_cast<int>(defines & 0xffffffff);
    parser.ntokens = static_cast<int>(tables.tokens.size()) + ((defines >> 32) != 0 ? 2 : 3);
    parser.final_ = UVDBGrammarKeeper::GetFinalStateNum(GetDatFile(directory, directory, "const.dat"));
    LoadTable(parser.pact, directory, "pact.dat");
    LoadTable(parser.defact, directory, "defact.dat");
    LoadTable(parser.pgoto, directory, "pgoto.dat");
    LoadTable(parser.defgoto, directory, "defgoto.dat");
    LoadTable(parser.table, directory, "table.dat");
    LoadTable(parser.check, directory, "check.dat");
    LoadTable(parser.stos, directory, "stos.dat");
    LoadTable(parser.r1, directory, "r1.dat");
    LoadTable(parser.r2, directory, "r2.dat");
    LoadTable(parser.translate, directory, "translate.dat");
    parser.base_ninf =
        std::min(UVDBGrammarKeeper::TableNinfRemap(parser.pact.values.get(), parser.pact.count),
                 UVDBGrammarKeeper::TableNinfRemap(parser.pgoto.values.get(), parser.pgoto.count));
}

} // namespace

SLoadedTables::~SLoadedTables()
{
    FreeActionsMap(lexerActions);
    FreeActionsMap(parserActions);
}

void LoadTables(const std::string& directory, SLoadedTables& tables)
{
    LoadScanner(LexerFolder(directory), tables);
    LoadParser(ParserFolder(directory), tables);
}

void ProveTables(const std::string& directory, SLoadedTables& tables)
{
    int startConditions = 1; // every scanner has the initial one
    for (const auto& condition : tables.startConditions)
        startConditions = std::max(startConditions, condition.second + 1);
    tables.scanner.Compile(LexerFolder(directory), startConditions);
    tables.parser.Validate(ParserFolder(directory));
}
