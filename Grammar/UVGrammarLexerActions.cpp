#include "Grammar/UVGrammarLexer.h"
#include "UVEnvironment/LogSystem.h"

#include <charconv>
#include <cstring>

// The interpreter of the scanner's rule actions.

namespace {

constexpr const char* kStartStateName = "m_Extension.m_nStartState";
constexpr const char* kNoAction = "NO_ACTION";
constexpr int kSourceDbColor = 4;
constexpr int kOldVersionMajor = 7;
constexpr int kOldVersionMinor = 50;
constexpr std::string_view kBracketedSelect = "[SELECT ";

// The format texts come from a file, so only what prints the one integer is taken as a conversion; any other
// text stands for itself.
Uve::U8CString FormatInteger(const std::string& format, int number)
{
    const std::size_t at = format.find('%');
    const std::size_t end = format.find_first_not_of("0123456789-+ ", at + 1);
    const bool isInteger = at != std::string::npos && end != std::string::npos && end - at < 8 &&
                           (format[end] == 'd' || format[end] == 'i') &&
                           format.find('%', end) == std::string::npos;
    if (!isInteger)
        return format;
    Uve::U8CString text;
    const std::string conversion = format.substr(at, end - at) + "d";
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral" // proved above: one conversion, of an int
    text.Format(conversion.c_str(), number);
#pragma GCC diagnostic pop
    return format.substr(0, at) + text + format.substr(end + 1);
}

bool IsTrueOption(const std::map<Uve::U8CString, Uve::U8CString>& options, const std::string& name)
{
    const auto option = options.find(name);
    return option != options.end() && option->second == "1";
}

} // namespace

// By keyword, in the order of the enumerators.
const std::array<CSQLGrammarLexer::Handler, kGrammarKeywordCount + 1> CSQLGrammarLexer::kHandlers = [] {
    std::array<Handler, kGrammarKeywordCount + 1> handlers;
    handlers.fill(&CSQLGrammarLexer::RunUnknown);
    const auto set = [&](enGrammarKeyword keyword, Handler handler) {
        handlers[static_cast<std::size_t>(keyword)] = handler;
    };
    using enum enGrammarKeyword;
    using L = CSQLGrammarLexer;
    set(ActionByOption, &L::RunActionByOption);
    set(Begin, &L::RunBegin);
    set(BracketsAction, &L::RunBrackets);
    set(CodeAction, &L::RunCode);
    set(ConditionalBegin, &L::RunConditionalBegin);
    set(ConditionalTokenAction, &L::RunConditionalToken);
    set(CpyTokenAction, &L::RunCpyToken);
    set(ColoringFunc, &L::RunColoring);
    set(GetFirstIfCppDirectiveParseOn, &L::RunCppDirective);
    set(IfStrcmpAction, &L::RunIfStrcmp);
    set(IfBracketsAction, &L::RunIfBrackets);
    set(PatternsAction, &L::RunPatterns);
    set(PatternAction, &L::RunPattern);
    set(SetCondition, &L::RunSetCondition);
    set(StackAction, &L::RunStack);
    set(StringAction, &L::RunString);
    set(SelecTokenByAPISourceDBVal, &L::RunSelectToken);
    set(TokenAction, &L::RunToken);
    set(TokenActionE, &L::RunTokenE);
    set(TokenIndentAction, &L::RunIndent);
    set(Strcpy, &L::RunStrcpy);
    set(StrtmpFormat, &L::RunStrtmpFormat);
    set(Yytext, &L::RunYytext);
    set(kWatchedRule, &L::RunWatched);
    return handlers;
}();

int CSQLGrammarLexer::yyaction(int act)
{
    const SRule& rule = m_lstRules[static_cast<std::size_t>(act)];
    if (rule.count == 0) {
        yy_action_returns = 0;
        return 0;
    }
    yy_action_returns = 1;
    ParserNode* node = &m_LocalNode;
    yylvalue(&node);
    // The end is found first: a rule that is watched gets its own operations back in the loop.
    SOperation* operation = m_lstOperations.data() + rule.first;
    SOperation* const end = operation + rule.count;
    for (; operation != end; ++operation) {
        const Handler handler = kHandlers[static_cast<std::size_t>(operation->keyword)];
        if (const SResult result = (this->*handler)(*operation, *node); result.isToken)
            return result.token;
    }
    yy_action_returns = 0;
    return 0;
}

// ---- Start conditions ----

int CSQLGrammarLexer::ResolveNamed(const std::string& condition) const
{
    const auto known = m_mapStartConditions.find(condition);
    return known != m_mapStartConditions.end() ? known->second : kByName;
}

