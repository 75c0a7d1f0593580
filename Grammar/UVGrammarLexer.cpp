#include "Grammar/UVGrammarLexer.h"

#include "Catalogue/UVDBParserNames.h"
#include "Grammar/Runtime/yyFlexDriver.h"
#include "Grammar/UVGrammarParser.h"
#include "Grammar/UVGrammarTables.h"
#include "UVEnvironment/LogSystem.h"

#include <boost/program_options/variables_map.hpp>

#include <algorithm>
#include <charconv>

namespace {

constexpr int kInitialTextSize = 200;
constexpr const char* kInitialState = "INITIAL";

// Grammars that any database may use.
constexpr int kAccessNumber = 14;
constexpr int kCommonNumber = 64;
constexpr int kOracleSqlFormsNumber = 108;
constexpr int kPascalNumber = 82;
constexpr int kPascalFormNumber = 83;
constexpr int kDelphiNumber = 116;
constexpr int kDelphiFormNumber = 117;
constexpr int kUnknownNumber = 60;

// The interpreter of such an operation asks for nothing but the numbers that its operands came to.
bool RunsWithoutTexts(enGrammarKeyword keyword)
{
    using enum enGrammarKeyword;
    return keyword == TokenAction || keyword == TokenActionE || keyword == CodeAction ||
           keyword == SelecTokenByAPISourceDBVal || keyword == ColoringFunc || keyword == Yytext;
}

} // namespace

CSQLGrammarLexer::CSQLGrammarLexer() = default;

CSQLGrammarLexer::CSQLGrammarLexer(const char* parserName, bool isPatternVersion)
{
    yytables(parserName, isPatternVersion);
}

CSQLGrammarLexer::CSQLGrammarLexer(const boost::program_options::variables_map& parameters)
    : CSQLGrammarLexer(parameters["DBNAME"].as<std::string>().c_str(), parameters["PATTERNVER"].as<bool>())
{
    m_Extension.m_nCurColor = parameters["CURCOLOR"].as<int>();
    m_Extension.m_bMSSQLQID = parameters["MSSQL_QID"].as<bool>();
    m_Extension.m_nChar = parameters["CHAR"].as<int>();
    m_Extension.m_nBrackets = parameters["LBRACKETS"].as<int>();
    m_Extension.m_nLineStart = parameters["LLINE"].as<int>();
    m_Extension.m_nPrevChar = parameters["PRCHAR"].as<int>();
    m_Extension.m_nStartState = parameters["SSTATE"].as<int>();
    m_Extension.m_bParserPR4GL = parameters["PARSER_PR4GL"].as<bool>();
    m_Extension.m_strSrcUIType = parameters["SRC_UI_TYPE"].as<std::string>();
}

CSQLGrammarLexer::~CSQLGrammarLexer() = default;

void CSQLGrammarLexer::Cleanup()
{
    m_Watch.Forget();
    m_lstOperations.clear();
    m_lstRules.clear();
    m_lstQuotedOperands.clear();
    m_lstOperands.clear();
}

void CSQLGrammarLexer::yytables(const char* parserName, bool isPatternVersion)
{
    m_strParserName = parserName;
    m_bPatternVersion = isPatternVersion;
    const std::string directory = ComposeGrammarDirectory(m_strParserName, m_bPatternVersion, "Lexer");
    SLoadedScanner loaded = LoadScanner(directory);
    Cleanup();
    m_Actions = std::move(loaded.actions);
    m_mapStartConditions = std::move(loaded.startConditions);
    yyset_tables(std::move(loaded.tables));
    yy_text_initial_size = kInitialTextSize;
}

void CSQLGrammarLexer::ShareTables(const CSQLGrammarLexer& other)
{
    // What can fail comes first: the lexer has one grammar or the other, never a part of it.
    std::string parserName = other.m_strParserName;
    auto startConditions = other.m_mapStartConditions;
    Cleanup();
    m_strParserName.swap(parserName);
    m_bPatternVersion = other.m_bPatternVersion;
    m_mapStartConditions.swap(startConditions);
    m_Actions = other.m_Actions;
    yyset_tables(other.m_spTables);
    yy_text_initial_size = other.yy_text_initial_size;
}

