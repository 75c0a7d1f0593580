#include "Parser/ParsePipeline.h"

#include "Interfaces/UVDBResults.h"
#include "Parser/LostQuotes.h"
#include "Parser/ParseErrors.h"
#include "Parser/UVDBErrorInfo.h"
#include "Parser/UVParserFormatters.h"
#include "Parser/UVParserGuard.h"
#include "Parser/UVParserText.h"
#include "Parser/XmlHeader.h"
#include "UVEnvironment/LogSystem.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

bool HasDescription(IUVDBErrorInfo& error)
{
    char description[1024];
    std::size_t length = 0;
    return error.get_Description(description, sizeof description, &length) == UVDB_OK && length > 0;
}

// What was expected takes thousands of steps to find out. Nobody reads it of a text that is all errors, as one in
// another language is.
constexpr std::size_t kMostExplained = 1000;
constexpr std::size_t kMostExpected = 8;

// Of a text with lost quotes, beyond the first one: in all, and of those that weren't better.
constexpr int kMostReadings = 8;
constexpr int kMostFailedReadings = 2;

CSQLGrammarParser::TExpected ExplainFirst(CLoadedGrammar& grammar)
{
    return [&grammar, explained = std::size_t{0}](std::span<const short> stack, int terminal) mutable {
        return ++explained > kMostExplained ? std::vector<std::string>()
                                            : grammar.Expected().Find(stack, terminal, kMostExpected);
    };
}

} // namespace

// Everything that the second attempt changes, set aside for its time. What isn't accepted comes back at the
// end.
class CParsePipeline::CSecondAttempt
{
public:
    explicit CSecondAttempt(CParsePipeline& pipeline)
        : m_Pipeline(pipeline), m_FirstErrors(std::exchange(pipeline.m_Grammar.Found().m_mapErrors, {}))
    {
        std::swap(m_First, m_Pipeline.m_Parsed.findings);
        // stands until the attempt has come to the end of the text
        m_Pipeline.m_Parsed.findings.unfinished = m_First.unfinished;
        FlipQuoteRule();
        m_Pipeline.m_IsSecondAttempt = true;
    }

    CSecondAttempt(const CSecondAttempt&) = delete;
    CSecondAttempt& operator=(const CSecondAttempt&) = delete;

    ~CSecondAttempt()
    {
        m_Pipeline.m_IsSecondAttempt = false;
        if (m_IsAccepted)
            return;
        FlipQuoteRule();
        std::swap(m_Pipeline.m_Parsed.findings, m_First);
        m_Pipeline.m_Grammar.Found().m_mapErrors.swap(m_FirstErrors);
    }

    // The attempt's result stands. One that found nothing to parse made none, and the first one's stays.
    void Accept(int result)
    {
        m_IsAccepted = true;
        if (result == UVDB_NO_DATA)
            m_Pipeline.m_Parsed.findings.result.swap(m_First.result);
    }

private:
    void FlipQuoteRule()
    {
        bool& isQuotedIdentifier = m_Pipeline.m_Grammar.Scanner().m_Extension.m_bMSSQLQID;
        isQuotedIdentifier = !isQuotedIdentifier;
    }

    CParsePipeline& m_Pipeline;
    SParseFindings m_First;
    decltype(CSQLGrammarParserImplementation::m_mapErrors) m_FirstErrors;
    bool m_IsAccepted = false;
};

// GuardEdge, which remembers that memory was short.
template <class Operation>
int CParsePipeline::GuardMemory(Operation&& operation)
{
    return ::GuardMemory(m_Parsed.isOutOfMemory, std::forward<Operation>(operation));
}

int CParsePipeline::Parse(bool showErrors)
{
    m_Parsed.isOutOfMemory = false;
    const int result = GuardMemory([&] { return ParseText(showErrors); });
    // What nobody has flattened becomes text before the next text comes.
    GuardMemory([&] {
        m_Parsed.findings.result.Text();
        return UVDB_OK;
    });
    // Whatever the failure was told as on its way: the text is not at fault.
    if (result < UVDB_OK && m_Parsed.isOutOfMemory)
        GuardEdge([&] {
            SetLastError(m_Parsed, 0, "out of memory");
            return UVDB_OK;
        });
    return result;
}

