#include "Tools/uvparse/TreeText.h"

#include "Tools/uvparse/MarkupScanner.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace uvparse {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr char kFormFeed = '\x0C';
constexpr char kDataLinkEscape = '\x10';

// Hands out the text content of a tree piece by piece, unescaped.
class CTreeTextReader
{
public:
    // Before and after the root there may be line feeds, which are no content.
    explicit CTreeTextReader(std::string_view tree)
        : m_Tree(tree.substr(0, tree.find_last_not_of(kBlanks) + 1)), m_Scanner(m_Tree)
    {}

    // The next piece, never empty before the end; valid until the next call.
    // Returns: false at the end, or where the tree isn't well-formed.
    bool Next(std::string_view& piece)
    {
        while (m_Text.empty())
            if (!ReadText())
                return false;
        m_PieceOffset = OffsetOf(m_Text);
        if (m_Text.front() == '&')
            return ReadEntity(piece);
        piece = m_Text.substr(0, m_Text.find('&'));
        m_Text.remove_prefix(piece.size());
        return true;
    }

    bool IsAtEnd() const { return m_Text.empty() && m_Scanner.IsAtEnd(); }
    std::size_t GetPieceOffset() const { return m_PieceOffset; }

private:
    std::size_t OffsetOf(std::string_view part) const
    {
        return static_cast<std::size_t>(part.data() - m_Tree.data());
    }

    // Passes over one piece of markup.
    bool ReadText()
    {
        SMarkup markup;
        if (!m_Scanner.Next(markup)) {
            m_PieceOffset = m_Scanner.GetOffset();
            return false;
        }
        if (markup.kind == enMarkup::Text) {
            m_Text = markup.text;
            if (!m_HasRoot)
                m_Text.remove_prefix(std::min(m_Text.find_first_not_of(kBlanks), m_Text.size()));
        }
        m_HasRoot = m_HasRoot || (markup.kind != enMarkup::Other && markup.kind != enMarkup::Text);
        return true;
    }

    bool ReadEntity(std::string_view& piece)
    {
        const std::size_t end = m_Text.find(';');
        if (end == std::string_view::npos)
            return false;
        const std::string_view name = m_Text.substr(1, end - 1);
        if (name == "amp")
            piece = "&";
        else if (name == "lt")
            piece = "<";
        else if (name == "gt")
            piece = ">";
        else if (name == "apos")
            piece = "'";
        else if (name == "quot")
            piece = "\"";
        else if (!ReadCharacterReference(name, piece))
            return false;
        m_Text.remove_prefix(end + 1);
        return true;
    }

    bool ReadCharacterReference(std::string_view name, std::string_view& piece)
    {
        if (!name.starts_with('#'))
            return false;
        name.remove_prefix(1);
        const bool isHexadecimal = name.starts_with('x');
        if (isHexadecimal)
            name.remove_prefix(1);
        unsigned int codePoint = 0;
        const auto [end, error] =
            std::from_chars(name.data(), name.data() + name.size(), codePoint, isHexadecimal ? 16 : 10);
        if (error != std::errc() || end != name.data() + name.size() || codePoint > 0x10FFFF)
            return false;
        piece = {m_Sequence, static_cast<std::size_t>(Uve::Encoding::UTF8::cp2UTF8(codePoint, m_Sequence))};
        return true;
    }

    std::string_view m_Tree;
    CMarkupScanner m_Scanner;
    std::string_view m_Text; // what is left of the text between two tags
    bool m_HasRoot = false;
    std::size_t m_PieceOffset = 0;
    char m_Sequence[4] = {};
};

// The source text as the tree's content shows it, compared byte by byte with what comes from there.
class CSourceTextMatcher
{
public:
    explicit CSourceTextMatcher(std::string_view text) : m_Text(text) { SkipFormFeeds(); }

    // Returns: how many bytes of `piece` match; `piece.size()` if all do.
    std::size_t Match(std::string_view piece)
    {
        std::size_t matched = 0;
        while (matched < piece.size()) {
            if (!m_Word.empty()) {
                if (piece[matched] != m_Word.front())
                    return matched;
                m_Word.remove_prefix(1);
                ++matched;
                if (m_Word.empty())
                    Step(1);
                continue;
            }
            const std::size_t run = EqualRun(piece.substr(matched));
            if (run > 0) {
                Step(run);
                matched += run;
            } else if (m_Offset < m_Text.size() && m_Text[m_Offset] == kDataLinkEscape) {
                m_Word = kDataLinkEscapeWord;
            } else {
                return matched;
            }
        }
        return matched;
    }

    bool IsAtEnd() const { return m_Offset == m_Text.size(); }
    std::size_t GetOffset() const { return m_Offset; }

private:
    std::size_t EqualRun(std::string_view piece) const
    {
        const std::string_view rest = m_Text.substr(m_Offset, piece.size());
        const auto [here, there] = std::mismatch(rest.begin(), rest.end(), piece.begin());
        return static_cast<std::size_t>(here - rest.begin());
    }

    void Step(std::size_t count)
    {
        m_Offset += count;
        SkipFormFeeds();
    }

    void SkipFormFeeds()
    {
        while (m_Offset < m_Text.size() && m_Text[m_Offset] == kFormFeed)
            ++m_Offset;
    }

    std::string_view m_Text;
    std::size_t m_Offset = 0;
    std::string_view m_Word; // what is left of the word that stands for the character at m_Offset
};

} // namespace

bool IsTokenElement(std::string_view name)
{
    return name.starts_with("T__") && name != "T__SPACE";
}

bool IsStatementElement(std::string_view name)
{
    return name == "delimited_pl_sql_statement" || name == "full_pl_sql_statement" ||
           name == "pl_sql_statement";
}

std::optional<STreeDifference> FindTreeDifference(std::string_view tree, std::string_view text)
{
    CTreeTextReader reader(tree);
    CSourceTextMatcher matcher(text);
    std::string_view piece;
    while (reader.Next(piece)) {
        const std::size_t matched = matcher.Match(piece);
        if (matched != piece.size())
            return STreeDifference{reader.GetPieceOffset() + matched, matcher.GetOffset()};
    }
    if (!reader.IsAtEnd() || !matcher.IsAtEnd())
        return STreeDifference{reader.GetPieceOffset(), matcher.GetOffset()};
    return std::nullopt;
}

std::size_t CountStatements(std::string_view tree)
{
    std::size_t count = 0;
    std::size_t depth = 0; // of statement elements alone
    std::size_t delimiters = 0;
    bool isDecided = false; // whether the outermost statement counts
    CMarkupScanner scanner(tree);
    for (SMarkup markup; scanner.Next(markup);) {
        const bool isStart = markup.kind == enMarkup::Start;
        if (IsStatementElement(markup.name) && (isStart || markup.kind == enMarkup::End)) {
            depth = isStart ? depth + 1 : depth - std::min<std::size_t>(depth, 1);
            isDecided = isDecided && depth > 0;
        } else if (markup.name == kDelimiterElement && (isStart || markup.kind == enMarkup::End)) {
            delimiters = isStart ? delimiters + 1 : delimiters - std::min<std::size_t>(delimiters, 1);
        } else if (isStart && depth > 0 && delimiters == 0 && !isDecided) {
            isDecided = IsTokenElement(markup.name) || markup.name == kLostElement;
            count += IsTokenElement(markup.name) ? 1u : 0u;
        }
    }
    return count;
}

} // namespace uvparse
