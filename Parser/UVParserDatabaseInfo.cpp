#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Parser/ParseOptions.h"
#include "Parser/UVAssessorOption.h"
#include "Parser/UVParser.h"
#include "Parser/UVParserGuard.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/LogSystem.h"

#include <utility>

namespace {

using Uve::U8CString;

constexpr int kNoDatabaseInfo = 1;
constexpr int kNoStartState = -1;

constexpr int kExtParserSize = 102400;
constexpr int kExtParserSizeCopy = 10240000;

// The line feed belongs to the name: tools look the file up with it.
constexpr char kDefinesFile[] = "UVParserCmd.cfg\n";

// From 12.50 on, and in the releases of 11, a quoted text is a string unless an option says otherwise.
// Versions are compared unsigned, so that an unknown one counts as the newest.
bool TakesQuotedTextAsString(const DB_VERSION_INFO& version)
{
    return version.major == 11 || version.major > 12 || (version.major == 12 && version.minor > 49);
}

} // namespace

int CUVDBSQLParser::set_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info)
{
    return GuardEdge([&] { return TakeDatabaseInfo(std::move(info)); });
}

DB_VERSION_INFO CUVDBSQLParser::GetVersion() const
{
    DB_VERSION_INFO version;
    if (m_DatabaseInfo)
        m_DatabaseInfo->get_DbmsVersion(&version);
    return version;
}

int CUVDBSQLParser::TakeDatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info)
{
    m_DatabaseInfo = std::move(info);
    if (!m_DatabaseInfo)
        return kNoDatabaseInfo;
    if (!m_Lexer) {
        if (IsPreparationOnly(m_DatabaseInfo))
            return UVDB_OK;
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "set_DatabaseInfo before Load");
        return UVDB_ERROR;
    }
    ReadParsingOptions();

    const DB_VERSION_INFO version = GetVersion();
    if (m_Lexer->ComputeGeneralStartState(static_cast<int>(version.db)) == kNoStartState)
        return UVDB_INVALID_ARGUMENT;
    if (SelectQuoteRule(version)) {
        bool isQuotedIdentifier = m_Lexer->m_Extension.m_bMSSQLQID;
        CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "ANSI_QUOTED_IDENTIFIERS", isQuotedIdentifier);
        WriteLexers([&](CSQLGrammarLexer& lexer) { lexer.m_Extension.m_bMSSQLQID = isQuotedIdentifier; });
    }
    TakeLanguage(version);
    if (version.db == UVDB_DB_PASCAL)
        ReadPascalDefines();

    bool isAssessorParent = false;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "AssessorIsParent", isAssessorParent);
    SetAssessorIsParentOpt(isAssessorParent);
    WriteLexers([&](CSQLGrammarLexer& lexer) {
        CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "SRC_UI_TYPE", lexer.m_Extension.m_strSrcUIType);
    });
    FillLexerOptions();
    return UVDB_OK;
}

void CUVDBSQLParser::ReadParsingOptions()
{
    U8CString progressDialect;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "PARSER_PR_4GL", progressDialect);
    if (progressDialect != "WIN")
        WriteLexers([](CSQLGrammarLexer& lexer) { lexer.m_Extension.m_bParserPR4GL = false; });

    U8CString variesParsing = "NO";
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "OPTION_VARYING_PARSING", variesParsing);
    m_TryOtherOpts = variesParsing.CollateNoCase("YES") == 0;

    m_ExtParserSize = kExtParserSize;
    m_ExtParserSizeCopy = kExtParserSizeCopy;
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "EXT_PARSER_SIZE", m_ExtParserSize);
    m_ExtParserSizeCopy = m_ExtParserSize;

    WriteLexers([&](CSQLGrammarLexer& lexer) {
        CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "API_SOURCE_DB", lexer.m_Extension.m_strAPISourceDB);
    });
}

bool CUVDBSQLParser::SelectQuoteRule(const DB_VERSION_INFO& version)
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
        WriteLexers([](CSQLGrammarLexer& lexer) { lexer.m_Extension.m_bMSSQLQID = false; });
    return true;
}

void CUVDBSQLParser::TakeLanguage(const DB_VERSION_INFO& version)
{
    const bool hasDirectives = version.db == UVDB_DB_CPP || version.db == UVDB_DB_C;
    WriteLexers([&](CSQLGrammarLexer& lexer) {
        lexer.m_Extension.m_bCppDirectiveParse = hasDirectives;
        lexer.m_nDBVersionMajor = static_cast<int>(version.major);
        lexer.m_nDBVersionMinor = static_cast<int>(version.minor);
    });
}

void CUVDBSQLParser::ReadPascalDefines()
{
    U8CString defines;
    U8CString usesDefines = "Yes";
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "DEFINES", defines);
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, "USE_DEFINES", usesDefines);
    if (usesDefines.CollateNoCase("No") == 0)
        return;
    WriteLexers([](CSQLGrammarLexer& lexer) { lexer.m_Extension.m_bIgnoreDefines = false; });
    if (defines.empty())
        return;

    defines.MakeUpper();
    // Whoever reads the file overlooks what an earlier, longer list left after this one.
    if (!Uve::File::WriteAllText(kDefinesFile, "DEFINES=" + defines))
        CLogWrapper::WriteTraceF("\nFAILED to write file %s", kDefinesFile);
    int position = 0;
    for (U8CString symbol = defines.Tokenize(";", position); position != -1;
         symbol = defines.Tokenize(";", position))
        WriteLexers([&](CSQLGrammarLexer& lexer) { lexer.m_Extension.m_lstDefines.push_back(symbol); });
}

void CUVDBSQLParser::FillLexerOptions()
{
    constexpr char kPercentAsComment[] = "PERCENT_AS_COMMENT";
    U8CString value = "0";
    CUVDBOptionWrapper::GetParam(m_DatabaseInfo, kPercentAsComment, value);
    // The first value of an option stays: a second database info doesn't change it.
    WriteLexers(
        [&](CSQLGrammarLexer& lexer) { lexer.m_Extension.m_mapOptions.emplace(kPercentAsComment, value); });
}
