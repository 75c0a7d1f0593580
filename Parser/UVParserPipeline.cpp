// From a text to its result: preparation, scanning and parsing or coloring, a second attempt with the other
// rule for quoted identifiers, flattening.
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Parser/ParseAnswers.h"
#include "Parser/ParseOptions.h"
#include "Parser/ScriptFormatter.h"
#include "Parser/UVDBErrorInfo.h"
#include "Parser/UVParser.h"
#include "Parser/UVParserFormatters.h"
#include "Parser/UVParserGuard.h"
#include "Parser/UVParserText.h"
#include "UVEnvironment/LogSystem.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

using Uve::U8CString;

constexpr char kOutOfMemory[] = "out of memory";

bool HasDescription(IUVDBErrorInfo& error)
{
    char description[1024];
    std::size_t length = 0;
    return error.get_Description(description, sizeof description, &length) == UVDB_OK && length > 0;
}

} // namespace

// Everything that the second attempt changes, set aside for its time. What isn't accepted comes back at the
// end.
class CUVDBSQLParser::CSecondAttempt
{
public:
    explicit CSecondAttempt(CUVDBSQLParser& owner)
        : m_Owner(owner), m_FirstErrors(std::exchange(Extension().m_mapErrors, {})),
          m_FirstUnexpected(std::exchange(Extension().m_lstUnexpected, {})),
          m_FirstDiscarded(std::exchange(Extension().m_lstDiscarded, {})),
          m_FirstUnfinished(owner.m_Unfinished)
    {
        m_FirstResult.swap(owner.m_Result);
        FlipQuoteRule();
        owner.m_IsSecondAttempt = true;
    }

    CSecondAttempt(const CSecondAttempt&) = delete;
    CSecondAttempt& operator=(const CSecondAttempt&) = delete;

    ~CSecondAttempt()
    {
        m_Owner.m_IsSecondAttempt = false;
        if (m_IsAccepted)
            return;
        FlipQuoteRule();
        m_Owner.m_Result.swap(m_FirstResult);
        Extension().m_mapErrors.swap(m_FirstErrors);
        Extension().m_lstUnexpected.swap(m_FirstUnexpected);
        Extension().m_lstDiscarded.swap(m_FirstDiscarded);
        m_Owner.m_Unfinished.swap(m_FirstUnfinished);
    }

    // The attempt's result stands. One that found nothing to parse made none, and the first one's stays.
    void Accept(int result)
    {
        m_IsAccepted = true;
        if (result != UVDB_NO_DATA)
            return;
        m_Owner.m_Result.swap(m_FirstResult);
    }

private:
    CSQLGrammarParserImplementation& Extension() { return m_Owner.m_Parser->m_Extension; }

    void FlipQuoteRule()
    {
        bool& isQuotedIdentifier = m_Owner.m_Lexer->m_Extension.m_bMSSQLQID;
        isQuotedIdentifier = !isQuotedIdentifier;
    }

    CUVDBSQLParser& m_Owner;
    CParseResult m_FirstResult;
    decltype(CSQLGrammarParserImplementation::m_mapErrors) m_FirstErrors;
    decltype(CSQLGrammarParserImplementation::m_lstUnexpected) m_FirstUnexpected;
    decltype(CSQLGrammarParserImplementation::m_lstDiscarded) m_FirstDiscarded;
    std::optional<SUnfinishedText> m_FirstUnfinished;
    bool m_IsAccepted = false;
};

int CUVDBSQLParser::Parse(bool showErrors)
{
    m_IsOutOfMemory = false;
    SParseOptions options;
    const int result = GuardMemory([&] { return ParseQuery(showErrors, options); });
    // What nobody has flattened becomes text before the next text comes.
    GuardMemory([&] {
        m_Result.Text();
        return UVDB_OK;
    });
    // Whatever the failure was told as on its way: the text is not at fault.
    if (result < UVDB_OK && m_IsOutOfMemory)
        GuardEdge([&] {
            SetLastError(0, kOutOfMemory, nullptr, nullptr);
            return UVDB_OK;
        });
    // A host that asked for the list takes a missing one for a clean parse.
    const int reported = GuardEdge([&] {
        const int prepared =
            WritePreparationReports(m_DatabaseInfo, options, m_PreparedBy, m_SourceLines, m_PreparationNotes);
        return std::min(prepared, ReportErrors(options));
    });
    return result >= UVDB_OK && reported < UVDB_OK ? reported : result;
}

