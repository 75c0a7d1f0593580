#include "Tools/uvparse/TreeText.h"

#include "Tools/uvparse/MarkupScanner.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace uvparse {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr char kFormFeed = '\x0C';
constexpr char kDataLinkEscape = '\x10';

// Takes the reference that `text` begins with off. What it stands for may be written to `sequence`.
// Returns: false where there is none.
bool ReadReference(std::string_view& text, char (&sequence)[4], std::string_view& piece)
{
    constexpr std::pair<std::string_view, std::string_view> kEntities[] = {
        {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"apos", "'"}, {"quot", "\""}};
    const std::size_t end = text.find(';');
    if (end == std::string_view::npos)
        return false;
    std::string_view name = text.substr(1, end - 1);
    if (name.starts_with('#')) {
        const bool isHexadecimal = name.starts_with("#x");
        name.remove_prefix(isHexadecimal ? 2 : 1);
        unsigned int codePoint = 0;
        const auto [last, error] =
            std::from_chars(name.data(), name.data() + name.size(), codePoint, isHexadecimal ? 16 : 10);
        if (error != std::errc() || last != name.data() + name.size() || codePoint > 0x10FFFF)
            return false;
        piece = {sequence, static_cast<std::size_t>(Uve::Encoding::UTF8::cp2UTF8(codePoint, sequence))};
    } else {
        const auto* const entity =
            std::ranges::find(kEntities, name, &std::pair<std::string_view, std::string_view>::first);
        if (entity == std::end(kEntities))
            return false;
        piece = entity->second;
    }
    text.remove_prefix(end + 1);
    return true;
}

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
            return ReadReference(m_Text, m_Sequence, piece);
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

// Counts statements tag by tag.
class CStatementWalk
{
public:
    void Take(const SMarkup& markup)
    {
        const bool isStart = markup.kind == enMarkup::Start;
        if (IsStatementElement(markup.name) && (isStart || markup.kind == enMarkup::End)) {
            m_Depth = isStart ? m_Depth + 1 : m_Depth - std::min<std::size_t>(m_Depth, 1);
            m_IsDecided = m_IsDecided && m_Depth > 0;
        } else if (markup.name == kDelimiterElement && (isStart || markup.kind == enMarkup::End)) {
            m_Delimiters = isStart ? m_Delimiters + 1 : m_Delimiters - std::min<std::size_t>(m_Delimiters, 1);
        } else if (isStart && m_Depth > 0 && m_Delimiters == 0 && !m_IsDecided) {
            m_IsDecided = IsTokenElement(markup.name) || markup.name == kLostElement;
            m_Count += IsTokenElement(markup.name) ? 1u : 0u;
        }
    }

    std::size_t Count() const { return m_Count; }
    bool IsInside() const { return m_Depth > 0; }

private:
    std::size_t m_Count = 0;
    std::size_t m_Depth = 0; // of statement elements alone
    std::size_t m_Delimiters = 0;
    bool m_IsDecided = false; // whether the outermost statement counts
};

// Follows a text that its tree holds, where carriage returns and form feeds may be missing.
class CTextInTree
{
public:
    explicit CTextInTree(std::string_view text) : m_Text(text) { SkipMissing(); }

    void Pass(std::string_view content)
    {
        for (const char c : content) {
            if (IsMissing(c))
                continue;
            if (m_Offset < m_Text.size())
                ++m_Offset;
            SkipMissing();
        }
    }

    std::size_t Offset() const { return m_Offset; }

private:
    static bool IsMissing(char c) { return c == '\r' || c == kFormFeed; }

    void SkipMissing()
    {
        while (m_Offset < m_Text.size() && IsMissing(m_Text[m_Offset]))
            ++m_Offset;
    }

    std::string_view m_Text;
    std::size_t m_Offset = 0;
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

std::string PlainText(std::string_view content)
{
    std::string plain;
    char sequence[4] = {};
    while (!content.empty()) {
        std::string_view piece = content.substr(0, content.find('&'));
        if (!piece.empty())
            content.remove_prefix(piece.size());
        else if (!ReadReference(content, sequence, piece)) {
            piece = content.substr(0, 1);
            content.remove_prefix(1);
        }
        plain += piece;
    }
    return plain;
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
    CStatementWalk walk;
    CMarkupScanner scanner(tree);
    for (SMarkup markup; scanner.Next(markup);)
        walk.Take(markup);
    return walk.Count();
}

STreeOutline OutlineOf(std::string_view tree, std::string_view text)
{
    STreeOutline outline;
    CTextInTree place(text);
    CStatementWalk walk;
    bool hasRoot = false;
    SStretch statement;
    std::size_t lastToken = 0; // where the last token ends
    std::size_t counted = 0;
    bool isInToken = false;
    CMarkupScanner scanner(tree);
    for (SMarkup markup; scanner.Next(markup);) {
        if (markup.kind == enMarkup::Text) {
            if (hasRoot)
                place.Pass(PlainText(markup.text));
            if (isInToken)
                lastToken = place.Offset();
            continue;
        }
        hasRoot = hasRoot || markup.kind != enMarkup::Other;
        isInToken = markup.kind == enMarkup::Start && IsTokenElement(markup.name);
        const bool wasInside = walk.IsInside();
        walk.Take(markup);
        if (!wasInside && walk.IsInside())
            statement = {text.size(), place.Offset()};
        if (isInToken) {
            outline.tokens.push_back(place.Offset());
            statement.begin = std::min(statement.begin, place.Offset());
        }
        if (wasInside && !walk.IsInside() && walk.Count() > counted) {
            outline.statements.push_back({statement.begin, std::max(statement.begin, lastToken)});
            counted = walk.Count();
        }
    }
    return outline;
}

} // namespace uvparse
