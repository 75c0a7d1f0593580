#include "Grammar/UVGrammarTables.h"

#include "Grammar/UVGrammarKeeper.h"

#include <algorithm>

namespace {

template <class T>
void ReadTable(STable<T>& table, const std::string& directory, const char* name)
{
    const std::string path = GetDatFilePath(directory, directory, name);
    table.values.reset(UVDBGrammarKeeper::GetBinaryTableFromFile<T>(path.c_str(), table.count));
}

} // namespace

void ReadScannerTables(const std::string& directory, CScannerTables& tables)
{
    ReadTable(tables.accept, directory, "accept.dat");
    ReadTable(tables.base, directory, "base.dat");
    ReadTable(tables.chk, directory, "chk.dat");
    ReadTable(tables.def, directory, "def.dat");
    ReadTable(tables.NUL_trans, directory, "NUL_trans.dat");
    ReadTable(tables.nxt, directory, "nxt.dat");
    ReadTable(tables.rule_can_match_eol, directory, "rule_can_match_eol.dat");
    ReadTable(tables.acclist, directory, "acclist.dat");
}

void ReadParserTables(const std::string& directory, CParserTables& tables)
{
    tables.final_ = UVDBGrammarKeeper::GetFinalStateNum(GetDatFile(directory, directory, "const.dat"));
    ReadTable(tables.pact, directory, "pact.dat");
    ReadTable(tables.defact, directory, "defact.dat");
    ReadTable(tables.pgoto, directory, "pgoto.dat");
    tables.base_ninf =
        std::min(UVDBGrammarKeeper::TableNinfRemap(tables.pact.values.get(), tables.pact.count),
                 UVDBGrammarKeeper::TableNinfRemap(tables.pgoto.values.get(), tables.pgoto.count));
    ReadTable(tables.defgoto, directory, "defgoto.dat");
    ReadTable(tables.table, directory, "table.dat");
    ReadTable(tables.check, directory, "check.dat");
    ReadTable(tables.stos, directory, "stos.dat");
    ReadTable(tables.r1, directory, "r1.dat");
    ReadTable(tables.r2, directory, "r2.dat");
    ReadTable(tables.translate, directory, "translate.dat");
}