int CUVDBSQLParser::ParseQuery(bool showErrors, SParseOptions& options)
{
    m_LastError.reset(); // what follows can fail, and would leave the error of the text before
    CLogWrapper::WriteTraceF("\nParsing...");
    m_LastError = std::make_shared<CUVDBErrorInfo>();
    m_PreparationNotes.clear();
    m_Unfinished.reset();
    if (m_Parser) {
        m_Parser->m_Extension.ClearErrors();
        m_Parser->m_Extension.m_bShowErrors = showErrors;
    }
    if (!m_DatabaseInfo) {
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "DatabaseInfo or query is empty");
        return UVDB_ERROR;
    }
    options = ReadOptions();
    ForgetTexts(options);
    if (options.isPreparationOnly) {
        const int prepared = PrepareToParse(options);
        if (prepared == UVDB_OK)
            m_Result.SetText(m_Query);
        return prepared;
    }
    if (!m_IsConnected) {
        constexpr char kNotReady[] = "Parse before Load and Init";
        SetLastError(0, kNotReady, nullptr, nullptr);
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", kNotReady);
        return UVDB_ERROR;
    }
    return ExecuteParsing(options);
}

int CUVDBSQLParser::ExecuteParsing(const SParseOptions& options)
{
    if (IsPropertiesFile(options))
        return ExecuteEmbeddedParsing();
    if (!m_PatternProcess) {
        const int prepared = PrepareToParse(options);
        if (prepared != UVDB_OK)
            return prepared;
    }

    const bool isColoring = m_ColoringMode || m_CommentMode;
    const int parsed = isColoring ? ExecuteParsingColoring(options) : ExecuteParsingInternal(options);
    if (m_TryOtherOpts && !m_IsSecondAttempt && (IsParseHasErrors() || parsed < UVDB_OK)) {
        TryOtherQuoteRule(options);
        return m_Result.IsEmpty() ? UVDB_ERROR : FlattenResult();
    }

    if (parsed != UVDB_OK || (options.isChild && m_Parser->HasErrors())) {
        // An exception has left a record of its own, which says more than the parser's message.
        if (parsed >= UVDB_OK)
            SetLastError();
        return UVDB_ERROR;
    }
    return FlattenResult();
}

int CUVDBSQLParser::FlattenResult()
{
    CLogWrapper::WriteTraceF("OK\n");
    CLogWrapper::WriteTraceF("\nExecuteTree2Serial: execution...");
    const int flattened = ExecuteTree2Serial();
    if (flattened >= UVDB_OK) {
        CLogWrapper::WriteTraceF("\nOK\n");
        return UVDB_OK;
    }
    constexpr char kFailure[] = "can't transform tree to serial";
    SetLastError(0, kFailure, nullptr, nullptr);
    CLogWrapper::WriteTraceF("\n");
    CLogWrapper::WriteTraceF("FAILED: %s\n", kFailure);
    return flattened;
}

int CUVDBSQLParser::PrepareToParse(const SParseOptions& options)
{
    if (m_Lexer)
        WriteLexers([&](CSQLGrammarLexer& lexer) {
            lexer.m_Extension.m_bCppDirectiveParse = options.parsesDirectives;
        });

    ReplaceZeroWidthSpaces(m_Query);
    m_SourceLines.clear();
    m_PreparedBy = "";
    const SFormatterRow* const row = FindFormatter(options.kind);
    if (row != nullptr && row->isWanted(options)) {
        m_PreparedBy = row->name;
        const ScriptFormatter formatter(options, m_Preprocessor.get());
        TakeFormatted((formatter.*row->format)(m_Query), options);
    } else if (options.isPreparationOnly) {
        const char* const reason =
            row != nullptr ? row->unwanted : "texts of this language need no preparation";
        m_PreparationNotes.push_back({false, 0, "", std::string("not prepared: ") + reason});
    }

    if (!m_Query.IsEmpty()) {
        CLogWrapper::WriteTraceF("\nFormatted query:\n%s\n", m_Query.c_str());
        return UVDB_OK;
    }
    CLogWrapper::WriteTraceF("\nFormatted query is empty.\n");
    return m_LastError && HasDescription(*m_LastError) ? UVDB_ERROR : UVDB_NO_DATA;
}

void CUVDBSQLParser::TakeFormatted(SFormattedText formatted, const SParseOptions& options)
{
    if (formatted.page)
        WriteScript(m_DatabaseInfo, m_ConvertingObject, options.objectId, *formatted.page);
    if (formatted.error)
        SetLastError(0, formatted.error->c_str(), nullptr, nullptr);
    if (!m_IsSecondAttempt)
        m_PreparationNotes = std::move(formatted.prepared.notes);
    if (formatted.isLeftAlone) {
        m_PreparedBy = "";
        return;
    }
    CParseResult().swap(m_Result); // it was of another text
    m_Query = std::move(formatted.prepared.text);
    // Macros and format strings can make a NUL, at which a text ends.
    m_Query.resize(std::strlen(m_Query.c_str()));
    m_SourceLines = std::move(formatted.prepared.sourceLines);
}

SParseOptions CUVDBSQLParser::ReadOptions() const
{
    SParseOptions options = ReadParseOptions(m_DatabaseInfo, m_ConvertingObject);
    options.isPreprocessed = m_Preprocessor && m_Preprocessor->IsEnabled();
    return options;
}

