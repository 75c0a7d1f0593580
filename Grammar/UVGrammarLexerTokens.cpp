#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"

#include <charconv>
#include <cstring>

// How a match becomes a token.

namespace {

// Stands for every token when no parser is there to number them; 0 would end the scan.
constexpr int kAnyToken = 1;
constexpr unsigned long kTabWidth = 4;
constexpr const char* kIndent = "__INDENT";
constexpr const char* kUnindent = "__UNINDENT";

} // namespace

int CSQLGrammarLexer::TokenNumber(const std::string& fullName)
{
    return m_pGrammarParser ? m_pGrammarParser->m_mapDefines[fullName] : kAnyToken;
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::Token(std::uint32_t token, int color, ParserNode& node)
{
    const SToken& entry = m_lstTokens[token];
    MakeToken(entry.element, color, 0, false, node);
    return {true, entry.number != 0 ? entry.number : TokenNumber(entry.name)};
}

int CSQLGrammarLexer::TokenAction(const std::string& name, ParserNode& node)
{
    return TokenActionE(name, 0, node);
}

int CSQLGrammarLexer::TokenActionE(const std::string& name, int color, ParserNode& node)
{
    return Token(CompileToken(name), color, node).token;
}

int CSQLGrammarLexer::CpyTokenAction(const std::string& name, const std::string& text, ParserNode& node)
{
    const auto length = static_cast<int>(std::strlen(yytext));
    yyreplace_text(text);
    const SToken& token = m_lstTokens[CompileToken(name)];
    MakeToken(token.element, 0, length, false, node);
    return TokenNumber(token.name);
}

int CSQLGrammarLexer::PseudoTokenAction(const std::string& name, ParserNode& node)
{
    const SToken& token = m_lstTokens[CompileToken(name)];
    MakeToken(token.element, 0, 0, true, node);
    return TokenNumber(token.name);
}

ParserNode CSQLGrammarLexer::CreateToken(const std::string& name, int color, int length, bool isPseudo)
{
    ParserNode node;
    const std::uint32_t element = m_pGrammarParser ? m_pGrammarParser->Fragments().Names().Intern(name) : 0;
    MakeToken(element, color, length, isPseudo, node);
    return node;
}

void CSQLGrammarLexer::MakeToken(std::uint32_t element, int color, int length, bool isPseudo,
                                 ParserNode& node)
{
    const int pos = ColumnOfMatch();
    const int start = m_Extension.m_nChar - yyleng;
    const bool isMatch = !isPseudo && IsMatchAt(start);
    const std::string_view text = isMatch    ? std::string_view(yytext, static_cast<std::size_t>(yyleng))
                                  : isPseudo ? std::string_view()
                                             : std::string_view(yytext);
    static_cast<ParserNodeValue&>(node) = ParserNodeValue();
    node.m_nStart = start;
    node.m_nLength = length > 0 ? length : static_cast<int>(text.size());
    node.m_nLine = static_cast<unsigned>(yylineno);
    if (m_bLongTextsWanted && !isPseudo && start >= 0)
        NoteToken(static_cast<std::size_t>(start), static_cast<std::size_t>(node.m_nLength));
    if (m_pGrammarParser) {
        CFragmentPool& pool = m_pGrammarParser->Fragments();
        const std::string_view query = m_Extension.m_strQuery;
        // an action may have put another text in the place of the match
        const bool isSource = isMatch || (start >= 0 && static_cast<std::size_t>(start) <= query.size() &&
                                          query.substr(static_cast<std::size_t>(start), text.size()) == text);
        if (isSource) {
            node.m_pFirst = pool.NewToken(element, static_cast<std::uint32_t>(start),
                                          static_cast<std::uint32_t>(text.size()), node.m_nLine, pos);
            pool.TakeSlice(m_Extension.m_strQuery.data(), static_cast<std::size_t>(start), text.size());
        } else {
            node.m_pFirst = pool.NewTokenText(element, text, node.m_nLine, pos);
        }
        node.m_pLast = node.m_pFirst;
    }
    AddColoring(color, start, m_Extension.m_nChar - 1);
}

// The last LF at or before byte `from`, -1 if there is none.
int CSQLGrammarLexer::LineFeedBefore(int from)
{
    const int stop = from >= m_nLineFeedFrom ? m_nLineFeedFrom : -1;
    int at = from;
    while (at > stop && m_Extension.m_strQuery.data()[at] != '\n')
        --at;
    if (at > stop || stop == -1)
        m_nLineFeedAt = at;
    m_nLineFeedFrom = from;
    return m_nLineFeedAt;
}

// Note: token positions
// The column counts from the byte after the recorded line start. That record is meant to be the last LF, but
// where no LF lies between two tokens it moves to the end of the first one. So the first token of a line has
// its column, and a later one its distance to the token before it. Readers of the tree know the attribute in
// this form.
int CSQLGrammarLexer::ColumnOfMatch()
{
    const int end = m_Extension.m_nChar;
    const int beforeMatch = end - yyleng - 1;
    const int previous = m_Extension.m_nPrevChar;
    int lineStart = m_Extension.m_nLineStart;
    if (end > previous) {
        int at = beforeMatch;
        while (at >= previous && m_Extension.m_strQuery.data()[at] != '\n')
            --at;
        if (at > lineStart) {
            m_Extension.m_nLineStart = at;
            lineStart = at;
        }
        m_Extension.m_nPrevChar = end;
    } else if (end <= lineStart) {
        // the scanner has gone back before the recorded point
        lineStart = beforeMatch < 0 ? beforeMatch : LineFeedBefore(beforeMatch);
    }
    return end - yyleng - lineStart - 1;
}

void CSQLGrammarLexer::AddColoring(int color, int from, int to)
{
    if (!m_bColoringWanted)
        return;
    std::array<char, 3 * (kMostDigits + 1)> line{};
    char* at = line.data();
    for (const int number : {color, from, to}) {
        at = std::to_chars(at, line.data() + line.size(), number).ptr;
        *at++ = ' ';
    }
    at[-1] = '\n';
    m_Extension.m_strColoring.append(line.data(), static_cast<std::size_t>(at - line.data()));
}

bool CSQLGrammarLexer::TokenActionIndentation(ParserNode& node, int& out)
{
    unsigned long width = 0;
    for (const char* at = yytext; *at; ++at)
        width += *at == ' ' ? 1 : *at == '\t' ? kTabWidth : 0;
    // inside an open bracket indentation means nothing
    for (const auto& stack : m_Extension.m_mapStacks)
        if (!stack.second.empty())
            return false;
    auto& indents = m_Extension.m_dequeIndents;
    const unsigned long top = indents.empty() ? 0 : indents.back();
    if (width == top)
        return false;
    if (width > top) {
        indents.push_back(width);
        out = TokenAction(kIndent, node);
        return true;
    }
    indents.pop_back();
    out = TokenAction(kUnindent, node);
    while (!indents.empty() && indents.back() > width) {
        m_Extension.m_dequePseudoTokens.emplace_back(kUnindent);
        indents.pop_back();
    }
    return true;
}
