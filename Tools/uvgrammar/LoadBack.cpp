#include "Tools/uvgrammar/LoadBack.h"

#include "Grammar/UVGrammarTables.h"

#include <algorithm>

namespace {

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
    ReadScannerTables(directory, tables.scanner);
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
    ReadParserTables(directory, parser);
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