void CUVDBSQLParser::ForgetTexts(const SParseOptions& options)
{
    if (!m_Lexer || !m_Parser || !options.restartsPositions)
        return;
    WriteLexers([](CSQLGrammarLexer& lexer) { lexer.ForgetTexts(); });
    m_Parser->ForgetTexts();
    // the scanners' switches went with the texts
    TakeDatabaseInfo(m_DatabaseInfo);
}

void CUVDBSQLParser::GiveQueryToParser(const SParseOptions& options)
{
    m_Parser->m_Extension.set_Query(static_cast<const std::string&>(m_Query));
    m_Lexer->set_Query(m_Query, static_cast<int>(options.kind));
}

int CUVDBSQLParser::ExecuteParsingInternal(const SParseOptions& options)
{
    GiveQueryToParser(options);
    m_Parser->set_FragmentsWanted(!options.isStylesheetForced);
    int parsed = UVDB_ERROR;
    try {
        parsed = m_Parser->yyparse();
    } catch (...) {
        m_IsOutOfMemory = IsMemoryShort();
        SetLastError(0, "Exception in yyparse", nullptr, nullptr);
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "Exception in yyparse");
        return UVDB_ERROR;
    }
    m_Unfinished = m_Lexer->Unfinished();
    if (parsed != UVDB_OK)
        return parsed;
    m_Lexer->DropQuery(); // the flattened tree needs the room
    m_Result.TakeTree(m_Parser);
    UpdateWarningsInfo(m_DatabaseInfo, options.convertedObjectType, m_Parser->m_Extension.m_mapErrors);
    return UVDB_OK;
}

int CUVDBSQLParser::ExecuteParsingColoring(const SParseOptions& options)
{
    m_ColoringLexer.m_Extension.m_strColoring.clear();
    m_ColoringLexer.set_Query(m_Query, static_cast<int>(options.kind));
    // A grammar that doesn't know the state gets it with number 0, its first one.
    if (m_CommentMode)
        m_ColoringLexer.SetState(m_Lexer->m_mapStartConditions["SS_FIND_COMMENT"]);
    try {
        while (m_ColoringLexer.yylex() != 0) {
        }
    } catch (...) {
        m_IsOutOfMemory = IsMemoryShort();
        SetLastError(0, "Exception in yylex on coloring", nullptr, nullptr);
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "Exception in yylex");
        return UVDB_ERROR;
    }
    m_Unfinished = m_ColoringLexer.Unfinished();
    m_Result.SetText(std::move(m_ColoringLexer.m_Extension.m_strColoring));
    CLogWrapper::WriteTraceF("OK\n");
    return UVDB_OK;
}

void CUVDBSQLParser::TryParseWithOtherOpts(bool)
{
    GuardMemory([&] {
        if (m_DatabaseInfo && m_IsConnected)
            TryOtherQuoteRule(ReadOptions());
        return UVDB_OK;
    });
}

void CUVDBSQLParser::TryOtherQuoteRule(const SParseOptions& options)
{
    GuardMemory([&] {
        m_Result.Text(); // its fragments would go with the second parse
        {
            CSecondAttempt attempt(*this);
            const int result = ExecuteParsing(options);
            if (result >= UVDB_OK && !IsParseHasErrors()) {
                attempt.Accept(result);
                return result;
            }
        }
        // The second attempt's message with the first one's tokens.
        SetLastError();
        return static_cast<int>(UVDB_ERROR);
    });
}

std::string CUVDBSQLParser::FastParse()
{
    if (!m_IsConnected)
        return {};
    const SParseOptions options = ReadOptions();
    ForgetTexts(options);
    m_Parser->m_Extension.m_lstUnexpected.clear();
    m_Parser->m_Extension.m_lstDiscarded.clear();
    m_Result.Text(); // a result that is still in fragments lives in the parser
    GiveQueryToParser(options);
    m_Parser->set_FragmentsWanted(false);
    m_Parser->yyparse();
    m_Unfinished = m_Lexer->Unfinished();
    GuardEdge([&] { return ReportErrors(options); });
    return std::move(m_Parser->m_Extension.m_strParsedXml);
}

bool CUVDBSQLParser::IsPropertiesFile(const SParseOptions& options)
{
    const auto extension = TextBehindLastDot(options.filePath);
    return extension && extension->CollateNoCase("properties") == 0;
}

int CUVDBSQLParser::ExecuteEmbeddedParsing()
{
    m_Result.SetText(WrapInElement("SQL", m_Query));
    replaceXmlHeader();
    return UVDB_OK;
}

void CUVDBSQLParser::replaceXmlHeader()
{
    ReplaceXmlHeader(m_Result.Text());
}

int CUVDBSQLParser::ReportErrors(const SParseOptions& options)
{
    if (!m_Parser)
        return UVDB_OK;
    return WriteErrorReports(m_DatabaseInfo, options, m_Query, m_Parser->m_Extension, m_Unfinished);
}