int CSQLGrammarLexer::yycreate(yyBisonParser* parser)
{
    if (!parser)
        return 0;
    m_pParser = parser;
    m_pGrammarParser = dynamic_cast<CSQLGrammarParser*>(parser);
    CompileActions();
    return yyLexer::yycreate();
}

int CSQLGrammarLexer::yycreate()
{
    CompileActions();
    return yyLexer::yycreate();
}

int CSQLGrammarLexer::yylex()
{
    if (m_Extension.m_dequePseudoTokens.empty())
        return yydrive(*this);
    ParserNode* node = &m_LocalNode;
    yylvalue(&node);
    const int token = PseudoTokenAction(m_Extension.m_dequePseudoTokens.back(), *node);
    m_Extension.m_dequePseudoTokens.pop_back();
    return token;
}

void CSQLGrammarLexer::yymatch()
{
    yywalk(*this);
}

void CSQLGrammarLexer::yyfindrule(int& act)
{
    yybackup(*this, act);
}

void CSQLGrammarLexer::yyinputbuffer()
{
    yybuffer_state* const buffer = yyscan_string(m_Extension.m_strQuery.data());
    m_pQueryBuffer = buffer;
    m_nScanEnd = ScanEndAfter(0);
    if (m_nScanEnd < m_Extension.m_nQueryLength)
        yyend_buffer_at(m_nScanEnd);
}

int CSQLGrammarLexer::yybegin(int state)
{
    const int coded = yyFlexLexer::yybegin(state);
    const std::optional<SEntered> open = m_bLongTextsWanted ? OpenText() : std::nullopt;
    // back in a condition that led to the current one
    const auto entered = std::ranges::find(m_lstEntered, state, &SEntered::condition);
    if (state == m_Extension.m_nStartState)
        LeaveAll();
    else if (entered != m_lstEntered.end())
        m_lstEntered.erase(entered + 1, m_lstEntered.end());
    else if (ComesBack(state))
        m_lstEntered.swap(m_lstLeft);
    else if (yycurrent_buffer())
        m_lstEntered.push_back({state, yymatch_offset(), yymatch_end()});
    else
        m_lstEntered.push_back({state, 0, 0});
    if (open && !OpenText())
        NoteLongText(open->offset, open->end, yymatch_end());
    return coded;
}

// What they were stays known until the next match: an action may go by the condition that texts begin in to another one.
void CSQLGrammarLexer::LeaveAll()
{
    if (!m_lstEntered.empty() && yycurrent_buffer()) {
        m_lstLeft.swap(m_lstEntered);
        m_nLeftAt = yymatch_offset();
    }
    m_lstEntered.clear();
}

// The current match has left this condition. Then those that it was entered in are all that is kept.
bool CSQLGrammarLexer::ComesBack(int state)
{
    const auto left = std::ranges::find(m_lstLeft, state, &SEntered::condition);
    if (left == m_lstLeft.end() || !m_lstEntered.empty() || !yycurrent_buffer() ||
        yymatch_offset() != m_nLeftAt)
        return false;
    m_lstLeft.erase(left + 1, m_lstLeft.end());
    return true;
}

// The scan has come to a wall, or to the end of the text.
int CSQLGrammarLexer::yywrap()
{
    if (m_nScanEnd >= m_Extension.m_nQueryLength)
        return 1;
    yygive_back_end();
    m_Extension.m_nChar = m_nScanEnd;
    m_nScanEnd = ScanEndAfter(m_nScanEnd);
    if (m_nScanEnd < m_Extension.m_nQueryLength)
        yyend_buffer_at(m_nScanEnd);
    m_Extension.m_mapConditions.clear(); // of texts that began before it
    yybegin(m_Extension.m_nStartState);
    m_lstLeft.clear();
    return 0;
}

