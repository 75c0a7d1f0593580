#include "Preparation/Macro.h"

#include <algorithm>

namespace MacroPreprocessorChecker::internal {

namespace {

// Two "#" side by side.
bool IsHashHash(const Token* token)
{
    return token->op == '#' && token->next != nullptr && token->next->op == '#';
}

} // namespace

Macro::Macro(const Token* hash, TokenStore& store) : m_Tokens(store)
{
    const Token* const define = StartsDirective(hash) ? NextOnLine(hash) : nullptr;
    const Token* const nameToken =
        define != nullptr && define->str == "define" ? NextOnLine(define) : nullptr;
    if (nameToken == nullptr || !parseDefine(nameToken))
        throw Error(hash->location, "bad macro syntax");
}

Macro::Macro(const std::string& left, const std::string& value, TokenStore& store) : m_Tokens(store)
{
    TokenList text(store);
    ErrorList errors;
    text.readtext(left + ' ' + value, std::string(), errors, false);
    const Token* nameToken = text.first;
    while (nameToken != nullptr && nameToken->IsWhite())
        nameToken = nameToken->next;
    if (!errors.empty() || nameToken == nullptr || !parseDefine(nameToken))
        throw std::runtime_error("bad macro syntax. macroname=" + left + " value=" + value);
}

Macro::Macro(enKind kind, TokenStore& store) : m_Kind(kind), m_Tokens(store)
{
    switch (kind) {
    case KIND_DEFINED:
        break;
    case KIND_FILE:
        m_Name = "__FILE__";
        break;
    case KIND_LINE:
        m_Name = "__LINE__";
        break;
    case KIND_COUNTER:
        m_Name = "__COUNTER__";
        break;
    }
}

// A "(" right after the name begins the parameters; a continuation between the two counts as nothing.
bool Macro::parseDefine(const Token* nameToken)
{
    if (!nameToken->name)
        return false;
    m_Name = nameToken->str;
    const std::uint32_t line = nameToken->sourceLine;
    const Token* token = nameToken->next;
    while (token != nullptr && token->IsNextLineToken())
        token = token->next;
    m_IsFunctionLike = token != nullptr && token->op == '(' && token->sourceLine == line;
    if (m_IsFunctionLike) {
        token = ParseParameters(token);
        if (token == nullptr)
            return false;
        token = token->next;
    } else {
        token = nameToken->next;
    }
    CopyReplacement(token, line);
    m_WantsExpanded.resize(m_Parameters.size());
    BuildParts();

    const Token* end = m_Tokens.last;
    while (end != nullptr && (end->IsWhite() || end->op == '{' || end->op == '}'))
        end = end->previous;
    m_EndsStatement = end != nullptr && end->op == ';';
    return true;
}

// Returns: the ")", or null if the parameters aren't well formed.
const Token* Macro::ParseParameters(const Token* open)
{
    const Token* token = NextOnLine(open);
    if (token != nullptr && token->op == ')')
        return token;
    const auto add = [&](std::string_view parameter) {
        m_Parameters.push_back({parameter, static_cast<int>(m_Parameters.size())});
    };
    while (token != nullptr) {
        if (token->name) {
            add(token->str);
            token = NextOnLine(token);
            m_IsVariadic = token != nullptr && token->str == "...";
            if (m_IsVariadic)
                token = NextOnLine(token);
        } else if (token->str == "...") {
            add("__VA_ARGS__");
            m_IsVariadic = true;
            token = NextOnLine(token);
        } else {
            return nullptr;
        }
        if (token != nullptr && token->op == ')') {
            std::ranges::sort(m_Parameters, {}, &SParameter::name);
            const bool repeats =
                std::ranges::adjacent_find(m_Parameters, {}, &SParameter::name) != m_Parameters.end();
            return repeats ? nullptr : token;
        }
        if (token == nullptr || token->op != ',' || m_IsVariadic)
            return nullptr;
        token = NextOnLine(token);
    }
    return nullptr;
}

// The index of the parameter that a token names, or -1.
int Macro::ParameterOf(const Token* token) const
{
    if (m_Parameters.empty() || token == nullptr || !token->name)
        return -1;
    const auto at = std::ranges::lower_bound(m_Parameters, token->str, {}, &SParameter::name);
    return at == m_Parameters.end() || at->name != token->str ? -1 : at->index;
}

// The tokens up to the line's end, without white space around them. A comment may hold line ends, and one of
// the other kind would take the rest of the line with it, so a comment is a blank.
void Macro::CopyReplacement(const Token* from, std::uint32_t line)
{
    for (const Token* token = from; token != nullptr && token->sourceLine == line; token = token->next) {
        if (token->comment) {
            if (m_Tokens.last != nullptr && !m_Tokens.last->SkipWhenNextOrPrev())
                m_Tokens.push_back(TOKEN_SPACES, " ", token->location, token->hidden);
        } else if (m_Tokens.last != nullptr || !token->SkipWhenNextOrPrev()) {
            m_Tokens.push_back(*token);
        }
    }
    while (m_Tokens.last != nullptr && m_Tokens.last->SkipWhenNextOrPrev())
        m_Tokens.deleteToken(m_Tokens.last);
}

void Macro::BuildParts()
{
    bool isBehindHashHash = false;
    for (const Token* token = m_Tokens.first; token != nullptr; token = token->next) {
        if (IsHashHash(token)) {
            while (!m_Parts.empty() && m_Parts.back().token->SkipWhenNextOrPrev())
                m_Parts.pop_back();
            if (m_Parts.empty() || isBehindHashHash)
                m_HasOpenHashHash = true;
            else
                m_Parts.back().joinsNext = true;
            isBehindHashHash = true;
            token = token->next;
            continue;
        }
        if (isBehindHashHash && token->SkipWhenNextOrPrev())
            continue;
        SMacroPart part{.token = token, .parameter = ParameterOf(token)};
        if (m_IsFunctionLike && token->op == '#') {
            const Token* const operand = NextSignificant(token);
            part.parameter = ParameterOf(operand);
            part.isStringized = part.parameter >= 0;
            if (part.isStringized)
                part.token = token = operand;
        }
        m_Parts.push_back(part);
        isBehindHashHash = false;
    }
    m_HasOpenHashHash |= isBehindHashHash;

    bool hasJoin = m_HasOpenHashHash;
    for (std::size_t i = 0; i < m_Parts.size(); ++i) {
        const SMacroPart& part = m_Parts[i];
        hasJoin |= part.joinsNext;
        const bool isJoined = part.joinsNext || (i > 0 && m_Parts[i - 1].joinsNext);
        if (part.parameter >= 0 && !part.isStringized && !isJoined)
            m_WantsExpanded[static_cast<std::size_t>(part.parameter)] = true;
    }
    m_IsPlain = !m_IsFunctionLike && !hasJoin;
    if (m_IsPlain)
        for (const SMacroPart& part : m_Parts)
            m_PlainItems.push_back({part.token});
}

std::string Macro::ReplacementText() const
{
    std::string text;
    for (const Token* token = m_Tokens.first; token != nullptr; token = token->next)
        if (!token->IsWhite())
            text += token->str;
    return text;
}

} // namespace MacroPreprocessorChecker::internal