// A name, a number, or the word for the query's own start condition.
int CSQLGrammarLexer::ResolveBegin(const std::string& condition) const
{
    if (condition == kStartStateName)
        return kToStart;
    int number = 0;
    std::from_chars(condition.data(), condition.data() + condition.size(), number);
    return std::to_string(number) == condition ? number : ResolveNamed(condition);
}

void CSQLGrammarLexer::Begin(int state, const std::string& condition)
{
    if (state == kToStart)
        BackToStart();
    else // an unknown name is entered as condition 0
        yybegin(state >= 0 ? state : m_mapStartConditions[condition]);
}

void CSQLGrammarLexer::SkipTo(const char* condition)
{
    Begin(ResolveNamed(condition), condition);
    m_Extension.m_nBrackets = 1;
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunBegin(SOperation& operation, ParserNode&)
{
    Begin(operation.states[0], (*operation.operands)[0]);
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunConditionalBegin(SOperation& operation, ParserNode&)
{
    const bool isSet = m_Extension.m_mapConditions.contains((*operation.operands)[0]);
    Begin(operation.states[isSet ? 0 : 1], (*operation.operands)[isSet ? 1 : 2]);
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunCppDirective(SOperation& operation, ParserNode&)
{
    const std::size_t choice = m_Extension.m_bCppDirectiveParse ? 0 : 1;
    Begin(operation.states[choice], (*operation.operands)[choice]);
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunPatterns(SOperation& operation, ParserNode&)
{
    const std::size_t choice = m_bPatternVersion ? 0 : 1;
    Begin(operation.states[choice], (*operation.operands)[choice]);
    if (!m_bPatternVersion)
        m_Extension.m_nBrackets = 1;
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunPattern(SOperation& operation, ParserNode&)
{
    if (!m_bPatternVersion)
        Begin(operation.states[0], (*operation.operands)[1]);
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunActionByOption(SOperation& operation, ParserNode& node)
{
    const std::vector<std::string>& operands = *operation.operands;
    const bool isOn = IsTrueOption(m_Extension.m_mapOptions, operands[0]);
    const std::size_t choice = isOn ? 0 : 1;
    if (operands[isOn ? 1 : 3] != "BEGIN")
        return Token(operation.tokens[choice], 0, node);
    Begin(operation.states[choice], operands[isOn ? 2 : 4]);
    return {};
}

// ---- Tokens ----

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunToken(SOperation& operation, ParserNode& node)
{
    return Token(operation.tokens[0], 0, node);
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunTokenE(SOperation& operation, ParserNode& node)
{
    return Token(operation.tokens[0], operation.number, node);
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunIndent(SOperation&, ParserNode& node)
{
    int token = 0;
    const bool isToken = TokenActionIndentation(node, token);
    return {isToken, token};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunCpyToken(SOperation& operation, ParserNode& node)
{
    std::string& name = (*operation.operands)[0];
    if (name.size() > 1 && name.front() == '"')
        name = name.substr(1, name.size() - 2);
    return {true, CpyTokenAction(name, (*operation.operands)[1], node)};
}

// A one-character token has no element of its own: its byte comes back with the space around it.
CSQLGrammarLexer::SResult CSQLGrammarLexer::RunYytext(SOperation& operation, ParserNode& node)
{
    const int index = operation.number;
    static_cast<ParserNodeValue&>(node) = ParserNodeValue();
    return {true, index >= 0 && index <= yyleng ? static_cast<signed char>(yytext[index]) : 0};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunSelectToken(SOperation& operation, ParserNode& node)
{
    const bool isEqual = m_Extension.m_strAPISourceDB.CollateNoCase(std::to_string(operation.number)) == 0;
    return Token(operation.tokens[isEqual ? 1 : 0], kSourceDbColor, node);
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunIfStrcmp(SOperation& operation, ParserNode& node)
{
    // the quotes go out of the stored text, once
    std::string& text = (*operation.operands)[0];
    if (text.size() > 1 && text.front() == '"')
        text = text.substr(1, text.size() - 2);
    const bool isEqual = text == yytext;
    return isEqual == (operation.number != 0) ? Token(operation.tokens[0], 0, node) : SResult();
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunConditionalToken(SOperation& operation, ParserNode& node)
{
    const std::vector<std::string>& operands = *operation.operands;
    const bool isTrue = ConditionalTokenAction(operands[0], operands[1]);
    if (operands[isTrue ? 2 : 3] == kNoAction)
        return {};
    return Token(operation.tokens[isTrue ? 0 : 1], 0, node);
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunCode(SOperation& operation, ParserNode& node)
{
    switch (operation.number) {
    case 0:
        // the bracket before a subquery doesn't open a bracketed identifier
        if (std::strncmp(yytext, kBracketedSelect.data(), kBracketedSelect.size()) != 0)
            return {};
        yyless(1);
        return Token(operation.tokens[0], 0, node);
    case 1:
        return Token(operation.tokens[m_Extension.m_bMSSQLQID ? 0 : 1], 0, node);
    case 2: {
        const bool isOld = m_nDBVersionMajor < kOldVersionMajor ||
                           (m_nDBVersionMajor == kOldVersionMajor && m_nDBVersionMinor < kOldVersionMinor);
        return Token(operation.tokens[isOld ? 0 : 1], 0, node);
    }
    case 3:
        if (m_Extension.m_strSrcUIType.CollateNoCase("FORMS") != 0)
            return Token(operation.tokens[1], 0, node);
        Begin(ResolveNamed("SS_COBOL_FORM"), "SS_COBOL_FORM");
        return Token(operation.tokens[0], 0, node);
    default:
        return {};
    }
}

// ---- Texts ----

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunColoring(SOperation& operation, ParserNode&)
{
    AddColoring(operation.number, m_Extension.m_nChar - yyleng, m_Extension.m_nChar - 1);
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunStrcpy(SOperation& operation, ParserNode&)
{
    const std::string_view quoted = (*operation.operands)[1];
    yyreplace_text(quoted.size() > 1 ? quoted.substr(1, quoted.size() - 2) : std::string_view());
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunStrtmpFormat(SOperation& operation, ParserNode&)
{
    m_Extension.m_strColoring += FormatInteger((*operation.operands)[0], m_Extension.m_nChar);
    return {};
}

// ---- Counters and saved texts ----

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunBrackets(SOperation& operation, ParserNode&)
{
    switch (operation.number) {
    case 1:
        m_Extension.m_nBrackets = 1;
        break;
    case 2:
        ++m_Extension.m_nBrackets;
        break;
    case 3:
        --m_Extension.m_nBrackets;
        if (!m_Extension.m_dequeSkips.empty()) {
            Uve::U8CString text(yytext);
            text.MakeUpper();
            if (text.Find("END") != -1)
                m_Extension.m_dequeSkips.pop_back();
        }
        break;
    default:
        break;
    }
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunIfBrackets(SOperation& operation, ParserNode&)
{
    const bool isClosed = m_Extension.m_nBrackets == 0;
    if (operation.number == 1 && m_Extension.m_nBrackets < 2)
        BackToStart();
    else if (operation.number == 2 && isClosed)
        m_Extension.m_strColoring.AppendFormat("%d ", m_Extension.m_nChar - yyleng);
    else if (operation.number == 3 && isClosed)
        m_Extension.m_strColoring.AppendFormat("%d\n", m_Extension.m_nChar - 1);
    if (isClosed)
        BackToStart();
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunStack(SOperation& operation, ParserNode&)
{
    const std::string& name = (*operation.operands)[1];
    if ((*operation.operands)[0] == "PUSH") {
        m_Extension.m_mapStacks[name].push(1);
    } else if ((*operation.operands)[0] == "POP") {
        const auto stack = m_Extension.m_mapStacks.find(name);
        if (stack != m_Extension.m_mapStacks.end() && !stack->second.empty())
            stack->second.pop();
    }
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunSetCondition(SOperation& operation, ParserNode&)
{
    SetCondition((*operation.operands)[0]);
    return {};
}

// Saves a delimiter, so that a later rule can recognise its partner: quotes go, and the backslashes before
// them.
void CSQLGrammarLexer::SetCondition(const std::string& condition)
{
    std::string text;
    for (const char* at = yytext; *at; ++at) {
        const bool isQuote = *at == '"' || *at == '\'';
        while (isQuote && !text.empty() && text.back() == '\\')
            text.pop_back();
        if (!isQuote)
            text += *at;
    }
    Uve::U8CString saved(text);
    saved.Replace("\\$", "$");
    saved.Replace("\\\\", "\\");
    m_Extension.m_mapConditions.emplace(condition, saved);
}

bool CSQLGrammarLexer::ConditionalTokenAction(const std::string& condition, const std::string& value)
{
    if (condition == "STATE") {
        const int state = value == kStartStateName ? m_Extension.m_nStartState : m_mapStartConditions[value];
        return yystart_condition() == state;
    }
    const auto saved = m_Extension.m_mapConditions.find(condition);
    if (saved == m_Extension.m_mapConditions.end() || saved->second != yytext)
        return false;
    m_Extension.m_mapConditions.erase(saved);
    BackToStart();
    return true;
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunUnknown(SOperation& operation, ParserNode&)
{
    CLogWrapper::WriteTraceF("\nUnknown action: %s", GetGrammarKeyword(operation.keyword).name);
    yy_action_failed = 1;
    return {};
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunWatched(SOperation& operation, ParserNode&)
{
    const int token = yyaction(m_Watch.Release(operation));
    return {yy_action_returns != 0, token};
}