int CSQLGrammarLexer::ScanEndAfter(int offset) const
{
    const auto wall = std::ranges::upper_bound(m_lstWalls, static_cast<std::size_t>(offset));
    return wall == m_lstWalls.end() || *wall > m_Extension.m_strQuery.size() ? m_Extension.m_nQueryLength
                                                                             : static_cast<int>(*wall);
}

void CSQLGrammarLexer::NoteToken(std::size_t begin, std::size_t length)
{
    m_nTokensEnd = begin + length;
    if (!OpenText())
        NoteLongText(begin, 0, m_nTokensEnd);
}

// It ends at byte `end`, on the current line.
void CSQLGrammarLexer::NoteLongText(std::size_t begin, std::size_t opened, std::size_t end)
{
    const std::string_view text = m_Extension.m_strQuery.substr(begin, end - begin);
    const std::size_t lineEnd = text.find('\n');
    if (m_nTokensEnd <= begin || lineEnd == std::string_view::npos)
        return;
    m_lstLongTexts.push_back(
        {begin, end, opened == 0 ? begin + lineEnd + 1 : opened, static_cast<unsigned long>(yylineno)});
}

// Where the scan came into conditions in which no text may end, if it is in one.
std::optional<CSQLGrammarLexer::SEntered> CSQLGrammarLexer::OpenText() const
{
    std::optional<SEntered> open;
    for (auto entered = m_lstEntered.rbegin(); entered != m_lstEntered.rend(); ++entered) {
        if (MayEndIn(entered->condition))
            break;
        open = *entered;
    }
    return open;
}

bool CSQLGrammarLexer::IsEndOfText(int act)
{
    const bool isEnd =
        static_cast<std::size_t>(act) < m_lstEofRules.size() && m_lstEofRules[static_cast<std::size_t>(act)];
    if (isEnd)
        NoteEnd();
    return isEnd;
}

// Note: where a text may end
// The rule for the end of the text in start condition c has the number c + 1 after that of the end of the
// buffer. Its record in the action text, always an empty one, says that a text may end in this condition.
// Tables in which no condition has such a record don't tell, and then no end is wrong.
void CSQLGrammarLexer::NoteEnd()
{
    if (const std::optional<SEntered> open = OpenText(); open && m_bLongTextsWanted)
        NoteLongText(open->offset, open->end, m_Extension.m_strQuery.size());
    const int condition = yystart_condition();
    if (m_lstEntered.empty() || m_Unfinished || m_lstEntered.back().condition != condition ||
        !m_Actions.HasFrom(yy_end_of_buffer_action + 1) || MayEndIn(condition))
        return;
    const auto name =
        std::ranges::find(m_mapStartConditions, condition, &std::pair<const std::string, int>::second);
    const std::size_t begin = m_lstEntered.back().offset;
    m_Unfinished = {name->first, begin, std::max(begin, m_nTokensEnd)};
}

void CSQLGrammarLexer::FindEofRules()
{
    m_lstEofRules.clear();
    m_lstMayEnd.clear();
    for (const auto& condition : m_mapStartConditions) {
        const auto rule = static_cast<std::size_t>(condition.second) +
                          static_cast<std::size_t>(yy_end_of_buffer_action) + 1;
        if (rule >= m_lstEofRules.size())
            m_lstEofRules.resize(rule + 1);
        m_lstEofRules[rule] = true;
        const auto number = static_cast<std::size_t>(condition.second);
        if (number >= m_lstMayEnd.size())
            m_lstMayEnd.resize(number + 1);
        m_lstMayEnd[number] = m_Actions.Has(static_cast<int>(rule));
    }
}

void CSQLGrammarLexer::yyerror(const char* text)
{
    if (m_pParser)
        m_pParser->yyset_last_error(text);
    else
        CLogWrapper::WriteTraceF("\n%s", text);
}

