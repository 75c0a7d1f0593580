// Joining the reader's single characters into operators and floating literals. Only what stands side by side
// is joined, so the written text never changes.
#include "Preparation/MacroCharacters.h"
#include "Preparation/MacroTokens.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace MacroPreprocessorChecker::internal {

namespace {

constexpr CharacterSet kBeforeEquals{"=!<>+-*/%&|^"};
constexpr CharacterSet kDoubled{"|&:<>"};
constexpr CharacterSet kSigns{"+-"};
constexpr CharacterSet kAngles{"<>"};
constexpr CharacterSet kExponents{"eEpP"};
constexpr CharacterSet kQuotes{"\"'"};
constexpr CharacterSet kTypeEnds{">*&"};
constexpr CharacterSet kParameterTypeEnds{"&*"};

bool IsHexadecimal(std::string_view number)
{
    return number.starts_with("0x") || number.starts_with("0X");
}

// A number that wants a sign and digits after its last letter.
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

bool BeginsNumber(std::string_view text)
{
    return IsDigit(text[0]) || (text.size() > 1 && text[0] == '.' && IsDigit(text[1]));
}

bool IsNumberText(std::string_view text)
{
    if (!BeginsNumber(text))
        return false;
    for (std::size_t at = 1; at < text.size(); ++at) {
        const bool isSign = kSigns.Has(text[at]) && kExponents.Has(text[at - 1]);
        if (!kNameCharacters.Has(text[at]) && text[at] != '.' && text[at] != '\'' && !isSign)
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
        at += text[at] == '\\' ? 2u : 1u;
    return at + 1 == text.size();
}

// The token that begins where this one ends: nothing stands between the two, no line end either.
Token* Adjacent(const Token* token)
{
    Token* const next = token->next;
    return next != nullptr && next->str.data() == token->str.data() + token->str.size() ? next : nullptr;
}

// The adjacent token, if it is one character.
char NextCharacter(const Token* token)
{
    const Token* const next = Adjacent(token);
    return next == nullptr ? '\0' : next->op;
}

bool IsNumber(const Token* token)
{
    return token != nullptr && token->number;
}

} // namespace

// Takes in the adjacent token.
void TokenList::JoinNext(Token* token)
{
    token->setstr({token->str.data(), token->str.size() + token->next->str.size()});
    deleteToken(token->next);
}

// At a "." or a number: takes on what belongs to the same literal.
void TokenList::JoinNumberOrPoints(Token* token)
{
    if (token->op == '.' && NextCharacter(token) == '.' && NextCharacter(token->next) == '.') {
        JoinNext(token);
        JoinNext(token);
        return;
    }
    const auto joinWord = [&] {
        const Token* const next = Adjacent(token);
        if (next != nullptr && (next->name || next->number))
            JoinNext(token);
    };
    if (token->op == '.') {
        if (!IsNumber(Adjacent(token)))
            return;
        // ".5" is a number although it doesn't begin with a digit
        JoinNext(token);
        token->number = true;
    } else if (NextCharacter(token) == '.' && NextCharacter(token->next) != '.') {
        JoinNext(token);
        joinWord();
    }
    while (EndsInExponent(token->str) && kSigns.Has(NextCharacter(token)) &&
           IsNumber(Adjacent(token->next))) {
        JoinNext(token);
        JoinNext(token);
    }
    token->number = true;
}

bool OperatorScope::IsParameterType(const Token& token) const
{
    return kParameterTypeEnds.Has(token.op) && !IsExecutable() && m_Depth > 0 && m_IsBehindType;
}

void OperatorScope::Pass(const Token& token)
{
    switch (token.op) {
    case '{':
        m_Executable.push_back(IsExecutable() || m_IsBehindParenthesis);
        m_Depth = 0; // a new statement
        break;
    case '}':
        if (m_Executable.size() > 1)
            m_Executable.pop_back();
        m_Depth = 0;
        break;
    case ';':
        m_Depth = 0;
        break;
    case '(':
        ++m_Depth;
        break;
    case ')':
        m_Depth -= m_Depth > 0;
        m_IsBehindParenthesis = true;
        break;
    default:
        m_IsBehindParenthesis = false;
        break;
    }
    m_IsBehindType = token.name || token.number || kTypeEnds.Has(token.op);
}

void TokenList::combineOperators()
{
    OperatorScope scope;
    combineOperators(first, scope);
}

void TokenList::combineOperators(Token* from, OperatorScope& scope)
{
    for (Token* token = from; token != nullptr; token = token->next) {
        if (token->IsWhite())
            continue;
        if (token->number || token->op == '.')
            JoinNumberOrPoints(token);
        else if (token->op != '\0' && NextCharacter(token) != '\0')
            JoinOperator(token, NextCharacter(token), scope);
        scope.Pass(*token);
    }
}

// At a sign before another character.
void TokenList::JoinOperator(Token* token, char next, const OperatorScope& scope)
{
    if (next == '=' && kBeforeEquals.Has(token->op)) {
        if (!scope.IsParameterType(*token))
            JoinNext(token);
    } else if (next == token->op && kDoubled.Has(next)) {
        JoinNext(token);
        if (kAngles.Has(next) && NextCharacter(token) == '=')
            JoinNext(token);
    } else if ((token->op == '-' && next == '>') ||
               (kSigns.Has(token->op) && next == token->op && scope.IsExecutable())) {
        JoinNext(token);
    }
}

bool IsOneToken(std::string_view text)
{
    if (text.empty())
        return false;
    if (std::ranges::binary_search(kOperators, text) || IsNumberText(text) || IsOneQuoted(text))
        return true;
    return !IsDigit(text[0]) && std::ranges::all_of(text, [](char c) { return kNameCharacters.Has(c); });
}

bool WouldJoin(std::string_view left, std::string_view right)
{
    if (left.empty() || right.empty())
        return false;
    const char end = left.back();
    const char begin = right.front();
    if (kNameCharacters.Has(end) && kNameCharacters.Has(begin))
        return true;
    if (BeginsNumber(left))
        return begin == '.' || begin == '\'' || (kSigns.Has(begin) && kExponents.Has(end));
    if (kNameCharacters.Has(end) && kQuotes.Has(begin))
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