int CParsePipeline::ParseText(bool showErrors)
{
    m_Parsed.error.reset(); // what follows can fail, and would leave the error of the text before
    CLogWrapper::WriteTraceF("\nParsing...");
    m_Parsed.error = std::make_shared<CUVDBErrorInfo>();
    m_Parsed.notes.clear();
    m_Parsed.sourceLines.clear();
    m_Parsed.preparedBy = "";
    m_Parsed.findings.unexpected.clear();
    m_Parsed.findings.discarded.clear();
    m_Parsed.findings.unfinished.reset();
    m_Parsed.findings.usedRules = {};
    if (m_Grammar.IsLoaded()) {
        m_Grammar.Found().ClearErrors();
        m_Grammar.Found().m_bShowErrors = showErrors;
    }
    if (!m_Owner.ReadOptions(m_Options, true)) {
        CLogWrapper::WriteTraceF("\nFAILED: %s\n", "DatabaseInfo or query is empty");
        return UVDB_ERROR;
    }
    if (m_Options.isPreparationOnly) {
        const int prepared = PrepareToParse();
        if (prepared == UVDB_OK)
            m_Parsed.findings.result.SetText(m_Parsed.text);
        return prepared;
    }
    if (!m_Grammar.IsConnected()) {
        constexpr char kNotReady[] = "Parse before Load and Init";
        return Fail(kNotReady, kNotReady);
    }
    return ExecuteParsing();
}

int CParsePipeline::ExecuteParsing()
{
    if (IsPropertiesFile())
        return ExecuteEmbeddedParsing();
    if (!m_Options.comesPrepared) {
        const int prepared = PrepareToParse();
        if (prepared != UVDB_OK)
            return prepared;
    }

    const bool isColoring = m_Options.isColoring || m_Options.findsComments;
    const int parsed = isColoring ? ExecuteParsingColoring() : ExecuteParsingInternal();
    const bool hasErrors = m_Grammar.Parser()->HasErrors();
    if (m_Options.triesOtherQuoteRule && !m_IsSecondAttempt && (hasErrors || parsed < UVDB_OK)) {
        TryOtherQuoteRule();
        return m_Parsed.findings.result.IsEmpty() ? UVDB_ERROR : FlattenResult();
    }
    if (parsed != UVDB_OK || (m_Options.isChild && hasErrors)) {
        // An exception has left a record of its own, which says more than the parser's message.
        if (parsed >= UVDB_OK)
            SetLastError(m_Parsed, &m_Grammar.Found());
        return UVDB_ERROR;
    }
    return FlattenResult();
}

int CParsePipeline::FlattenResult()
{
    CLogWrapper::WriteTraceF("OK\n");
    CLogWrapper::WriteTraceF("\nExecuteTree2Serial: execution...");
    const int flattened = m_Owner.Flatten(m_Options, m_Parsed.findings.result);
    if (flattened >= UVDB_OK) {
        CLogWrapper::WriteTraceF("\nOK\n");
        return UVDB_OK;
    }
    constexpr char kFailure[] = "can't transform tree to serial";
    SetLastError(m_Parsed, 0, kFailure);
    CLogWrapper::WriteTraceF("\n");
    CLogWrapper::WriteTraceF("FAILED: %s\n", kFailure);
    return flattened;
}

int CParsePipeline::PrepareToParse()
{
    m_Grammar.WriteScanners([&](CSQLGrammarLexer& scanner) {
        scanner.m_Extension.m_bCppDirectiveParse = m_Options.parsesDirectives;
    });

    ReplaceZeroWidthSpaces(m_Parsed.text);
    m_Parsed.sourceLines.clear();
    m_Parsed.preparedBy = "";
    const SFormatterRow* const row = FindFormatter(m_Options.kind);
    if (row != nullptr && row->isWanted(m_Options)) {
        m_Parsed.preparedBy = row->name;
        const ScriptFormatter formatter(m_Options, m_Preprocessor);
        TakeFormatted((formatter.*row->format)(m_Parsed.text));
    } else if (m_Options.isPreparationOnly) {
        const char* const reason =
            row != nullptr ? row->unwanted : "texts of this language need no preparation";
        m_Parsed.notes.push_back({false, 0, "", std::string("not prepared: ") + reason});
    }

    if (!m_Parsed.text.IsEmpty()) {
        CLogWrapper::WriteTraceF("\nFormatted query:\n%s\n", m_Parsed.text.c_str());
        return UVDB_OK;
    }
    CLogWrapper::WriteTraceF("\nFormatted query is empty.\n");
    return m_Parsed.error && HasDescription(*m_Parsed.error) ? UVDB_ERROR : UVDB_NO_DATA;
}