void CSQLGrammarLexer::yylvalue(ParserNode** node)
{
    if (m_pGrammarParser && m_pGrammarParser->LookaheadValue())
        *node = m_pGrammarParser->LookaheadValue();
}

void CSQLGrammarLexer::set_Query(const std::string& query, int db)
{
    yycleanup();
    m_Extension.m_nStartState = m_mapStartConditions[kInitialState];
    if (const int state = ComputeGeneralStartState(db); state != -1)
        m_Extension.m_nStartState = state;
    FindEofRules();
    m_lstEntered.clear();
    m_lstLeft.clear();
    yybegin(m_Extension.m_nStartState);
    m_Unfinished.reset();
    m_lstWalls.clear();
    m_lstLongTexts.clear();
    m_nTokensEnd = 0;
    m_Extension.clean();
    m_Extension.m_strQuery = query;
    m_Extension.m_nQueryLength = static_cast<int>(query.size());
    m_nLineFeedFrom = -1;
    m_nLineFeedAt = -1;
}

void CSQLGrammarLexer::set_Walls(std::vector<std::size_t> places)
{
    m_lstWalls = std::move(places);
}

void CSQLGrammarLexer::ForgetTexts()
{
    m_Extension = CSQLGrammarLexerImplementation();
    m_Unfinished.reset();
    for (const SQuotedOperand& operand : m_lstQuotedOperands)
        *operand.stored = operand.loaded;
}

void CSQLGrammarLexer::DropQuery()
{
    yycleanup();
    m_Extension.m_strQuery = "";
}

int CSQLGrammarLexer::ComputeGeneralStartState(int db)
{
    const char* name = "SS_GENERAL";
    if (m_strParserName == "Progress4GL" || m_strParserName == "OpenEdgeABL")
        name = m_Extension.m_bParserPR4GL ? "SS_PROGRESS" : "SS_PROGRESS_UNIX";
    const auto state = m_mapStartConditions.find(name);
    if (state == m_mapStartConditions.end() || state->second == -1) {
        CLogWrapper::WriteTraceF("\nCSQLGrammarLexer::ComputeNativeStartState: Unknown parser name: %s",
                                 m_strParserName.c_str());
        return -1;
    }
    const int number = GetUVDBNumByParserName(m_strParserName);
    const bool isForAny =
        number == kAccessNumber || number == kCommonNumber || number == kOracleSqlFormsNumber;
    const bool isForDelphi = (db == kDelphiNumber && number == kPascalNumber) ||
                             (db == kDelphiFormNumber && number == kPascalFormNumber);
    return isForAny || number == db || isForDelphi ? state->second : -1;
}

int CSQLGrammarLexer::GetUVDBNumByParserName(const std::string& name)
{
    const auto number = static_cast<int>(UVDBGetNumberByParserName(name));
    if (number == kUnknownNumber)
        CLogWrapper::WriteTraceF("\nError in GrammarParserLib: Unknown parser name\n");
    return number;
}

// What runs is not the records but this: one look-up by rule number, names resolved against the parser that is
// linked.
void CSQLGrammarLexer::CompileActions()
{
    const bool isNew = m_lstOperations.empty(); // nothing has run since the actions were loaded
    m_Watch.Forget();
    m_lstOperations.clear();
    m_lstRules.assign(static_cast<std::size_t>(yy_end_of_buffer_action) + 1, SRule());
    m_lstTokens.clear();
    m_mapTokens.clear();
    auto operands = m_lstOperands.begin();
    for (std::size_t record = 0; record < m_Actions.Count(); ++record) {
        const auto& [number, first, count] = m_Actions.Record(record);
        if (number < 0 || static_cast<std::size_t>(number) >= m_lstRules.size())
            continue; // no rule of the tables ever asks for it
        SRule& rule = m_lstRules[static_cast<std::size_t>(number)];
        rule.first = static_cast<std::uint32_t>(m_lstOperations.size());
        rule.count = count;
        for (std::size_t index = first; index < std::size_t{first} + count; ++index) {
            const CActionRecords::SOperation& stored = m_Actions.Operation(index);
            SOperation operation;
            operation.keyword = stored.Keyword();
            ResolveOperands(operation, stored);
            if (!RunsWithoutTexts(operation.keyword)) {
                if (isNew)
                    operands = AddOperands(stored);
                operation.operands = &*operands++;
            }
            m_lstOperations.push_back(operation);
        }
    }
}

