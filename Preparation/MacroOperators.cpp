// Joining the reader's single characters into operators and floating literals. Only what stands side by side
// is joined, so the written text never changes.
#include "Preparation/MacroTokens.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace MacroPreprocessorChecker::internal {

namespace {

constexpr std::string_view kBeforeEquals = "=!<>+-*/%&|^";
constexpr std::string_view kDoubled = "|&:<>";

bool IsOneOf(char c, std::string_view set)
{
    return c != '\0' && set.find(c) != set.npos;
}

bool IsHexadecimal(std::string_view number)
{
    return number.starts_with("0x") || number.starts_with("0X");
}

// A number that wants a sign and digits behind its last letter.
bool EndsInExponent(std::string_view number)
{
    const char end = number.empty() ? '\0' : number.back();
    if (end == 'p' || end == 'P')
        return IsHexadecimal(number);
    return (end == 'e' || end == 'E') && !IsHexadecimal(number);
}

// Ascending, for the search.
constexpr std::string_view kOperators[] = {
    "!", "!=", "#",  "##", "%",   "%=",  "&",  "&&",  "&=", "(",  ")",  "*",  "*=", "+",  "++", "+=",  ",",
    "-", "--", "-=", "->", "->*", ".",   ".*", "...", "/",  "/=", ":",  "::", ";",  "<",  "<<", "<<=", "<=",
    "=", "==", ">",  ">=", ">>",  ">>=", "?",  "[",   "]",  "^",  "^=", "{",  "|",  "|=", "||", "}",   "~",
};
static_assert(std::ranges::is_sorted(kOperators));

bool IsNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$';
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool BeginsNumber(std::string_view text)
{
    return IsDigit(text[0]) || (text.size() > 1 && text[0] == '.' && IsDigit(text[1]));
}

bool IsNumberText(std::string_view text)
{
    if (!BeginsNumber(text))
        return false;
    for (std::size_t at = 1; at < text.size(); ++at) {
        const bool isSign = IsOneOf(text[at], "+-") && IsOneOf(text[at - 1], "eEpP");
        if (!IsNameCharacter(text[at]) && text[at] != '.' && text[at] != '\'' && !isSign)
            return false;
    }
    return true;
}

// A string or character constant that ends with its first closing quote.
bool IsOneQuoted(std::string_view text)
{
    if (!IsStringText(text) && !IsCharacterText(text))
        return false;
    const char quote = text.back();
    std::size_t at = text.find(quote) + 1;
    while (at < text.size() && text[at] != quote)
        at += text[at] == '\\' ? 2 : 1;
    return at + 1 == text.size();
}

char NextCharacter(const Token* token)
{
    return token->next == nullptr ? '\0' : token->next->op;
}

} // namespace

void TokenList::JoinNext(Token* token)
{
    token->setstr(token->str + token->next->str);
    deleteToken(token->next);
}

// At a "." or a number: takes on what belongs to the same literal.
void TokenList::JoinFloatingLiteral(Token* token)
{
    const auto joinWord = [&] {
        if (token->next != nullptr && (token->next->name || token->next->number))
            JoinNext(token);
    };
    if (token->op == '.') {
        if (token->next == nullptr || !token->next->number)
            return;
        // ".5" is a number although it doesn't begin with a digit
        JoinNext(token);
        token->number = true;
    } else if (NextCharacter(token) == '.' && NextCharacter(token->next) != '.') {
        JoinNext(token);
        joinWord();
    }
    while (EndsInExponent(token->str) && IsOneOf(NextCharacter(token), "+-") &&
           token->next->next != nullptr && token->next->next->number) {
        JoinNext(token);
        JoinNext(token);
    }
    token->number = true;
}

bool OperatorScope::IsParameterType(const Token& token) const
{
    return IsOneOf(token.op, "&*") && !IsExecutable() && m_Depth > 0 && m_IsBehindType;
}

void OperatorScope::Pass(const Token& token)
{
    switch (token.op) {
    case '{':
        m_Executable.push_back(IsExecutable() || m_IsBehindParenthesis);
        break;
    case '}':
        if (m_Executable.size() > 1)
            m_Executable.pop_back();
        break;
    case '(':
        ++m_Depth;
        break;
    case ')':
        m_Depth -= m_Depth > 0;
        break;
    default:
        break;
    }
    if (IsOneOf(token.op, ";{}") || (token.op == ':' && m_Depth == 0))
        m_Depth = 0; // a new statement, or the one behind a label
    if (!IsOneOf(token.op, ";{}()"))
        m_IsBehindParenthesis = false;
    else if (token.op == ')')
        m_IsBehindParenthesis = true;
    m_IsBehindType = token.name || token.number || IsOneOf(token.op, ">*&");
}

void TokenList::combineOperators()
{
    OperatorScope scope;
    combineOperators(first, scope);
}

void TokenList::combineOperators(Token* from, OperatorScope& scope)
{
    for (Token* token = from; token != nullptr; token = token->next) {
        if (token->comment || token->SkipWhenNextOrPrev())
            continue;
        const char next = NextCharacter(token);
        if (token->op == '.' && next == '.' && NextCharacter(token->next) == '.') {
            JoinNext(token);
            JoinNext(token);
        } else if (token->number || token->op == '.') {
            JoinFloatingLiteral(token);
        } else if (next == '=' && IsOneOf(token->op, kBeforeEquals)) {
            if (!scope.IsParameterType(*token))
                JoinNext(token);
        } else if (next != '\0' && next == token->op && IsOneOf(next, kDoubled)) {
            JoinNext(token);
            if (IsOneOf(next, "<>") && NextCharacter(token) == '=')
                JoinNext(token);
        } else if ((token->op == '-' && next == '>') ||
                   (IsOneOf(token->op, "+-") && next == token->op && scope.IsExecutable())) {
            JoinNext(token);
        }
        scope.Pass(*token);
    }
}

bool IsOneToken(std::string_view text)
{
    if (text.empty())
        return false;
    if (std::ranges::binary_search(kOperators, text) || IsNumberText(text) || IsOneQuoted(text))
        return true;
    return !IsDigit(text[0]) && std::ranges::all_of(text, IsNameCharacter);
}

bool WouldJoin(std::string_view left, std::string_view right)
{
    if (left.empty() || right.empty())
        return false;
    const char end = left.back();
    const char begin = right.front();
    if (IsNameCharacter(end) && IsNameCharacter(begin))
        return true;
    if (BeginsNumber(left))
        return begin == '.' || begin == '\'' || (IsOneOf(begin, "+-") && IsOneOf(end, "eEpP"));
    if (IsNameCharacter(end) && IsOneOf(begin, "\"'"))
        return left.size() <= 3; // as long as a prefix of strings may be
    if (end == '.' && (begin == '.' || IsDigit(begin)))
        return true;
    constexpr std::string_view pairs =
        "++ -- -> << >> && || :: ## /* // *= /= %= += -= &= |= ^= == != <= >= <: "
        "<% %> %: :> .*";
    const char pair[] = {end, begin};
    return pairs.find(std::string_view(pair, 2)) != pairs.npos && end != ' ' && begin != ' ';
}

} // namespace MacroPreprocessorChecker::internal