void CParsePipeline::TakeFormatted(SFormattedText formatted)
{
    if (formatted.page)
        m_Owner.TakeScript(m_Options, *formatted.page);
    if (formatted.error)
        SetLastError(m_Parsed, 0, formatted.error->c_str());
    if (!m_IsSecondAttempt)
        m_Parsed.notes = std::move(formatted.prepared.notes);
    if (formatted.isLeftAlone) {
        m_Parsed.preparedBy = "";
        return;
    }
    CParseResult().swap(m_Parsed.findings.result); // it was of another text
    m_Parsed.text = std::move(formatted.prepared.text);
    // Macros and format strings can make a NUL, at which a text ends.
    m_Parsed.text.resize(std::strlen(m_Parsed.text.c_str()));
    m_Parsed.sourceLines = std::move(formatted.prepared.sourceLines);
}

void CParsePipeline::GiveTextToGrammar(bool areFragmentsWanted)
{
    m_Grammar.Found().set_Query(static_cast<const std::string&>(m_Parsed.text));
    m_Grammar.Scanner().set_Query(m_Parsed.text, static_cast<int>(m_Options.kind));
    m_Grammar.Parser()->set_FragmentsWanted(areFragmentsWanted);
    const bool explains = m_Options.tokenReport && *m_Options.tokenReport != enTokenReport::Places;
    m_Grammar.Parser()->set_Expected(explains ? ExplainFirst(m_Grammar) : nullptr);
    m_Grammar.Scanner().WatchRules(m_Options.reportsCoverage);
    m_Grammar.Parser()->WatchRules(m_Options.reportsCoverage);
}

int CParsePipeline::RunGrammar(SParseFindings& findings)
{
    CSQLGrammarParserImplementation& found = m_Grammar.Found();
    found.m_lstUnexpected.clear();
    found.m_lstDiscarded.clear();
    const auto takeFindings = [&] {
        findings.unexpected = std::move(found.m_lstUnexpected);
        if (m_Options.reportsLostText)
            findings.discarded = found.DiscardedStretches();
        if (m_Options.reportsCoverage)
            findings.usedRules = {m_Grammar.Scanner().UsedRules(), m_Grammar.Parser()->UsedRules()};
    };
    int parsed = UVDB_ERROR;
    try {
        parsed = m_Grammar.Parser()->yyparse();
    } catch (...) {
        takeFindings();
        throw;
    }
    takeFindings();
    findings.unfinished = m_Grammar.Scanner().Unfinished();
    return parsed;
}

int CParsePipeline::Read(SParseFindings& findings)
{
    m_Grammar.Scanner().set_LongTextsWanted(m_Options.closesLostQuotes);
    GiveTextToGrammar(!m_Options.isStylesheetForced);
    return RunGrammar(findings);
}

// Each lost quote is looked for in the best reading so far, and a place that made it no better isn't tried
// again. What a text leaves for the next one, no reading leaves for another.
int CParsePipeline::ReadBest(SParseFindings& findings)
{
    CSQLGrammarLexer& scanner = m_Grammar.Scanner();
    const CSQLGrammarLexerImplementation before = scanner.m_Extension;
    int parsed = Read(findings);
    if (!m_Grammar.Parser()->HasErrors())
        return parsed;

    const auto readWith = [&](const std::vector<std::size_t>& walls) {
        m_Grammar.Found().ClearErrors();
        scanner.m_Extension = before;
        GiveTextToGrammar(!m_Options.isStylesheetForced);
        scanner.set_Walls(walls);
        return RunGrammar(findings);
    };
    const auto suspects = [&] {
        return SuspectPlaces(scanner.LongTexts(), findings.unexpected,
                             m_Grammar.Found().DiscardedStretches());
    };
    const auto reading = [&] {
        return ReadingOf(parsed, findings.unexpected, m_Grammar.Found().DiscardedStretches(),
                         findings.unfinished, m_Grammar.Found().m_strQuery);
    };
    SReading best = reading();
    std::vector<std::size_t> walls;
    std::set<std::size_t> tried;
    bool isBestThere = true;
    std::vector<std::size_t> places = suspects();
    for (int again = 0, failed = 0; again < kMostReadings && failed < kMostFailedReadings; ++again) {
        const auto place =
            std::ranges::find_if(places, [&](std::size_t end) { return !tried.contains(end); });
        if (place == places.end())
            break;
        tried.insert(*place);
        std::vector<std::size_t> more = walls;
        more.insert(std::ranges::upper_bound(more, *place), *place);
        parsed = readWith(more);
        isBestThere = reading() < best;
        if (!isBestThere) {
            ++failed;
            continue;
        }
        best = reading();
        walls = std::move(more);
        places = suspects();
    }
    return isBestThere ? parsed : readWith(walls);
}

