#include "Grammar/UVGrammarTables.h"

#include "Grammar/UVGrammarActionChecks.h"
#include "Grammar/UVGrammarManifest.h"
#include "Grammar/UVGrammarTextChecks.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>

namespace {

// The tokens that the parser beside a scanner knows. A scanner may stand alone, for coloring.
// Returns: false if there is no parser.
bool ReadTokensBeside(const std::string& scannerDirectory, std::map<std::string, int>& tokens)
{
    const std::string directory =
        scannerDirectory.substr(0, scannerDirectory.find_last_of('/', scannerDirectory.size() - 2)) +
        "/Parser/";
    if (!Uve::File::Exists(directory + "defines.dat") && !Uve::File::Exists(directory + "defines.dat_"))
        return false;
    UVDBGrammarKeeper::CreateDefinesMap(GetDatFile(directory, directory, "defines.dat"), tokens);
    return true;
}

} // namespace

void ReadScannerFiles(const std::string& directory, SScannerFiles& files)
{
    const CTableFolder folder(directory);
    files.actionText = folder.ReadText("actions.dat");
    UVDBGrammarKeeper::CreateActionsMap(files.actionText, files.actions);
    files.conditionText = folder.ReadText("defines.dat");
    UVDBGrammarKeeper::CreateDefinesMap(files.conditionText, files.startConditions);
    CScannerTables& tables = *files.tables;
    folder.ReadTable("accept.dat", tables.accept);
    folder.ReadTable("base.dat", tables.base);
    folder.ReadTable("chk.dat", tables.chk);
    folder.ReadTable("def.dat", tables.def);
    folder.ReadTable("NUL_trans.dat", tables.NUL_trans);
    folder.ReadTable("nxt.dat", tables.nxt);
    folder.ReadTable("rule_can_match_eol.dat", tables.rule_can_match_eol);
    folder.ReadTable("acclist.dat", tables.acclist);
}

void ReadParserFiles(const std::string& directory, SParserFiles& files)
{
    const CTableFolder folder(directory);
    files.actionText = folder.ReadText("actions.dat");
    UVDBGrammarKeeper::CreateActionsMap(files.actionText, files.actions);
    files.tokenText = folder.ReadText("defines.dat");
    const std::uint64_t largest = UVDBGrammarKeeper::CreateDefinesMap(files.tokenText, files.tokens);
    CParserTables& tables = *files.tables;
    tables.maxutok = static_cast<int>(largest & 0xffffffffu);
    // end of text, error and undefined token; the first is among the names if one has the number 0
    tables.ntokens = static_cast<int>(files.tokens.size()) + (largest >> 32 != 0 ? 2 : 3);
    files.constantText = folder.ReadText("const.dat");
    tables.final_ = UVDBGrammarKeeper::GetFinalStateNum(files.constantText);
    folder.ReadTable("pact.dat", tables.pact);
    folder.ReadTable("defact.dat", tables.defact);
    folder.ReadTable("pgoto.dat", tables.pgoto);
    tables.base_ninf =
        std::min(UVDBGrammarKeeper::TableNinfRemap(tables.pact.values.get(), tables.pact.count),
                 UVDBGrammarKeeper::TableNinfRemap(tables.pgoto.values.get(), tables.pgoto.count));
    folder.ReadTable("defgoto.dat", tables.defgoto);
    folder.ReadTable("table.dat", tables.table);
    folder.ReadTable("check.dat", tables.check);
    folder.ReadTable("stos.dat", tables.stos);
    folder.ReadTable("r1.dat", tables.r1);
    folder.ReadTable("r2.dat", tables.r2);
    folder.ReadTable("translate.dat", tables.translate);
}

void ProveScannerFiles(const std::string& directory, SScannerFiles& files)
{
    CheckActionText(directory, files.actionText, enMachine::Scanner);
    CheckDefinesText(directory, "defines.dat", files.conditionText);
    files.tables->Compile(directory, CountStartConditions(directory, files.startConditions));
    CheckScannerActions(directory, files.actions, files.startConditions, *files.tables);
    if (std::map<std::string, int> tokens; ReadTokensBeside(directory, tokens))
        CheckScannerTokens(directory, files.actions, tokens);
}

void ProveParserFiles(const std::string& directory, const SParserFiles& files)
{
    CheckActionText(directory, files.actionText, enMachine::Parser);
    CheckDefinesText(directory, "defines.dat", files.tokenText);
    CheckDefinesText(directory, "const.dat", files.constantText);
    files.tables->Validate(directory);
    CheckTokenNumbers(directory, files.tokens, *files.tables);
    CheckParserActions(directory, files.actions, *files.tables);
}
