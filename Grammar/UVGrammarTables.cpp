#include "Grammar/UVGrammarTables.h"

#include "Grammar/UVGrammarActionChecks.h"
#include "Grammar/UVGrammarCache.h"
#include "Grammar/UVGrammarManifest.h"
#include "Grammar/UVGrammarTextChecks.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <optional>
#include <utility>

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

// What the tables of a part come from, seen from its folder.
constexpr const char* kScannerFiles[] = {
    "../manifest.txt", "../Parser/defines.dat",
    "actions.dat",     "defines.dat",
    "accept.dat",      "base.dat",
    "chk.dat",         "def.dat",
    "NUL_trans.dat",   "nxt.dat",
    "acclist.dat",     "rule_can_match_eol.dat",
};
constexpr const char* kParserFiles[] = {
    "../manifest.txt", "actions.dat", "defines.dat", "const.dat", "pact.dat", "defact.dat", "pgoto.dat",
    "defgoto.dat",     "table.dat",   "check.dat",   "stos.dat",  "r1.dat",   "r2.dat",     "translate.dat",
};

// The names are kept as the text that they were read from.
bool ReadKept(const CTableCache& cache, SLoadedScanner& loaded)
{
    std::optional<CTableImageReader> image = cache.Find();
    const auto tables = std::make_shared<CScannerTables>();
    std::string conditions;
    if (!image || !tables->ReadFrom(*image) || !loaded.actions.ReadFrom(*image) ||
        !image->TakeText(conditions) || !image->AtEnd())
        return false;
    UVDBGrammarKeeper::CreateDefinesMap(conditions, loaded.startConditions);
    loaded.tables = tables;
    return true;
}

bool ReadKept(const CTableCache& cache, SLoadedParser& loaded)
{
    std::optional<CTableImageReader> image = cache.Find();
    const auto tables = std::make_shared<CParserTables>();
    std::string tokens;
    if (!image || !tables->ReadFrom(*image) || !loaded.actions.ReadFrom(*image) || !image->TakeText(tokens) ||
        !image->AtEnd())
        return false;
    UVDBGrammarKeeper::CreateDefinesMap(tokens, loaded.tokens);
    loaded.tables = tables;
    return true;
}

template <class Loaded>
void Keep(const CTableCache& cache, const Loaded& loaded, const std::string& names)
{
    if (cache.IsOff())
        return;
    CTableImageWriter image;
    loaded.tables->WriteTo(image);
    loaded.actions.WriteTo(image);
    image.AddText(names);
    cache.Keep(image);
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

SLoadedScanner LoadScanner(const std::string& directory)
{
    const CTableCache cache(directory, kScannerFiles);
    SLoadedScanner loaded;
    if (ReadKept(cache, loaded))
        return loaded;
    SScannerFiles files;
    ReadScannerFiles(directory, files);
    ProveScannerFiles(directory, files);
    loaded = {CActionRecords(files.actions), std::move(files.startConditions), std::move(files.tables)};
    Keep(cache, loaded, files.conditionText);
    return loaded;
}

SLoadedParser LoadParser(const std::string& directory)
{
    const CTableCache cache(directory, kParserFiles);
    SLoadedParser loaded;
    if (ReadKept(cache, loaded))
        return loaded;
    SParserFiles files;
    ReadParserFiles(directory, files);
    ProveParserFiles(directory, files);
    loaded = {CActionRecords(files.actions), std::move(files.tokens), std::move(files.tables)};
    Keep(cache, loaded, files.tokenText);
    return loaded;
}