int CParsePipeline::ExecuteParsingInternal()
{
    SParseFindings& findings = m_Parsed.findings;
    int parsed = UVDB_ERROR;
    try {
        parsed = m_Options.closesLostQuotes ? ReadBest(findings) : Read(findings);
    } catch (...) {
        m_Parsed.isOutOfMemory = IsMemoryShort();
        return Fail("Exception in yyparse", "Exception in yyparse");
    }
    if (parsed != UVDB_OK)
        return parsed;
    m_Grammar.Scanner().DropQuery(); // the flattened tree needs the room
    findings.result.TakeTree(m_Grammar.Parser());
    m_Owner.CountWarnings(m_Options, m_Grammar.Found().m_mapErrors);
    return UVDB_OK;
}

int CParsePipeline::ExecuteParsingColoring()
{
    CSQLGrammarLexer& scanner = m_Grammar.ColoringScanner();
    scanner.m_Extension.m_strColoring.clear();
    scanner.set_Query(m_Parsed.text, static_cast<int>(m_Options.kind));
    // A grammar that doesn't know the state gets it with number 0, its first one.
    if (m_Options.findsComments)
        scanner.SetState(m_Grammar.Scanner().m_mapStartConditions["SS_FIND_COMMENT"]);
    try {
        while (scanner.yylex() != 0) {
        }
    } catch (...) {
        m_Parsed.isOutOfMemory = IsMemoryShort();
        return Fail("Exception in yylex on coloring", "Exception in yylex");
    }
    m_Parsed.findings.unfinished = scanner.Unfinished();
    m_Parsed.findings.result.SetText(std::move(scanner.m_Extension.m_strColoring));
    CLogWrapper::WriteTraceF("OK\n");
    return UVDB_OK;
}

void CParsePipeline::TryParseWithOtherOpts()
{
    GuardMemory([&] {
        if (m_Grammar.IsConnected() && m_Owner.ReadOptions(m_Options, false))
            TryOtherQuoteRule();
        return UVDB_OK;
    });
}

void CParsePipeline::TryOtherQuoteRule()
{
    GuardMemory([&] {
        m_Parsed.findings.result.Text(); // its fragments would go with the second parse
        {
            CSecondAttempt attempt(*this);
            const int result = ExecuteParsing();
            if (result >= UVDB_OK && !m_Grammar.Parser()->HasErrors()) {
                attempt.Accept(result);
                return UVDB_OK;
            }
        }
        // The second attempt's message with the first one's tokens.
        SetLastError(m_Parsed, &m_Grammar.Found());
        return UVDB_OK;
    });
}

std::string CParsePipeline::FastParse(SParseFindings& findings)
{
    if (!m_Grammar.IsConnected())
        return {};
    m_Owner.ReadOptions(m_Options, true);
    m_Parsed.findings.result.Text(); // a result that is still in fragments lives in the parser
    GiveTextToGrammar(false);
    RunGrammar(findings);
    return std::move(m_Grammar.Found().m_strParsedXml);
}

bool CParsePipeline::IsPropertiesFile() const
{
    const auto extension = TextAfterLastDot(m_Options.filePath);
    return extension && extension->CollateNoCase("properties") == 0;
}

int CParsePipeline::ExecuteEmbeddedParsing()
{
    m_Parsed.findings.result.SetText(WrapInElement("SQL", m_Parsed.text));
    ReplaceXmlHeader(m_Parsed.findings.result.Text());
    return UVDB_OK;
}

int CParsePipeline::Fail(const char* description, const char* traced)
{
    SetLastError(m_Parsed, 0, description);
    CLogWrapper::WriteTraceF("\nFAILED: %s\n", traced);
    return UVDB_ERROR;
}
