#include "Parser/ScannerOptions.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Parser/LoadedGrammar.h"
#include "Parser/UVAssessorOption.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/LogSystem.h"

namespace {

using Uve::U8CString;
using DatabaseInfo = std::shared_ptr<IUVDBDatabaseInfo2>;

constexpr int kNoStartState = -1;

// The line feed belongs to the name: tools look the file up with it.
constexpr char kDefinesFile[] = "UVParserCmd.cfg\n";

// From 12.50 on, and in the releases of 11, a quoted text is a string unless an option says otherwise.
// Versions are compared unsigned, so that an unknown one counts as the newest.
bool TakesQuotedTextAsString(const DB_VERSION_INFO& version)
{
    return version.major == 11 || version.major > 12 || (version.major == 12 && version.minor > 49);
}

void ReadParsingOptions(const DatabaseInfo& info, CLoadedGrammar& grammar, SScannerOptions& options)
{
    U8CString progressDialect;
    CUVDBOptionWrapper::GetParam(info, "PARSER_PR_4GL", progressDialect);
    if (progressDialect != "WIN")
        grammar.WriteScanners([](CSQLGrammarLexer& scanner) { scanner.m_Extension.m_bParserPR4GL = false; });

    U8CString variesParsing = "NO";
    CUVDBOptionWrapper::GetParam(info, "OPTION_VARYING_PARSING", variesParsing);
    options = {};
    options.triesOtherQuoteRule = variesParsing.CollateNoCase("YES") == 0;
    CUVDBOptionWrapper::GetParam(info, "EXT_PARSER_SIZE", options.extParserSize);

    grammar.WriteScanners([&](CSQLGrammarLexer& scanner) {
        CUVDBOptionWrapper::GetParam(info, "API_SOURCE_DB", scanner.m_Extension.m_strAPISourceDB);
    });
}

// Returns: false for the kinds that leave no choice about quotes.
bool SelectQuoteRule(const DB_VERSION_INFO& version, CLoadedGrammar& grammar)
{
    bool isString = false;
    switch (version.db) {
    case UVDB_DB_SYBASE:
        if (version.subType != UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE)
            return false;
        isString = TakesQuotedTextAsString(version);
        break;
    case UVDB_DB_INFORMIX:
    case UVDB_DB_4GL_INFORMIX:
        isString = true;
        break;
    default:
        break;
    }
    // The rule of the other kinds is the one that the scanner has, which a retry may have flipped.
    if (isString)
        grammar.WriteScanners([](CSQLGrammarLexer& scanner) { scanner.m_Extension.m_bMSSQLQID = false; });
    return true;
}

void TakeLanguage(const DB_VERSION_INFO& version, CLoadedGrammar& grammar)
{
    const bool hasDirectives = version.db == UVDB_DB_CPP || version.db == UVDB_DB_C;
    grammar.WriteScanners([&](CSQLGrammarLexer& scanner) {
        scanner.m_Extension.m_bCppDirectiveParse = hasDirectives;
        scanner.m_nDBVersionMajor = static_cast<int>(version.major);
        scanner.m_nDBVersionMinor = static_cast<int>(version.minor);
    });
}

void ReadPascalDefines(const DatabaseInfo& info, CLoadedGrammar& grammar)
{
    U8CString defines;
    U8CString usesDefines = "Yes";
    CUVDBOptionWrapper::GetParam(info, "DEFINES", defines);
    CUVDBOptionWrapper::GetParam(info, "USE_DEFINES", usesDefines);
    if (usesDefines.CollateNoCase("No") == 0)
        return;
    grammar.WriteScanners([](CSQLGrammarLexer& scanner) { scanner.m_Extension.m_bIgnoreDefines = false; });
    if (defines.empty())
        return;

    defines.MakeUpper();
    // Whoever reads the file overlooks what an earlier, longer list left after this one.
    if (!Uve::File::WriteAllText(kDefinesFile, "DEFINES=" + defines))
        CLogWrapper::WriteTraceF("\nFAILED to write file %s", kDefinesFile);
    int position = 0;
    for (U8CString symbol = defines.Tokenize(";", position); position != -1;
         symbol = defines.Tokenize(";", position))
        grammar.WriteScanners(
            [&](CSQLGrammarLexer& scanner) { scanner.m_Extension.m_lstDefines.push_back(symbol); });
}

void FillLexerOptions(const DatabaseInfo& info, CLoadedGrammar& grammar)
{
    constexpr char kPercentAsComment[] = "PERCENT_AS_COMMENT";
    U8CString value = "0";
    CUVDBOptionWrapper::GetParam(info, kPercentAsComment, value);
    // The first value of an option stays: a second database info doesn't change it.
    grammar.WriteScanners([&](CSQLGrammarLexer& scanner) {
        scanner.m_Extension.m_mapOptions.emplace(kPercentAsComment, value);
    });
}

} // namespace

int TakeScannerOptions(const DatabaseInfo& info, CLoadedGrammar& grammar, SScannerOptions& options)
{
    ReadParsingOptions(info, grammar, options);

    DB_VERSION_INFO version;
    info->get_DbmsVersion(&version);
    CSQLGrammarLexer& scanner = grammar.Scanner();
    if (scanner.ComputeGeneralStartState(static_cast<int>(version.db)) == kNoStartState)
        return UVDB_INVALID_ARGUMENT;
    if (SelectQuoteRule(version, grammar)) {
        bool isQuotedIdentifier = scanner.m_Extension.m_bMSSQLQID;
        CUVDBOptionWrapper::GetParam(info, "ANSI_QUOTED_IDENTIFIERS", isQuotedIdentifier);
        grammar.WriteScanners(
            [&](CSQLGrammarLexer& each) { each.m_Extension.m_bMSSQLQID = isQuotedIdentifier; });
    }
    TakeLanguage(version, grammar);
    if (version.db == UVDB_DB_PASCAL)
        ReadPascalDefines(info, grammar);

    bool isAssessorParent = false;
    CUVDBOptionWrapper::GetParam(info, "AssessorIsParent", isAssessorParent);
    SetAssessorIsParentOpt(isAssessorParent);
    grammar.WriteScanners([&](CSQLGrammarLexer& each) {
        CUVDBOptionWrapper::GetParam(info, "SRC_UI_TYPE", each.m_Extension.m_strSrcUIType);
    });
    FillLexerOptions(info, grammar);
    return UVDB_OK;
}
