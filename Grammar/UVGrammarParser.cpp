#include "Grammar/UVGrammarParser.h"

#include "Grammar/Runtime/yyBisonDriver.h"
#include "Grammar/UVGrammarTables.h"
#include "UVEnvironment/LogSystem.h"

#include <boost/program_options/variables_map.hpp>

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace {

constexpr const char* kRootName = "SQL";
constexpr std::size_t kInitialDepth = 200;

int ToNumber(std::string_view text)
{
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

CSQLGrammarParser::CSQLGrammarParser() = default;

CSQLGrammarParser::CSQLGrammarParser(const char* parserName, bool isPatternVersion)
{
    yytables(parserName, isPatternVersion);
}

CSQLGrammarParser::CSQLGrammarParser(const boost::program_options::variables_map& parameters)
    : CSQLGrammarParser(parameters["DBNAME"].as<std::string>().c_str(), parameters["PATTERNVER"].as<bool>())
{
    m_Extension.m_bShowErrors = parameters["SHOWERR"].as<bool>();
}

CSQLGrammarParser::~CSQLGrammarParser()
{
    yydestroy();
}

void CSQLGrammarParser::yytables(const char* parserName, bool isPatternVersion)
{
    m_strParserName = parserName;
    m_bPatternVersion = isPatternVersion;
    const std::string directory = ComposeGrammarDirectory(m_strParserName, m_bPatternVersion, "Parser");
    SLoadedParser loaded = LoadParser(directory);
    m_Actions = std::move(loaded.actions);
    m_mapDefines = std::move(loaded.tokens);
    yyset_tables(std::move(loaded.tables));
    CompileActions();
    yyinitdepth = kInitialDepth;
    yymaxdepth = 0;
}

// What runs is not the records but this: one look-up by rule number, names resolved.
void CSQLGrammarParser::CompileActions()
{
    const std::size_t rules = m_spTables->Rules();
    m_Watch.Forget();
    m_lstOperations.clear();
    m_lstStartConditions.clear();
    m_lstRules.assign(rules, SRule());
    m_nRootElement = m_Fragments.Names().Intern(kRootName);
    for (std::size_t record = 0; record < m_Actions.Count(); ++record) {
        const auto& [number, first, count] = m_Actions.Record(record);
        if (number < 0 || static_cast<std::size_t>(number) >= rules)
            continue; // no rule of the tables ever asks for it
        SRule& rule = m_lstRules[static_cast<std::size_t>(number)];
        rule.first = static_cast<std::uint32_t>(m_lstOperations.size());
        rule.isKnown = true;
        for (std::size_t index = first; index < std::size_t{first} + count; ++index) {
            const CActionRecords::SOperation& stored = m_Actions.Operation(index);
            const auto operand = [&](std::size_t at) { return m_Actions.Operand(stored, at); };
            SOperation operation;
            operation.keyword = stored.Keyword();
            switch (operation.keyword) {
            case enGrammarKeyword::CreateNodeWithError:
                operation.errorIndex = ToNumber(operand(2));
                [[fallthrough]];
            case enGrammarKeyword::CreateNode:
                operation.childCount = ToNumber(operand(1));
                [[fallthrough]];
            case enGrammarKeyword::Empty:
                operation.element = m_Fragments.Names().Intern(std::string(operand(0)));
                operation.isRoot = operand(0) == kRootName;
                break;
            case enGrammarKeyword::YylexerptrYybegin:
                operation.startCondition = &m_lstStartConditions.emplace_back(operand(0));
                break;
            default:
                continue; // loaded and ignored
            }
            m_lstOperations.push_back(operation);
        }
        rule.count = static_cast<std::uint32_t>(m_lstOperations.size()) - rule.first;
    }
}

int CSQLGrammarParser::yycreate(yyFlexLexer* lexer)
{
    if (!lexer)
        return 0;
    yylexerptr = lexer;
    return yyParser::yycreate();
}

void CSQLGrammarParser::ReleaseTree()
{
    m_Tree = {};
    m_Fragments.Release();
}

int CSQLGrammarParser::yyparse()
{
    // whatever becomes of the parse, its fragments go with it, unless they are the result
    struct SRelease
    {
        CSQLGrammarParser& parser;
        bool isTree = false;
        ~SRelease()
        {
            if (!isTree)
                parser.ReleaseTree();
        }
    } release{*this};
    ReleaseTree();
    const int result = yyBisonParser::yyparse();
    release.isTree = result == 0 && m_Tree;
    // the tree ends in a node named SQL, which every grammar's start symbol makes
    if (result == 0 && !m_Tree && m_Extension.m_strParsedXml.empty())
        throw std::runtime_error("the parser's tables accept a text without a tree");
    return result;
}

void CSQLGrammarParser::ForgetTexts()
{
    m_Extension.ClearErrors();
    m_Extension.m_bErrDisplayed = false;
}

int CSQLGrammarParser::yywork()
{
    return yydrive(*this);
}

int CSQLGrammarParser::yygettoken()
{
    return yylexerptr->yylex();
}

void CSQLGrammarParser::yyerror(const char* text)
{
    m_Extension.m_strLastError = text;
}

void CSQLGrammarParser::yyset_last_error(const char* text)
{
    m_Extension.m_strLastError = text;
    yyerror_flag = 1;
}

void CSQLGrammarParser::yyinitdebug(const std::string& directory)
{
    if (directory.empty())
        return;
    yydebug_stream = std::fopen((directory + "/ParserDebug.out").c_str(), "w+t");
    yydebug = 1;
}

void CSQLGrammarParser::yyshift_attributes(std::size_t index)
{
    yyvsp = static_cast<ParserNode*>(yyvs) + index;
}

void CSQLGrammarParser::yycopy_attributes(void* to, const void* from, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        static_cast<ParserNode*>(to)[i].MoveFrom(static_cast<const ParserNode*>(from)[i]);
}

void* CSQLGrammarParser::yynewattribute(std::size_t count)
{
    return new ParserNode[count];
}

void CSQLGrammarParser::yydeleteattribute(void* values)
{
    delete[] static_cast<ParserNode*>(values);
}

void CSQLGrammarParser::TraceEmptyAction(int rule)
{
    CLogWrapper::WriteTraceF("\nUVGrammarParser: Empty action: %d", rule);
}

void CSQLGrammarParser::RunActions(const SRule& actions)
{
    // The end is found first: a rule that is watched gets its own operations back in the loop.
    const SOperation* operation = m_lstOperations.data() + actions.first;
    const SOperation* const end = operation + actions.count;
    for (; operation != end; ++operation) {
        if (operation->keyword == enGrammarKeyword::CreateNode ||
            operation->keyword == enGrammarKeyword::Empty)
            CreateNodeExt(*operation);
        else
            RunSeldomAction(*operation);
    }
}

void CSQLGrammarParser::RunSeldomAction(const SOperation& operation)
{
    switch (operation.keyword) {
    case enGrammarKeyword::CreateNodeWithError:
        CreateErrorNodeExt(operation);
        break;
    case enGrammarKeyword::YylexerptrYybegin:
        yylexerptr->yybegin(m_mapDefines[*operation.startCondition]);
        break;
    default:
        yyaction(m_Watch.Release(operation));
    }
}

void CSQLGrammarParser::yyrecovery(bool isReported)
{
    m_Extension.m_lstDiscarded.push_back({isReported});
}

void CSQLGrammarParser::yydiscard_symbols(int count)
{
    // the error symbol has the value of the token that it was shifted before, which may be in the tree
    for (int below = 0; below < count; ++below)
        if (yystos[yyssp[-below]] != kErrorToken)
            m_Extension.m_lstDiscarded.back().Take(StackEntry(-below).m_nStart, StackEntry(-below).m_nLength);
}

void CSQLGrammarParser::yydiscard_lookahead()
{
    const auto& value = *static_cast<const ParserNode*>(yylval);
    // a one-character token has no value of its own
    if (value.m_nStart == -1)
        m_Extension.m_lstDiscarded.back().Take(static_cast<int>(yylexerptr->yymatch_offset()),
                                               yylexerptr->yyleng);
    else
        m_Extension.m_lstDiscarded.back().Take(value.m_nStart, value.m_nLength);
}

void CSQLGrammarParser::yysyntaxerror()
{
    const auto line = static_cast<unsigned long>(yylexerptr->yylineno);
    const char* const text = yylexerptr->yytext;
    m_Extension.m_strLastError = std::to_string(line) + " '" + text + "'";
    m_Extension.m_mapErrors.emplace(line, text);
    const bool isAtEnd = yychar == 0;
    m_Extension.m_lstUnexpected.push_back(
        {line, isAtEnd ? m_Extension.m_strQuery.size() : yylexerptr->yymatch_offset(),
         isAtEnd ? 0 : static_cast<std::size_t>(yylexerptr->yyleng), text, *yyssp});
    if (!m_Expected)
        return;
    SUnexpectedToken& token = m_Extension.m_lstUnexpected.back();
    token.expected = m_Expected(std::span<const short>(yyss, yyssp + 1), yytoken);
    const auto named =
        std::ranges::find(m_mapDefines, yychar, [](const auto& define) { return define.second; });
    if (!isAtEnd && named != m_mapDefines.end())
        token.terminal = named->first;
}