// Returns: where they are.
std::deque<std::vector<std::string>>::iterator
CSQLGrammarLexer::AddOperands(const CActionRecords::SOperation& record)
{
    std::vector<std::string>& operands = m_lstOperands.emplace_back();
    for (int index = 0; index < GetGrammarKeyword(record.Keyword()).operands; ++index)
        operands.emplace_back(m_Actions.Operand(record, static_cast<std::size_t>(index)));
    if (!operands.empty() && operands.front().starts_with('"'))
        m_lstQuotedOperands.push_back({&operands.front(), operands.front()});
    return m_lstOperands.end() - 1;
}

void CSQLGrammarLexer::ResolveOperands(SOperation& operation, const CActionRecords::SOperation& record)
{
    std::array<std::string_view, kMostOperands> operands;
    const char* const roles = GetGrammarKeyword(operation.keyword).roles;
    for (std::size_t index = 0; roles[index] != '\0'; ++index) {
        operands[index] = m_Actions.Operand(record, index);
        if (roles[index] == 'n')
            std::from_chars(operands[index].data(), operands[index].data() + operands[index].size(),
                            operation.number);
    }
    switch (operation.keyword) {
    case enGrammarKeyword::TokenAction:
    case enGrammarKeyword::TokenActionE:
        operation.tokens[0] = CompileToken(operands[0]);
        break;
    case enGrammarKeyword::IfStrcmpAction:
        operation.tokens[0] = CompileToken(operands[2]);
        break;
    case enGrammarKeyword::CodeAction:
    case enGrammarKeyword::SelecTokenByAPISourceDBVal:
        operation.tokens = {CompileToken(operands[1]), CompileToken(operands[2])};
        break;
    case enGrammarKeyword::ConditionalTokenAction:
        operation.tokens = {CompileToken(operands[2]), CompileToken(operands[3])};
        break;
    case enGrammarKeyword::ActionByOption:
        operation.tokens = {CompileToken(operands[2]), CompileToken(operands[4])};
        operation.states = {ResolveBegin(std::string(operands[2])), ResolveBegin(std::string(operands[4]))};
        break;
    case enGrammarKeyword::Begin:
        operation.states[0] = ResolveBegin(std::string(operands[0]));
        break;
    case enGrammarKeyword::ConditionalBegin:
        operation.states = {ResolveBegin(std::string(operands[1])), ResolveBegin(std::string(operands[2]))};
        break;
    case enGrammarKeyword::GetFirstIfCppDirectiveParseOn:
    case enGrammarKeyword::PatternsAction:
        operation.states = {ResolveNamed(std::string(operands[0])), ResolveNamed(std::string(operands[1]))};
        break;
    case enGrammarKeyword::PatternAction:
        operation.states[0] = ResolveNamed(std::string(operands[1]));
        break;
    default:
        break;
    }
}

std::uint32_t CSQLGrammarLexer::CompileToken(std::string_view name)
{
    const std::string fullName = std::string("T").append(name);
    const auto [entry, isNew] = m_mapTokens.emplace(fullName, static_cast<std::uint32_t>(m_lstTokens.size()));
    if (isNew) {
        SToken token;
        token.name = fullName;
        if (m_pGrammarParser) {
            token.element = m_pGrammarParser->Fragments().Names().Intern(fullName);
            if (const auto known = m_pGrammarParser->m_mapDefines.find(fullName);
                known != m_pGrammarParser->m_mapDefines.end())
                token.number = known->second;
        }
        m_lstTokens.push_back(std::move(token));
    }
    return entry->second;
}
