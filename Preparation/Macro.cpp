#include "Preparation/Macro.h"

#include <algorithm>
#include <utility>

namespace MacroPreprocessorChecker::internal {

namespace {

bool IsWhite(const Token& token)
{
    return token.comment || token.SkipWhenNextOrPrev();
}

// The next significant token of the same logical line, or null.
const Token* NextOnLine(const Token* token)
{
    const Token* const next = NextSignificant(token);
    return next != nullptr && next->sourceLine == token->sourceLine ? next : nullptr;
}

// Two "#" side by side.
bool IsHashHash(const Token* token)
{
    return token->op == '#' && token->next != nullptr && token->next->op == '#';
}

} // namespace

Macro::Macro(const Token* hash, FileNames& names) : m_IsDefinedInSource(true), m_Tokens(names)
{
    const Token* const define = StartsDirective(hash) ? NextOnLine(hash) : nullptr;
    const Token* const nameToken =
        define != nullptr && define->str == "define" ? NextOnLine(define) : nullptr;
    if (nameToken == nullptr || !parseDefine(nameToken))
        throw Error(hash->location, "bad macro syntax");
}

Macro::Macro(const std::string& left, const std::string& value, FileNames& names) : m_Tokens(names)
{
    TokenList text(names);
    ErrorList errors;
    text.readtext(left + ' ' + value, std::string(), errors, false);
    const Token* nameToken = text.first;
    while (nameToken != nullptr && IsWhite(*nameToken))
        nameToken = nameToken->next;
    if (!errors.empty() || nameToken == nullptr || !parseDefine(nameToken))
        throw std::runtime_error("bad macro syntax. macroname=" + left + " value=" + value);
}

Macro::Macro(enKind kind, FileNames& names) : m_Kind(kind), m_Tokens(names) {}

// A "(" right behind the name begins the parameters; a continuation between the two counts as nothing.
bool Macro::parseDefine(const Token* nameToken)
{
    if (!nameToken->name)
        return false;
    m_Name = nameToken->str;
    const std::uint32_t line = nameToken->sourceLine;
    std::unordered_map<std::string, int> indexes;
    const Token* token = nameToken->next;
    while (token != nullptr && token->IsNextLineToken())
        token = token->next;
    m_IsFunctionLike = token != nullptr && token->op == '(' && token->sourceLine == line;
    if (m_IsFunctionLike) {
        token = ParseParameters(token, indexes);
        if (token == nullptr)
            return false;
        token = token->next;
    } else {
        token = nameToken->next;
    }
    CopyReplacement(token, line);
    m_WantsExpanded.resize(m_Parameters.size());
    BuildParts(indexes);

    const Token* end = m_Tokens.last;
    while (end != nullptr && (IsWhite(*end) || end->op == '{' || end->op == '}'))
        end = end->previous;
    m_EndsStatement = end != nullptr && end->op == ';';
    return true;
}

// Returns: the ")", or null if the parameters aren't well formed.
const Token* Macro::ParseParameters(const Token* open, std::unordered_map<std::string, int>& indexes)
{
    const auto add = [&](const std::string& parameter) {
        m_Parameters.push_back(parameter);
        return indexes.try_emplace(parameter, static_cast<int>(indexes.size())).second;
    };
    const Token* token = NextOnLine(open);
    if (token != nullptr && token->op == ')')
        return token;
    while (token != nullptr) {
        if (token->name) {
            if (!add(token->str))
                return nullptr;
            token = NextOnLine(token);
            m_IsVariadic = token != nullptr && token->str == "...";
            if (m_IsVariadic)
                token = NextOnLine(token);
        } else if (token->str == "...") {
            if (!add("__VA_ARGS__"))
                return nullptr;
            m_IsVariadic = true;
            token = NextOnLine(token);
        } else {
            return nullptr;
        }
        if (token != nullptr && token->op == ')')
            return token;
        if (token == nullptr || token->op != ',' || m_IsVariadic)
            return nullptr;
        token = NextOnLine(token);
    }
    return nullptr;
}

// The tokens up to the line's end, without white space around them. A comment may hold line ends, and one of
// the other kind would take the rest of the line with it, so a comment is a blank.
void Macro::CopyReplacement(const Token* from, std::uint32_t line)
{
    for (const Token* token = from; token != nullptr && token->sourceLine == line; token = token->next) {
        if (token->comment) {
            Location end = token->location;
            ++end.col;
            if (m_Tokens.last != nullptr && !m_Tokens.last->SkipWhenNextOrPrev())
                m_Tokens.push_back(new TokenSpaces(token->location, end, token->hidden));
        } else if (m_Tokens.last != nullptr || !token->SkipWhenNextOrPrev()) {
            m_Tokens.push_back(token->getCopy());
        }
    }
    while (m_Tokens.last != nullptr && m_Tokens.last->SkipWhenNextOrPrev())
        m_Tokens.deleteToken(m_Tokens.last);
}

void Macro::BuildParts(const std::unordered_map<std::string, int>& indexes)
{
    const auto parameterOf = [&](const Token* token) {
        const auto at = token != nullptr && token->name ? indexes.find(token->str) : indexes.end();
        return at == indexes.end() ? -1 : at->second;
    };
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
        SMacroPart part{.token = token, .parameter = parameterOf(token)};
        if (m_IsFunctionLike && token->op == '#') {
            const Token* const operand = NextSignificant(token);
            part.parameter = parameterOf(operand);
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
        if (!IsWhite(*token))
            text += token->str;
    return text;
}

} // namespace MacroPreprocessorChecker::internal
