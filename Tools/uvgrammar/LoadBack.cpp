#include "Tools/uvgrammar/LoadBack.h"

void LoadTables(const std::string& directory, SLoadedTables& tables)
{
    ReadScannerFiles(directory + "Lexer/", tables.scanner);
    ReadParserFiles(directory + "Parser/", tables.parser);
}

void ProveTables(const std::string& directory, SLoadedTables& tables)
{
    ProveScannerFiles(directory + "Lexer/", tables.scanner);
    ProveParserFiles(directory + "Parser/", tables.parser);
}
